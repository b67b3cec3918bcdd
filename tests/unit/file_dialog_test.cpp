#include "files/file_dialog.h"

#include "proposal_fixture.h"

using namespace quillane;

namespace {

class FileDialogRules : public test::ProposalTest {
 protected:
  void SetUp() override {
    ProposalTest::SetUp();
    for (const char* name : {"b.wwf", "A.wwf", ".hidden.wwf", "notes.txt", "Backup/b.wwf"})
      Put(name, QByteArray(22000, ' '));
  }
  static FileDialog Loaded() {
    FileDialog dialog;
    dialog.Load();
    return dialog;
  }
};

TEST_F(FileDialogRules, AFileOfAnotherFolderIsNoLongerTheOneThatWouldOpen) {
  OpenEventCommand();
  FileDialog dialog = Loaded();
  EXPECT_EQ(dialog.files, QStringList({".hidden.wwf", "A.wwf", "b.wwf"}));
  dialog.ChooseFile("A.wwf");
  EXPECT_FALSE(dialog.picking);
  dialog.ChooseFolder(prefs.BackupFolder);
  EXPECT_TRUE(dialog.picking);
  EXPECT_EQ(proposal.CurrentFolder, prefs.ProposalFolder);
  dialog.ChooseFile("b.wwf");
  dialog.Open();
  EXPECT_EQ(proposal.CurrentFolder, prefs.BackupFolder);
}

TEST_F(FileDialogRules, CancelLeavesTheProposalAndTheModes) {
  Type("frmP2.txt(0)", "Flowers");
  Reply({Answer::Cancel});
  OpenEventCommand();
  EXPECT_EQ(desk_.shown, QStringList());
  DeleteAnyFileCommand();
  FileDialog dialog = Loaded();
  dialog.Cancel();
  EXPECT_TRUE(dialog.closed);
  EXPECT_EQ(fileDialog.FileFilter, "*.wwf");
  EXPECT_FALSE(fileDialog.DeleteMode);
  EXPECT_EQ(TextOf("frmP2.txt(0)"), "Flowers");
}

TEST_F(FileDialogRules, DeleteModeListsEveryFileAndStaysOpen) {
  DeleteAnyFileCommand();
  FileDialog dialog = Loaded();
  EXPECT_EQ(dialog.caption, "Deleting File From...");
  EXPECT_EQ(dialog.pointOpen, "Delete");
  EXPECT_TRUE(dialog.help.endsWith("you wish to delete."));
  EXPECT_EQ(dialog.files.size(), 4);
  dialog.ChooseFile("b.wwf");
  Reply({Answer::No, Answer::Yes});
  dialog.Open();
  EXPECT_EQ(desk_.said.last().title, "Preparing to Delete File.");
  EXPECT_TRUE(Exists("b.wwf"));
  EXPECT_FALSE(dialog.picking);
  dialog.Open();
  EXPECT_FALSE(Exists("b.wwf"));
  EXPECT_EQ(dialog.caption, "Delete File...");
  EXPECT_TRUE(dialog.picking && !dialog.closed);
  EXPECT_EQ(dialog.files.size(), 3);
}

TEST_F(FileDialogRules, KindsThatAreNotReadYetAreToldAndChangeNothing) {
  Type("frmP2.txt(0)", "Flowers");
  fileDialog.FileFilter = "*.fut";
  FileDialog dialog = Loaded();
  EXPECT_FALSE(dialog.propertiesOffered);
  dialog.ChooseFile("any");
  dialog.Open();
  EXPECT_TRUE(desk_.LastSaid().endsWith("in this version."));
  EXPECT_TRUE(dialog.closed);
  EXPECT_EQ(TextOf("frmP2.txt(0)"), "Flowers");
}

TEST_F(FileDialogRules, DrivesAreLettersAndFolders) {
  ASSERT_TRUE(QDir().mkpath(prefs.ProgramFolder + "drives/f/Share"));
  const QStringList drives = Drives();
  EXPECT_EQ(drives[0], "/");
  EXPECT_TRUE(drives.contains("F:"));
  FileDialog dialog = Loaded();
  dialog.ChooseDrive("F:");
  EXPECT_EQ(dialog.folder, prefs.ProgramFolder + "drives/f/");
  EXPECT_EQ(dialog.drive, "F:");
  dialog.ChooseFolder(prefs.ProgramFolder + "drives/f/Share");
  EXPECT_EQ(dialog.files, QStringList());
  EXPECT_EQ(dialog.drive, "F:");
  EXPECT_EQ(DriveOf("/no/such/place/"), "/");

  dialog.ChooseDrive("Q:");
  EXPECT_EQ(Said(), QStringList("This Drive is currently unavailable."));
  EXPECT_EQ(dialog.drive, "F:");
  ASSERT_TRUE(QDir(prefs.ProgramFolder + "drives/f").removeRecursively());
  dialog.ChooseDrive("Q:");
  EXPECT_EQ(desk_.LastSaid(), "A:\\ not accesssible.");
}

class FileCommands : public test::ProposalTest {};

TEST_F(FileCommands, DeleteTakesTheProposalWithItsSiblings) {
  DeleteProposalCommand();
  EXPECT_EQ(desk_.LastSaid(), "No such file exists. Select New to start a new proposal (Ctrl + N).");
  for (const char* name : {"Ann.wwf", "Ann.wpf", "Ann.txt", "Ann.wxt", "Ann.dep", "Anna.wwf"}) Put(name, "x");
  ASSERT_TRUE(Open("Ann.wwf"));
  Reply({Answer::Yes});
  DeleteProposalCommand();
  EXPECT_EQ(QDir(prefs.ProposalFolder).entryList(QDir::Files), QStringList("Anna.wwf"));
  EXPECT_FALSE(proposal.FileIsNamed);
}

TEST_F(FileCommands, RestoreReplacesTheOriginalOnce) {
  Put("Ann.wwf", "the original");
  Put("Backup/Ann.wwf", QByteArray(22000, ' '));
  ASSERT_TRUE(Open("Ann.wwf", "Backup"));
  proposal.Title = "Ann's Day";
  proposal.TitleByHand = true;
  RestoreFromBackupCommand();
  EXPECT_EQ(proposal.Title, "Ann's Day");
  EXPECT_EQ(proposal.CurrentFolder, prefs.ProposalFolder);
  EXPECT_EQ(frame()["lblDir"].Caption(), "Current Folder = " + prefs.ProposalFolder);
  Put("Ann.wwf", "changed since");
  RestoreFromBackupCommand();
  EXPECT_EQ(Get("Ann.wwf"), "changed since");
}

TEST_F(FileCommands, OneFolderForBothHasNothingToRestoreFrom) {
  prefs.BackupFolder = prefs.ProposalFolder;
  Put("Ann.wwf", QByteArray(22000, ' '));
  ASSERT_TRUE(Open("Ann.wwf"));
  EXPECT_TRUE(proposal.OpenedFromBackup);
  proposal.Title = "The Ann Lees";
  RestoreFromBackupCommand();
  EXPECT_EQ(proposal.Title, "The Ann Lees") << "a restore would name the proposal after its file";
  EXPECT_FALSE(proposal.OpenedFromBackup || frame()["mnuFileRestoreFromBackup"].Enabled());
}

TEST_F(FileCommands, EmptyingTheBackupSparesTheOpenProposal) {
  Reply({Answer::No, Answer::Yes, Answer::Yes});
  for (const char* name : {"Backup/Ann.wwf", "Backup/Bo.wwf", "Backup/notes.txt"}) Put(name, "x");
  ASSERT_TRUE(Open("Ann.wwf", "Backup"));
  const auto files = [] { return QDir(prefs.BackupFolder).entryList(QDir::Files); };
  EmptyBackupCommand();
  EXPECT_EQ(files().size(), 3);
  EmptyBackupCommand();
  EXPECT_EQ(desk_.LastSaid(), "All files have been deleted from Backup");
  EXPECT_EQ(files(), QStringList({"Ann.wwf", "notes.txt"}));
  QFile::remove(PathOf("Backup/Ann.wwf"));
  EmptyBackupCommand();
  EXPECT_EQ(desk_.LastSaid(), "No Backup Files Found");
}

TEST_F(FileCommands, OldFilesTakeTheNewExtensionButReplaceNothing) {
  for (const char* name : {"Ann.wef", "BO.WEF", "Cy.wef", "cy.wwf"}) Put(name, name);
  ConvertOldFiles();
  EXPECT_EQ(Get("Ann.wwf"), "Ann.wef");
  EXPECT_EQ(Get("BO.wwf"), "BO.WEF");
  EXPECT_EQ(Get("cy.wwf"), "cy.wwf");
  EXPECT_TRUE(Exists("Cy.wef"));
  ASSERT_EQ(desk_.said.size(), 1);
  EXPECT_TRUE(desk_.LastSaid().contains("An error occurred in ConvertOldFiles.\nError Number: 58"));
}

}  // namespace
