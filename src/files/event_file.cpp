#include "files/event_file.h"

namespace quillane {
bool SaveEventFile() { return false; }
bool SaveEventFileAs() { return false; }
void ShowDuplicateFileOptions(const QString&) {}
bool OpenEventFile() { return false; }
bool IllegalFileName(const QString&) { return false; }
void BackupThisFile() {}
bool FootnoteFileExists() { return false; }
QByteArray EventFileBytes() { return {}; }
EventFields ReadEventFields(const QByteArray&) { return {}; }
}  // namespace quillane
