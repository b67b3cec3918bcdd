// The property file: how this one proposal differs from the default layout, a line a control.
#pragma once
#include <QString>
#include <QStringList>
#include <vector>

#include "editing/user_font.h"
#include "platform/files.h"

namespace quillane {

/// Builds proposal.PropertyLines from the tables and clears the marks that it has taken.
void AssignPropChanges();
/// The lines that a save would write, read from the pages as they stand, without touching a mark.
QStringList PropertyLinesNow();
/// Replaces `baseName` + ".wpf" by proposal.PropertyLines and adds it to what `written` holds, for the caller
/// to keep.  False, after the report, when it could not be written.
bool SavePropertyFile(const QString& baseName, std::vector<Replacement>& written);
/// What is true of the lines and labels once that file is kept.
void MarkPropertiesSaved();
/// Where property files are written and read: the folder of the open file, but the proposal folder for a
/// proposal that came from the backup folder, which holds field files only.
QString PropertyFolder();
/// Reads and applies the ".wpf" of the open proposal, if there is one.
void ReadFileProperties();
void ParsePropertyFile();
/// Stores every label of every page in the table that printing reads.
void CopyLabelsToRecords();

}  // namespace quillane
