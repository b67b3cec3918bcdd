// Format files: reusable layouts that hold fixed texts, columns, marks, labels, the logo and the font.
#pragma once
#include <QString>
#include <QStringList>

namespace quillane {

/// Takes what a save of the format has written: its lines, and each label that they hold.
void AssignFormatPropChanges();
/// The lines that a save of the format would write, read from the pages as they stand, without touching a
/// mark.
QStringList FormatLinesNow();
/// True when there is anything for a format file to hold, or the lines differ from those last written or
/// read.
bool FormatChanged();
/// Writes the format under its name, or under one that it asks for.  True when it was written or its file has
/// all of it already, and when it was stored as the default where format.FormatAsDefault asks for that.
bool SaveFileFormat();
/// Applies the open format to blank pages.  One that cannot be read is reported and is no longer open.
void OpenFormatFile();
/// Applies format.FormatLines up to the first malformed line, which is reported.
void ParseFormatFile();

/// Leaves no format open: its tables, its lines and its logo are empty.  What is on the pages stays.
void ForgetFormat();
/// The format in the file that the dialog has picked lies under a new proposal.  A file that cannot be read
/// is reported and changes nothing.
void OpenPickedFormat();
/// True when a new proposal begins with the format that the preferences name.
bool DefaultFormatApplies();

}  // namespace quillane
