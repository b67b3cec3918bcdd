// Where the report goes, and what is asked before.
#include "files/export.h"

#include <QDir>
#include <QTemporaryDir>

#include "editing/totals_commands.h"
#include "files/event_file.h"
#include "model/report.h"
#include "pages/titles.h"
#include "platform/codepage.h"
#include "platform/files.h"
#include "settings/tax_rate.h"
#include "ui/desk.h"

namespace quillane {

namespace {

QString ScratchPath() {
  return prefs.ProposalFolder + QStringLiteral("TempClipboardInfo.txt");
}

bool HasTextFileName() {
  return !proposal.TextFileName.isEmpty() && proposal.TextFileName != QLatin1String(".txt");
}

void BringReportUpToDate() {
  CheckTheTotals();
  FindHighestPage();
  UpdatePageNumbers();
}

/// Both roads of the report that carry the proposal's name need one that a file can have.
bool NameIsFit() {
  if (IllegalFileName(proposal.TextFileName)) {
    ShowClientName();
    return false;
  }
  if (HasTextFileName()) return true;
  Tell(QStringLiteral("Please enter the client's name in the appropriate area and save again."));
  ShowClientName();
  return false;
}

bool SaveTextFile() {
  if (!NameIsFit()) return false;
  TakeCurrentFolder();
  if (!MayReplace(proposal.TextFileName)) return false;
  ReplaceFile(proposal.CurrentFolder + proposal.TextFileName, ProposalReportBytes());
  Tell(QStringLiteral("File was saved as ") + proposal.TextFileName);
  return true;
}

bool SaveScratchFile() {
  // A report that is refused must not leave the last one to be pasted.
  if (FileExists(prefs.ProposalFolder, QStringLiteral("TempClipboardInfo.txt"))) RemoveFile(ScratchPath());
  if (!NameIsFit()) return false;
  ReplaceFile(ScratchPath(), ProposalReportBytes());
  return true;
}

/// Each document lies in a folder of its own, which only the user can read: the word processor may still hold
/// the last one.
QString NewTemporaryFolder() {
  QTemporaryDir made(QDir::tempPath() + QStringLiteral("/quillane-XXXXXX"));
  if (!made.isValid()) Raise(errors::PathFileAccess, made.path());
  made.setAutoRemove(false);
  return WithSeparator(made.path());
}

}  // namespace

bool SaveFileAsText(ReportTarget target) {
  bool saved = false;
  Guarded("SaveFileAsText", [&] {
    BringReportUpToDate();
    switch (target) {
      case ReportTarget::TextFile:
        saved = SaveTextFile();
        break;
      case ReportTarget::ToClipboard:
        saved = SaveScratchFile();
        break;
      case ReportTarget::ToWordProcessor:
        saved = true;  // the document is written from the report itself
        break;
    }
  });
  return saved;
}

void CopyProposalToClipboard() {
  QString text = FromCodePage(ReadWholeFile(ScratchPath()));
  desk().SetClipboardText(text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
}

void SaveAsWordDoc() {
  const QByteArray document = desk().WordDocument(proposal.Title, ProposalReport());
  const QString path = NewTemporaryFolder() + SafeFileName(proposal.BaseName) + QStringLiteral(".odt");
  ReplaceFile(path, document);
  if (desk().OpenExternally(path)) return;
  Tell(QStringLiteral("No word processor was found on this computer. The document lies here:\n") + path);
}

QString SafeFileName(const QString& name) {
  constexpr int longest = 100;  // letters; a file's name may have 255 bytes, and an ending follows
  QString safe = name.trimmed().left(longest);
  for (QChar& c : safe)
    if (c < u' ' || QStringLiteral("/\\:*?<>|\"").contains(c)) c = u'-';
  if (safe.startsWith(u'.')) safe[0] = u'-';  // a hidden file would not be found again
  return safe.isEmpty() ? QStringLiteral("Proposal") : safe;
}

void SaveAsTextCommand() {
  if (SaveFileAsText(ReportTarget::TextFile)) ReadTextFile(proposal.CurrentFolder + proposal.TextFileName);
}

void CopyProposalCommand() {
  if (!SaveFileAsText(ReportTarget::ToClipboard)) return;
  CopyProposalToClipboard();
  Tell(QStringLiteral("Proposal saved to memory and is ready to paste in another application."));
}

void SaveToWordCommand() {
  if (SaveFileAsText(ReportTarget::ToWordProcessor)) SaveAsWordDoc();
}

}  // namespace quillane
