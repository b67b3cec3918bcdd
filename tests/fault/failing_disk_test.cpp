// Tried here: a full disk, a read-only folder, an input/output error and a refused rename, at each step of a
// write and for each of the two files of a proposal; a folder and a file that went away.  Each ends in a
// report; the old files are still there, and what was typed is still on the page.
#include <cerrno>

#include "files/file_dialog.h"
#include "proposal_fixture.h"

using namespace quillane;
using namespace quillane::test;

namespace {

class FailingDisk : public ProposalTest {
 protected:
  void SetUp() override {
    ProposalTest::SetUp();
    for (const char* name : {"Emily Carter.wwf", "Emily Carter.wpf"}) Put(name, Sample(name));
    tax.TaxRate = 7.5F;
    ASSERT_TRUE(Open("Emily Carter.wwf"));
    Type("frmP2.txt(12)", "Twelve lanterns");
    Type("frmP2.txt(47)", "96");
    At("frmP2.txt(12)").SetFontBold(true);
  }
  /// Every file of the two folders with its bytes.
  static QMap<QString, QByteArray> Files() {
    QMap<QString, QByteArray> files;
    for (const QString& folder : {prefs.ProposalFolder, prefs.BackupFolder})
      for (const QString& name : QDir(folder).entryList(QDir::Files | QDir::Hidden))
        files[folder + name] = ReadWholeFile(folder + name);
    return files;
  }
  /// Does what must fail: it is reported under the procedure's name, and the work is still there.
  void ExpectFailure(const std::function<void()>& act, const QString& procedure) {
    desk_.said.clear();
    act();
    ASSERT_FALSE(desk_.said.isEmpty()) << procedure.toStdString();
    EXPECT_EQ(desk_.said.last().title, "Program Error");
    EXPECT_TRUE(desk_.LastSaid().contains("An error occurred in " + procedure + "."))
        << desk_.LastSaid().toStdString();
    const QString description = desk_.LastSaid().section("Error Description: ", 1).trimmed();
    EXPECT_GT(description.size(), 8) << "a sentence that a person understands";
    EXPECT_EQ(TextOf("frmP2.txt(12)") + TextOf("frmP2.txt(47)"), "Twelve lanterns96.00");
    EXPECT_EQ(proposal.EventFileName + proposal.BaseName + proposal.TextFileName + proposal.DepositFileName,
              "Emily Carter.wwfEmily CarterEmily Carter.txtEmily Carter.dep");
    EXPECT_TRUE(ProposalHasChanged());
    EXPECT_FALSE(editing.RebuildingPages || editing.OpeningFile || editing.Parsing ||
                 proposal.BackupInProgress);
  }
};

void Save() {
  EXPECT_FALSE(SaveEventFile());
}

TEST_F(FailingDisk, LeavesFilesAndWorkAsTheyWere) {
  const auto before = Files();
  for (const char* step : {"open", "write", "flush", "sync", "rename", "syncdir"}) {
    for (const int error : {ENOSPC, EACCES, EROFS, EIO}) {
      SCOPED_TRACE(testing::Message() << step << " " << error);
      BreakDisk(step, error, ".wwf");
      ExpectFailure(Save, "SaveEventFile");
      EXPECT_EQ(Files(), before);
    }
  }
  const auto saveAs = [this] {
    Input("Emily Carter, second try");
    EXPECT_FALSE(SaveEventFileAs());
  };
  const auto begin = [this] {
    Reply({Answer::Yes});
    NewEventCommand();
  };
  const auto open = [this] {
    Reply({Answer::Yes});
    OpenEventCommand();
    EXPECT_EQ(desk_.shown, QStringList());
  };
  ExpectFailure(saveAs, "SaveEventFile");
  ExpectFailure(begin, "SaveEventFile");
  ExpectFailure(open, "SaveEventFile");
  ExpectFailure(BackupThisFile, "BackupThisFile");
  EXPECT_EQ(Files(), before);
  BreakDisk("sync", ENOSPC, ".wpf");
  ExpectFailure(Save, "SavePropertyFile");
  EXPECT_EQ(Get("Emily Carter.wpf"), Sample("Emily Carter.wpf"));

  MendDisk();
  EXPECT_TRUE(SaveEventFile());
  EXPECT_EQ(Get("Emily Carter.wwf").mid(2180 + 12 * 120, 15), "Twelve lanterns");
  EXPECT_TRUE(Get("Emily Carter.wpf").contains("frmP2.txt(12).FontBold=True")) << "its mark was kept";
  EXPECT_FALSE(ProposalHasChanged());
}

TEST_F(FailingDisk, ReportsAFolderThatWentAway) {
  ASSERT_TRUE(QDir(prefs.ProposalFolder).removeRecursively());
  ExpectFailure(Save, "SaveEventFile");
  ExpectFailure(BackupThisFile, "BackupThisFile");
  ExpectFailure(ConvertOldFiles, "ConvertOldFiles");
  FileDialog dialog;
  dialog.Load();
  EXPECT_EQ(dialog.files, QStringList());
  EXPECT_FALSE(QDir(prefs.ProposalFolder).exists());
}

TEST_F(FailingDisk, ReportsAFolderInTheFilesPlace) {
  for (const char* name : {"Emily Carter.wwf", "Emily Carter.wpf"}) {
    QFile::remove(PathOf(name));
    QDir(prefs.ProposalFolder).mkdir(name);
  }
  ExpectFailure([] { EXPECT_FALSE(Open("Gone.wwf")); }, "OpenEventFile");
  ExpectFailure([] { EXPECT_FALSE(Open("Emily Carter.wwf")); }, "OpenEventFile");
  ExpectFailure([this] { Reply({Answer::Yes}), DeleteProposalCommand(); }, "mnuFileDelete");
  EXPECT_TRUE(QDir(PathOf("Emily Carter.wpf")).exists()) << "what belongs to it stays with it";

  Put("Backup/Emily Carter.wwf", Sample("Emily Carter.wwf"));
  proposal.CurrentFolder = prefs.BackupFolder;
  proposal.OpenedFromBackup = true;
  ExpectFailure(RestoreFromBackupCommand, "mnuFileRestoreFromBackup");
  EXPECT_TRUE(proposal.OpenedFromBackup);
  EXPECT_EQ(proposal.CurrentFolder, prefs.BackupFolder);

  ASSERT_TRUE(Open("Emily Carter.wwf", "Backup"));  // an unreadable property file costs the look only
  EXPECT_EQ(TextOf("frmP2.txt(0)"), "Ceremony Flowers");
  EXPECT_TRUE(page(1).HasColumns(2));
  EXPECT_FALSE(ProposalHasChanged());
}

}  // namespace
