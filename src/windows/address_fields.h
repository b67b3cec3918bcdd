// The eleven fields of a record with their labels.
#pragma once
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <functional>

#include "address/book.h"

class QGridLayout;

namespace quillane {

/// txt(0) to txt(10) and lblInfo(0) to lblInfo(10), drawn from the address book's state; what is typed goes
/// there.  On a small screen they scroll.
class AddressFields : public QScrollArea {
 public:
  /// `changed` is called after a key, a double-click or the mouse has changed the state.
  explicit AddressFields(std::function<void()> changed);
  void ShowState();
  /// Takes over where the caret stands and what is selected, which commands look at and change.
  void TakeSelections();
  QSize sizeHint() const override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* MakeFields();
  void AddField(QGridLayout& grid, int index);
  void ShowField(int index);
  void ShowSelection(int index);
  void Typed(int index);
  bool KeyPressed(int index, const QKeyEvent& event);
  bool Walk(int from, int to);
  bool Hovered(int index);
  void FocusWantedField();
  /// The field that a widget is, or is part of; -1 for another.
  int FieldOf(const QObject* widget) const;

  std::function<void()> changed_;
  // Owned by the widget tree.
  FixedArray<QWidget*, field::Count> txt_;
  FixedArray<QLabel*, field::Count> lblInfo_;
  FixedArray<QString, field::Count> shown_;  ///< what each field has been given to show
  bool showing_ = false;                     ///< the fields are being written by the program
};

}  // namespace quillane
