#include "files/file_dialog.h"

#include <QDir>
#include <QStorageInfo>
#include <utility>

#include "files/event_file.h"
#include "files/format_file.h"
#include "files/logo.h"
#include "files/new_proposal.h"
#include "model/proposal.h"
#include "platform/files.h"
#include "platform/runtime_error.h"
#include "settings/tax_rate.h"
#include "ui/desk.h"

namespace quillane {

namespace {

const QString EventFilter = QStringLiteral("*.wwf");

bool CanBeListed(const QString& folder) {
  try {
    ListFolders(folder);
    return true;
  } catch (const RuntimeError&) {
    return false;
  }
}

QStringList MountedMedia() {
  QStringList folders;
  for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
    const QString root = volume.rootPath();
    const bool isMedium = root.startsWith(QLatin1String("/media/")) ||
                          root.startsWith(QLatin1String("/mnt/")) ||
                          root.startsWith(QLatin1String("/run/media/"));
    if (isMedium && volume.isReady()) folders << WithSeparator(root);
  }
  folders.sort();
  return folders;
}

QStringList DriveLetters() {
  const QString drives = prefs.ProgramFolder + QStringLiteral("drives");
  if (!CanBeListed(drives)) return {};
  QStringList letters;
  for (const QString& name : ListFolders(drives))
    if (name.size() == 1 && name[0].isLetter()) letters << name.toUpper() + QLatin1Char(':');
  return letters;
}

// The dialog opens for a format even where the planner has refused to leave the proposal, so the work is
// asked about once more before it would be lost.
void OpenFormatUnlessRefused() {
  if (std::exchange(editing.ActionCancelled, false) && !PromptSaveChanges()) return;
  OpenPickedFormat();
}

}  // namespace

void ShowFileDialog(const QString& filter, const QString& caption) {
  fileDialog.FileFilter = filter;
  fileDialog.Caption = caption;
  desk().ShowWindow(QStringLiteral("frmFile"), Modality::Modal);
}

QStringList Drives() {
  QStringList drives{QStringLiteral("/"), WithSeparator(QDir::homePath())};
  drives << MountedMedia() << DriveLetters();
  drives.removeDuplicates();
  return drives;
}

QString DriveOf(const QString& folder) {
  QString best = QStringLiteral("/");
  qsizetype length = 0;
  for (const QString& drive : Drives()) {
    const QString root = RootOf(drive);
    if (root.isEmpty() || !folder.startsWith(root) || root.size() <= length) continue;
    best = drive;
    length = root.size();
  }
  return best;
}

QString RootOf(const QString& drive) {
  try {
    return WithSeparator(ResolvePath(drive));
  } catch (const RuntimeError&) {
    return {};
  }
}

void OpenEventCommand() {
  if (MayLeaveProposal()) ShowFileDialog(EventFilter, QStringLiteral("Opening Proposal File..."));
}

void OpenTextFileCommand() {
  ShowFileDialog(QStringLiteral("*.txt"), QStringLiteral("Opening Text File..."));
}

void DeleteAnyFileCommand() {
  fileDialog.DeleteMode = true;
  ShowFileDialog(QStringLiteral("*"), QString());
}

void FileDialog::Load() {
  const QString action = fileDialog.DeleteMode ? QStringLiteral("delete.") : QStringLiteral("open.");
  help =
      QStringLiteral("Double-Click on the Drive or Folder category to find the file you wish to ") + action;
  caption = fileDialog.DeleteMode ? QStringLiteral("Deleting File From...") : fileDialog.Caption;
  if (fileDialog.DeleteMode) pointOpen = QStringLiteral("Delete");
  // Only a proposal has properties beside it.
  propertiesOffered =
      fileDialog.FileFilter == EventFilter && !fileDialog.FormatMode && !fileDialog.DeleteMode;
  fileDialog.IgnoreProperties = false;
  ChooseFolder(prefs.ProposalFolder);
  fileDialog.SelectedFileName = prefs.ProposalFolder;
}

void FileDialog::Refresh() {
  try {
    files = ListFiles(folder, fileDialog.FileFilter);
  } catch (const RuntimeError&) {
    files.clear();
  }
}

void FileDialog::ChooseFolder(const QString& path) {
  folder = WithSeparator(path);
  fileDialog.Folder = folder;
  drive = DriveOf(folder);
  // A file picked elsewhere must not be looked for here.
  if (!picking) Back();
  Refresh();
}

void FileDialog::ChooseDrive(const QString& chosen) {
  try {
    const QString root = WithSeparator(ResolvePath(chosen));
    ListFolders(root);
    ChooseFolder(root);
    drive = chosen;
  } catch (const RuntimeError&) {
    Tell(QStringLiteral("This Drive is currently unavailable."));
    if (!CanBeListed(folder)) Tell(QStringLiteral("A:\\ not accesssible."));
  }
}

void FileDialog::ChooseFile(const QString& name) {
  caption = QStringLiteral("Open... ") + name;
  fileDialog.SelectedFileName = name;
  openFileName = name;
  picking = false;
}

void FileDialog::Back() {
  picking = true;
  caption = fileDialog.DeleteMode ? QStringLiteral("Deleting File...") : QStringLiteral("Open File From...");
}

void FileDialog::Open() {
  if (picking) return;
  if (fileDialog.DeleteMode) return DeletePicked();
  OpenPicked();
  Unload();
}

void FileDialog::DeletePicked() {
  if (!AskYesNo(QStringLiteral("Are you sure you want to delete this file?"),
                QStringLiteral("Preparing to Delete File.")))
    return;
  try {
    RemoveFile(folder + openFileName);
  } catch (const RuntimeError&) {
    // The list that comes back shows that the file is still there.
  }
  Refresh();
  picking = true;
  caption = QStringLiteral("Delete File...");
}

void FileDialog::OpenPicked() {
  const QString& filter = fileDialog.FileFilter;
  if (filter == EventFilter)
    OpenEventFile(folder + openFileName,
                  fileDialog.IgnoreProperties ? Properties::Ignored : Properties::Read);
  else if (filter == QLatin1String("*.txt"))
    ReadTextFile(folder + openFileName);
  else if (filter == QLatin1String("*.wft"))
    OpenFormatUnlessRefused();
  else if (filter == LogoFilter)
    ChooseLogo(folder + openFileName);
  else
    Tell(QStringLiteral("Frequent terms cannot be opened in this version."));
}

void FileDialog::Cancel() {
  Unload();
}

void FileDialog::Unload() {
  closed = true;
  fileDialog.FileFilter = EventFilter;
  fileDialog.FormatMode = fileDialog.DeleteMode = false;
}

}  // namespace quillane
