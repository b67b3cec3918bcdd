// The commands that delete a proposal, bring one back from its backup, and rename files of an older
// extension.
#include "files/event_file.h"
#include "files/file_dialog.h"
#include "files/new_proposal.h"
#include "model/frame.h"
#include "model/report.h"
#include "pages/titles.h"
#include "platform/files.h"
#include "ui/desk.h"

namespace quillane {

namespace {

void RemoveSiblings(const QString& base) {
  for (const char* extension : {".wpf", ".txt", ".wxt", ".dep"}) {
    const QString name = proposal.BaseName + QString::fromLatin1(extension);
    if (!FileExists(proposal.CurrentFolder, name)) continue;
    try {
      RemoveFile(base + QString::fromLatin1(extension));
    } catch (const RuntimeError&) {
      // A sibling that cannot go does not keep the others.
    }
  }
}

// A proposal file that cannot be deleted stays open, since a blank page would say that it is gone.
bool RemoveProposalFile(const QString& path) {
  return Guarded("mnuFileDelete", [&] { RemoveFileIfThere(path); });
}

void TakeBackup() {
  const QByteArray bytes = ReadWholeFile(proposal.CurrentFolder + proposal.EventFileName);
  ReplaceFile(prefs.ProposalFolder + proposal.EventFileName, bytes);
  if (!proposal.TitleByHand) proposal.Title = TitleFor(proposal.BaseName);
  UpdateEventNameLabels();
  proposal.CurrentFolder = prefs.ProposalFolder;
  frame()["lblDir"].SetCaption(QStringLiteral("Current Folder = ") + proposal.CurrentFolder);
  ShowFootnoteMark(FootnoteFileExists());
}

void EndBackupSession() {
  proposal.OpenedFromBackup = false;
  EnableMenu("mnuFileRestoreFromBackup", false);
}

QStringList BackupFiles() {
  try {
    return ListFiles(prefs.BackupFolder, QStringLiteral("*.wwf"));
  } catch (const RuntimeError&) {
    return {};
  }
}

void RenameOldFile(const QString& name) {
  const QString target = name.chopped(4) + QStringLiteral(".wwf");
  if (FileExists(prefs.ProposalFolder, target)) Raise(errors::FileExists, target);
  RenameFile(prefs.ProposalFolder + name, prefs.ProposalFolder + target);
}

}  // namespace

void DeleteProposalCommand() {
  const bool confirmed = AskYesNo(QStringLiteral("Are you sure you want to delete this file?"),
                                  QStringLiteral("Preparing to Delete File."));
  if (!proposal.FileIsNamed)
    return Tell(QStringLiteral("No such file exists. Select New to start a new proposal (Ctrl + N)."));
  if (!confirmed) return;
  const QString base = proposal.CurrentFolder + proposal.BaseName;
  if (!RemoveProposalFile(base + QStringLiteral(".wwf"))) return;
  RemoveSiblings(base);
  StartNewFile();
}

void RestoreFromBackupCommand() {
  if (!proposal.OpenedFromBackup) return;
  if (SameFolder(proposal.CurrentFolder, prefs.ProposalFolder)) return EndBackupSession();
  if (Guarded("mnuFileRestoreFromBackup", TakeBackup)) EndBackupSession();
}

void EmptyBackupCommand() {
  if (!AskYesNo(QStringLiteral("Are you sure you want to delete all the Backup files?"),
                QStringLiteral("Preparing to Delete Backup Files")))
    return;
  const QStringList names = BackupFiles();
  if (names.isEmpty()) return Tell(QStringLiteral("No Backup Files Found"));
  for (const QString& name : names) {
    if (name.compare(proposal.EventFileName, Qt::CaseInsensitive) == 0) continue;
    Guarded("mnuOptEmptyBackup", [&] { RemoveFile(prefs.BackupFolder + name); });
  }
  Tell(QStringLiteral("All files have been deleted from Backup"));
}

void ConvertOldFiles() {
  Guarded("ConvertOldFiles", [] {
    for (const QString& name : ListFiles(prefs.ProposalFolder, QStringLiteral("*.wef")))
      Guarded("ConvertOldFiles", [&] { RenameOldFile(name); });
  });
}

}  // namespace quillane
