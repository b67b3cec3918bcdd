// Rows as blocks: what a rectangle takes, what copy, cut, paste, delete, undo and moves carry and refuse.
#include "pages/selection.h"

#include "model/frame.h"
#include "model/proposal.h"
#include "model/selection.h"
#include "pages/areas.h"
#include "pages/row_contents.h"
#include "pages/totals.h"
#include "unit/fake_desk.h"
#include "unit/item_pages.h"

using namespace quillane;
using quillane::test::FakeDesk;
using quillane::test::MakeItemPages;

namespace {

class Selection : public testing::Test {
 protected:
  Selection() { MakeItemPages(); }

  // A row as a planner leaves it: text, amount, and where asked columns, weight and the exemption mark.
  static void Fill(int window, int row, const QString& text, const QString& amount, bool columns = false,
                   bool bold = false, bool exempt = false) {
    Page& there = page(window);
    WriteAmount(there, row + there.AmountOffset(), {amount, false, exempt});
    WriteRow(there, row,
             {text, bold, columns ? QStringLiteral("3") : QStringLiteral("Hide"),
              columns ? QStringLiteral("5.00") : QString()});
  }

  static void Select(int window, int first, int last, bool amounts = true) {
    Page& there = page(window);
    editing.CurrentForm = &there;
    editing.CurrentPage = window;
    const float top = Area(there, first).Top() - 1;
    RubberBandSelect(there, {0, top, amounts ? 12000.0F : 9800.0F, Area(there, last).Top() + 256});
  }

  static void PutCaret(int window, int area) {
    editing.CurrentForm = &page(window);
    editing.CurrentPage = window;
    editing.CurrentArea = area;
  }

  static QString TextAt(int window, int area) { return Area(page(window), area).Text(); }
  static QString Stored(int window, int area) {
    return proposal.PageText[static_cast<size_t>(window)][static_cast<size_t>(area)].trimmed();
  }

  FakeDesk desk;
};

TEST_F(Selection, TakesOnlyWhatLiesWhollyInside) {
  struct Case {
    const char* what;
    int window;
    Band band;
    QList<int> blue;
  };
  const Case cases[] = {
      {"one row and its amount", 1, {700, 1790, 12000, 2070}, {0, 35}},
      {"a row cut at its right edge", 1, {700, 1790, 9719, 2070}, {}},
      {"the exact edges", 1, {720, 1800, 9720, 2055}, {0}},
      {"two rows without amounts", 2, {0, 1790, 10000, 2420}, {0, 1}},
      {"client fields and dates are never taken", 0, {0, 0, 12240, 11600}, {}},
      {"rows of the first page", 0, {0, 11600, 12240, 12300}, {20, 21, 28, 29}},
      {"the totals page", 5, {0, 0, 12240, 15840}, {}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    RubberBandSelect(page(c.window), c.band);
    QList<int> blue;
    for (const Control& area : page(c.window).txt)
      if (IsBlue(area)) blue.append(area.Index());
    EXPECT_EQ(blue, c.blue);
    EXPECT_EQ(editing.AreasSelected, !c.blue.isEmpty());
    ClearSelection();
  }
}

TEST_F(Selection, OfAmountsOnlyIsRefused) {
  RubberBandSelect(page(1), {10000, 1790, 12000, 2070});
  EXPECT_EQ(desk.LastSaid(), "Cannot select Amount Areas only. Please copy Description Areas also.");
  EXPECT_FALSE(editing.AreasSelected);
  EXPECT_FALSE(IsBlue(Area(page(1), 35)));
}

TEST_F(Selection, CarriesRowsToAnotherPage) {
  Fill(1, 2, "Bouquets", "15.00", true, true);
  Fill(1, 3, "Courtesy", "-20.00", false, false, true);
  CalculateMyTotals(page(1));
  Select(1, 2, 3);
  CopyCommand();
  EXPECT_TRUE(selection.ClipboardFull);
  PutCaret(0, 22);
  PasteTextContents(page(0));
  EXPECT_TRUE(desk.said.isEmpty()) << desk.LastSaid().toStdString();
  EXPECT_EQ(TextAt(0, 22), "Bouquets");
  EXPECT_TRUE(Area(page(0), 22).GetFont().bold);
  EXPECT_EQ(Stored(0, 22), QString::fromLatin1("\xA5"
                                               "3"
                                               "\xA5"
                                               "Bouquets"
                                               "\xA7"
                                               "5.00"));
  EXPECT_EQ(TextAt(0, 31), "-20.00");
  EXPECT_TRUE(page(0).imgNoTax[31].Visible());
  EXPECT_EQ(proposal.PageSubTotal[0], -5.0F);
  EXPECT_EQ(proposal.PageTaxable[0], 15.0F);
  EXPECT_EQ(page(5).txt[0].Text(), "-10.00");
}

TEST_F(Selection, RefusesPastesThatHaveNoPlace) {
  Fill(1, 0, "A", "1.00");
  Fill(1, 1, "B", "2.00");
  Fill(1, 2, "C", "3.00");
  Fill(2, 5, "Taken", "");
  Select(1, 0, 2);
  CopyCommand();
  struct Case {
    int window, area;
    const char* message;
  };
  for (const Case& c :
       {Case{5, 0, "Cannot paste here."}, Case{0, 9, "Cannot paste here."}, Case{0, 28, "Cannot paste here."},
        Case{0, 26, "Cannot paste here. Out of space."}, Case{3, 33, "Cannot paste here. Out of space."},
        Case{3, 36, "Cannot paste here. Out of space."}, Case{2, 4, "Action Cancelled."}}) {
    PutCaret(c.window, c.area);
    PasteTextContents(page(c.window));
    EXPECT_EQ(desk.LastSaid(), c.message) << c.window << "," << c.area;
  }
  EXPECT_EQ(TextAt(2, 5), "Taken");
  EXPECT_EQ(TextAt(3, 33), "");
}

TEST_F(Selection, PastesNothingFromAnEmptyMemory) {
  Fill(1, 4, "Kept", "1.00");
  PutCaret(1, 4);
  PasteTextContents(page(1));
  EXPECT_EQ(desk.LastSaid(), "Nothing Selected");
  EXPECT_EQ(TextAt(1, 4), "Kept");
}

TEST_F(Selection, AsksBeforeItOverwrites) {
  Fill(1, 0, "New", "1.00");
  Fill(2, 0, "Old", "9.00");
  Fill(2, 3, "", "", true);
  page(2).txtQty[3].SetText(QStringLiteral("Qty."));
  page(2).txtAmt[3].SetText(QStringLiteral("Amt."));
  Select(1, 0, 0);
  CopyCommand();
  desk.answers.enqueue(Answer::Yes);
  PutCaret(2, 0);
  PasteTextContents(page(2));
  EXPECT_EQ(desk.said.size(), 1);
  EXPECT_EQ(desk.said[0].title, "Text areas are not all empty.");
  EXPECT_EQ(TextAt(2, 0), "New");
  EXPECT_EQ(TextAt(2, 35), "1.00");
  PutCaret(2, 3);
  PasteTextContents(page(2));
  EXPECT_EQ(desk.said.size(), 1) << "prompts alone are no content";
  EXPECT_EQ(TextAt(2, 3), "New");
}

TEST_F(Selection, DeleteIsUndoneForTheWholePage) {
  Fill(1, 0, "Flowers", "10.00", true, true);
  Fill(1, 1, "Gift", "4.00", false, false, true);
  Fill(1, 9, "Other", "1.00");
  Select(1, 0, 1);
  DeleteTextContents(page(1));
  EXPECT_EQ(TextAt(1, 0), "");
  EXPECT_FALSE(page(1).HasColumns(0));
  EXPECT_FALSE(page(1).imgNoTax[36].Visible());
  EXPECT_TRUE(page(1).imgNoTax[36].Hidden());
  EXPECT_FALSE(editing.AreasSelected);
  EXPECT_EQ(page(5).txt[0].Text(), "1.00");
  Area(page(1), 9).SetText(QStringLiteral("Changed meanwhile"));
  UndoDelete();
  EXPECT_EQ(TextAt(1, 0), "Flowers");
  EXPECT_TRUE(page(1).HasColumns(0));
  EXPECT_TRUE(Area(page(1), 0).GetFont().bold);
  EXPECT_TRUE(page(1).imgNoTax[36].Visible());
  EXPECT_EQ(TextAt(1, 9), "Other");
  EXPECT_EQ(page(5).txt[0].Text(), "15.00");
  EXPECT_EQ(page(5).txt[1].Text(), "11.00");
  EXPECT_FALSE(editing.UndoAvailable);
}

TEST_F(Selection, UndoOnAnotherPageIsStoredWhileAMoveIsUnderWay) {
  Fill(1, 0, "Flowers", "10.00");
  Select(1, 0, 0);
  DeleteTextContents(page(1));
  Fill(2, 5, "Chairs", "3.00");
  Select(2, 5, 5);
  MoveCommand(Direction::Down);
  UndoDelete();
  EXPECT_EQ(Stored(1, 0), "Flowers");
  EXPECT_EQ(Stored(2, 6), "Chairs");
  EXPECT_EQ(page(5).txt[0].Text(), "13.00");
}

TEST_F(Selection, ARectangleAroundNothingLeavesNoRowCommandAlive) {
  Fill(1, 0, "Flowers", "10.00");
  Select(1, 0, 0);
  EXPECT_TRUE(frame()["mnuEditTextDelete"].Enabled());
  RubberBandSelect(page(1), {0, 0, 500, 500});
  EXPECT_FALSE(frame()["mnuEditTextDelete"].Enabled());
  EXPECT_FALSE(IsBlue(Area(page(1), 0)));
}

TEST_F(Selection, CommandsNeedABlueRowOnThePageInFront) {
  Fill(1, 0, "Kept", "1.00");
  Select(1, 0, 0);
  CopyCommand();
  for (void (*command)(Page&) : {&CutTextContents, &DeleteTextContents, &MoveContentsDown}) {
    PutCaret(2, 0);
    command(page(2));
    EXPECT_EQ(desk.LastSaid(), "Nothing Selected");
    desk.said.clear();
  }
  EXPECT_TRUE(selection.ClipboardFull);
  EXPECT_EQ(selection.rows.size(), 1U);
  EXPECT_FALSE(editing.MovingContents);
  EXPECT_FALSE(editing.UndoAvailable);
}

TEST_F(Selection, MovesCarryEverythingAndStopAtWalls) {
  Fill(1, 33, "Last", "7.00", true, true, true);
  Select(1, 33, 33);
  MoveContentsDown(page(1));
  EXPECT_TRUE(editing.MovingContents);
  EXPECT_EQ(TextAt(1, 34), "Last");
  EXPECT_TRUE(IsBlue(Area(page(1), 34)));
  EXPECT_FALSE(page(1).HasColumns(33));
  EXPECT_EQ(TextAt(1, 68), "");
  EXPECT_TRUE(page(1).imgNoTax[69].Visible());
  EXPECT_EQ(proposal.AreaAmount[1][69], 0.0F) << "the figures follow when the key is released";
  MoveContentsDown(page(1));
  EXPECT_EQ(desk.LastSaid(), "Cannot move contents down. Out of space.");
  FinishMove(page(1));
  EXPECT_EQ(proposal.AreaAmount[1][69], 7.0F);
  EXPECT_EQ(proposal.AreaAmount[1][68], 0.0F);
  EXPECT_EQ(Stored(1, 34), QString::fromLatin1("\xA5"
                                               "3"
                                               "\xA5"
                                               "Last"
                                               "\xA7"
                                               "5.00"));
  EXPECT_EQ(Stored(1, 33), "");
}

TEST_F(Selection, MoveRefusalsLeaveThePage) {
  struct Case {
    const char* what;
    int window, first, last;
    bool down;
    const char* message;
  };
  Fill(1, 0, "Top", "1.00");
  Fill(1, 5, "A", "1.00");
  Fill(1, 6, "Below", "");
  Fill(1, 10, "B", "1.00");
  Area(page(1), 46).SetText(QStringLiteral("2.00"));
  Fill(0, 20, "P1", "1.00");
  Fill(0, 27, "P1 last", "1.00");
  for (const Case& c :
       {Case{"top", 1, 0, 0, false, "Cannot move contents up any higher."},
        Case{"text below", 1, 5, 5, true, "Cannot move contents down. Text exists in destination."},
        Case{"amount below", 1, 10, 10, true, "Cannot move contents down. Text exists in destination."},
        Case{"text above", 1, 6, 6, false, "Cannot move contents up. Text exists in destination."},
        Case{"first row of page 1", 0, 20, 20, false, "Cannot move contents up any higher."},
        Case{"last row of page 1", 0, 27, 27, true, "Cannot move contents down. Out of space."}}) {
    SCOPED_TRACE(c.what);
    Select(c.window, c.first, c.last);
    const QString before = TextAt(c.window, c.first);
    MoveContents(page(c.window), c.down ? Direction::Down : Direction::Up);
    EXPECT_EQ(desk.LastSaid(), c.message);
    EXPECT_EQ(TextAt(c.window, c.first), before);
    EXPECT_FALSE(editing.MovingContents);
  }
}

TEST_F(Selection, ThreeRowsWithTwoAmountsDoNotMove) {
  Fill(1, 5, "A", "");
  for (int area : {5, 6, 7, 40, 41}) PaintArea(page(1), area, Look::Selected);
  editing.AreasSelected = true;
  editing.CurrentForm = &page(1);
  MoveContentsDown(page(1));
  EXPECT_EQ(desk.LastSaid(),
            "Cannot move text. The number of right-hand boxes\nmust match the number of left-hand boxes.");
  EXPECT_EQ(TextAt(1, 5), "A");
}

TEST_F(Selection, ChangesTheCaseOfCharacters) {
  struct Case {
    LetterCase to;
    const char* result;
  };
  for (const Case& c : {Case{LetterCase::Lower, "Garden rOSES AND Lilies"},
                        Case{LetterCase::Upper, "Garden ROSES AND Lilies"},
                        Case{LetterCase::Proper, "Garden Roses And Lilies"}}) {
    ClearSelection();
    Area(page(1), 4).SetText(QStringLiteral("Garden rOSES AND Lilies"));
    PutCaret(1, 4);
    editing.SelectedTextStart = 7;
    editing.SelectedTextLength = c.to == LetterCase::Lower ? 0 : 9;
    ChangeCase(c.to);
    EXPECT_EQ(TextAt(1, 4), c.result);
  }
}

}  // namespace
