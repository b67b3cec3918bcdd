// The proposal's own file: a fixed layout of field texts.
#pragma once
#include <QByteArray>
#include <QString>
#include <functional>
#include <optional>
#include <vector>

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
/// Opens fileDialog.Folder + fileDialog.SelectedFileName, and its property file unless
/// fileDialog.IgnoreProperties. The file is read whole before the pages are blanked, so that an unreadable
/// one leaves the open proposal.  True when it was read.
bool OpenEventFile();
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

/// The 22000 bytes of the file for the texts in PageText and the exemptions in TextRec.
QByteArray EventFileBytes();
/// The same for any texts; `exempt` says which fields of pages 1 to 5 carry the mark, by page index and area.
QByteArray EventFileBytes(const PageTexts& texts, const std::function<bool(int, int)>& exempt);

/// The fields of a file: one text a page index and area, cut at their widths by the file's length, blanks not
/// trimmed.
struct EventFields {
  PageTexts text;
};
EventFields ReadEventFields(const QByteArray& bytes);

/// A row with columns as it is stored: the quantity and the description between and behind two yen signs, the
/// each-price behind a section sign.
struct ColumnTexts {
  QString quantity, description, each;
};
/// The parts of a stored text; nothing when a sign is missing or the first one is not in front.
std::optional<ColumnTexts> SplitColumns(const QString& stored);
/// The stored text of a row without columns that holds one of the signs all the same.
bool HasStrayMark(const QString& stored);

/// True when both strings name one existing folder.
bool SameFolder(const QString& one, const QString& other);

}  // namespace quillane
