// Input events of the sheet view: keys, buttons, drops and the wheel.
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>
#include <array>
#include <cmath>

#include "editing/totals_commands.h"
#include "model/focus.h"
#include "model/frame.h"
#include "model/proposal.h"
#include "model/report.h"
#include "pages/labels.h"
#include "platform/codepage.h"
#include "sheet/live_editor.h"
#include "sheet/sheet_view.h"
#include "ui/desk.h"

namespace quillane {

namespace {

constexpr int LongestText =
    32767;  // what one text box holds; a longer clipboard is cut before it is looked at
constexpr double TwipsPerNotch = 1080;  // three rows
constexpr int WheelNotch = 120;

/// Letters and digits have their own character as their number.  Marks have none: the characters "!" to "."
/// share theirs with Page Up to Delete.
int NumberOf(int upper) {
  const bool digit = upper >= '0' && upper <= '9', letter = upper >= 'A' && upper <= 'Z';
  return digit || letter || upper == ' ' || (upper >= 0xC0 && upper <= 0xFF) ? upper : 0;
}

int KeyNumber(const QKeyEvent& event) {
  constexpr std::array<std::pair<int, int>, 18> known{{{Qt::Key_Backspace, keys::Backspace},
                                                       {Qt::Key_Tab, keys::Tab},
                                                       {Qt::Key_Backtab, keys::Tab},
                                                       {Qt::Key_Return, keys::Enter},
                                                       {Qt::Key_Enter, keys::Enter},
                                                       {Qt::Key_Shift, 16},
                                                       {Qt::Key_Control, 17},
                                                       {Qt::Key_Alt, 18},
                                                       {Qt::Key_Escape, 27},
                                                       {Qt::Key_PageUp, keys::PageUp},
                                                       {Qt::Key_PageDown, keys::PageDown},
                                                       {Qt::Key_End, keys::End},
                                                       {Qt::Key_Home, keys::Home},
                                                       {Qt::Key_Left, keys::Left},
                                                       {Qt::Key_Up, keys::Up},
                                                       {Qt::Key_Right, keys::Right},
                                                       {Qt::Key_Down, keys::Down},
                                                       {Qt::Key_Insert, keys::Insert}}};
  for (const auto& [qt, number] : known)
    if (event.key() == qt) return number;
  if (event.key() == Qt::Key_Delete) return keys::Delete;
  if (event.key() >= Qt::Key_F1 && event.key() <= Qt::Key_F12) return keys::F5 + event.key() - Qt::Key_F5;
  return NumberOf(event.key());
}

/// What a key writes: a character of the code page, or one of the four that the handlers know by their codes.
QString KeyText(const QKeyEvent& event, int number) {
  if (number == keys::Backspace || number == keys::Tab || number == keys::Enter || number == 27)
    return QString(QChar(number));
  if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) {
    // AltGr may come as Control and Alt together, and then writes a character all the same.
    const auto both = Qt::ControlModifier | Qt::AltModifier;
    if ((event.modifiers() & both) != both) return {};
  }
  if (event.text().isEmpty() || !(event.text().at(0).isPrint() || event.text().at(0).isHighSurrogate()))
    return {};
  return FoldToCodePage(event.text());
}

KeyEvent Translate(const QKeyEvent& event) {
  KeyEvent key;
  key.key = KeyNumber(event);
  key.shift = event.modifiers().testFlag(Qt::ShiftModifier);
  key.ctrl = event.modifiers().testFlag(Qt::ControlModifier);
  key.alt = event.modifiers().testFlag(Qt::AltModifier);
  // The Shift key that comes up is held no longer, whatever the system has told by then.
  if (event.type() == QEvent::KeyRelease && event.key() == Qt::Key_Shift) key.shift = false;
  key.text = KeyText(event, key.key);
  return key;
}

KeyEvent KeyFor(QChar character) {
  KeyEvent key;
  key.key = NumberOf(character.toUpper().unicode());
  key.shift = character.isUpper();
  key.text = character;
  return key;
}

bool Moves(int key) {
  return key == keys::Left || key == keys::Right || key == keys::Home || key == keys::End;
}

Qt::CursorShape ShapeOver(const Control* control) {
  if (!control) return Qt::ArrowCursor;
  if (control->GetKind() == Kind::TextBox) return Qt::IBeamCursor;
  if (control->GetKind() == Kind::Image) return Qt::PointingHandCursor;
  switch (PointerOver(*control)) {
    case MousePointer::Moves:
      return Qt::SizeAllCursor;
    case MousePointer::Link:
      return Qt::PointingHandCursor;
    default:
      return Qt::ArrowCursor;
  }
}

/// A clipboard's last line break is no part of the text; the others become the blanks that a line can hold.
QString OneLine(QString text) {
  text.truncate(LongestText);
  text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  while (text.endsWith(QLatin1Char('\n')) || text.endsWith(QLatin1Char('\r'))) text.chop(1);
  return FoldToCodePage(text);
}

}  // namespace

/// Runs one handler between the two ways of the caret: the control knows the editor's before, the editor the
/// control's after.
template <class Body>
SheetView::Step SheetView::RunHandler(const char* name, Body&& body) {
  const Control* before = focused_;
  const int window = window_;
  CaretToControl();
  Handled handled = Handled::No;
  const bool ran = Guarded(name, [&] { handled = body(); });
  UpdateFromControl();
  const bool stayed = focused_ == before && window_ == window;
  return ran && stayed && handled == Handled::No ? Step::Goes : Step::Stopped;
}

// Keys
// ---------------------------------------------------------------------------------------------------------

SheetView::Step SheetView::RunKeyDown(const KeyEvent& key) {
  if (RunHandler("Form_KeyDown", [&] { return FormKeyDown(CurrentPage(), key); }) == Step::Stopped)
    return Step::Stopped;
  if (!focused_) return Step::Goes;
  if (RunHandler("txt_KeyDown", [&] { return KeyDown(*focused_, key); }) == Step::Stopped)
    return Step::Stopped;
  if (key.text.isEmpty()) return Step::Goes;
  return RunHandler("txt_KeyPress", [&] { return KeyPress(*focused_, key); });
}

void SheetView::RunKeyUp(const KeyEvent& key) {
  if (focused_)
    RunHandler("txt_KeyUp", [&] {
      KeyUp(*focused_);
      return Handled::No;
    });
  RunHandler("Form_KeyUp", [&] {
    FormKeyUp(CurrentPage(), key);
    return Handled::No;
  });
}

void SheetView::KeyDownEvent(QKeyEvent* event) {
  event->accept();
  const KeyEvent key = Translate(*event);
  if (mode_ == DrawMode::Printing) {
    // The preview scrolls and does nothing else.
    if (key.key == keys::PageUp || key.key == keys::PageDown)
      RunHandler("Form_KeyDown", [&] { return FormKeyDown(CurrentPage(), key); });
    return;
  }
  if (RunKeyDown(key) == Step::Stopped) return;
  if (!focused_ || !Edit(event, key)) event->ignore();
}

void SheetView::KeyUpEvent(QKeyEvent* event) {
  event->accept();
  // A key that is held down is released once.
  if (event->isAutoRepeat() || mode_ == DrawMode::Printing) return;
  RunKeyUp(Translate(*event));
}

/// What an editor does with the key.  False for a key that means nothing to it.
bool SheetView::Edit(QKeyEvent* event, const KeyEvent& key) {
  if (EditClipboard(*event)) return true;
  const bool command = key.ctrl && (key.key == 'A' || key.key == 'Z' || key.key == 'Y');
  const bool erases = key.key == keys::Backspace || key.key == keys::Delete;
  if (Moves(key.key) || (command && key.key == 'A')) {
    editor_->EditKey(event);
    CaretToControl();
    return true;
  }
  const bool writes = !key.text.isEmpty() && key.text.at(0).isPrint();
  if (!command && !erases && !writes) return false;
  if (!AcceptsTyping(*focused_)) return true;
  if (writes) {
    Insert(key.text);
  } else {
    editor_->EditKey(event);
    TextToControl();
  }
  return true;
}

bool SheetView::EditClipboard(const QKeyEvent& event) {
  const bool copies = event.matches(QKeySequence::Copy), cuts = event.matches(QKeySequence::Cut);
  if (event.matches(QKeySequence::Paste)) {
    Paste();
    return true;
  }
  if (!copies && !cuts) return false;
  if (editor_->hasSelectedText()) {
    desk().SetClipboardText(editor_->selectedText());
    if (cuts && AcceptsTyping(*focused_)) Insert(QString());
  }
  return true;
}

void SheetView::Insert(const QString& text) {
  editor_->insert(text);
  TextToControl();
}

void SheetView::Paste() {
  if (!AcceptsTyping(*focused_)) return;
  QString text;
  Guarded("txt_KeyDown", [&] { text = PasteInto(*focused_, OneLine(desk().ClipboardText())); });
  UpdateFromControl();
  if (!text.isEmpty()) Insert(text);
}

/// What an input method commits goes the way of keys, a character at a time, so that no area takes by
/// composing what it would refuse from a key.
void SheetView::TypeText(const QString& text) {
  for (const QChar character : FoldToCodePage(text)) {
    const KeyEvent key = KeyFor(character);
    if (mode_ == DrawMode::Editing && RunKeyDown(key) == Step::Goes && focused_ && AcceptsTyping(*focused_))
      Insert(key.text);
    RunKeyUp(key);
  }
}

void SheetView::keyPressEvent(QKeyEvent* event) {
  KeyDownEvent(event);
}
void SheetView::keyReleaseEvent(QKeyEvent* event) {
  KeyUpEvent(event);
}
bool SheetView::focusNextPrevChild(bool) {
  return false;
}  // Tab walks through the areas

// The pointer
// --------------------------------------------------------------------------------------------------

float SheetView::EditorX(const QMouseEvent& event) const {
  return static_cast<float>(ToTwips(event.position()).x()) - focused_->Left();
}

void SheetView::PressArea(Control& area, const QMouseEvent& event) {
  const bool right = event.button() == Qt::RightButton;
  RunHandler("txt_GotFocus", [&] {
    SetFocus(area);
    return Handled::No;
  });
  if (focused_ != &area) return;
  if (event.button() == Qt::LeftButton)
    editor_->PressAt(EditorX(event), event.modifiers().testFlag(Qt::ShiftModifier));
  RunHandler("txt_MouseDown", [&] {
    MouseDown(area, right);
    return Handled::No;
  });
}

void SheetView::TellPage(PageMouseEvent::What what, const QMouseEvent& event) {
  if (!pageMouse) return;
  const QPointF twips = ToTwips(event.position());
  Guarded("Form_MouseDown", [&] {
    pageMouse({what, CurrentPage(), pressed_, twips, event.button(), event.buttons(), event.modifiers()});
  });
  UpdateFromControl();
}

void SheetView::mousePressEvent(QMouseEvent* event) {
  event->accept();
  if (mode_ == DrawMode::Printing) return;
  // A second button that goes down does not end what the first one holds: a drag would be left half done.
  if (event->buttons() != event->button()) return;
  editor_->FinishComposing();
  pressed_ = ControlAt(ToTwips(event->position()), event->modifiers());
  if (!pressed_ || pressed_->GetKind() == Kind::Label || pressed_->GetKind() == Kind::Picture)
    TellPage(PageMouseEvent::What::Press, *event);
  else if (pressed_->GetKind() == Kind::TextBox)
    PressArea(*pressed_, *event);
}

void SheetView::mouseMoveEvent(QMouseEvent* event) {
  if (mode_ == DrawMode::Printing) return;
  if (event->buttons() == Qt::NoButton) {
    setCursor(ShapeOver(ControlAt(ToTwips(event->position()), event->modifiers())));
    return;
  }
  if (!pressed_ || pressed_->GetKind() == Kind::Label || pressed_->GetKind() == Kind::Picture)
    return TellPage(PageMouseEvent::What::Move, *event);
  if (pressed_ != focused_ || !(event->buttons() & Qt::LeftButton)) return;
  editor_->DragTo(EditorX(*event));
  CaretToControl();
}

void SheetView::mouseReleaseEvent(QMouseEvent* event) {
  if (mode_ == DrawMode::Printing || event->buttons() != Qt::NoButton) return;
  Control* pressed = pressed_;
  if (!pressed || pressed->GetKind() == Kind::Label || pressed->GetKind() == Kind::Picture) {
    TellPage(PageMouseEvent::What::Release, *event);
  } else if (pressed->GetKind() == Kind::TextBox && pressed == focused_) {
    RunHandler("txt_MouseUp", [&] {
      MouseUp(*pressed);
      return Handled::No;
    });
  } else if (pressed->GetKind() == Kind::Image && event->button() == Qt::LeftButton &&
             ControlAt(ToTwips(event->position())) == pressed) {
    Guarded("imgNoTax_Click", [&] { MarkClicked(*pressed); });
    UpdateFromControl();
  }
  pressed_ = nullptr;
}

void SheetView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (mode_ == DrawMode::Printing) return;
  Control* under = ControlAt(ToTwips(event->position()), event->modifiers());
  pressed_ = under;
  if (!under || under->GetKind() == Kind::Label || under->GetKind() == Kind::Picture)
    return TellPage(PageMouseEvent::What::DoubleClick, *event);
  if (under->GetKind() != Kind::TextBox || event->button() != Qt::LeftButton) return;
  if (under != focused_) return PressArea(*under, *event);
  editor_->SelectWordAt(EditorX(*event));
  RunHandler("txt_DblClick", [&] {
    DoubleClick(*under);
    return Handled::No;
  });
}

void SheetView::contextMenuEvent(QContextMenuEvent* event) {
  event->accept();
  // The button itself has been answered when it went down; the menu key stands for it.
  if (event->reason() != QContextMenuEvent::Keyboard || !focused_) return;
  RunHandler("txt_MouseDown", [&] {
    MouseDown(*focused_, true);
    return Handled::No;
  });
}

void SheetView::wheelEvent(QWheelEvent* event) {
  const double pixels = event->pixelDelta().y();
  const double twips = event->pixelDelta().isNull() ? event->angleDelta().y() * TwipsPerNotch / WheelNotch
                                                    : pixels * TwipsPerPixel();
  pan_ -= event->pixelDelta().isNull() ? event->angleDelta().x() * 0.5 : event->pixelDelta().x();
  pan_ = std::clamp(pan_, 0.0, std::max(0.0, double{sheet::Width} / TwipsPerPixel() - width()));
  ScrollBar& bar = frame().VScroll1;
  const int value = std::clamp(bar.Value - static_cast<int>(std::lround(twips)), 0, std::max(0, bar.Max));
  if (scrollTo) {
    scrollTo(value);
  } else {
    bar.Value = value;
    SetScroll(value);
  }
  PlaceEditor();
  update();
  event->accept();
}

bool SheetView::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  const Control* under = mode_ == DrawMode::Editing ? ControlAt(ToTwips(help->pos())) : nullptr;
  if (under && !under->ToolTip().isEmpty())
    QToolTip::showText(help->globalPos(), under->ToolTip(), this, PixelRect(*under));
  else
    QToolTip::hideText();
  return true;
}

// Drops
// --------------------------------------------------------------------------------------------------------

Control* SheetView::DropTarget(const QDropEvent& event) const {
  if (mode_ == DrawMode::Printing || !event.mimeData()->hasText()) return nullptr;
  Control* under = ControlAt(ToTwips(event.position()));
  return under && under->GetKind() == Kind::TextBox && AcceptsTyping(*under) ? under : nullptr;
}

void SheetView::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasText()) event->acceptProposedAction();
}

void SheetView::dragMoveEvent(QDragMoveEvent* event) {
  DropTarget(*event) ? event->acceptProposedAction() : event->ignore();
}

void SheetView::dropEvent(QDropEvent* event) {
  Control* target = DropTarget(*event);
  bool taken = false;
  if (target) {
    RunHandler("txt_DragDrop", [&] {
      taken = DropTerm(*target, OneLine(event->mimeData()->text()));
      return Handled::No;
    });
  }
  if (!taken) return event->ignore();
  // The list that a term came from keeps it.
  event->setDropAction(Qt::CopyAction);
  event->accept();
}

}  // namespace quillane
