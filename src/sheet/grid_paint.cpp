#include "sheet/grid_paint.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "editing/grid.h"
#include "model/proposal.h"

namespace quillane {

namespace {

const QColor LineColour(0, 255, 0), PointColour(Qt::black);

/// The screen's dots under the view's pixels.
struct Dots {
  double ratio;  ///< dots to a pixel
  double Size() const { return std::max(1.0, std::round(ratio)) / ratio; }
  double Snapped(double pixels) const { return std::floor(pixels * ratio) / ratio; }
};

void PaintLines(QPainter& painter, const QTransform& toPixels, Dots dots) {
  const QRectF paper = toPixels.mapRect(QRectF(0, 0, double{sheet::Width}, double{sheet::Height}));
  for (const float x : CentreLines(sheet::Width)) {
    const double left = dots.Snapped(toPixels.map(QPointF(double{x}, 0)).x());
    painter.fillRect(QRectF(left, paper.top(), dots.Size(), paper.height()), LineColour);
  }
  for (const float y : CentreLines(sheet::Height)) {
    const double top = dots.Snapped(toPixels.map(QPointF(0, double{y})).y());
    painter.fillRect(QRectF(paper.left(), top, paper.width(), dots.Size()), LineColour);
  }
}

/// The points stand row by row, so that those of a key's small rectangle are found without a look at all.
void PaintPoints(QPainter& painter, const QTransform& toPixels, const QRectF& stale, Dots dots) {
  const QRectF twips = toPixels.inverted().mapRect(stale);
  const auto& points = layoutAids.GridPoints;
  auto point = std::ranges::lower_bound(points, static_cast<float>(twips.top()), {}, &GridPoint::y);
  for (; point != points.end() && double{point->y} <= twips.bottom(); ++point) {
    const QPointF at = toPixels.map(QPointF(double{point->x}, double{point->y}));
    if (stale.contains(at))
      painter.fillRect(QRectF(dots.Snapped(at.x()), dots.Snapped(at.y()), dots.Size(), dots.Size()),
                       PointColour);
  }
}

}  // namespace

void PaintGrid(QPainter& painter, const Page& page, const QTransform& toPixels, const QRect& stale) {
  if (!layoutAids.gridDrawn[page.window]) return;
  const Dots dots{painter.device()->devicePixelRatioF()};
  painter.save();
  painter.resetTransform();
  painter.setRenderHint(QPainter::Antialiasing, false);
  PaintLines(painter, toPixels, dots);
  // One pixel more each way, for a point whose dot begins outside.
  PaintPoints(painter, toPixels, QRectF(stale).adjusted(-1, -1, 1, 1), dots);
  painter.restore();
}

}  // namespace quillane
