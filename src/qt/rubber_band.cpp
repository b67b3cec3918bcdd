#include "qt/rubber_band.h"

#include <QApplication>
#include <QTimerEvent>
#include <algorithm>

#include "model/frame.h"
#include "pages/selection.h"
#include "pages/totals.h"
#include "qt/sheet_view.h"

namespace quillane {

namespace {

constexpr int PullEvery = 40;      // milliseconds between two steps while the pointer is outside
constexpr int LongestStep = 1080;  // twips: three rows

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

RubberBand::RubberBand(SheetView& view) : QObject(&view), view_(view) {}

void RubberBand::Handle(const PageMouseEvent& event) {
  switch (event.what) {
    case PageMouseEvent::What::Press:
      return Press(event);
    case PageMouseEvent::What::Move:
      if (!pressed_) return;
      to_ = event.twips;
      pointer_ = view_.ToPixels(to_);
      Stretch();
      return FollowPointer();
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

void RubberBand::FollowPointer() {
  const bool outside = dragging_ && (pointer_.y() < 0 || pointer_.y() >= view_.height());
  if (!outside) return pull_.stop();
  if (!pull_.isActive()) pull_.start(PullEvery, this);
}

void RubberBand::timerEvent(QTimerEvent* event) {
  if (event->timerId() == pull_.timerId()) Pull();
}

void RubberBand::Pull() {
  const int y = pointer_.y();
  const int beyond = y < 0 ? y : y >= view_.height() ? y - view_.height() + 1 : 0;
  if (beyond == 0 || !dragging_) return pull_.stop();
  const int step = std::clamp(static_cast<int>(beyond * view_.TwipsPerPixel()), -LongestStep, LongestStep);
  if (view_.scrollTo) view_.scrollTo(frame().VScroll1.Value + step);
  to_ = view_.ToTwips(pointer_);
  Stretch();
}

void RubberBand::Release(const PageMouseEvent& event) {
  pull_.stop();
  pressed_ = false;
  if (!std::exchange(dragging_, false)) return;
  Control& shape = event.page.shpSelect[0];
  shape.SetVisible(false);
  RubberBandSelect(event.page, BandBetween(from_, event.twips));
}

}  // namespace quillane
