#include "platform/runtime_error.h"
#include "proposal_fixture.h"

using namespace quillane;
using namespace quillane::test;

namespace {

class NewProposal : public ProposalTest {};

TEST_F(NewProposal, KeepsNothingOfTheLastOne) {
  Put("Emily Carter.wwf", Sample("Emily Carter.wwf"));
  Put("Emily Carter.wpf", Sample("Emily Carter.wpf"));
  Put("Emily Carter.wxt", Sample("Emily Carter.wxt"));
  ASSERT_TRUE(Open("Emily Carter.wwf"));
  At("frmP2.txt(0)").SetBackColor(colors::Red);
  editing.AreasSelected = editing.SelectionMemoryFull = editing.DateWarningGiven = editing.UndoAvailable =
      true;
  editing.KeysSinceBackup = 13;

  ASSERT_TRUE(StartNewFile());
  for (int window = 0; window < PageCount; ++window) {
    for (const Control& area : page(window).txt) {
      EXPECT_EQ(area.Text(), "") << area.FullName().toStdString();
      EXPECT_FALSE(area.GetFont().bold);
      EXPECT_NE(area.BackColor(), colors::Red);
    }
    for (const Control& mark : page(window).imgNoTax) EXPECT_TRUE(mark.Hidden() && !mark.Visible());
    for (const Control& quantity : page(window).txtQty) EXPECT_TRUE(quantity.Hidden());
  }
  EXPECT_EQ(At("frmP2.txt(2)").Width(), sheet::PlainWidth);
  EXPECT_TRUE(page(1).CurrencyLabel(36).Hidden());
  EXPECT_EQ(At("frmP1.lbl(12)").Caption(), "Wedding Time");
  EXPECT_EQ(proposal.UDP, UserFont());
  EXPECT_EQ(At("frmP4.lbl(38)").Caption(), "Proposal for (Client's Name)");
  EXPECT_EQ(proposal.AreaAmount, decltype(proposal.AreaAmount){});
  EXPECT_EQ(proposal.PageSubTotal, decltype(proposal.PageSubTotal){});
  EXPECT_EQ(proposal.DepositReceived, 0);
  EXPECT_EQ(proposal.BaseName + proposal.EventFileName + proposal.TextFileName + proposal.DepositFileName +
                proposal.FootnoteFileName,
            "");
  EXPECT_FALSE(proposal.FileIsNamed);
  EXPECT_EQ(proposal.HighestPage, 6);
  EXPECT_EQ(frame()["lblTotal"].Caption(), "Running Sub-Total = $ 0.00");
  EXPECT_EQ(frame()["lblHighestPage"].Caption(), "Utilizing 6 of 6 Available Pages");
  EXPECT_EQ(frame().form.caption, "Quillane");
  EXPECT_TRUE(frame()["imgFootNotes"].GetPicture().source.endsWith("footnotes.svg"));
  EXPECT_FALSE(frame()["mnuFileDelete"].Enabled());
  EXPECT_FALSE(TotalsAreStale());
  EXPECT_FALSE(ProposalHasChanged());
  EXPECT_FALSE(editing.AreasSelected || editing.SelectionMemoryFull || editing.DateWarningGiven ||
               editing.UndoAvailable || editing.RebuildingPages || editing.NewFile);
  EXPECT_EQ(editing.KeysSinceBackup, 0);
}

TEST_F(NewProposal, TakesFontAndSubtitleFromThePreferences) {
  prefs.DefaultFont = {"Times New Roman", 8, 255, true};
  StartNewFile();
  EXPECT_EQ(proposal.UDP, prefs.DefaultFont);
  EXPECT_EQ(At("frmP5.txt(69)").GetFont(), (Font{"Times New Roman", 8, false, true, false}));
  EXPECT_EQ(At("frmP5.txt(69)").ForeColor(), 255);
  EXPECT_EQ(proposal.SubTitleText, "Alder Events - Event Proposal - ");
  EXPECT_EQ(At("frmP3.lbl(0)").Caption(), "Alder Events - Event Proposal - Page 3");
  prefs.PageTitles = "Spring Fair, ";
  StartNewFile();
  EXPECT_EQ(At("frmP6_1.lbl(0)").Caption(), "Spring Fair, Page 6");
}

TEST_F(NewProposal, WithoutAFormatNothingStaysInItsLayer) {
  format.FormatLabelRec[1][0].Changed = true;
  StartNewFile();
  EXPECT_EQ(format.FormatLabelRec, FormatLabelTable());
}

TEST_F(NewProposal, AsksBeforeItEndsAFormatSession) {
  format.FormatSessionActive = true;
  At("frmP2.txt(4)").SetText("Pews");
  Reply({Answer::No});
  EXPECT_FALSE(StartNewFile());
  EXPECT_EQ(desk_.said[0].title, "Ending Format Editing");
  EXPECT_EQ(desk_.LastSaid(), "Resume Editing.");
  EXPECT_EQ(TextOf("frmP2.txt(4)"), "Pews");
  EXPECT_FALSE(editing.NewFile);
  Reply({Answer::Yes});
  EXPECT_TRUE(StartNewFile());
  EXPECT_EQ(TextOf("frmP2.txt(4)"), "");
}

TEST_F(NewProposal, ShowsTheLogoThatTheSettingsName) {
  const QString own = prefs.ProgramFolder + "events.jpg";
  for (const auto& [file, visible, shown, source] :
       Cases<QString, bool, bool, QString>{{"", true, false, ""},
                                           {"events.jpg", true, true, own},
                                           {"events.jpg", false, false, own},
                                           {"other.jpg", true, true, "other.jpg"}}) {
    prefs.LogoFile = file;
    prefs.LogoVisible = visible;
    StartNewFile();
    const Control& pic = page(0).pic[0];
    EXPECT_EQ(
        Joined(pic.GetPicture().source, pic.Visible(), pic.Hidden(), frame()["mnuEditLogoVisible"].Checked()),
        Joined(source, shown, !shown, shown));
  }
}

class PictureLessDesk : public FakeDesk {
  Picture LoadPicture(const QString& path) override { Raise(errors::FileNotFound, path); }
};

TEST_F(NewProposal, LosesAMissingLogoAndNothingElse) {
  PictureLessDesk desk;
  prefs.LogoFile = "events.jpg";
  prefs.LogoVisible = true;
  At("frmP2.txt(4)").SetText("Pews");
  EXPECT_TRUE(StartNewFile());
  ASSERT_EQ(desk.said.size(), 1);
  EXPECT_TRUE(desk.LastSaid().contains("An error occurred in StartNewFile."));
  EXPECT_FALSE(page(0).pic[0].Visible() || frame()["mnuEditLogoVisible"].Checked());
  EXPECT_EQ(TextOf("frmP2.txt(4)"), "");
  EXPECT_EQ(frame()["lblHighestPage"].Caption(), "Utilizing 6 of 6 Available Pages");
  SetDesk(&desk_);
}

TEST_F(NewProposal, AMarkLeftByAnEarlierCancelStopsTheNextCommandOnce) {
  editing.ActionCancelled = true;
  EXPECT_FALSE(MayLeaveProposal());
  EXPECT_TRUE(MayLeaveProposal());
  EXPECT_EQ(Said(), QStringList());
}

TEST_F(NewProposal, WeddingsHaveWordsOfTheirOwn) {
  NewWeddingCommand();
  EXPECT_EQ(proposal.Mode, "Wedding");
  EXPECT_EQ(At("frmP2.lbl(0)").Caption(), "Alder Events - Wedding Proposal - Page 2");
  EXPECT_EQ(At("frmP1.lbl(9)").Caption(), "Wedding Date");
  EXPECT_EQ(At("frmP1.lbl(10)").Caption(), "Wedding Time");
  EXPECT_EQ(At("frmP1.lbl(10)").Left(), 9810);
  EXPECT_EQ(terms.FileName, "Wedding Terms.fut");
  NewEventCommand();
  EXPECT_EQ(proposal.Mode, "Wedding");
  EXPECT_EQ(terms.FileName, "Event Terms.fut");
  terms = {"Beach.fut", true, false, 0};
  NewEventCommand();
  EXPECT_EQ(terms.FileName, "Beach.fut");
}

}  // namespace
