#include "files/format_file.h"

#include "files/file_dialog.h"
#include "files/format_commands.h"
#include "pages/labels.h"
#include "proposal_fixture.h"

using namespace quillane;

namespace {

class Formats : public test::ProposalTest {
 protected:
  void SetUp() override {
    ProposalTest::SetUp();
    PutPreferences();
    StartNewFile();
  }

  void PutFormat(const QString& name, const QStringList& lines) {
    Put(name, (lines.join("\r\n") + "\r\n").toLatin1());
  }
  void Pick(const QString& name) {
    fileDialog.FileFilter = "*.wft";
    fileDialog.Folder = prefs.ProposalFolder;
    FileDialog dialog;
    dialog.Load();
    dialog.ChooseFile(name);
    dialog.Open();
  }
  static void MoveLabel(Control& label, float left, const QString& caption) {
    label.SetLeft(left);
    label.SetCaption(caption);
    StoreLabel(*PageOf(label), label.Index());
  }
  void FillPages() {
    Type("frmP1.txt(20)", "Ceremony, .FontBold=True");
    At("frmP1.txt(20)").SetFontBold(true);
    Type("frmP2.txt(3)", "Roses");
    LoadColumns(page(1));
    ShowRowColumns(page(1), 3, true);
    At("frmP2.txtQty(3)").SetText("12");
    At("frmP2.txtAmt(3)").SetText("4.50");
    At("frmP2.imgNoTax(38)").SetShown(true);
    MoveLabel(At("frmP1.lbl(12)"), 10350, "Ceremony Time");
    MoveLabel(At("frmP6.lbl(17)"), 800, "Deposits stay");
    proposal.UDP = {"Times New Roman", 9, 255, true};
    ApplyUserFont();
    format.LogoPath = prefs.ProgramFolder + "rose.png";
    format.LogoChanged = true;
    At("frmP1.pic").SetLeft(1500);
    At("frmP1.pic").SetTop(600.5F);
  }
  void SaveAs(const QString& name) {
    Input(name);
    SaveFormatAsCommand();
  }
};

TEST_F(Formats, GiveThePageBackThatTheyWereMadeFrom) {
  FillPages();
  const QStringList lines = FormatLinesNow();
  SaveAs(" Autumn ");
  EXPECT_EQ(Said(), QStringList{"Please input the File Name below."});
  EXPECT_EQ(frame().form.caption, "Quillane - Format File = Autumn.wft");
  const QByteArray written = Get("Autumn.wft");
  EXPECT_EQ(written,
            "frmP1.txt(20).FontBold=True\r\n"
            "frmP1.txt(20).Text=Ceremony, .FontBold=True\r\n"
            "frmP2.txt(3).Text=Roses\r\n"
            "frmP2.txt(38).TaxExempt=True\r\n"
            "frmP2.txq(3).QtyBox=True .QtyValue=12 .AmtValue=4.50\r\n" +
                lines.filter(".lbl(").join("\r\n").toLatin1() +
                "\r\nfrmP1.pic.Picture=" + (prefs.ProgramFolder + "rose.png").toLatin1() +
                " .Left=1500 .Top=600.5\r\n"
                "UDP.FontName=Times New Roman .FontSize=9 .FontColor=255 .FontItalic=True\r\n");

  Reply({Answer::Yes});  // the product of the row is an amount, which the format's file does not hold
  ClearFormatCommand();
  EXPECT_EQ(desk_.said.last().title, "Beginning New File Format");
  EXPECT_EQ(TextOf("frmP2.txt(3)"), "");
  EXPECT_EQ(frame().form.caption, "Quillane");
  EXPECT_NE(FormatLinesNow(), lines);

  Pick("Autumn.wft");
  EXPECT_EQ(FormatLinesNow(), lines);
  EXPECT_EQ(TextOf("frmP2.txtAmt(3)"), "4.50");
  EXPECT_EQ(At("frmP6_1.lbl(17)").Caption(), "Deposits stay");
  EXPECT_TRUE(At("frmP2.imgNoTax(38)").Visible());
  EXPECT_EQ(frame().form.caption, "Quillane - Format File = Autumn.wft");
  EXPECT_FALSE(ProposalHasChanged() || editing.Parsing || editing.RebuildingPages);
  SaveFileFormat();
  EXPECT_EQ(Get("Autumn.wft"), written);
}

TEST_F(Formats, AskForANameThatMayBeWritten) {
  Type("frmP2.txt(3)", "Roses");
  struct Case {
    const char* answer;
    Answer overwrite;
    const char* lastWords;
    bool written;
  };
  Put("Taken.wft", "old");
  const Case cases[] = {
      {"", Answer::No, "No name entered. File not saved.", false},
      {"a/b", Answer::No, "Illegal File Name. Please rename your file and exclude these characters <>:|?*/\\",
       false},
      {"Taken", Answer::No, "Action Cancelled. File not saved.", false},
      {"Taken", Answer::Yes, "A file with the name Taken already exists. Overwrite?", true},
      {"Spring.wft", Answer::No, "Please input the File Name below.", true}};
  for (const Case& c : cases) {
    const QString before = format.FormatName;
    Reply({c.overwrite});
    SaveAs(c.answer);
    EXPECT_EQ(desk_.LastSaid(), c.lastWords);
    EXPECT_EQ(format.FormatName != before, c.written) << c.answer;
    EXPECT_FALSE(format.FormatSaveAs || format.FormatAsDefault);
  }
  EXPECT_TRUE(Get("Taken.wft").startsWith("frmP2.txt(3).Text=Roses\r\n"));
  EXPECT_TRUE(Exists("Spring.wft"));

  SetFaultHook([](const char* step, const QString&) { return QString(step) == "sync" ? 28 : 0; });
  const QByteArray old = Get("Taken.wft");
  Type("frmP2.txt(3)", "Lilies");
  Reply({Answer::Yes});
  SaveAs("Taken");
  EXPECT_TRUE(desk_.LastSaid().contains("An error occurred in SaveFileFormat.\nError Number: 61"));
  EXPECT_EQ(Get("Taken.wft"), old);
  EXPECT_EQ(format.FormatName, "Spring.wft");
  EXPECT_NE(FormatLinesNow(), format.FormatLines) << "what was not written is still asked about";
}

TEST_F(Formats, ABlankPageIsNotWrittenAndNoDefault) {
  Input("Empty");
  DefaultFormatCommand();
  EXPECT_FALSE(Exists("Empty.wft") || prefs.LoadDefaultFormat || format.FormatIsOpen);
  EXPECT_EQ(prefs.DefaultFileFormat, "");

  PutFormat("Letters.wft", {"UDP.FontName=Arial .FontSize=9 .FontColor=255 .FontItalic=False"});
  Pick("Letters.wft");
  DefaultFormatCommand();
  EXPECT_TRUE(prefs.LoadDefaultFormat);
  EXPECT_EQ(prefs.DefaultFileFormat, PathOf("Letters.wft")) << "its file has all of it";
}

TEST_F(Formats, TheDefaultBeginsEachNewProposalUntilItIsSetAside) {
  Type("frmP2.txt(3)", "Roses");
  Input("Autumn");
  DefaultFormatCommand();
  EXPECT_EQ(prefs.DefaultFileFormat, PathOf("Autumn.wft"));
  PutFormat("Other.wft", {"frmP3.txt(1).Text=Chairs", "frmP9.txt(2).Text=Tables"});
  Type("frmP2.txt(4)", "Not in the file");
  StartNewFile();
  EXPECT_EQ(TextOf("frmP2.txt(3)") + TextOf("frmP2.txt(4)"), "Roses");

  Pick("Other.wft");
  EXPECT_EQ(TextOf("frmP2.txt(3)") + TextOf("frmP3.txt(1)"), "Chairs");
  EXPECT_EQ(TextOf("frmP3.txt(2)"), "Tables") << "a page that is none leaves the last one";
  StartNewFile();
  EXPECT_EQ(TextOf("frmP3.txt(1)"), "Chairs") << "a format outlives the proposals that are written on it";
  ClearFormatCommand();
  StartNewFile();
  EXPECT_EQ(TextOf("frmP2.txt(3)") + TextOf("frmP3.txt(1)"), "");

  format = {};  // the next start
  prefs.DefaultFileFormat = "Z:\\Nowhere\\Autumn.wft";
  desk_.said.clear();
  StartNewFile();
  EXPECT_TRUE(desk_.LastSaid().contains("An error occurred in OpenFormatFile."));
  EXPECT_FALSE(format.FormatIsOpen);
}

TEST_F(Formats, AreDeletedOnlyAfterTheProposalAndTheQuestion) {
  DeleteFormatCommand();
  EXPECT_EQ(desk_.LastSaid(), "There's no Format File open.");
  PutFormat("Autumn.wft", {"frmP2.txt(3).Text=Roses"});
  Pick("Autumn.wft");
  prefs.DefaultFileFormat = PathOf("autumn.wft");
  prefs.LoadDefaultFormat = true;
  Type("frmP2.txt(4)", "Lilies");
  for (const auto& replies : {std::initializer_list<Answer>{Answer::Cancel}, {Answer::No, Answer::No}}) {
    Reply(replies);
    DeleteFormatCommand();
    EXPECT_TRUE(Exists("Autumn.wft") && format.FormatIsOpen && !editing.ActionCancelled);
    EXPECT_EQ(TextOf("frmP2.txt(4)"), "Lilies");
  }
  Reply({Answer::No, Answer::Yes});
  DeleteFormatCommand();
  EXPECT_EQ(desk_.said.last().title, "Deleting Format FIle");
  EXPECT_FALSE(Exists("Autumn.wft") || format.FormatIsOpen || prefs.LoadDefaultFormat);
  EXPECT_EQ(TextOf("frmP2.txt(3)") + TextOf("frmP2.txt(4)"), "");
}

TEST_F(Formats, ARefusalToLeaveHoldsThoughTheDialogOpens) {
  PutFormat("Autumn.wft", {"frmP2.txt(3).Text=Roses"});
  Type("frmP2.txt(4)", "Lilies");
  Reply({Answer::Cancel});
  OpenFormatCommand();
  EXPECT_EQ(desk_.shown, QStringList{"frmFile"});
  Reply({Answer::Cancel});
  Pick("Autumn.wft");
  EXPECT_EQ(TextOf("frmP2.txt(3)") + TextOf("frmP2.txt(4)"), "Lilies") << "asked again, and refused again";
  EXPECT_FALSE(format.FormatIsOpen);

  // The mark stops one more command, even where the question itself would let it go on.
  for (const char* left : {"Lilies", ""}) {
    Reply({Answer::No});
    NewEventCommand();
    EXPECT_EQ(TextOf("frmP2.txt(4)"), left);
  }
}

TEST_F(Formats, ClearingAsksOnlyForWorkThatIsNotSaved) {
  ClearFormatCommand();
  EXPECT_EQ(Said(), QStringList());
  PutFormat("Autumn.wft", {"frmP2.txt(3).Text=Roses"});
  Pick("Autumn.wft");
  ClearFormatCommand();
  EXPECT_EQ(Said(), QStringList());
  Pick("Autumn.wft");
  Type("frmP2.txt(3)", "Lilies");
  ClearFormatCommand();
  EXPECT_EQ(desk_.LastSaid(),
            "This action will clear all current data if\nthe data hasn't already been saved. Continue?");
  EXPECT_EQ(TextOf("frmP2.txt(3)"), "Lilies");
}

TEST_F(Formats, AProposalTakesTheirPlaceExceptWhereTheyAreLocked) {
  PutFormat("Autumn.wft", {"frmP2.txt(0).Text=Arch", "frmP2.txq(2).QtyBox=True .QtyValue=9 .AmtValue=9.99",
                           "frmP2.txt(4).Text=Kept", "frmP2.txt(35).TaxExempt=True",
                           "frmP2.txq(6).QtyBox=True .QtyValue=1 .AmtValue=2"});
  Put("Emily Carter.wwf", Sample("Emily Carter.wwf"));
  for (const bool locked : {false, true}) {
    editing.DoNotLockFormat = !locked;
    Pick("Autumn.wft");
    ASSERT_TRUE(Open("Emily Carter.wwf"));
    EXPECT_EQ(TextOf("frmP2.txt(0)"), locked ? "Arch" : "Ceremony Flowers");
    EXPECT_EQ(TextOf("frmP2.txtQty(2)"), "5") << "the proposal's own columns";
    EXPECT_FALSE(page(1).HasColumns(6)) << "a plain row of the proposal is plain";
    EXPECT_FALSE(ProposalHasChanged());
  }
}

TEST_F(Formats, SavingOneLeavesTheOpenProposalAsItWas) {
  Put("Emily Carter.wwf", Sample("Emily Carter.wwf"));
  ASSERT_TRUE(Open("Emily Carter.wwf"));
  SaveAs("Made of Emily");
  ASSERT_TRUE(Exists("Made of Emily.wft"));
  EXPECT_FALSE(ProposalHasChanged());
  Type("frmP2.txt(4)", "Lilies");
  SaveAs("With lilies");
  EXPECT_TRUE(ProposalHasChanged()) << "the proposal's own file lacks the lilies";
}

TEST_F(Formats, TheTitlesWordsAreTheProposals) {
  const QString line =
      "frmP1.lbl(45).Left=900 .Top=14900 .Caption=%1 .FontName=Arial .FontBold=False .FontSize=9 "
      ".ForeColor=0";
  PutFormat("A.wft", {line.arg("Proposal for Emily Carter")});
  Pick("A.wft");
  EXPECT_EQ(At("frmP1.lbl(45)").Caption(), "Proposal for (Client's Name)");
  EXPECT_EQ(At("frmP1.lbl(45)").Left(), 900) << "the place is the format's";
  PutFormat("B.wft", {line.arg("Autumn Fair")});
  Pick("B.wft");
  EXPECT_EQ(At("frmP3.lbl(38)").Caption(), "Autumn Fair");
  StartNewFile();
  EXPECT_EQ(proposal.Title, "Autumn Fair");
  ClearFormatCommand();
  EXPECT_EQ(proposal.Title, "Proposal for (Client's Name)");
}

}  // namespace
