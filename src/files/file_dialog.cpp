#include "files/file_dialog.h"

namespace quillane {
void OpenEventCommand() {}
void OpenTextFileCommand() {}
void DeleteAnyFileCommand() {}
void FileDialog::Load() {}
void FileDialog::ChooseFolder(const QString&) {}
void FileDialog::ChooseDrive(const QString&) {}
void FileDialog::ChooseFile(const QString&) {}
void FileDialog::Back() {}
void FileDialog::Open() {}
void FileDialog::Cancel() {}
void FileDialog::Unload() {}
QStringList Drives() {
  return {};
}
void DeleteProposalCommand() {}
void RestoreFromBackupCommand() {}
void EmptyBackupCommand() {}
void ConvertOldFiles() {}
}  // namespace quillane
