// The proposal's own file: a fixed layout of field texts.
#pragma once
#include <QByteArray>
#include <QString>
#include <vector>

namespace quillane {

/// Saves the open proposal under its name.  True when it was saved.
bool SaveEventFile();
bool SaveEventFileAs();
/// Asks before an existing file is replaced; sets proposal.SaveCancelled when the user declines.
void ShowDuplicateFileOptions(const QString& fileName);
/// Opens proposal.CurrentFolder + fileDialog.SelectedFileName into blank pages.  True when it was read.
bool OpenEventFile();
/// True, after telling the user, when the name has one of / \ : * ? < > |
bool IllegalFileName(const QString& name);
/// Writes the proposal as it stands into BackupFolder: no question, no message, no change of state.
void BackupThisFile();
bool FootnoteFileExists();

/// The 22000 bytes of the file for the texts in PageText and the exemptions in TextRec.
QByteArray EventFileBytes();

/// The fields of a file: one text a page index and area, cut at their widths by the file's length, blanks not trimmed.
struct EventFields {
  std::vector<std::vector<QString>> text;
};
EventFields ReadEventFields(const QByteArray& bytes);

}  // namespace quillane
