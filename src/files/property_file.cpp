#include "files/property_file.h"

namespace quillane {
void AssignPropChanges() {}
QStringList PropertyLinesNow() { return {}; }
void SavePropertyFile(const QString&) {}
void ReadFileProperties() {}
void ParsePropertyFile() {}
void CopyLabelsToRecords() {}
void ApplyUserFont() {}
}  // namespace quillane
