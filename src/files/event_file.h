// The proposal's own file: saved, opened, copied to the backup folder.
#pragma once
#include <QString>

#include "model/proposal.h"

namespace quillane {

/// Saves the open proposal under its name.  True when it was saved.
bool SaveEventFile();
bool SaveEventFileAs();
/// Asks before an existing file is replaced; sets proposal.SaveCancelled when the user declines.  A Yes
/// deletes nothing: the old file goes when the new one is whole.
void ShowDuplicateFileOptions(const QString& fileName);
/// True when no such file is in CurrentFolder, or the user lets it be replaced.
bool MayReplace(const QString& fileName);
/// Without a folder of its own a proposal is saved among the others.
void TakeCurrentFolder();
/// Brings page 1 to the front, at the area that asks for the name.
void ShowClientName();
/// Opens the proposal file of that path, and its property file where that is wanted.  The file is read whole
/// before the pages are blanked, so that an unreadable one leaves the open proposal.  True when it was read.
enum class Properties { Read, Ignored };
bool OpenEventFile(const QString& path, Properties properties = Properties::Read);
/// Marks each row with columns as one whose line must still reach the property file.
void SaveTextBoxFeatures();
/// Asks before a file that a new name has met is replaced, and tells when nothing is saved.
bool MayOverwrite(const QString& folder, const QString& baseName, const QString& extension);
/// True when the name has one of / \ : * ? < > |
bool HasForbiddenCharacter(const QString& name);
/// True, after telling the user, when the name has one of / \ : * ? < > |
bool IllegalFileName(const QString& name);
/// Writes the proposal as it stands into BackupFolder: no question, no message, no change of state.
void BackupThisFile();
bool FootnoteFileExists();
/// Shows on the frame whether the open proposal has footnotes.
void ShowFootnoteMark(bool filled);

/// True when both strings name one existing folder.
bool SameFolder(const QString& one, const QString& other);

}  // namespace quillane
