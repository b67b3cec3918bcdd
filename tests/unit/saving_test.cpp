#include "proposal_fixture.h"

using namespace quillane;

namespace {

class Saving : public test::ProposalTest {
 protected:
  void TypeProposal(const QString& client) {
    Type("frmP1.txt(2)", client);
    Type("frmP1.txt(20)", "Flowers");
    Type("frmP1.txt(28)", "120");
  }
};

TEST_F(Saving, ReplacesAnotherProposalOnlyWhenAskedToAndInheritsNothing) {
  Put("Ann Lee.wwf", "an older proposal");
  Put("Ann Lee.wpf", "frmP2.txt(0).FontBold=True\r\n");
  TypeProposal("Ann Lee");
  Reply({Answer::No, Answer::Yes});
  EXPECT_FALSE(SaveEventFile());
  EXPECT_EQ(Get("Ann Lee.wwf"), "an older proposal");
  EXPECT_FALSE(proposal.SaveCancelled || proposal.FileIsNamed);
  EXPECT_TRUE(SaveEventFile());
  EXPECT_EQ(Get("Ann Lee.wwf").size(), 22000);
  EXPECT_FALSE(Get("Ann Lee.wpf").contains("FontBold=True"));

  // A client's name that changed asks again, and the file keeps its name.
  desk_.said.clear();
  Type("frmP1.txt(2)", "Ann Lee-Park");
  Reply({Answer::Yes});
  EXPECT_TRUE(SaveEventFile());
  EXPECT_EQ(desk_.said[0].title, "Duplicate File Name on Record");
  EXPECT_EQ(desk_.LastSaid(), "File was saved as Ann Lee.wwf");
}

TEST_F(Saving, WritesPropertiesWhenTheyDiffer) {
  TypeProposal("Ann Lee");
  At("frmP1.txt(20)").SetFontBold(true);
  EXPECT_TRUE(ProposalHasChanged());
  ASSERT_TRUE(SaveEventFile());
  const QByteArray font = "UDP.FontName=Arial .FontSize=10 .FontColor=0 .FontItalic=False\r\n";
  EXPECT_EQ(Get("Ann Lee.wpf"), "frmP1.txt(20).FontBold=True\r\n" + font);
  EXPECT_FALSE(ProposalHasChanged());

  At("frmP1.txt(20)").SetFontBold(false);
  editing.CurrentPage = 1;
  editing.CurrentArea = 5;
  ToggleColumns();
  EXPECT_TRUE(ProposalHasChanged());
  ASSERT_TRUE(SaveEventFile());
  EXPECT_EQ(Get("Ann Lee.wpf"), "frmP2.txq(5).QtyBox=True\r\n" + font);
  EXPECT_EQ(Get("Ann Lee.wwf").mid(2180 + 5 * 120, 12),
            "\xA5Qty.\xA5\xA7"
            "Amt. ");
  EXPECT_FALSE(ProposalHasChanged());
}

TEST_F(Saving, TellsOfSumsThatDiffer) {
  TypeProposal("Ann Lee");
  proposal.AreaAmount[0][28] = 121;
  EXPECT_TRUE(SaveEventFile());
  ASSERT_EQ(desk_.said.size(), 2);
  EXPECT_TRUE(desk_.said[0].text.startsWith("A descrepancy has occurred in calculating the totals."));
  EXPECT_TRUE(TotalsAreStale());
}

TEST_F(Saving, UnderAnotherNameTakesTheFootnotesAlong) {
  TypeProposal("Ann Lee");
  ASSERT_TRUE(SaveEventFile());
  proposal.FootnoteFileName = "Ann Lee.wxt";
  Put("Ann Lee.wxt", "calls after five");
  Put("Ann Lee.dep", "deposits");
  desk_.said.clear();
  Input("  Ann Lee, second try ");
  EXPECT_TRUE(SaveEventFileAs());
  EXPECT_EQ(desk_.said[0].title, "Saving File As...");
  EXPECT_EQ(Said(),
            QStringList({"Please input the File Name below.", "File was saved as Ann Lee, second try.wwf"}));
  EXPECT_EQ(Get("Ann Lee, second try.wwf"), Get("Ann Lee.wwf"));
  EXPECT_EQ(Get("Ann Lee, second try.wxt"), "calls after five");
  EXPECT_TRUE(Exists("Ann Lee, second try.wpf"));
  EXPECT_FALSE(Exists("Ann Lee, second try.dep"));
  EXPECT_EQ(proposal.BaseName, "Ann Lee, second try");
  EXPECT_EQ(proposal.DepositFileName, "Ann Lee, second try.dep");
  EXPECT_EQ(frame().form.caption, "Quillane: File Name = Ann Lee, second try.wwf");
  EXPECT_FALSE(ProposalHasChanged());
}

TEST_F(Saving, UnderANameThatHasDepositsReportsTheirCopy) {
  TypeProposal("Ann Lee");
  Put("Old.dep", "deposits of somebody else");
  Input("Old");
  EXPECT_TRUE(SaveEventFileAs());
  ASSERT_EQ(desk_.said.size(), 3);
  EXPECT_EQ(desk_.said[1].text, "File was saved as Old.wwf");
  EXPECT_EQ(desk_.said[2].title, "Program Error");
  EXPECT_TRUE(desk_.said[2].text.contains("An error occurred in SaveEventFileAs."));
  EXPECT_EQ(Get("Old.dep"), "deposits of somebody else");
}

TEST_F(Saving, BacksUpWhatIsOnThePagesAndTellsNothing) {
  TypeProposal("Ann Lee");
  SetFocus(At("frmP1.txt(2)"));
  BackupThisFile();  // half a name must not become a file
  EXPECT_FALSE(Exists("Backup/Ann Lee.wwf"));

  SetFocus(At("frmP2.txt(0)"));
  Type("frmP2.txt(0)", "Half a li");
  BackupThisFile();
  EXPECT_EQ(Get("Backup/Ann Lee.wwf").mid(2180, 10), "Half a li ");
  EXPECT_FALSE(Exists("Ann Lee.wwf"));
  EXPECT_FALSE(Exists("Backup/Ann Lee.wpf"));
  EXPECT_EQ(Said(), QStringList());
  EXPECT_FALSE(proposal.FileIsNamed || proposal.BackupInProgress);
  EXPECT_TRUE(ProposalHasChanged());

  ASSERT_TRUE(Open("Ann Lee.wwf", "Backup/"));
  At("frmP2.txt(0)").SetText("Half a line");
  BackupThisFile();  // the copy that is open is not written over
  EXPECT_EQ(Get("Backup/Ann Lee.wwf").mid(2180, 10), "Half a li ");
}

TEST_F(Saving, RefusesWithoutANameOrWithOneThatNoFileMayHave) {
  Type("frmP2.txt(0)", "Flowers");
  EXPECT_FALSE(SaveEventFile());
  EXPECT_EQ(desk_.LastSaid(), "Please enter the client's name in the appropriate area and save again.");
  EXPECT_EQ(editing.Focus, &At("frmP1.txt(2)"));
  for (const QChar c : QStringLiteral("/\\:*?<>|")) {
    desk_.said.clear();
    Type("frmP1.txt(2)", QStringLiteral("Ann") + c + "Lee");
    EXPECT_FALSE(SaveEventFile());
    EXPECT_EQ(Said(), QStringList("Action Cancelled. File Name cannot include any of \n"
                                  "the following characters: / \\ : * ? < > |"));
    EXPECT_FALSE(proposal.FileIsNamed);
  }
  EXPECT_TRUE(QDir(prefs.ProposalFolder).entryList(QDir::Files).isEmpty());
}

}  // namespace
