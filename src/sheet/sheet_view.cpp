#include "sheet/sheet_view.h"

#include <QPaintEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "model/focus.h"
#include "model/proposal.h"
#include "model/report.h"
#include "pages/area_name.h"
#include "platform/runtime_error.h"
#include "qt/painter_surface.h"
#include "sheet/grid_paint.h"
#include "sheet/live_editor.h"
#include "sheet/sheet_accessible.h"

namespace quillane {

namespace {

constexpr int MostStaleRects = 48;  // beyond it the whole view costs less than its pieces
constexpr int EdgeWidth = 7;        // pixels of the soft edge around the paper

SheetView* theView = nullptr;  // not owned

void MoveEditor(Control* control) {
  if (theView) theView->FocusControl(control);
}

}  // namespace

SheetView* TheSheetView() {
  return theView;
}

SheetView::SheetView(QWidget* parent) : QWidget(parent), editor_(new LiveEditor(*this)) {
  InstallSheetAccessible();
  setObjectName(QStringLiteral("sheet"));
  setAccessibleName(QStringLiteral("Proposal page"));
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setAcceptDrops(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
  editor_->hide();
  theView = this;
  focusHandlers().moved = MoveEditor;
}

SheetView::~SheetView() {
  for (int i = 0; i < PageCount; ++i)
    if (page(i).form.observer == this) page(i).form.observer = nullptr;
  if (theView != this) return;
  theView = nullptr;
  focusHandlers().moved = nullptr;
}

void SheetView::ShowPage(int window) {
  for (int i = 0; i < PageCount; ++i)
    if (page(i).form.observer == this) page(i).form.observer = nullptr;
  window_ = window;
  pressed_ = nullptr;
  CurrentPage().form.observer = this;
  TellPageShown(*this);
  FocusControl(editing.Focus);
  update();
}

// Places
// -------------------------------------------------------------------------------------------------------

void SheetView::SetScroll(int twips) {
  if (scroll_ == twips) return;
  scroll_ = twips;
  PlaceEditor();
  update();
}

void SheetView::SetZoom(double zoom) {
  zoom_ = zoom;
  PlaceEditor();
  update();
}

void SheetView::SetDrawMode(DrawMode mode) {
  if (mode_ == mode) return;
  editor_->FinishComposing();
  mode_ = mode;
  pressed_ = nullptr;
  setCursor(Qt::ArrowCursor);
  QToolTip::hideText();
  FocusControl(editing.Focus);
  update();
}

double SheetView::SheetLeft() const {
  const double free = width() - double{sheet::Width} / TwipsPerPixel();
  return free >= 0 ? std::floor(free / 2) : -std::clamp(pan_, 0.0, -free);
}

QTransform SheetView::PageTransform() const {
  const double scale = 1 / TwipsPerPixel();
  // Whole pixels, so that a scrolled line is as crisp as one that was not.
  return QTransform(scale, 0, 0, scale, SheetLeft(), -std::round(scroll_ * scale));
}

QPoint SheetView::ToPixels(QPointF twips) const {
  return PageTransform().map(twips).toPoint();
}
QPointF SheetView::ToTwips(QPointF pixels) const {
  return PageTransform().inverted().map(pixels);
}

QRect SheetView::PixelRect(const Control& control) const {
  const Box box = EditingBox(control);
  const QPoint from = ToPixels({double{box.left}, double{box.top}});
  const QPoint to = ToPixels({double{box.left + box.width}, double{box.top + box.height}});
  return QRect(from, QSize(to.x() - from.x(), to.y() - from.y()));
}

Control* SheetView::TopmostAt(QPointF twips, bool (*wanted)(Kind kind), double emptyLabel) const {
  const auto& controls = CurrentPage().Controls();
  const auto found = std::find_if(controls.rbegin(), controls.rend(), [&](const Control* control) {
    if (!control->Visible() || !wanted(control->GetKind())) return false;
    const Box box = EditingBox(*control);
    const bool empty = control->GetKind() == Kind::Label && control->Caption().isEmpty();
    const double width = empty ? emptyLabel : double{box.width};
    return QRectF(double{box.left}, double{box.top}, width, double{box.height}).contains(twips);
  });
  return found == controls.rend() ? nullptr : *found;
}

Control* SheetView::ControlAt(QPointF twips) const {
  return TopmostAt(
      twips, [](Kind kind) { return kind != Kind::Line && kind != Kind::Shape; }, 0);
}

Control* SheetView::ControlAt(QPointF twips, Qt::KeyboardModifiers modifiers) const {
  // A label whose words were taken away has no width; its place stays within reach.
  constexpr double QuarterInch = 360;
  Control* label = nullptr;
  if (modifiers.testFlag(Qt::ControlModifier))
    label = TopmostAt(
        twips, [](Kind kind) { return kind == Kind::Label || kind == Kind::Picture; }, QuarterInch);
  return label ? label : ControlAt(twips);
}

// The live editor
// ----------------------------------------------------------------------------------------------

QWidget* SheetView::Editor() const {
  return editor_;
}

bool SheetView::Shows(const Control& control) const {
  return mode_ == DrawMode::Editing && control.GetKind() == Kind::TextBox && control.Visible() &&
         &control.Owner() == &CurrentPage().form;
}

void SheetView::FocusControl(Control* control) {
  const Control* before = std::exchange(focused_, nullptr);
  if (before) MarkStale(*before);
  if (control && Shows(*control)) {
    focused_ = control;
    if (before != control) editor_->Begin(control->Text());
    ShowEditor(before == control ? Arrival::Stays : Arrival::Comes);
    return;
  }
  // A button of the frame that the model gives the focus to is a widget of that name.
  QWidget* button = control && !PageOf(*control) ? window()->findChild<QWidget*>(control->Array()) : nullptr;
  (button ? button : this)->setFocus();
  editor_->hide();
}

void SheetView::ShowEditor(Arrival arrival) {
  editor_->setReadOnly(focused_->Locked());
  UpdateFromControl();
  if (arrival == Arrival::Comes) LeaveArea(*editor_);
  editor_->setAccessibleName(AreaName(CurrentPage(), *focused_));
  editor_->setAccessibleDescription(AreaRemark(CurrentPage(), *focused_));
  editor_->ApplyLook(*focused_);
  Reveal(*focused_);
  PlaceEditor();
  editor_->show();
  // The toolkit tells of a focus that comes from another widget, and not of one that the editor keeps.
  const bool kept = editor_->hasFocus();
  editor_->setFocus();
  if (kept && arrival == Arrival::Comes) TellAreaFocused(*editor_);
}

void SheetView::PlaceEditor() {
  if (!focused_) return;
  editor_->setGeometry(PixelRect(*focused_));
  editor_->setTextMargins(static_cast<int>(std::lround(double{EditingInset} / TwipsPerPixel())) - 2, 0, 0, 0);
}

/// Moves a view that is narrower than the sheet until the control shows.
void SheetView::Reveal(const Control& control) {
  const QRect place = PixelRect(control);
  const double before = pan_;
  const double limit = std::max(0.0, double{sheet::Width} / TwipsPerPixel() - width());
  if (place.right() > width()) pan_ += place.right() - width() + EdgeWidth;
  // Where not all of it fits, its beginning is what a person looks for.
  const double left = place.left() - (pan_ - before);
  if (left < 0) pan_ += left - EdgeWidth;
  pan_ = std::clamp(pan_, 0.0, limit);
  if (std::abs(pan_ - before) >= 1) update();
}

void SheetView::CaretToControl() {
  if (!focused_) return;
  const bool before = std::exchange(syncing_, true);
  const bool selected = editor_->hasSelectedText();
  focused_->SetSelection(selected ? editor_->selectionStart() : editor_->cursorPosition(),
                         selected ? static_cast<int>(editor_->selectionLength()) : 0);
  syncing_ = before;
}

void SheetView::TextToControl() {
  if (!focused_) return;
  if (editor_->text() == focused_->Text()) return CaretToControl();
  Control& area = *focused_;
  Guarded("txt_Change", [&] { area.Typed(editor_->text(), editor_->cursorPosition()); });
  UpdateFromControl();
}

void SheetView::UpdateFromControl() {
  if (!focused_ || syncing_) return;
  if (editor_->text() != focused_->Text()) editor_->setText(focused_->Text());
  const int start = focused_->SelStart(), length = focused_->SelLength();
  if (length > 0) {
    if (editor_->selectionStart() != start || editor_->selectionLength() != length)
      editor_->setSelection(start, length);
  } else if (editor_->hasSelectedText() || editor_->cursorPosition() != start) {
    editor_->deselect();
    editor_->setCursorPosition(start);
  }
}

// What has changed
// ---------------------------------------------------------------------------------------------

void SheetView::BeforeChange(Control& control, Aspect) {
  MarkStale(control);
}

void SheetView::AfterChange(Control& control, Aspect aspect) {
  if (aspect == Aspect::State || (aspect == Aspect::Caret && &control != focused_)) return;
  if (&control != focused_) return MarkStale(control);
  switch (aspect) {
    case Aspect::Text:
    case Aspect::Caret:
      return UpdateFromControl();
    case Aspect::Colour:
    case Aspect::Font:
      editor_->ApplyLook(control);
      return;
    case Aspect::Geometry:
      PlaceEditor();
      editor_->update();
      return;
    case Aspect::Visible:
      if (!control.Visible()) FocusControl(nullptr);
      return;
    default:
      return;
  }
}

void SheetView::MarkStale(const Control& control) {
  if (!isVisible() || staleRects_ > MostStaleRects) return;
  if (!control.Visible() && mode_ == DrawMode::Editing) return;
  if (++staleRects_ > MostStaleRects || mode_ == DrawMode::Printing) return update();
  constexpr int slack = 4;  // a slanted letter leans out of its cell
  update(PixelRect(control).adjusted(-slack, -slack, slack, slack));
}

// Painting
// -----------------------------------------------------------------------------------------------------

void SheetView::paintEvent(QPaintEvent* event) {
  staleRects_ = 0;
  QPainter painter(this);
  PaintGround(painter, event->rect());
  if (mode_ == DrawMode::Editing) PaintGrid(painter, CurrentPage(), PageTransform(), event->rect());
  painter.setTransform(PageTransform(), true);
  PaintControls(painter, event->rect());
  PaintBand(painter);
}

void SheetView::PaintGround(QPainter& painter, const QRect& stale) const {
  const QRect paper =
      PageTransform().mapRect(QRectF(0, 0, double{sheet::Width}, double{sheet::Height})).toRect();
  if (!paper.contains(stale)) {
    // Shading is slow, and under the paper nobody would see it.
    painter.setClipRegion(QRegion(stale) - paper);
    painter.fillRect(stale, palette().color(QPalette::Window).darker(108));
    for (int i = EdgeWidth; i > 0; --i) {
      const int strength = (EdgeWidth - i + 1) * (EdgeWidth - i + 1) / 6 + 2;
      painter.fillRect(paper.adjusted(-i / 2, 0, i / 2, i), QColor(0, 0, 0, strength));
    }
    painter.fillRect(paper.adjusted(-1, 0, 1, 1), QColor(0, 0, 0, 40));
    painter.setClipping(false);
  }
  painter.fillRect(paper & stale, Qt::white);
}

void SheetView::PaintControls(QPainter& painter, const QRect& stale) const {
  PainterSurface surface(painter);
  constexpr int slack = 4;
  for (const Control* control : CurrentPage().Controls())
    if (mode_ == DrawMode::Printing ||
        PixelRect(*control).adjusted(-slack, -slack, slack, slack).intersects(stale))
      PaintControl(painter, surface, *control);
}

/// The rectangle of a drag, over everything else: it is the view's and not the page's.
void SheetView::PaintBand(QPainter& painter) const {
  const Page& front = CurrentPage();
  if (front.shpSelect.empty() || !front.shpSelect[0].Visible() || mode_ == DrawMode::Printing) return;
  const QRect place = PixelRect(front.shpSelect[0]);
  QColor colour = palette().color(QPalette::Highlight);
  painter.resetTransform();
  painter.setPen(colour);
  colour.setAlpha(40);
  painter.fillRect(place, colour);
  painter.drawRect(place.adjusted(0, 0, -1, -1));
}

void SheetView::PaintControl(QPainter& painter, Surface& surface, const Control& control) const {
  const bool tooWide = mode_ == DrawMode::Editing && control.GetKind() == Kind::TextBox &&
                       TextWidth(control.GetFont(), control.Text()) > control.Width();
  if (tooWide) {
    painter.save();
    const Box box = EditingBox(control);
    painter.setClipRect(QRectF(double{box.left}, double{box.top}, double{box.width}, double{box.height}),
                        Qt::IntersectClip);
  }
  try {
    DrawControl(surface, CurrentPage(), control, mode_);
  } catch (const RuntimeError&) {
    // A picture that went away since it was loaded leaves its place white; the load or the print says why.
  }
  if (tooWide) painter.restore();
}

void SheetView::resizeEvent(QResizeEvent*) {
  PlaceEditor();
}

}  // namespace quillane
