// Where the keys lead, page by page, and how the sheet follows.
#include <gtest/gtest.h>

#include "pages/defaults.h"
#include "typist.h"

using namespace quillane;
using namespace quillane::test;

namespace {

struct Step {
  const char* from;
  int key;
  bool shift;
  const char* to;
};

void PrintTo(const Step& step, std::ostream* out) {
  *out << step.from << " key " << step.key << (step.shift ? " with Shift" : "");
}

class Walk : public testing::TestWithParam<Step> {
 protected:
  Typist typist;
};

TEST_P(Walk, LeadsToItsTarget) {
  // Row 2 of the second page and row 21 of the first have columns.
  ShowRowColumns(page(1), 2, true);
  ShowRowColumns(page(0), 21, true);
  SetFocus(At(GetParam().from));
  typist.Key(GetParam().key, GetParam().shift);
  EXPECT_EQ(FocusName(), QString::fromLatin1(GetParam().to));
  EXPECT_TRUE(typist.desk.said.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(FirstPage, Walk,
                         testing::Values(Step{"frmP1.txt(0)", keys::Enter, false, "frmP1.txt(1)"},
                                         Step{"frmP1.txt(13)", keys::Tab, false, "frmP1.txt(14)"},
                                         Step{"frmP1.txt(19)", keys::Enter, false, "frmP1.txt(20)"},
                                         Step{"frmP1.txt(20)", keys::Enter, false, "frmP1.txt(28)"},
                                         Step{"frmP1.txt(28)", keys::Enter, false, "frmP1.txtQty(21)"},
                                         Step{"frmP1.txtQty(21)", keys::Enter, false, "frmP1.txt(21)"},
                                         Step{"frmP1.txt(21)", keys::Tab, false, "frmP1.txtAmt(21)"},
                                         Step{"frmP1.txtAmt(21)", keys::Tab, false, "frmP1.txt(29)"},
                                         Step{"frmP1.txt(29)", keys::Enter, false, "frmP1.txt(22)"},
                                         Step{"frmP1.txt(27)", keys::Enter, false, "frmP1.txt(35)"},
                                         Step{"frmP1.txt(35)", keys::Enter, false, "frmP2.txt(0)"},
                                         Step{"frmP1.txt(35)", keys::Down, false, "frmP2.txt(0)"},
                                         Step{"frmP1.txt(27)", keys::Down, false, "frmP1.txt(28)"},
                                         Step{"frmP1.txt(28)", keys::Up, false, "frmP1.txt(27)"},
                                         Step{"frmP1.txt(0)", keys::Up, false, "frmP1.txt(0)"}));

INSTANTIATE_TEST_SUITE_P(FirstPageBack, Walk,
                         testing::Values(Step{"frmP1.txt(5)", keys::Tab, true, "frmP1.txt(4)"},
                                         Step{"frmP1.txt(20)", keys::Tab, true, "frmP1.txt(19)"},
                                         Step{"frmP1.txt(28)", keys::Tab, true, "frmP1.txt(20)"},
                                         Step{"frmP1.txtQty(21)", keys::Tab, true, "frmP1.txt(28)"},
                                         Step{"frmP1.txt(21)", keys::Tab, true, "frmP1.txtQty(21)"},
                                         Step{"frmP1.txt(29)", keys::Tab, true, "frmP1.txtAmt(21)"},
                                         Step{"frmP1.txtAmt(21)", keys::Tab, true, "frmP1.txt(21)"}));

INSTANTIATE_TEST_SUITE_P(ItemPages, Walk,
                         testing::Values(Step{"frmP2.txt(0)", keys::Enter, false, "frmP2.txt(35)"},
                                         Step{"frmP2.txt(36)", keys::Enter, false, "frmP2.txtQty(2)"},
                                         Step{"frmP2.txt(2)", keys::Enter, false, "frmP2.txtAmt(2)"},
                                         Step{"frmP2.txtAmt(2)", keys::Enter, false, "frmP2.txt(37)"},
                                         Step{"frmP2.txt(69)", keys::Enter, false, "frmP3.txt(0)"},
                                         Step{"frmP5.txt(69)", keys::Tab, false, "frmP6.txt(0)"},
                                         Step{"frmP2.txt(34)", keys::Down, false, "frmP2.txt(35)"},
                                         Step{"frmP2.txt(35)", keys::Up, false, "frmP2.txt(34)"},
                                         Step{"frmP2.txt(69)", keys::Down, false, "frmP3.txt(0)"},
                                         Step{"frmP2.txtQty(2)", keys::Down, false, "frmP2.txt(3)"},
                                         Step{"frmP2.txtAmt(2)", keys::Up, false, "frmP2.txt(1)"},
                                         Step{"frmP2.txt(0)", keys::Tab, true, "frmP1.txt(35)"},
                                         Step{"frmP3.txt(0)", keys::Tab, true, "frmP2.txt(69)"},
                                         Step{"frmP2.txt(3)", keys::Tab, true, "frmP2.txt(37)"}));

INSTANTIATE_TEST_SUITE_P(TotalsPage, Walk,
                         testing::Values(Step{"frmP6.txt(1)", keys::Enter, false, "frmP6.txt(1)"},
                                         Step{"frmP6.txt(1)", keys::Tab, false, "frmP6.txt(2)"},
                                         Step{"frmP6.txt(1)", keys::Tab, true, "frmP6.txt(0)"},
                                         Step{"frmP6.txt(1)", keys::Down, false, "frmP6.txt(1)"},
                                         Step{"frmP6.txt(0)", keys::Tab, true, "frmP5.txt(69)"}));

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

TEST(WalkLimits, AnotherPageComesToTheFrontOnTheWay) {
  Typist typist;
  static int front;
  front = -1;
  upcalls().UpdatePageButtons = [](int window) { front = window; };
  SetFocus(At("frmP4.txt(69)"));
  typist.Key(keys::Tab);
  EXPECT_EQ(front, 4);
  typist.Key(keys::Tab, true);
  EXPECT_EQ(front, 3);
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
