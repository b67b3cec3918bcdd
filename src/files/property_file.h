// The property file: how this one proposal differs from the default layout, a line a control.
#pragma once
#include <QString>
#include <QStringList>
#include <vector>

#include "model/document.h"
#include "platform/files.h"

namespace quillane {

/// What a save has written is marked as written: no area or label is changed any more.
void AssignPropChanges();
/// Replaces `baseName` + ".wpf" by these lines and adds it to what `written` holds, for the caller to keep.
/// False, after the report, when it could not be written.
bool SavePropertyFile(const QString& baseName, const QStringList& lines, std::vector<Replacement>& written);
/// Where property files are written and read: the folder of the open file, but the proposal folder for a
/// proposal that came from the backup folder, which holds field files only.
QString PropertyFolder();
/// Reads and applies the ".wpf" of the open proposal, if there is one; `filed` is what its own file says.
void ReadFileProperties(const Document& filed);
/// Applies lines to the pages up to the first malformed one, which is reported.
void ParsePropertyFile(const QStringList& lines, const Document& filed);

}  // namespace quillane
