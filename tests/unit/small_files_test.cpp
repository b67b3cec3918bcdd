#include "editing/totals_commands.h"
#include "model/frame.h"
#include "model/upcalls.h"
#include "program_folder.h"
#include "settings/tax_rate.h"

using namespace quillane;
using namespace quillane::test;

namespace {

class SmallFiles : public InProgramFolder {
 protected:
  void SetUp() override {
    InProgramFolder::SetUp();
    prefs.ProposalFolder = Path("Wedding Proposals/");
  }
  void PutRate(const QByteArray& bytes) const { Put("Wedding Proposals/SalesTax.txt", bytes); }
  QByteArray Rate() const { return Get("Wedding Proposals/SalesTax.txt"); }
  static QString Button() { return frame()["cmdTaxRate"].Caption(); }
};

TEST_F(SmallFiles, ARateInTheFileIsTakenWithoutAQuestion) {
  const Cases<QByteArray, float, const char*> cases = {{"7.50 ", 7.5f, "Tax Rate: 7.5%"},
                                                       {"7.5", 7.5f, "Tax Rate: 7.5%"},
                                                       {"8.875 and more", 8.875f, "Tax Rate: 8.875%"},
                                                       {" 6   ", 6, "Tax Rate: 6%"},
                                                       {".25  ", 0.25f, "Tax Rate: 0.25%"}};
  for (const auto& [bytes, rate, button] : cases) {
    PutRate(bytes);
    GetTaxRate();
    EXPECT_EQ(tax.TaxRate, rate) << bytes.constData();
    EXPECT_EQ(Button().toStdString(), button);
    EXPECT_LE(tax.TaxRateText.size(), 5);
  }
  EXPECT_TRUE(desk.said.isEmpty());
}

TEST_F(SmallFiles, LettersInTheFileAreReported) {
  for (const QByteArray bytes : {"seven", "7.5x "}) {
    PutRate(bytes);
    tax.TaxRate = 3;
    GetTaxRate();
    EXPECT_TRUE(desk.LastSaid().contains("An error occurred in GetTaxRate.\nError Number: 13"));
    EXPECT_EQ(tax.TaxRate, 0);
    EXPECT_EQ(Button(), "Tax Rate: 0%");
  }
  EXPECT_EQ(desk.said.size(), 3) << "one question, two reports";
}

TEST_F(SmallFiles, ARateIsStoredInFiveBytes) {
  const Cases<const char*, float, const char*, const char*> cases = {
      {"7.50", 7.5f, "7.50 ", "New Sales Tax Rate is 7.50 %."},
      {".00", 0, ".00  ", "New Sales Tax Rate is .00 %."},
      {"12.25", 12.25f, "12.25", "New Sales Tax Rate is 12.25 %."},
      {"100.25", 100.25f, "100.2", "New Sales Tax Rate is 100.25 %."}};
  for (const auto& [text, rate, bytes, message] : cases) {
    tax.TaxRateText = QString::fromLatin1(text);
    tax.TaxRate = rate;
    desk.said.clear();
    SaveTaxRate();
    EXPECT_EQ(Rate(), bytes);
    EXPECT_EQ(Texts(), QStringList{message});
    EXPECT_FALSE(TotalsAreStale());
  }
  EXPECT_EQ(Button(), "Tax Rate: 100.25%");
  proposal.BalanceDue = -1;
  SaveTaxRate();
  EXPECT_EQ(desk.LastSaid(), "Please click Recalculate to update the totals.");
  EXPECT_TRUE(TotalsAreStale());
}

TEST_F(SmallFiles, ARateThatCannotBeWrittenIsNotTheRate) {
  PutRate("7.50 ");
  GetTaxRate();
  BreakDisk("rename", EACCES);
  AcceptTaxRate("8");
  EXPECT_TRUE(desk.LastSaid().contains("An error occurred in SaveTaxRate.\nError Number: 70"));
  EXPECT_EQ(Rate(), "7.50 ");
  EXPECT_EQ(tax.TaxRate, 7.5F);
  EXPECT_EQ(tax.TaxRateText, "7.50");
  EXPECT_EQ(Button(), "Tax Rate: 7.5%");
}

TEST_F(SmallFiles, ATextOpensInTheDesktopsViewer) {
  Put("Wedding Proposals/Notes.txt", "x");
  desk.shown = {"frmFUT"};
  ReadTextFile(Path("Wedding Proposals\\notes.TXT"));
  EXPECT_EQ(desk.opened, QStringList{Path("Wedding Proposals/Notes.txt")});
  EXPECT_FALSE(desk.WindowIsOpen("frmFUT"));
  ReadTextFile("Q:\\x.txt");
  EXPECT_TRUE(desk.LastSaid().contains("An error occurred in ReadTextFile.\nError Number: 76"));
}

TEST_F(SmallFiles, WithoutARateTheQuestionComes) {
  GetTaxRate();
  EXPECT_EQ(Rate(), "") << "a file that is missing is made";
  for (const QByteArray bytes : {"     ", "0.00 ", ".00  "}) {
    PutRate(bytes);
    desk.said.clear();
    GetTaxRate();
    ASSERT_EQ(desk.said.size(), 1) << bytes.constData();
    EXPECT_EQ(desk.LastSaid(), "The current sales tax rate is 0%. Do you want to change it?");
    EXPECT_EQ(tax.TaxRate, 0);
    EXPECT_EQ(Button(), "Tax Rate: 0%");
  }
  EXPECT_TRUE(desk.shown.isEmpty());
  desk.answers.enqueue(Answer::Yes);
  GetTaxRate();
  EXPECT_EQ(desk.shown, QStringList{"frmTax"});
  EXPECT_EQ(tax.TaxRateText, "0.00");
}

}  // namespace
