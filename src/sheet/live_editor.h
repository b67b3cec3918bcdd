// The one live editor of the sheet: a line edit that looks like the drawing under it.
#pragma once
#include <QLineEdit>
#include <QTimer>

namespace quillane {

class Control;
class SheetView;

/// Keeps text, caret, selection, undo and input methods as a line edit does; what a key or a button means is
/// decided by the sheet view.  It paints its text with the page's own drawing, so that nothing moves when an
/// area gets the focus.
class LiveEditor : public QLineEdit {
  Q_OBJECT

 public:
  explicit LiveEditor(SheetView& view);

  /// Applies the font and the colours of the control over which it stands.
  void ApplyLook(const Control& control);
  /// What a line edit does with a key by itself.
  void EditKey(QKeyEvent* event) { QLineEdit::keyPressEvent(event); }

  // The pointer, in twips from the text's left edge.
  void PressAt(float x, bool extend);
  void DragTo(float x);
  void SelectWordAt(float x);

  /// Begins anew over another area: its text, and nothing of the last area's that could be undone into it.
  void Begin(const QString& text);
  /// What an input method is composing becomes text, before the focus or the caret goes elsewhere.
  void FinishComposing();
  /// The caret shows at once, as after every key.
  void ShowCaret();
  /// Where an input method puts its list of candidates: the caret, in the editor's pixels.
  QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool focusNextPrevChild(bool) override { return false; }

 private:
  enum class Line { Plain, Highlighted };

  float WidthTo(int position) const;
  int PositionAt(float x) const;
  void KeepCaretInView();
  void PaintText(QPainter& painter, Line line) const;
  void PaintSelection(QPainter& painter) const;
  QRectF CaretOnPage() const;

  SheetView& view_;
  QTimer blink_;
  bool caretShows_ = true;
  bool composing_ = false;
  int anchor_ = 0;    ///< where a selection by the pointer began
  float offset_ = 0;  ///< twips of a text wider than its area that have gone out at the left
};

}  // namespace quillane
