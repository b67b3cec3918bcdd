// The snap, the grid's points and who takes the drawing away.
#include "editing/grid.h"

#include <gtest/gtest.h>

#include <cmath>

#include "app/startup.h"
#include "editing/navigation.h"
#include "model/frame.h"
#include "model/proposal.h"
#include "model/upcalls.h"
#include "platform/runtime_error.h"
#include "print/print.h"
#include "unit/fake_desk.h"

using namespace quillane;

namespace {

int redrawn = -1;

class Grid : public testing::Test {
 protected:
  Grid() { ResetState(); }
  test::FakeDesk desk;
};

TEST_F(Grid, PointsStandOneSnapApartAndLeaveTheEdge) {
  struct Case {
    float snap;
    size_t columns, rows;
  };
  const Case cases[] = {
      {180, 66, 86},  // the last column at 11880, the last row at 15480
      {1440, 7, 9},   // 10800 is the edge of the columns, and 14400 that of the rows
      {6500, 1, 1},   // a row begins whatever its width
      {8000, 0, 0},   // no row
      {14.9F, 0, 0},  // one grey field
      {0, 0, 0},     {-180, 0, 0},
  };
  for (const Case& test : cases) {
    SCOPED_TRACE(test.snap);
    layoutAids.SnapValue = test.snap;
    DrawGrid(page(1));
    const auto& points = layoutAids.GridPoints;
    ASSERT_EQ(points.size(), test.columns * test.rows);
    EXPECT_TRUE(layoutAids.gridDrawn[1]);
    if (points.empty()) continue;
    EXPECT_EQ(points.front(), (GridPoint{test.snap, test.snap}));
    EXPECT_EQ(points.back().x, test.snap * static_cast<float>(test.columns));
    EXPECT_EQ(points.back().y, test.snap * static_cast<float>(test.rows));
  }
}

TEST_F(Grid, CentreLinesStandAtTheEighths) {
  const auto across = CentreLines(sheet::Width);
  EXPECT_EQ(across.front(), 1530);
  EXPECT_EQ(across[3], sheet::Centre);
  EXPECT_EQ(across.back(), 10710);
}

TEST_F(Grid, ASnapIsTakenInInches) {
  struct Case {
    const char* typed;
    bool taken;
    float snap;
  };
  const Case cases[] = {{"0.25", true, 360}, {"abc", false, 360}, {"", false, 360},
                        {" .5 ", true, 720}, {"0", true, 0},      {"-0.125", true, -180}};
  EXPECT_EQ(SnapText(), "0.125");
  for (const Case& test : cases) {
    SCOPED_TRACE(test.typed);
    desk.said.clear();
    EXPECT_EQ(TakeSnap(test.typed), test.taken);
    EXPECT_EQ(layoutAids.SnapValue, test.snap);
    EXPECT_EQ(desk.LastSaid(), test.taken ? "" : "Not a Number");
  }
  EXPECT_THROW(TakeSnap("1E38"), RuntimeError);
  EXPECT_EQ(layoutAids.SnapValue, -180);
  EXPECT_EQ(SnapToolTip("0.1875"), "270 Twips");
}

TEST_F(Grid, OnlyTheFirstPageIsAligned) {
  struct Case {
    int front;
    float snap, top, aligned;
  };
  const Case cases[] = {{0, 180, -500, -360},
                        {0, 180, -360, -360},
                        {0, 0, -500, -500},
                        {0, -90, -500, -500},
                        {1, 180, -500, -500}};
  for (const Case& test : cases) {
    SCOPED_TRACE(test.top);
    editing.CurrentPage = test.front;
    layoutAids.SnapValue = test.snap;
    frame().sheetTop = test.top;
    AlignFormToSnap();
    EXPECT_EQ(frame().sheetTop, test.aligned);
  }
}

TEST_F(Grid, ADrawingGoesWithItsPageAndBeforeAPrint) {
  upcalls().RedrawPage = [](int window) { redrawn = window; };
  DrawGridCommand();
  EXPECT_EQ(redrawn, 0);
  ReAdjustScrollBar(1);
  EXPECT_TRUE(layoutAids.gridDrawn[0]);
  ReAdjustScrollBar(0);
  EXPECT_FALSE(layoutAids.gridDrawn[0]);
  editing.CurrentPage = 2;
  DrawGridCommand();
  redrawn = -1;
  PrepareDrawing();
  EXPECT_FALSE(layoutAids.gridDrawn[2]);
  EXPECT_EQ(redrawn, 2);
  upcalls() = {};
}

}  // namespace
