// Rows as blocks: what a rectangle takes, what copy, cut, paste, delete, undo and moves carry and refuse.
#include "editing/selection.h"

#include "editing/areas.h"
#include "model/frame.h"
#include "model/proposal.h"
#include "model/selection.h"
#include "pages/rows.h"
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
    TextAreaRecord record;
    record.Text = amount;
    record.TaxExempt = exempt;
    WriteArea(there, row + there.AmountOffset(), record);
    record = {};
    record.Text = text;
    record.FontBold = bold;
    record.QtyBox = columns;
    record.QtyValue = "3";
    record.AmtValue = "5.00";
    WriteArea(there, row, record);
  }

  static void Select(int window, int first, int last, bool amounts = true) {
    Page& there = page(window);
    editing.CurrentPage = window;
    const float top = Area(there, first).Top() - 1;
    RubberBandSelect(there, {0, top, amounts ? 12000.0F : 9800.0F, Area(there, last).Top() + 256});
  }

  static void PutCaret(int window, int area) {
    editing.CurrentPage = window;
    editing.CurrentArea = area;
  }

  static QString TextAt(int window, int area) { return Area(page(window), area).Text(); }
  static QString Stored(int window, int area) { return StoredForm(page(window), area); }

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

TEST_F(Selection, ARectangleAroundNothingLeavesNoRowCommandEnabled) {
  Fill(1, 0, "Flowers", "10.00");
  Select(1, 0, 0);
  EXPECT_TRUE(frame()["mnuEditTextDelete"].Enabled());
  RubberBandSelect(page(1), {0, 0, 500, 500});
  EXPECT_FALSE(frame()["mnuEditTextDelete"].Enabled());
  EXPECT_FALSE(IsBlue(Area(page(1), 0)));
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

TEST_F(Selection, RowsThatTheFormatFixesStay) {
  Fill(1, 3, "Fixed", "10.00");
  Fill(1, 4, "Free", "20.00");
  format.FormatIsOpen = true;
  editing.DoNotLockFormat = false;
  format.FormatTextRec[1][3].HasFormatText = true;
  Select(1, 3, 4);
  MoveContents(page(1), Direction::Down);
  EXPECT_EQ(desk.LastSaid(), "Cannot move contents. The open format fixes this text.");
  Select(1, 3, 4);
  CutTextContents(page(1));
  EXPECT_EQ(TextAt(1, 3) + TextAt(1, 4), "Fixed");
  EXPECT_EQ(TextAt(1, 38) + TextAt(1, 39), "") << "amounts are never fixed";
  PutCaret(1, 2);
  PasteTextContents(page(1));
  EXPECT_EQ(desk.LastSaid(), "Cannot paste here.");
  Select(1, 3, 4);
  DeleteTextContents(page(1));
  PutCaret(1, 3);
  MakeBold();
  EXPECT_EQ(TextAt(1, 3), "Fixed");
  EXPECT_FALSE(Area(page(1), 3).GetFont().bold);
  editing.DoNotLockFormat = true;
  Select(1, 3, 3);
  DeleteTextContents(page(1));
  EXPECT_EQ(TextAt(1, 3), "");
}

}  // namespace
