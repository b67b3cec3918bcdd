// The rules of the program's own file dialog, and the commands that delete, restore and convert proposals.
#pragma once
#include <QString>
#include <QStringList>

namespace quillane {

/// Sets the filter and the caption, and shows frmFile.
void ShowFileDialog(const QString& filter, const QString& caption);
void OpenEventCommand();
void OpenTextFileCommand();
void DeleteAnyFileCommand();

/// What frmFile shows and does; the window is a view of it.  A file is picked first and opened, or deleted,
/// only after a second step.
struct FileDialog {
  QString caption, help, pointOpen = QStringLiteral("Open..."), openFileName;
  QString folder;       ///< with a separator
  QString drive;        ///< one of Drives()
  QStringList files;    ///< of the folder, by the filter
  bool picking = true;  ///< false while picFileOpen shows
  bool propertiesOffered = true;
  bool closed = false;

  void Load();
  /// A folder that cannot be listed shows no files.
  void ChooseFolder(const QString& path);
  /// Tells the user when the drive cannot be read, and stays where it was.
  void ChooseDrive(const QString& chosen);
  void ChooseFile(const QString& name);
  void Back();
  /// Opens or deletes the file that was picked.
  void Open();
  void Cancel();
  void Unload();

 private:
  void Refresh();
  void DeletePicked();
  void OpenPicked();
};
/// The drives of this machine: the root, the home folder, mounted media, and each letter under the drives
/// folder.
QStringList Drives();
/// The folder that is a drive's root, with a separator; empty for a letter that is not set up.
QString RootOf(const QString& drive);
/// The drive of Drives() in which a folder lies.
QString DriveOf(const QString& folder);

/// Deletes the open proposal with its siblings, after asking, and starts a new one.
void DeleteProposalCommand();
void RestoreFromBackupCommand();
void EmptyBackupCommand();
/// Renames each "*.wef" in the proposal folder to ".wwf"; one that cannot be renamed is reported and the
/// others go on.
void ConvertOldFiles();

}  // namespace quillane
