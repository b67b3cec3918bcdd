// What counts as a change, and the text of a row as it is filed.
#include "files/changes.h"

#include <gtest/gtest.h>

#include "fake_desk.h"
#include "model/page.h"
#include "model/proposal.h"
#include "pages/defaults.h"
#include "pages/rows.h"
#include "pages/show_document.h"

using namespace quillane;

namespace {

class Changes : public testing::Test {
 protected:
  void SetUp() override { ResetState(); }
  test::FakeDesk desk_;
};

TEST_F(Changes, CountInTextsAndTheDepositOnly) {
  struct Case {
    int page, area;
    const char *saved, *now;
    bool changed;
  };
  const Case cases[] = {
      {0, 2, "", "Emily Carter", true}, {1, 0, "Roses", " Roses  ", false}, {4, 69, "12.00", "12.01", true},
      {2, 34, "x", "", true},           {5, 3, "10.00", "20.00", false},    {5, 4, "1,500.00", "1500", false},
      {5, 4, "", "0.00", false},        {5, 4, "0.00", "0.01", true},       {5, 4, "\x01", "", false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << c.page << "." << c.area << " " << c.saved << " -> " << c.now);
    ResetState();
    EXPECT_FALSE(TextHasChanged());
    proposal.Saved.TextRec[c.page][c.area].Text = c.saved;
    page(c.page).txt[c.area].SetText(c.now);
    EXPECT_EQ(TextHasChanged(), c.changed);
  }
}

TEST_F(Changes, CountInMarksAndInLines) {
  proposal.Saved = ReadPages();
  EXPECT_FALSE(PropertiesHaveChanged());
  proposal.AreaMarks[4][69].PropChanged = true;
  EXPECT_TRUE(PropertiesHaveChanged());
  proposal.AreaMarks[4][69] = {};
  proposal.AreaMarks[0][20].QtyWritten = true;
  EXPECT_TRUE(PropertiesHaveChanged());
  proposal.AreaMarks[0][20] = {};
  proposal.LabelMarks[5][64].Changed = true;
  EXPECT_TRUE(ProposalHasChanged());
  proposal.LabelMarks[5][64].Written = true;
  proposal.Saved = ReadPages();
  EXPECT_FALSE(PropertiesHaveChanged()) << "a label that is in the file is no change";
  page(1).txt[3].SetFontBold(true);
  EXPECT_TRUE(PropertiesHaveChanged());
  proposal.Saved = ReadPages();
  EXPECT_FALSE(PropertiesHaveChanged());
}

TEST_F(Changes, LeaveOutThePageNumbersOfLabelsThatWereMoved) {
  proposal.LabelMarks[1][0] = proposal.LabelMarks[5][63] = {true, true};
  page(1).lbl[0].SetCaption("Gala - Page 2");
  page(5).lbl[63].SetCaption("Page 6 of 6");
  proposal.Saved = ReadPages();
  page(5).lbl[63].SetCaption("Page 3 of 3");
  EXPECT_FALSE(PropertiesHaveChanged());
  page(1).lbl[0].SetCaption("Fair - Page 2");
  EXPECT_TRUE(PropertiesHaveChanged());
}

TEST_F(Changes, StoreARowAsItStands) {
  ShowDefaultPages();
  Page& second = page(1);
  LoadColumns(second);
  second.txt[2].SetText("  Bridesmaids' bouquets ");
  EXPECT_EQ(StoredForm(second, 2), "Bridesmaids' bouquets");
  ShowRowColumns(second, 2, true);
  EXPECT_EQ(StoredForm(second, 2), QString::fromLatin1("\xA5Qty.\xA5"
                                                       "Bridesmaids' bouquets\xA7"
                                                       "Amt."));
  second.txtQty[2].SetText("5");
  second.txtAmt[2].SetText("95.00");
  EXPECT_EQ(StoredForm(second, 2), QString::fromLatin1("\xA5"
                                                       "5\xA5"
                                                       "Bridesmaids' bouquets\xA7"
                                                       "95.00"));
  page(0).txt[2].SetText(" Emily ");
  EXPECT_EQ(StoredForm(page(0), 2), "Emily");
}

}  // namespace
