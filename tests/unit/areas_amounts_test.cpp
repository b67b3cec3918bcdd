// From the key to the sums: amounts and columns as they are typed, left, dropped and rewritten.
#include <gtest/gtest.h>

#include "pages/defaults.h"
#include "pages/totals.h"
#include "typist.h"

using namespace quillane;
using namespace quillane::test;

namespace {

class Amounts : public testing::Test {
 protected:
  Typist typist;

  void AddColumns(const char* row) {
    SetFocus(At(row));
    typist.Key(keys::F8);
  }
};

TEST_F(Amounts, AnAmountIsTakenWhileTypedAndWrittenOutWhenLeft) {
  SetFocus(At("frmP2.txt(35)"));
  typist.Type(QStringLiteral("1250.5"));
  EXPECT_EQ(proposal.AreaAmount[1][35], 1250.5F);
  EXPECT_TRUE(TotalsAreStale());
  EXPECT_EQ(proposal.SubTotal, 0);
  typist.Key(keys::Enter);
  EXPECT_EQ(At("frmP2.txt(35)").Text(), "1,250.50");
  EXPECT_EQ(At("frmP2.txt(35)").BackColor(), colors::Grey);
  EXPECT_EQ(proposal.SubTotal, 1250.5F);
  EXPECT_EQ(proposal.PageText[1][35], "1,250.50");
}

TEST_F(Amounts, SettlingTakesTheAmountAndLeavesColourAndFocus) {
  SetFocus(At("frmP1.txt(28)"));
  typist.Type(QStringLiteral("80"));
  SettleFocus();
  EXPECT_EQ(proposal.SubTotal, 80);
  EXPECT_EQ(FocusName(), "frmP1.txt(28)");
  EXPECT_EQ(At("frmP1.txt(28)").BackColor(), colors::Cyan);
}

TEST_F(Amounts, ARewriteByACommandNeverMultiplies) {
  AddColumns("frmP2.txt(0)");
  typist.Type(QStringLiteral("2"));
  SetFocus(At("frmP2.txtAmt(0)"));
  typist.Type(QStringLiteral("10"));
  At("frmP2.txt(35)").SetText(QStringLiteral("15.00"));
  {
    Scoped refire(editing.RecalcPending, true);
    At("frmP2.txtQty(0)").SetText(QStringLiteral("Test"));
    At("frmP2.txtQty(0)").SetText(QStringLiteral("2"));
  }
  EXPECT_EQ(At("frmP2.txt(35)").Text(), "15.00");
}

TEST_F(Amounts, RemovingColumnsKeepsAnAmountSetByHand) {
  AddColumns("frmP2.txt(0)");
  typist.Type(QStringLiteral("2"));
  SetFocus(At("frmP2.txtAmt(0)"));
  typist.Type(QStringLiteral("10"));
  At("frmP2.txt(35)").SetText(QStringLiteral("15.00"));
  typist.Key(keys::F8);
  EXPECT_EQ(FocusName(), "frmP2.txt(0)");
  EXPECT_EQ(At("frmP2.txt(35)").Text(), "15.00");
}

TEST_F(Amounts, ARowWhoseStoredFormOutgrowsItsFieldTurnsRed) {
  AddColumns("frmP2.txt(0)");
  Control& row = At("frmP2.txt(0)");
  row.SetFontSize(5);  // fifty twips a character: the words alone fit
  row.SetText(
      QString(109, QLatin1Char('x')));  // with two prompts and three separators just what a file holds
  SetFocus(At("frmP2.txtQty(0)"));
  EXPECT_EQ(row.BackColor(), colors::Grey);
  typist.Type(QStringLiteral("12345"));
  EXPECT_EQ(row.BackColor(), colors::Red);
  typist.Key(keys::Backspace);
  EXPECT_EQ(row.BackColor(), colors::Grey);
}

}  // namespace
