#include "sheet/rubber_band.h"

#include <QApplication>
#include <algorithm>

#include "editing/selection.h"
#include "editing/totals_commands.h"
#include "sheet/sheet_view.h"

namespace quillane {

namespace {

Band BandBetween(QPointF a, QPointF b) {
  return {static_cast<float>(std::min(a.x(), b.x())), static_cast<float>(std::min(a.y(), b.y())),
          static_cast<float>(std::max(a.x(), b.x())), static_cast<float>(std::max(a.y(), b.y()))};
}

void ShowBand(Control& shape, const Band& band) {
  shape.SetLeft(band.left);
  shape.SetTop(band.top);
  shape.SetWidth(band.right - band.left);
  shape.SetHeight(band.bottom - band.top);
  shape.SetVisible(true);
}

}  // namespace

RubberBand::RubberBand(SheetView& view)
    : QObject(&view), view_(view), pull_(view, [this](QPointF twips) {
        to_ = twips;
        Stretch();
      }) {}

void RubberBand::Handle(const PageMouseEvent& event) {
  switch (event.what) {
    case PageMouseEvent::What::Press:
      return Press(event);
    case PageMouseEvent::What::Move:
      if (!pressed_) return;
      to_ = event.twips;
      Stretch();
      if (dragging_) pull_.PointerAt(to_);
      return;
    case PageMouseEvent::What::Release:
      return Release(event);
    case PageMouseEvent::What::DoubleClick:
      return;
  }
}

void RubberBand::Press(const PageMouseEvent& event) {
  pressed_ = event.button == Qt::LeftButton && !event.page.shpSelect.empty();
  dragging_ = false;
  from_ = to_ = event.twips;
}

void RubberBand::Stretch() {
  const double pixels = (to_ - from_).manhattanLength() / view_.TwipsPerPixel();
  if (!dragging_ && pixels < QApplication::startDragDistance()) return;
  Page& front = page(view_.CurrentWindow());
  if (!dragging_) TakeFocusedAmount();
  dragging_ = true;
  ShowBand(front.shpSelect[0], BandBetween(from_, to_));
}

void RubberBand::Pull() {
  if (dragging_) pull_.Step();
}

void RubberBand::Release(const PageMouseEvent& event) {
  pull_.Stop();
  pressed_ = false;
  if (!std::exchange(dragging_, false)) return;
  Control& shape = event.page.shpSelect[0];
  shape.SetVisible(false);
  RubberBandSelect(event.page, BandBetween(from_, event.twips));
}

}  // namespace quillane
