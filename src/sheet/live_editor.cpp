#include "sheet/live_editor.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleHints>
#include <algorithm>
#include <cmath>

#include "qt/painter_surface.h"
#include "qt/text_measure.h"
#include "sheet/sheet_view.h"

namespace quillane {

namespace {

/// The menus' keys belong to the menus.  An area takes what it writes, its clipboard and undo keys, and F8,
/// which would otherwise toggle the columns twice.
bool BelongsToTheArea(const QKeyEvent& key) {
  if (key.key() == Qt::Key_F8 && key.modifiers() == Qt::NoModifier) return true;
  if (key.modifiers() & (Qt::AltModifier | Qt::MetaModifier)) return false;
  if (key.modifiers() & Qt::ControlModifier) {
    constexpr int own[] = {Qt::Key_A, Qt::Key_C, Qt::Key_V, Qt::Key_X, Qt::Key_Z, Qt::Key_Y};
    return std::find(std::begin(own), std::end(own), key.key()) != std::end(own);
  }
  return !key.text().isEmpty() && key.text().at(0).isPrint();
}

}  // namespace

LiveEditor::LiveEditor(SheetView& view) : QLineEdit(&view), view_(view) {
  setFrame(false);
  setAttribute(Qt::WA_OpaquePaintEvent);
  // The view gets the pointer first, so that a second click is never taken for the first on another widget.
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setAcceptDrops(false);
  setContextMenuPolicy(Qt::DefaultContextMenu);
  connect(&blink_, &QTimer::timeout, this, [this] {
    caretShows_ = !caretShows_;
    update();
  });
  connect(this, &QLineEdit::cursorPositionChanged, this, &LiveEditor::ShowCaret);
}

void LiveEditor::ApplyLook(const Control& control) {
  QFont scaled = MakeFont(control.GetFont());
  scaled.setPixelSize(std::max(1, static_cast<int>(std::lround(scaled.pixelSize() / view_.TwipsPerPixel()))));
  if (font() != scaled) setFont(scaled);
  QPalette colours = palette();
  colours.setColor(QPalette::Base, ToQColor(control.BackColor()));
  colours.setColor(QPalette::Text, ToQColor(control.ForeColor()));
  setPalette(colours);
  update();
}

void LiveEditor::Begin(const QString& text) {
  composing_ = false;
  offset_ = 0;
  setText(text);
}

void LiveEditor::FinishComposing() {
  if (composing_) QGuiApplication::inputMethod()->commit();
}

bool LiveEditor::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    auto* key = static_cast<QKeyEvent*>(event);
    key->setAccepted(BelongsToTheArea(*key));
    return key->isAccepted();
  }
  return QLineEdit::event(event);
}

void LiveEditor::keyPressEvent(QKeyEvent* event) {
  view_.KeyDownEvent(event);
}
void LiveEditor::keyReleaseEvent(QKeyEvent* event) {
  view_.KeyUpEvent(event);
}

void LiveEditor::inputMethodEvent(QInputMethodEvent* event) {
  const Control* area = view_.Focused();
  if (!area || !AcceptsTyping(*area)) {
    QGuiApplication::inputMethod()->reset();
    return;
  }
  const QString commit = event->commitString();
  if (!commit.isEmpty() || event->replacementLength() > 0) {
    QInputMethodEvent nothing;
    QLineEdit::inputMethodEvent(&nothing);
    composing_ = false;
    if (event->replacementLength() > 0)
      setSelection(cursorPosition() + event->replacementStart(), event->replacementLength());
    view_.TypeText(commit);
  }
  QInputMethodEvent composed(event->preeditString(), event->attributes());
  composing_ = !event->preeditString().isEmpty();
  QLineEdit::inputMethodEvent(&composed);
  update();
}

// The editor is transparent to the pointer; what is sent to it all the same goes where the pointer's own
// events go.
namespace {
QMouseEvent OnTheView(const QMouseEvent& event, const QWidget& editor) {
  return QMouseEvent(event.type(), editor.mapToParent(event.position()), event.globalPosition(),
                     event.button(), event.buttons(), event.modifiers());
}
}  // namespace

void LiveEditor::mousePressEvent(QMouseEvent* event) {
  QMouseEvent there = OnTheView(*event, *this);
  view_.mousePressEvent(&there);
}
void LiveEditor::mouseMoveEvent(QMouseEvent* event) {
  QMouseEvent there = OnTheView(*event, *this);
  view_.mouseMoveEvent(&there);
}
void LiveEditor::mouseReleaseEvent(QMouseEvent* event) {
  QMouseEvent there = OnTheView(*event, *this);
  view_.mouseReleaseEvent(&there);
}
void LiveEditor::mouseDoubleClickEvent(QMouseEvent* event) {
  QMouseEvent there = OnTheView(*event, *this);
  view_.mouseDoubleClickEvent(&there);
}
void LiveEditor::contextMenuEvent(QContextMenuEvent* event) {
  view_.contextMenuEvent(event);
}

void LiveEditor::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  ShowCaret();
}

void LiveEditor::focusOutEvent(QFocusEvent* event) {
  // The base would drop the selection of an editor that comes back after a menu or a box.
  const int start = selectionStart(), length = selectionLength();
  QLineEdit::focusOutEvent(event);
  if (length > 0 && (selectionStart() != start || selectionLength() != length)) setSelection(start, length);
  blink_.stop();
  update();
}

void LiveEditor::ShowCaret() {
  caretShows_ = true;
  const int cycle = QGuiApplication::styleHints()->cursorFlashTime();
  if (cycle > 1 && hasFocus()) blink_.start(cycle / 2);
  update();
}

float LiveEditor::WidthTo(int position) const {
  const Control* area = view_.Focused();
  return area ? TextWidth(area->GetFont(), text().left(position)) : 0;
}

/// The boundary between two characters that is nearest to a place.
int LiveEditor::PositionAt(float x) const {
  const float wanted = x + offset_;
  const Control* area = view_.Focused();
  if (!area) return 0;
  const QString whole = text();
  float edge = 0;
  int position = 0;
  for (; position < whole.size(); ++position) {
    const float advance = TextWidth(area->GetFont(), whole.mid(position, 1));
    if (wanted < edge + advance / 2) break;
    edge += advance;
  }
  return position;
}

void LiveEditor::PressAt(float x, bool extend) {
  const int position = PositionAt(x);
  if (extend) {
    if (!hasSelectedText()) anchor_ = cursorPosition();
    DragTo(x);
    return;
  }
  anchor_ = position;
  deselect();
  setCursorPosition(position);
}

void LiveEditor::DragTo(float x) {
  const int position = PositionAt(x);
  if (position == anchor_) {
    deselect();
    setCursorPosition(position);
  } else {
    setSelection(anchor_, position - anchor_);
  }
}

void LiveEditor::SelectWordAt(float x) {
  setCursorPosition(PositionAt(x));
  cursorWordBackward(false);
  anchor_ = cursorPosition();
  cursorWordForward(true);
}

void LiveEditor::KeepCaretInView() {
  const Control* area = view_.Focused();
  if (!area) return;
  const float caret = WidthTo(cursorPosition()), room = area->Width();
  const float whole = WidthTo(static_cast<int>(text().size()));
  offset_ = std::clamp(offset_, std::max(0.0F, caret - room), caret);
  offset_ = std::min(offset_, std::max(0.0F, whole - room));
}

void LiveEditor::PaintText(QPainter& painter, Line line) const {
  const Control& area = *view_.Focused();
  PainterSurface surface(painter);
  surface.SetFont(area.GetFont());
  surface.SetColor(area.ForeColor());
  if (line == Line::Highlighted) {
    const QColor colour = palette().color(QPalette::HighlightedText);
    surface.SetColor(colour.red() | colour.green() << 8 | colour.blue() << 16);
  }
  surface.Print(area.Left() - offset_, area.Top(), text());
}

void LiveEditor::PaintSelection(QPainter& painter) const {
  const Control& area = *view_.Focused();
  const double left = double{area.Left() - offset_};
  const double from = left + double{WidthTo(selectionStart())}, to = left + double{WidthTo(selectionEnd())};
  const QRectF chosen(from, double{area.Top()}, to - from, double{area.Height()});
  painter.save();
  painter.setClipRect(chosen, Qt::IntersectClip);
  painter.fillRect(chosen, palette().color(QPalette::Highlight));
  PaintText(painter, Line::Highlighted);
  painter.restore();
}

QRectF LiveEditor::CaretOnPage() const {
  const Control& area = *view_.Focused();
  const double x = double{area.Left() - offset_ + WidthTo(cursorPosition())};
  const double pixel = view_.TwipsPerPixel();
  const double height = std::min(double{MetricsOf(area.GetFont()).height}, double{area.Height()} - 2 * pixel);
  return QRectF(x, double{area.Top()} + pixel, pixel, height);
}

QVariant LiveEditor::inputMethodQuery(Qt::InputMethodQuery query) const {
  if (query != Qt::ImCursorRectangle || !view_.Focused() || composing_)
    return QLineEdit::inputMethodQuery(query);
  return view_.PageTransform().mapRect(CaretOnPage()).translated(-pos());
}

void LiveEditor::paintEvent(QPaintEvent* event) {
  const Control* area = view_.Focused();
  if (!area || composing_) return QLineEdit::paintEvent(event);
  KeepCaretInView();
  QPainter painter(this);
  painter.fillRect(rect(), ToQColor(area->BackColor()));
  painter.setTransform(view_.PageTransform() * QTransform::fromTranslate(-x(), -y()), true);
  PaintText(painter, Line::Plain);
  if (hasSelectedText()) PaintSelection(painter);
  if (caretShows_ && hasFocus() && !hasSelectedText())
    painter.fillRect(CaretOnPage(), ToQColor(area->ForeColor()));
}

}  // namespace quillane
