// The main window: three bars, the menu bar and the sheet, all drawn from the frame's plain state.
#pragma once
#include <QHash>
#include <QMainWindow>
#include <memory>

#include "model/frame.h"
#include "sheet/label_input.h"
#include "windows/menus.h"

class QHBoxLayout;
class QScrollBar;

namespace quillane {

class SheetView;
class StatusLine;
class Strip;

/// Shows frame() and sends what a person does to FrameClicked and RunCommand.  Every widget's object name is
/// the name of its control, every action's that of its menu entry.
class FrameWindow : public QMainWindow, private FormObserver {
  Q_OBJECT

 public:
  FrameWindow();
  ~FrameWindow() override;

  SheetView* Sheet() const { return sheet_; }
  /// Shows the window where it stood in the last run; maximised when there was none.
  void ShowAsBefore();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void BeforeChange(Control&, Aspect) override {}
  void AfterChange(Control& control, Aspect aspect) override;

  // Building.
  QWidget* MakeToolBar();
  QWidget* MakeInfoBar();
  QWidget* MakeStrip();
  QWidget* MakeSheetRow();
  QWidget* MakeStatusBar();
  void AddImage(QHBoxLayout& row, const QString& name, int size);
  void AddDecoration(QHBoxLayout& row, const QString& name);
  void AddButton(QHBoxLayout& row, const QString& name);
  QWidget* AddLabel(const QString& name, Qt::TextElideMode elide, Qt::Alignment alignment);
  void Keep(const QString& name, QWidget* widget);
  void MakeMenus();
  void AddPageKeys();
  void ConnectModel();

  // Following the model.
  void Follow(Control& control, QWidget& widget);
  void FollowColours(const Control& control, QWidget& widget) const;
  void FollowScroll();
  void FollowTitle();
  void FollowStrip(const Control& control);

  bool ReturnToSheet(const QEvent& event);
  void CenterForm();

  SheetView* sheet_ = nullptr;  // these are owned by the widget tree
  QScrollBar* scrollBar_ = nullptr;
  Strip* strip_ = nullptr;
  StatusLine* statusLine_ = nullptr;
  QHash<const Control*, QWidget*> widgets_;
  std::unique_ptr<Menus> menus_;
  std::unique_ptr<LabelInput> labelInput_;
  bool titleStale_ = false;
};

}  // namespace quillane
