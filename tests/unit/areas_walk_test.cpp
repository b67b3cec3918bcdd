// Where the keys lead, page by page, and how the sheet follows.
#include <gtest/gtest.h>

#include "pages/defaults.h"
#include "typist.h"

using namespace quillane;
using namespace quillane::test;

namespace {

/// The areas that one key, pressed again and again, leads through.
struct Way {
  int key;
  bool shift;
  const char* areas;
};

TEST(Walk, LeadsFromAreaToArea) {
  // Row 2 of the second page and row 21 of the first have columns.
  const Way ways[] = {
      {keys::Enter, false, "P1.txt(0) P1.txt(1)"},
      {keys::Tab, false, "P1.txt(13) P1.txt(14)"},
      {keys::Enter, false, "P1.txt(19) P1.txt(20) P1.txt(28) P1.txtQty(21) P1.txt(21)"},
      {keys::Tab, false, "P1.txt(21) P1.txtAmt(21) P1.txt(29) P1.txt(22)"},
      {keys::Enter, false, "P1.txt(27) P1.txt(35) P2.txt(0) P2.txt(35)"},
      {keys::Enter, false, "P2.txt(36) P2.txtQty(2) P2.txt(2) P2.txtAmt(2) P2.txt(37)"},
      {keys::Enter, false, "P2.txt(68) P2.txt(34) P2.txt(69) P3.txt(0)"},
      {keys::Tab, false, "P5.txt(69) P6.txt(0)"},
      {keys::Enter, false, "P6.txt(1) P6.txt(1)"},
      {keys::Tab, false, "P6.txt(1) P6.txt(2)"},
      {keys::Tab, true, "P1.txt(5) P1.txt(4)"},
      {keys::Tab, true, "P1.txt(29) P1.txtAmt(21) P1.txt(21) P1.txtQty(21) P1.txt(28) P1.txt(20) P1.txt(19)"},
      {keys::Tab, true, "P3.txt(0) P2.txt(69)"},
      {keys::Tab, true, "P2.txt(3) P2.txt(37)"},
      {keys::Tab, true, "P2.txt(0) P1.txt(35)"},
      {keys::Tab, true, "P6.txt(1) P6.txt(0) P5.txt(69)"},
      {keys::Down, false, "P1.txt(27) P1.txt(28)"},
      {keys::Down, false, "P1.txt(35) P2.txt(0)"},
      {keys::Down, false, "P2.txt(34) P2.txt(35)"},
      {keys::Down, false, "P2.txtQty(2) P2.txt(3)"},
      {keys::Down, false, "P2.txt(69) P3.txt(0)"},
      {keys::Down, false, "P6.txt(1) P6.txt(1)"},
      {keys::Up, false, "P1.txt(28) P1.txt(27)"},
      {keys::Up, false, "P1.txt(0) P1.txt(0)"},
      {keys::Up, false, "P2.txt(35) P2.txt(34)"},
      {keys::Up, false, "P2.txtAmt(2) P2.txt(1)"},
  };
  Typist typist;
  ShowRowColumns(page(1), 2, true);
  ShowRowColumns(page(0), 21, true);
  for (const Way& way : ways) {
    QStringList areas = QString::fromLatin1(way.areas).split(u' ');
    SetFocus(*FindPageControl("frm" + areas.takeFirst()));
    for (const QString& area : areas) {
      typist.Key(way.key, way.shift);
      EXPECT_EQ(FocusName(), "frm" + area) << way.areas;
    }
  }
  EXPECT_TRUE(typist.desk.said.isEmpty());
}

TEST(WalkLimits, AreToldAtBothEndsOfTheProposal) {
  Typist typist;
  SetFocus(At("frmP1.txt(0)"));
  typist.Key(keys::Tab, true);
  EXPECT_EQ(typist.desk.LastSaid(), "Limits reached. Cannot move further.");
  SetFocus(At("frmP6.txt(5)"));
  typist.Key(keys::Tab);
  EXPECT_EQ(typist.desk.said.size(), 2);
  EXPECT_EQ(FocusName(), "frmP6.txt(5)");
}

TEST(WalkLimits, AHiddenTargetIsTheEndOfTheWayAndNoProgramError) {
  Typist typist;
  At("frmP2.txt(35)").SetVisible(false);
  SetFocus(At("frmP2.txt(0)"));
  typist.Key(keys::Enter);
  EXPECT_EQ(typist.desk.LastSaid(), "Limits reached. Cannot move further.");
  EXPECT_EQ(FocusName(), "frmP2.txt(0)");
}

TEST(WalkLimits, ColumnBoxesEndAtTheFirstAndLastRow) {
  Typist typist;
  for (int row : {0, 34}) ShowRowColumns(page(1), row, true);
  SetFocus(At("frmP2.txtQty(0)"));
  typist.Key(keys::Up);
  EXPECT_EQ(FocusName(), "frmP2.txtQty(0)");
  SetFocus(At("frmP2.txtAmt(34)"));
  typist.Key(keys::Down);
  EXPECT_EQ(FocusName(), "frmP2.txtAmt(34)");
}

TEST(Columns, QuantityLeadsToTheStartOfTheWords) {
  Typist typist;
  ShowRowColumns(page(1), 0, true);
  At("frmP2.txt(0)").SetText("Roses");
  At("frmP2.txt(0)").SetSelection(2, 2);
  SetFocus(At("frmP2.txtQty(0)"));
  typist.Key(keys::Enter);
  EXPECT_EQ(At("frmP2.txt(0)").SelStart(), 0);
  EXPECT_EQ(At("frmP2.txt(0)").SelLength(), 0);
}

struct Scroll {
  int value, key, expected;
};

TEST(Scrolling, StepsByAScreenUpAndHalfAScreenDownWithinTheSheet) {
  Typist typist;
  frame().clientHeight = 6000;
  for (const Scroll& step :
       {Scroll{7000, keys::PageUp, 1000}, Scroll{6000, keys::PageUp, 0}, Scroll{5999, keys::PageUp, 0},
        Scroll{0, keys::PageDown, 3000}, Scroll{3869, keys::PageDown, 6869},
        Scroll{3870, keys::PageDown, 9870}, Scroll{9870, keys::PageDown, 9870}}) {
    frame().VScroll1.Value = step.value;
    SetDialPosition(step.key);
    EXPECT_EQ(frame().VScroll1.Value, step.expected) << step.value;
  }
  frame().clientHeight = 20000;
  frame().VScroll1.Value = 0;
  SetDialPosition(keys::PageDown);
  EXPECT_EQ(frame().VScroll1.Value, 0) << "a sheet that fits does not scroll";
}

TEST(Scrolling, GoesOnUntilTheTargetShows) {
  Typist typist;
  static int told;
  told = 0;
  frame().VScroll1.Value.changed = [](int) { ++told; };
  frame().clientHeight = 3000;
  SetFocus(At("frmP2.txt(35)"));
  typist.Key(keys::Up);
  EXPECT_EQ(FocusName(), "frmP2.txt(34)");
  EXPECT_GE(frame().VScroll1.Value + 3000, 14040 + 510);
  EXPECT_LE(frame().VScroll1.Value, 14040);
  EXPECT_GT(told, 1);
  typist.Key(keys::Down);
  EXPECT_EQ(FocusName(), "frmP2.txt(35)");
  EXPECT_LE(frame().VScroll1.Value, 1800 - 300);
}

TEST(Scrolling, StaysWhereTheNextAreaShowsAnyhow) {
  Typist typist;
  frame().clientHeight = 6000;
  frame().VScroll1.Value = 1200;
  SetFocus(At("frmP2.txt(2)"));
  typist.Key(keys::Down);
  typist.Key(keys::Enter);
  EXPECT_EQ(frame().VScroll1.Value, 1200);
}

}  // namespace
