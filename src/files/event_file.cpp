// Saving: the questions, the two files, and what changes only once both are whole.
#include "files/event_file.h"

#include <QFileInfo>
#include <vector>

#include "editing/navigation.h"
#include "editing/totals_commands.h"
#include "files/changes.h"
#include "files/property_file.h"
#include "model/document_lines.h"
#include "model/event_bytes.h"
#include "model/focus.h"
#include "model/frame.h"
#include "model/report.h"
#include "pages/show_document.h"
#include "pages/titles.h"
#include "platform/codepage.h"
#include "platform/dates.h"
#include "platform/files.h"
#include "ui/desk.h"

namespace quillane {

namespace {

const QString FieldFile = QStringLiteral(".wwf");
const QString PropertyFile = QStringLiteral(".wpf");
const QString DepositFile = QStringLiteral(".dep");
const QString FootnoteFile = QStringLiteral(".wxt");

enum class PropertiesDue { WhenChanged, Always };

bool ClientNameChanged() {
  return PageText(0, shape::ClientName).trimmed() != SavedText(0, shape::ClientName).trimmed();
}

// A proposal that takes a name for the first time must not inherit the properties of a file that it replaces.
bool PropertiesChanged(PropertiesDue when, const QString& baseName) {
  if (when == PropertiesDue::Always || PropertiesHaveChanged()) return true;
  if (proposal.FileIsNamed) return false;
  // What a format has given a new proposal must outlive the format.
  return format.FormatIsOpen || FileExists(PropertyFolder(), baseName + PropertyFile);
}

// False when the property file was due and could not be written; the proposal is not saved then.
bool WriteFiles(const QString& fileName, PropertiesDue when) {
  const QString baseName = fileName.chopped(FieldFile.size());
  SaveTextBoxFeatures();
  FindHighestPage();
  UpdatePageNumbers();
  UpdateEventNameLabels();
  const bool propertiesToo = PropertiesChanged(when, baseName);
  const Document document = ReadPages();
  std::vector<Replacement> written;
  written.emplace_back(proposal.CurrentFolder + fileName, EventFileBytes(document));
  const bool whole = !propertiesToo || SavePropertyFile(baseName, PropertyLinesOf(document), written);
  Replacement::Keep(written);
  return whole;
}

void MarkSaved() {
  AssignPropChanges();
  proposal.Saved = ReadPages();
  proposal.FileIsNamed = true;
  format.FormatSessionActive = false;
  EnableMenu("mnuFileDelete", true);
  UpdateEventNameLabels();
  Tell(QStringLiteral("File was saved as ") + proposal.EventFileName);
}

bool MayReplaceDuplicate() {
  if (proposal.FileIsNamed && !ClientNameChanged()) return true;
  return MayReplace(proposal.EventFileName);
}

bool SaveUnderItsName() {
  CheckTheTotals();
  TakeCurrentFolder();
  if (!proposal.SavingAs && IllegalFileName(proposal.EventFileName)) {
    ShowClientName();
    return false;
  }
  if (!proposal.FileIsNamed && proposal.EventFileName.isEmpty()) {
    Tell(QStringLiteral("Please enter the client's name in the appropriate area and save again."));
    ShowClientName();
    return false;
  }
  if (!MayReplaceDuplicate()) return false;
  if (!WriteFiles(proposal.EventFileName, PropertiesDue::WhenChanged)) return false;
  MarkSaved();
  return true;
}

void CopySibling(const QString& from, const QString& to) {
  if (from == to)
    Raise(errors::PermissionDenied, QStringLiteral("a file cannot be copied onto itself, ") + to);
  CopyFileOver(prefs.ProposalFolder + from, prefs.ProposalFolder + to);
}

// What stands beside the proposal goes along.  Deposits are looked for under the new name, so that a proposal
// under a new name starts without any; where that name has some, source and target are one file and the copy
// fails.
void CopySiblings(const QString& oldFootnotes, bool hadFootnotes, bool hasDeposits) {
  if (hadFootnotes) {
    proposal.FootnoteFileName = proposal.BaseName + FootnoteFile;
    if (proposal.FootnoteFileName != oldFootnotes) CopySibling(oldFootnotes, proposal.FootnoteFileName);
  }
  if (hasDeposits) CopySibling(proposal.DepositFileName, proposal.BaseName + DepositFile);
  UpdateEventNameLabels();
}

bool SaveUnderNewName(const QString& baseName) {
  TakeCurrentFolder();
  if (!MayOverwrite(proposal.CurrentFolder, baseName, FieldFile)) return false;
  const QString oldFootnotes = proposal.FootnoteFileName;
  const bool hadFootnotes = FootnoteFileExists();
  const bool hasDeposits = FileExists(proposal.CurrentFolder, baseName + DepositFile);
  bool saved = false;
  Guarded("SaveEventFile", [&] {
    CheckTheTotals();
    if (!WriteFiles(baseName + FieldFile, PropertiesDue::Always)) return;
    NameProposal(baseName);
    MarkSaved();
    saved = true;
  });
  if (!saved) return false;
  proposal.DepositFileName = baseName + DepositFile;
  Guarded("SaveEventFileAs", [&] { CopySiblings(oldFootnotes, hadFootnotes, hasDeposits); });
  return true;
}

// While an unnamed proposal's name is being typed every twentieth key would leave a file of half a name.
bool BackupIsDue() {
  if (proposal.EventFileName.size() <= FieldFile.size() || HasForbiddenCharacter(proposal.EventFileName))
    return false;
  if (!proposal.FileIsNamed && editing.Focus == &page(0).txt[shape::ClientName]) return false;
  return !proposal.OpenedFromBackup;
}

}  // namespace

void SaveTextBoxFeatures() {
  Guarded("SaveTextBoxFeatures", [] {
    for (int p = 0; p < ItemPages; ++p)
      for (int row = page(p).FirstRow(); row <= page(p).LastRow(); ++row)
        proposal.AreaMarks[p][row].QtyWritten = page(p).HasColumns(row);
  });
}

bool SaveEventFile() {
  bool saved = false;
  Guarded("SaveEventFile", [&] { saved = SaveUnderItsName(); });
  return saved;
}

bool SaveEventFileAs() {
  bool saved = false;
  Guarded("SaveEventFileAs", [&] {
    if (TotalsAreStale()) RecalculateTotals(0);
    const QString answer = desk().InputBox(QStringLiteral("Please input the File Name below."),
                                           QStringLiteral("Saving File As..."), QString());
    const QString NewFileName = FoldToCodePage(answer).trimmed();
    if (NewFileName.isEmpty()) return Tell(QStringLiteral("No name entered. File not saved."));
    proposal.SavingAs = true;
    if (!IllegalFileName(NewFileName)) saved = SaveUnderNewName(NewFileName);
  });
  return saved;
}

bool MayReplace(const QString& fileName) {
  if (!FileExists(proposal.CurrentFolder, fileName)) return true;
  ShowDuplicateFileOptions(fileName);
  const bool declined = proposal.SaveCancelled;
  proposal.SaveCancelled = false;
  return !declined;
}

void ShowClientName() {
  UpdatePageButtons(0);
  SetFocus(page(0).txt[2]);
}

void TakeCurrentFolder() {
  if (proposal.CurrentFolder.isEmpty()) proposal.CurrentFolder = prefs.ProposalFolder;
}

void ShowDuplicateFileOptions(const QString& fileName) {
  proposal.SaveCancelled = true;  // also when the question itself fails
  Guarded("ShowDuplicateFileOptions", [&] {
    const QString created = GeneralDateTime(FileTime(proposal.CurrentFolder + fileName));
    const QString question =
        QStringLiteral("A file with this name (") + fileName +
        QStringLiteral(")\nalready exists. Do you want to replace the\nexisting file, created on:\n") +
        created + QStringLiteral("\n\nwith this one?");
    proposal.SaveCancelled = !AskYesNo(question, QStringLiteral("Duplicate File Name on Record"));
    if (proposal.SaveCancelled) Tell(QStringLiteral("File not saved."));
  });
}

bool HasForbiddenCharacter(const QString& name) {
  for (const QChar c : QStringLiteral("/\\:*?<>|"))
    if (name.contains(c)) return true;
  return false;
}

bool MayOverwrite(const QString& folder, const QString& baseName, const QString& extension) {
  if (!FileExists(folder, baseName + extension)) return true;
  const Answer answer = desk().MessageBox(
      QStringLiteral("A file with the name ") + baseName + QStringLiteral(" already exists. Overwrite?"),
      QStringLiteral("Preparing to Overwrite Existing Event File"), Buttons::YesNoCancel);
  if (answer == Answer::Yes) return true;
  Tell(QStringLiteral("Action Cancelled. File not saved."));
  return false;
}

bool IllegalFileName(const QString& name) {
  if (!HasForbiddenCharacter(name)) return false;
  Tell(QStringLiteral(
      "Action Cancelled. File Name cannot include any of \nthe following characters: / \\ : * ? < > |"));
  return true;
}

void BackupThisFile() {
  if (!BackupIsDue()) return;
  Guarded("BackupThisFile", [] {
    const Scoped backup(proposal.BackupInProgress, true);
    ReplaceFile(prefs.BackupFolder + proposal.EventFileName, EventFileBytes(ReadPages()));
  });
}

bool FootnoteFileExists() {
  return !proposal.FootnoteFileName.isEmpty() && FileExists(prefs.ProposalFolder, proposal.FootnoteFileName);
}

void ShowFootnoteMark(bool filled) {
  const QString source =
      filled ? QStringLiteral(":/icons/footnotes-filled.svg") : QStringLiteral(":/icons/footnotes.svg");
  frame()["imgFootNotes"].SetPicture({source, 360, 360});
}

bool SameFolder(const QString& one, const QString& other) {
  const QString path = QFileInfo(one).canonicalFilePath();
  return !path.isEmpty() && path == QFileInfo(other).canonicalFilePath();
}

}  // namespace quillane
