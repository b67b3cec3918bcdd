// The grid as it is painted: whole dots of the screen, no shades, and nothing of it where the sheet prints.
#include <gtest/gtest.h>

#include <QMap>

#include "editing/grid.h"
#include "model/proposal.h"
#include "paper_desk.h"
#include "sheet/sheet_view.h"

using namespace quillane;
using namespace quillane::test;

namespace {

/// How often each colour stands in the left margin, where the page itself has nothing.
QMap<QRgb, int> MarginColours(SheetView& view) {
  const QRect margin(view.ToPixels({90, 90}), view.ToPixels({660, 15700}));
  const QImage seen = view.grab(margin).toImage();
  QMap<QRgb, int> counts;
  for (int y = 0; y < seen.height(); ++y)
    for (int x = 0; x < seen.width(); ++x) ++counts[seen.pixel(x, y)];
  return counts;
}

TEST(GridPaint, IsSharpAtEveryZoomAndGoneInPreview) {
  FreshPages fresh;
  SheetView view;
  view.resize(1900, 2600);
  view.show();
  view.ShowPage(1);
  layoutAids.SnapValue = 180;
  DrawGrid(page(1));
  constexpr int points = 3 * 86;  // at 180, 360 and 540
  for (const double zoom : {0.5, 0.83, 1.0, 1.25, 2.0}) {
    SCOPED_TRACE(zoom);
    view.SetZoom(zoom);
    const QMap<QRgb, int> colours = MarginColours(view);
    EXPECT_EQ(colours.value(qRgb(0, 0, 0)), points);
    EXPECT_GT(colours.value(qRgb(0, 255, 0)), 0);
    EXPECT_EQ(colours.size(), 3) << "white, green and black";
  }
  view.ShowPage(2);
  EXPECT_EQ(MarginColours(view).keys(), QList<QRgb>{qRgb(255, 255, 255)}) << "it was drawn on another page";
  view.ShowPage(1);
  view.SetDrawMode(DrawMode::Printing);
  EXPECT_EQ(MarginColours(view).keys(), QList<QRgb>{qRgb(255, 255, 255)});
}

}  // namespace
