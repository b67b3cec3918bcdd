// Opening: the file's fields go onto blank pages, then the sums are worked out anew.
#include "editing/navigation.h"
#include "files/event_file.h"
#include "files/format_file.h"
#include "files/new_proposal.h"
#include "files/property_file.h"
#include "model/event_bytes.h"
#include "model/frame.h"
#include "model/report.h"
#include "pages/show_document.h"
#include "pages/titles.h"
#include "platform/files.h"
#include "platform/numbers.h"
#include "ui/desk.h"

namespace quillane {

namespace {

// An area whose field is blank leaves what a format has put there, and so does a text that the format fixes;
// an amount and its tax are the proposal's own all the same.
void TakeArea(TextAreaRecord& shown, const TextAreaRecord& filed, bool fixed, bool amount) {
  if (filed.Text.isEmpty() && !filed.QtyBox) return;
  if (!fixed || (amount && filed.TaxExempt)) {
    shown.Text = filed.Text;
    // A format may have given the row columns; the proposal's own text says whether it has any.
    shown.QtyBox = filed.QtyBox;
    shown.QtyValue = filed.QtyValue;
    shown.AmtValue = filed.AmtValue;
  }
  if (!amount) return;
  shown.TaxExempt = filed.TaxExempt;
  shown.AreaAmount = filed.AreaAmount;
}

void TakeAreas(Document& document, const Document& filed) {
  for (int p = 0; p < ItemPages; ++p)
    for (int i = 0; i < AreaCount(p); ++i)
      TakeArea(document.TextRec[p][i], filed.TextRec[p][i], format.FormatTextRec[p][i].HasFormatText,
               shape::IsAmount(p, i));
}

// Nothing is taken from the totals page but the deposit; the other five are worked out anew.
void TakeDeposit(Document& document, const Document& filed) {
  const QString& text = filed.TextRec[shape::Totals][shape::Deposit].Text;
  if (!text.isEmpty() && !AmountIn(text))
    Tell(
        QStringLiteral("Deposit is not numeric. Zero will be entered. Please\n"
                       "double-check the Deposit amount from previous records."));
  document.DepositReceived = filed.DepositReceived;
  document.TextRec[shape::Totals][shape::Deposit].Text = FormatNumber(filed.DepositReceived, patterns::Money);
}

void FillPages(const Document& filed) {
  Document document = ReadPages();
  TakeAreas(document, filed);
  TakeDeposit(document, filed);
  PutOnPages(document);
  ShowFollowingSums();
}

void TakeFileNames(const QString& folder, const QString& name) {
  proposal.CurrentFolder = folder;
  proposal.OpenedFromBackup = SameFolder(folder, prefs.BackupFolder);
  proposal.FileIsNamed = true;
  NameProposal(name.chopped(4));
  proposal.EventFileName = name;
  proposal.FootnoteFileName = proposal.BaseName + QStringLiteral(".wxt");
  proposal.DepositFileName = proposal.BaseName + QStringLiteral(".dep");
  proposal.Title = TitleFor(proposal.BaseName);
  proposal.TitleByHand = false;
}

void ShowFileNames() {
  frame()["lblDir"].SetCaption(QStringLiteral("Current Folder = ") + proposal.CurrentFolder);
  EnableMenu("mnuFileDelete", true);
  EnableMenu("mnuFileRestoreFromBackup", proposal.OpenedFromBackup);
  ShowFootnoteMark(FootnoteFileExists());
  UpdateEventNameLabels();
}

bool OpenInto(const QString& path, Properties properties) {
  const Document filed = ReadEventFile(ReadWholeFile(path));
  if (!StartNewFile()) return false;
  const qsizetype nameStart = path.lastIndexOf(QLatin1Char('/')) + 1;
  TakeFileNames(path.left(nameStart), path.mid(nameStart));
  FillPages(filed);
  ShowFileNames();
  if (properties == Properties::Read) ReadFileProperties(filed);
  FindHighestPage();
  UpdatePageNumbers();
  proposal.Saved = ReadPages();
  format.FormatLines = FormatLinesNow();
  UpdatePageButtons(0);
  return true;
}

}  // namespace

bool OpenEventFile(const QString& path, Properties properties) {
  bool opened = false;
  Guarded("OpenEventFile", [&] {
    desk().ServeEvents();
    opened = OpenInto(path, properties);
  });
  return opened;
}

}  // namespace quillane
