#include "platform/files.h"

namespace quillane {
void SetDrivesFolder(const QString&) {}
QString ResolvePath(const QString& s) { return s; }
QString WithSeparator(const QString& f) { return f; }
bool FileExists(const QString&, const QString&) { return false; }
bool FolderExists(const QString&, const QString&) { return false; }
QStringList ListFiles(const QString&, const QString&) { return {}; }
QStringList ListFolders(const QString&) { return {}; }
QByteArray ReadWholeFile(const QString&) { return {}; }
QList<QByteArray> ReadFileLines(const QString&) { return {}; }
void ReplaceFile(const QString&, const QByteArray&) {}
void WriteAt(const QString&, qint64, const QByteArray&) {}
void RemoveFile(const QString&) {}
void CopyFileOver(const QString&, const QString&) {}
void RenameFile(const QString&, const QString&) {}
void MakeFolder(const QString&) {}
QDateTime FileTime(const QString&) { return {}; }
void SetFaultHook(FaultHook) {}
}  // namespace quillane
