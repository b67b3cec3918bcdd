// From the price in its area to the Balance Due: both calculations, the tax, what shows and what is told.
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "cases.h"
#include "editing/areas.h"
#include "editing/totals_commands.h"
#include "fake_desk.h"
#include "model/focus.h"
#include "model/frame.h"
#include "model/page.h"
#include "model/proposal.h"
#include "model/upcalls.h"
#include "pages/defaults.h"
#include "platform/files.h"

using namespace quillane;
using namespace quillane::test;

namespace {

class Totals : public testing::Test {
 protected:
  void SetUp() override {
    prefs.ProgramFolder = folder_.path() + '/';
    ResetState();
    prefs.CurrencySymbol = "$";
    tax.TaxRate = 7.5F;
    ShowDefaultPages();
    InstallPageHandlers();
    prefs.ProposalFolder = prefs.ProgramFolder;
  }
  void TearDown() override {
    upcalls() = {};
    focusHandlers() = {};
  }

  static Control& At(const char* name) { return *FindPageControl(name); }
  /// As a person would: typed, then left.
  static void Enter(const char* name, const QString& text) {
    Control& area = At(name);
    area.SetText(text);
    AmountLeft(*PageOf(area), area);
  }
  static QStringList Figures(int window = 5) {
    QStringList texts;
    for (const Control& area : page(window).txt) texts.append(area.Text());
    return texts;
  }
  static void FillAll(const QString& amount) {
    for (int window = 0; window < ItemPages; ++window)
      for (Control& area : page(window).txt)
        if (page(window).IsAmount(area.Index())) area.SetText(amount);
  }
  static bool Stale() { return frame()["cmdReCalc"].BackColor() == colors::Red; }
  QTemporaryDir folder_;  // for the error log
  FakeDesk desk_;
};

TEST_F(Totals, TakeAnAmountAsItIsTyped) {
  Control& amount = At("frmP2.txt(36)");
  Control& sign = At("frmP2.lbl(2)");
  sign.SetShown(false);
  // What is no number leaves value and sign as the text before it left them.
  for (const auto& [text, value, signShows] : Cases<const char*, float, bool>{{"12", 12, true},
                                                                              {"12x", 12, true},
                                                                              {" ", 0, false},
                                                                              {"-250.00", -250, true},
                                                                              {"1,234.5", 1234.5F, true},
                                                                              {"", 0, false},
                                                                              {".", 0, false}}) {
    amount.SetText(text);
    EXPECT_EQ(proposal.AreaAmount[1][36], value) << text;
    EXPECT_TRUE(sign.Visible() == signShows && sign.Hidden() == !signShows) << text;
    EXPECT_TRUE(Stale()) << text;
  }
  EXPECT_EQ(proposal.PageSubTotal[1], 0) << "typing alone adds nothing up";
  const Scoped pending(editing.RecalcPending, true);
  amount.SetText("5");
  EXPECT_EQ(proposal.PageSubTotal[1], 5);
}

TEST_F(Totals, LeaveAnAmountAsItShouldRead) {
  for (const auto& [typed, left] : Cases<QString, QString>{{"12", "12.00"},
                                                           {".5", "0.50"},
                                                           {" 7.125 ", "7.13"},
                                                           {"  ", ""},
                                                           {"-3", "-3.00"},
                                                           {"1234567", "1,234,567.00"},
                                                           {"n/a", "n/a"}}) {
    Enter("frmP4.txt(40)", typed);
    EXPECT_EQ(At("frmP4.txt(40)").Text(), left);
  }
  const Scoped selected(editing.AreasSelected, true);
  Enter("frmP4.txt(40)", "9");
  EXPECT_EQ(At("frmP4.txt(40)").Text(), "9") << "a selection is no leaving";
}

TEST_F(Totals, MultiplyARowWithColumns) {
  LoadColumns(page(1));
  LoadColumns(page(0));
  for (const auto& [quantity, each, amount] : Cases<QString, QString, QString>{{"3", "19.99", "59.97"},
                                                                               {"1", ".5", ".50"},
                                                                               {"150", "7.75", "1,162.50"},
                                                                               {"2", "Amt.", "1,162.50"},
                                                                               {"Qty.", "4", "1,162.50"},
                                                                               {"0", "4", ".00"}}) {
    for (const char* field : {"frmP2.txtQty(0)", "frmP2.txtAmt(0)"}) At(field).SetText("?");
    At("frmP2.txtQty(0)").SetText(quantity);
    At("frmP2.txtAmt(0)").SetText(each);
    EXPECT_EQ(At("frmP2.txt(35)").Text(), amount);
    EXPECT_FALSE(editing.RecalcPending);
  }
  At("frmP1.txtQty(27)").SetText("2");
  At("frmP1.txtAmt(27)").SetText("10");
  EXPECT_EQ(At("frmP1.txt(35)").Text(), "20.00");
  EXPECT_EQ(proposal.PageSubTotal[0], 20) << "typing brings the page's sums up to date";
}

TEST_F(Totals, LetTheSumsWaitWhenAQuantityIsLeft) {
  At("frmP2.txtQty(4)").SetText("3");
  At("frmP2.txtAmt(4)").SetText("5");
  At("frmP2.txt(39)").SetText("99");
  CalculateMyTotals(page(1));
  EXPECT_EQ(proposal.PageSubTotal[1], 99);
  MultiplyRow(page(1), 4, Product::FromLeaving);
  EXPECT_EQ(At("frmP2.txt(39)").Text(), "15.00");
  EXPECT_EQ(proposal.PageSubTotal[1], 99) << "until the amount is left";
  At("frmP2.txt(39)").SetText("99");
  // Rows that are rewritten in bulk keep an amount that was set by hand.
  for (bool* flag :
       {&editing.RecalcPending, &editing.MovingContents, &editing.OpeningFile, &editing.AreasSelected}) {
    const Scoped guard(*flag, true);
    MultiplyRow(page(1), 4, Product::FromTyping);
    if (flag == &editing.AreasSelected) MultiplyRow(page(1), 4, Product::FromLeaving);
    EXPECT_EQ(At("frmP2.txt(39)").Text(), "99");
  }
}

TEST_F(Totals, FloorTheTaxAndNotTheSum) {
  Enter("frmP2.txt(35)", "100");
  Enter("frmP2.txt(36)", "-250");
  EXPECT_EQ(Figures(), (QStringList{"-150.00", "0.00", "0.00", "-150.00", "", "-150.00"}));
  CheckAddition();
  EXPECT_EQ(Figures(), (QStringList{"-150.00", "0.00", "0.00", "-150", "0.00", "-150.00"}));
}

TEST_F(Totals, KeepWhatIsExemptOutOfTheTaxableSum) {
  editing.CurrentPage = 2;
  editing.CurrentArea = 36;
  MakeTaxExempt();
  EXPECT_TRUE(At("frmP3.imgNoTax(36)").Visible());
  At("frmP3.txt(36)").SetText("40.5");
  EXPECT_EQ(proposal.AreaAmount[2][36], 40.5F);
  EXPECT_EQ(AreaTaxable(page(2), 36), 0) << "what is typed beside the mark is exempt as well";
  MakeTaxable();
  EXPECT_TRUE(At("frmP3.imgNoTax(36)").Hidden());
  MakeTaxExempt();
  MarkClicked(At("frmP3.imgNoTax(36)"));
  EXPECT_FALSE(At("frmP3.imgNoTax(36)").Visible());
  EXPECT_EQ(editing.Focus, &frame()["cmdReCalc"]) << "the sums now wait for it";
  editing.CurrentArea = 3;
  MakeTaxExempt();
  EXPECT_FALSE(At("frmP3.imgNoTax(3)").Visible()) << "a description has no tax";
}

TEST_F(Totals, StayHiddenThroughBothCalculations) {
  Enter("frmP2.txt(35)", "100");
  At("frmP6.txt(4)").SetText("40");
  ToggleHideTotals();
  EXPECT_EQ(proposal.SalesTax, 7.5F) << "what is hidden is still owed";
  CheckAddition();
  EXPECT_EQ(Figures(), (QStringList{"", "", "", "", "40.00", ""}));
  EXPECT_FALSE(editing.CheckRunning);
  MarkClicked(At("frmP2.imgNoTax(36)"));
  EXPECT_NE(editing.Focus, &frame()["cmdReCalc"]) << "a hidden button takes no focus";
}

TEST_F(Totals, LeavePageSixToADepositWithoutAmounts) {
  CheckAddition();
  EXPECT_EQ(Figures(), QStringList(6, "0.00"));
  At("frmP6.txt(4)").SetText("500");
  const QStringList before = Figures();
  EXPECT_EQ(before[5], "-500.00");
  CheckAddition();
  EXPECT_EQ(Figures(), before);
}

TEST_F(Totals, ReportWhatStandsInTheAreas) {
  At("frmP6.txt(4)").SetText("20");
  Enter("frmP2.txt(35)", "1234.5");
  Enter("frmP2.txt(36)", "0.25");
  At("frmP2.txt(36)").SetText("later");
  RecalculateCommand();
  EXPECT_EQ(desk_.LastSaid(),
            "All amounts have been recalculated.\nSubTotal = 1,234.50\nTaxable SubTotal = 1,234.50\n"
            "Sales Tax = 92.59\nTotal = 1,327.09\nDeposit = 20.00\nBalance = 1,307.09");
  EXPECT_FALSE(editing.CheckRunning);
}

TEST_F(Totals, TellWhenTheTwoAdditionsDiffer) {
  // 148 times the same price: added page by page and area by area, single precision ends 37 cents apart.
  tax.TaxRate = 0;
  FillAll("7654.32");
  EXPECT_FALSE(CheckTheTotals());
  EXPECT_EQ(proposal.RunningTotal, 1132838.75F);
  EXPECT_EQ(proposal.CheckTotal, 1132839.125F);
  EXPECT_EQ(Figures()[3], "1,132,838.80") << "the fast calculation wrote last";
  EXPECT_TRUE(Stale());
  EXPECT_EQ(desk_.LastSaid(),
            "A descrepancy has occurred in calculating the totals. Please verify\nthe total amounts manually "
            "or press "
            "\"Recalculate\" to continue the\ncalculation without true verification. We apologize for the "
            "inconvenience.");
  ToggleHideTotals();
  desk_.said.clear();
  EXPECT_TRUE(CheckTheTotals()) << "hidden totals are not compared";
  EXPECT_TRUE(desk_.said.isEmpty());
}

TEST_F(Totals, TellWhenAnAreaIsNoNumberAnyMore) {
  Enter("frmP2.txt(35)", "100");
  EXPECT_TRUE(CheckTheTotals());
  At("frmP2.txt(35)").SetText("100 or so");
  EXPECT_FALSE(CheckTheTotals());
}

TEST_F(Totals, TakeFiguresTypedOnPageSix) {
  Enter("frmP2.txt(35)", "100");
  At("frmP6.txt(2)").SetText("1");
  EXPECT_EQ(At("frmP6.txt(2)").Text(), "7.50") << "a typed tax is overwritten";
  EXPECT_TRUE(Stale());
  At("frmP6.txt(4)").SetText("25.5");
  EXPECT_EQ(Figures()[5], "82.00");
  EXPECT_EQ(At("frmP6_1.txt(4)").Text(), "25.5");
  TotalsAreaLeft();
  EXPECT_EQ(Figures()[4], "25.50");
  EXPECT_FALSE(Stale());
  At("frmP6.txt(4)").SetText("");
  EXPECT_EQ(At("frmP6_1.txt(4)").Text(), "");
  EXPECT_EQ(proposal.DepositReceived, 0);
  EXPECT_EQ(Figures()[5], "82.00") << "an emptied deposit waits for its leaving";
  RewriteDeposit();
  EXPECT_EQ(Figures().mid(4), (QStringList{"0.00", "107.50"}));
  {
    const Scoped opening(editing.OpeningFile, true);
    At("frmP6.txt(4)").SetText("77");
  }
  EXPECT_EQ(proposal.DepositReceived, 0);
}

TEST_F(Totals, LeaveAnEmptyPageSixAlone) {
  TotalsAreaLeft();
  EXPECT_EQ(Figures(), QStringList(6, ""));
}

TEST_F(Totals, TellAnOverflowAndGoOn) {
  proposal.PageSubTotal[0] = proposal.PageSubTotal[2] = 3e38F;
  RecalculateTotals(0);
  ASSERT_EQ(desk_.said.size(), 1);
  EXPECT_TRUE(desk_.LastSaid().startsWith("Error encountered while recalculating totals."));
  Enter("frmP2.txt(35)", "100");
  RecalculateTotals(0);
  EXPECT_EQ(Figures()[3], "") << "the other page's sum is still beyond";
  CalculateAllPages();
  RecalculateTotals(0);
  EXPECT_EQ(Figures()[3], "107.50");
}

TEST_F(Totals, RoundTheTaxOnce) {
  // Each of these ends a cent off when the rate's hundredth is rounded to single on the way.
  for (const auto& [rate, amount, owed] : Cases<float, QString, QString>{{7.5F, "87743.53", "6,580.76"},
                                                                         {8.375F, "12929.73", "1,082.86"},
                                                                         {7.25F, "55592.62", "4,030.47"},
                                                                         {7, "91337.92", "6,393.65"}}) {
    tax.TaxRate = rate;
    Enter("frmP2.txt(35)", amount);
    EXPECT_EQ(Figures()[2], owed);
    CheckAddition();
    EXPECT_EQ(Figures()[2], owed);
  }
}

TEST_F(Totals, AcceptARate) {
  for (const auto& [typed, text, rate] : Cases<QString, QString, float>{{"7.5", "7.50", 7.5F},
                                                                        {" 8 ", "8.00", 8},
                                                                        {".5", ".50", 0.5F},
                                                                        {"100", "100.0", 100},
                                                                        {"", "", 0}}) {
    AcceptTaxRate(typed);
    EXPECT_EQ(tax.TaxRateText, text);
    EXPECT_EQ(tax.TaxRate, rate);
    EXPECT_EQ(ReadWholeFile(prefs.ProposalFolder + "SalesTax.txt").trimmed(), text);
  }
  AcceptTaxRate("7.5");
  AcceptTaxRate("1.2.3");
  EXPECT_EQ(tax.TaxRateText, "7.50");
  EXPECT_EQ(ReadWholeFile(prefs.ProposalFolder + "SalesTax.txt"), "7.50 ");
}

}  // namespace
