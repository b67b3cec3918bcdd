// Tried here: a full disk, a read-only folder, an input/output error and a refused rename, at each step of a
// write and for each of the two files of a proposal; a folder and a file that went away; a name that the file
// system refuses. Each ends in a report; the old file is still there, and what was typed is still on the
// page.
#include <cerrno>

#include "files/file_dialog.h"
#include "proposal_fixture.h"

using namespace quillane;

namespace {

struct Fault {
  QString step, ending;  ///< the step of a write that fails, and the end of the path for which it does
  int error = 0;
};
Fault fault;

int Fail(const char* step, const QString& path) {
  return path.endsWith(fault.ending) && fault.step == QLatin1String(step) ? fault.error : 0;
}

class FailingDisk : public test::ProposalTest {
 protected:
  void SetUp() override {
    ProposalTest::SetUp();
    Put("Emily Carter.wwf", Sample("Emily Carter.wwf"));
    Put("Emily Carter.wpf", Sample("Emily Carter.wpf"));
    tax.TaxRate = 7.5F;
    ASSERT_TRUE(Open("Emily Carter.wwf"));
    Type("frmP2.txt(12)", "Twelve lanterns");
    Type("frmP2.txt(47)", "96");
    At("frmP2.txt(12)").SetFontBold(true);
    desk_.said.clear();
    files_ = Files();
  }
  static QStringList Files() {
    return QDir(prefs.ProposalFolder).entryList(QDir::Files | QDir::Hidden) +
           QDir(prefs.BackupFolder).entryList(QDir::Files | QDir::Hidden);
  }
  static void Break(const QString& step, const QString& ending, int error) {
    fault = {step, ending, error};
    SetFaultHook(Fail);
  }
  void ExpectReport(const QString& procedure) {
    ASSERT_FALSE(desk_.said.isEmpty());
    EXPECT_EQ(desk_.said.last().title, "Program Error");
    EXPECT_TRUE(desk_.LastSaid().contains("An error occurred in " + procedure + "."))
        << desk_.LastSaid().toStdString();
    const QString description = desk_.LastSaid().section("Error Description: ", 1).trimmed();
    EXPECT_GT(description.size(), 8) << "a sentence that a person understands";
  }
  void ExpectWorkIsKept() {
    EXPECT_EQ(TextOf("frmP2.txt(12)"), "Twelve lanterns");
    EXPECT_EQ(TextOf("frmP2.txt(47)"), "96.00");
    EXPECT_EQ(proposal.EventFileName, "Emily Carter.wwf");
    EXPECT_TRUE(ProposalHasChanged());
    EXPECT_FALSE(editing.RebuildingPages || editing.OpeningFile || editing.Parsing ||
                 proposal.BackupInProgress);
  }

  QStringList files_;
};

TEST_F(FailingDisk, LeavesTheOldFileAtEveryStepOfAWrite) {
  const QByteArray fields = Get("Emily Carter.wwf"), properties = Get("Emily Carter.wpf");
  for (const char* step : {"open", "write", "flush", "sync", "rename", "syncdir"}) {
    for (const int error : {ENOSPC, EACCES, EROFS, EIO}) {
      desk_.said.clear();
      Break(step, ".wwf", error);
      EXPECT_FALSE(SaveEventFile()) << step << " " << error;
      ExpectReport("SaveEventFile");
      EXPECT_EQ(Get("Emily Carter.wwf"), fields) << step << " " << error;
      EXPECT_EQ(Get("Emily Carter.wpf"), properties) << step << " " << error;
      EXPECT_EQ(Files(), files_) << step << " " << error;
      ExpectWorkIsKept();
    }
  }
  SetFaultHook(nullptr);
  EXPECT_TRUE(SaveEventFile());
  EXPECT_EQ(Get("Emily Carter.wwf").mid(2180 + 12 * 120, 15), "Twelve lanterns");
  EXPECT_TRUE(Get("Emily Carter.wpf").contains("frmP2.txt(12).FontBold=True"));
  EXPECT_FALSE(ProposalHasChanged());
}

TEST_F(FailingDisk, KeepsTheMarksWhileThePropertiesAreNotWritten) {
  const QByteArray properties = Get("Emily Carter.wpf");
  Break("sync", ".wpf", ENOSPC);
  EXPECT_FALSE(SaveEventFile());
  ExpectReport("SavePropertyFile");
  EXPECT_EQ(Get("Emily Carter.wpf"), properties);
  ExpectWorkIsKept();
  SetFaultHook(nullptr);
  EXPECT_TRUE(SaveEventFile());
  EXPECT_TRUE(Get("Emily Carter.wpf").contains("frmP2.txt(12).FontBold=True"));
}

TEST_F(FailingDisk, SaveAsKeepsTheOldName) {
  Break("write", ".wwf", ENOSPC);
  Input("Emily Carter, second try");
  EXPECT_FALSE(SaveEventFileAs());
  ExpectReport("SaveEventFile");
  EXPECT_EQ(Files(), files_);
  EXPECT_EQ(proposal.BaseName + proposal.TextFileName + proposal.DepositFileName,
            "Emily CarterEmily Carter.txtEmily Carter.dep");
  ExpectWorkIsKept();
}

TEST_F(FailingDisk, ASaveThatWasAskedForAndFailedStopsNewAndOpen) {
  Break("open", ".wwf", EACCES);
  Reply({Answer::Yes, Answer::Yes});
  NewEventCommand();
  ExpectWorkIsKept();
  OpenEventCommand();
  EXPECT_EQ(desk_.shown, QStringList());
  ExpectWorkIsKept();
}

TEST_F(FailingDisk, ABackupThatFailsIsReportedAndChangesNothing) {
  Break("write", ".wwf", ENOSPC);
  BackupThisFile();
  ExpectReport("BackupThisFile");
  EXPECT_EQ(Files(), files_);
  ExpectWorkIsKept();
}

TEST_F(FailingDisk, AFolderThatWentAwayIsReported) {
  ASSERT_TRUE(QDir(prefs.ProposalFolder).removeRecursively());
  EXPECT_FALSE(SaveEventFile());
  ExpectReport("SaveEventFile");
  ExpectWorkIsKept();
  BackupThisFile();
  ExpectReport("BackupThisFile");
  ConvertOldFiles();
  ExpectReport("ConvertOldFiles");
  FileDialog dialog;
  dialog.Load();
  EXPECT_EQ(dialog.files, QStringList());
  EXPECT_FALSE(QDir(prefs.ProposalFolder).exists());
}

TEST_F(FailingDisk, AnUnreadableFileLeavesTheOpenProposal) {
  QDir(prefs.ProposalFolder).mkdir("Folder.wwf");
  for (const char* name : {"Gone.wwf", "Folder.wwf"}) {
    desk_.said.clear();
    EXPECT_FALSE(Open(name)) << name;
    ExpectReport("OpenEventFile");
    ExpectWorkIsKept();
  }
}

TEST_F(FailingDisk, AnUnreadablePropertyFileCostsTheLookOnly) {
  QFile::remove(PathOf("Emily Carter.wpf"));
  QDir(prefs.ProposalFolder).mkdir("Emily Carter.wpf");
  ASSERT_TRUE(Open("Emily Carter.wwf"));
  EXPECT_EQ(TextOf("frmP2.txt(0)"), "Ceremony Flowers");
  EXPECT_TRUE(page(1).HasColumns(2));
  EXPECT_FALSE(ProposalHasChanged());
}

TEST_F(FailingDisk, AProposalThatCannotBeDeletedOrRestoredStaysOpen) {
  QFile::remove(PathOf("Emily Carter.wwf"));
  QDir(prefs.ProposalFolder).mkdir("Emily Carter.wwf");
  Reply({Answer::Yes});
  DeleteProposalCommand();
  ExpectReport("mnuFileDelete");
  ExpectWorkIsKept();
  EXPECT_TRUE(Exists("Emily Carter.wpf"));

  Put("Backup/Emily Carter.wwf", QByteArray(22000, ' '));
  proposal.CurrentFolder = prefs.BackupFolder;
  proposal.OpenedFromBackup = true;
  RestoreFromBackupCommand();
  ExpectReport("mnuFileRestoreFromBackup");
  EXPECT_TRUE(proposal.OpenedFromBackup);
  EXPECT_EQ(proposal.CurrentFolder, prefs.BackupFolder);
}

}  // namespace
