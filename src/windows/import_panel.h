// The two panels of an import: its set-up, and the walk through its records.
#pragma once
#include <QButtonGroup>
#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QPlainTextEdit>
#include <functional>

#include "address/batch.h"

class QGridLayout;
class QHBoxLayout;
class QPushButton;

namespace quillane {

/// Runs a procedure of the address book and shows what has become of it.
using AddressRunner = std::function<void(const std::function<void()>& command)>;

/// lblFormat(0) to (8): a category that is in the list or not.  It is a check box in a coat of its own, cyan
/// or grey.
class CategoryLabel : public QCheckBox {
 public:
  CategoryLabel();
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  bool hitButton(const QPoint& place) const override { return rect().contains(place); }
  /// The rule says whether the colour turns, not the click.
  void nextCheckState() override {}
  void paintEvent(QPaintEvent* event) override;
};

/// picImport, which stands in the place of the fields and the list.
class SetUpPanel : public QWidget {
 public:
  explicit SetUpPanel(AddressRunner run);
  void ShowState();
  /// The keys begin at the categories.
  void TakeFocus() { lblFormat_[0]->setFocus(); }

 private:
  QWidget* MakeTop();
  QWidget* MakeCategories();
  QWidget* MakeListTypes();
  QWidget* MakeSample();
  QWidget* MakeButtons();
  QPushButton* AddButton(QHBoxLayout& row, const char* name, const char* caption, void (*command)());

  AddressRunner run_;
  // Owned by the widget tree.
  QLabel* lblMain_ = nullptr;
  FixedArray<CategoryLabel*, CategoryCount> lblFormat_;
  QButtonGroup optList_;
  QPlainTextEdit* txtSample_ = nullptr;
};

/// picBatchProcess, above the fields.
class WalkPanel : public QFrame {
 public:
  explicit WalkPanel(AddressRunner run);
  void ShowState();

 private:
  void AddButton(QGridLayout& grid, int place, const char* name, const char* caption, void (*command)());

  AddressRunner run_;
  QLabel* lblBatch_ = nullptr;  // owned by the widget tree
};

}  // namespace quillane
