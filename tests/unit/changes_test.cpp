// What counts as a change, and what rows carry into the tables before a save.
#include "files/changes.h"

#include <gtest/gtest.h>

#include "fake_desk.h"
#include "files/property_file.h"
#include "model/page.h"
#include "model/proposal.h"
#include "pages/defaults.h"
#include "pages/features.h"

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
    proposal.SavedText[c.page][c.area] = c.saved;
    proposal.PageText[c.page][c.area] = c.now;
    EXPECT_EQ(TextHasChanged(), c.changed);
  }
}

TEST_F(Changes, CountInMarksAndInLines) {
  proposal.SavedPropertyLines = PropertyLinesNow();
  EXPECT_FALSE(PropertiesHaveChanged());
  proposal.TextRec[4][69].PropChanged = true;
  EXPECT_TRUE(PropertiesHaveChanged());
  proposal.TextRec[4][69] = {};
  proposal.TextRec[0][20].QtyWritten = true;
  EXPECT_TRUE(PropertiesHaveChanged());
  proposal.TextRec[0][20] = {};
  proposal.LabelRec[5][64].Changed = true;
  EXPECT_TRUE(ProposalHasChanged());
  proposal.LabelRec[5][64].Written = true;
  proposal.SavedPropertyLines = PropertyLinesNow();
  EXPECT_FALSE(PropertiesHaveChanged()) << "a label that is in the file is no change";
  page(1).txt[3].SetFontBold(true);
  EXPECT_TRUE(PropertiesHaveChanged());
  proposal.SavedPropertyLines = PropertyLinesNow();
  EXPECT_FALSE(PropertiesHaveChanged());
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

TEST_F(Changes, BringTheTablesUpToThePage) {
  ShowDefaultPages();
  Page& second = page(1);
  LoadColumns(second);
  ShowRowColumns(second, 7, true);
  second.txtQty[7].SetText("16");
  second.txtAmt[7].SetText("72.25");
  second.txt[7].SetText("Centerpieces");
  second.txt[42].SetText(" 1,156.00");
  second.txt[42].SetFontBold(true);
  second.imgNoTax[42].SetShown(true);
  proposal.TextRec[1][8].QtyBox = true;
  page(0).txt[21].SetText("Travel");
  SaveTextBoxFeatures();
  for (const TextTable* table : {&proposal.TextRec, &format.FormatTextRec}) {
    const TextAreaRecord& row = (*table)[1][7];
    EXPECT_TRUE(row.QtyBox && row.QtyWritten);
    EXPECT_EQ(row.QtyValue + "/" + row.AmtValue, "16/72.25");
    EXPECT_TRUE((*table)[1][42].FontBold && (*table)[1][42].TaxExempt);
    EXPECT_FALSE((*table)[1][42].QtyBox);
    EXPECT_FALSE((*table)[1][8].QtyBox);
  }
  EXPECT_EQ(proposal.PageText[1][7], StoredForm(second, 7));
  EXPECT_EQ(proposal.PageText[1][42], "1,156.00");
  EXPECT_EQ(proposal.PageText[0][21], "Travel");
  EXPECT_EQ(proposal.PageText[4][3], "");
}

TEST_F(Changes, TakeColumnsFromTheTags) {
  LoadColumns(page(2));
  page(2).txtQty[1].SetTag("");
  proposal.TextRec[2][2].QtyBox = true;
  proposal.TextRec[3][2].QtyBox = true;
  SyncQtyFlags();
  EXPECT_TRUE(proposal.TextRec[2][1].QtyBox);
  EXPECT_TRUE(format.FormatTextRec[2][1].QtyBox);
  EXPECT_FALSE(proposal.TextRec[2][2].QtyBox);
  EXPECT_TRUE(proposal.TextRec[3][2].QtyBox) << "a page without columns loaded keeps its flags";
}

}  // namespace
