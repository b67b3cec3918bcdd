#include "sheet/edge_pull.h"

#include <QTimerEvent>
#include <algorithm>

#include "model/frame.h"
#include "sheet/sheet_view.h"

namespace quillane {

namespace {

constexpr int PullEvery = 40;      // milliseconds between two steps
constexpr int LongestStep = 1080;  // twips: three rows

}  // namespace

/// How far the pointer is above (negative) or below the view, in pixels; 0 inside.
int EdgePull::Beyond() const {
  const int y = pointer_.y();
  return y < 0 ? y : std::max(0, y - view_.height() + 1);
}

void EdgePull::PointerAt(QPointF twips) {
  pointer_ = view_.ToPixels(twips);
  if (Beyond() == 0) return timer_.stop();
  if (!timer_.isActive()) timer_.start(PullEvery, this);
}

void EdgePull::Step() {
  if (Beyond() == 0) return timer_.stop();
  const int step = std::clamp(static_cast<int>(Beyond() * view_.TwipsPerPixel()), -LongestStep, LongestStep);
  if (view_.scrollTo) view_.scrollTo(frame().VScroll1.Value + step);
  follow_(view_.ToTwips(pointer_));
}

void EdgePull::timerEvent(QTimerEvent* event) {
  if (event->timerId() == timer_.timerId()) Step();
}

}  // namespace quillane
