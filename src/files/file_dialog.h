// The rules of the program's own file dialog, and the commands that delete, restore and convert proposals.
#pragma once
#include <QString>
#include <QStringList>

namespace quillane {

/// Sets the filter, the mode and the caption, and shows frmFile.
void OpenEventCommand();
void OpenTextFileCommand();
void DeleteAnyFileCommand();

/// What frmFile shows and does; the window is a view of it.
struct FileDialog {
  QString caption, help, pointOpen = QStringLiteral("Open..."), openFileName;
  QString folder;  ///< with a separator
  QString drive;
  QStringList files;    ///< of the folder, by the filter
  bool picking = true;  ///< false while picFileOpen shows
  bool propertiesOffered = true;
  bool closed = false;

  void Load();
  void ChooseFolder(const QString& path);
  void ChooseDrive(const QString& drive);
  void ChooseFile(const QString& name);
  void Back();
  void Open();
  void Cancel();
  void Unload();
};
/// The drives of this machine: the root, the home folder, mounted media, and each letter under the drives
/// folder.
QStringList Drives();

/// Deletes the open proposal with its siblings, after asking, and starts a new one.
void DeleteProposalCommand();
void RestoreFromBackupCommand();
void EmptyBackupCommand();
/// Renames each "*.wef" in the proposal folder to ".wwf".
void ConvertOldFiles();

}  // namespace quillane
