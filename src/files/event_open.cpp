// Opening: the file's fields go onto blank pages, then the sums are worked out anew.
#include "editing/navigation.h"
#include "files/event_file.h"
#include "files/format_file.h"
#include "files/new_proposal.h"
#include "files/property_file.h"
#include "model/frame.h"
#include "model/report.h"
#include "pages/defaults.h"
#include "pages/features.h"
#include "pages/titles.h"
#include "pages/totals.h"
#include "platform/files.h"
#include "platform/numbers.h"
#include "ui/desk.h"

namespace quillane {

namespace {

constexpr QChar ExemptSign(0xD8);
constexpr int DepositArea = 4;

// Blanks only: a stored text may begin or end with any other character, a hard blank included.
QString WithoutTrailingBlanks(QString text) {
  while (text.endsWith(QLatin1Char(' '))) text.chop(1);
  return text;
}

QString WithoutBlanks(const QString& text) {
  QString trimmed = WithoutTrailingBlanks(text);
  qsizetype first = 0;
  while (first < trimmed.size() && trimmed[first] == QLatin1Char(' ')) ++first;
  return trimmed.mid(first);
}

// The value of a stored amount; nothing for words, and for a figure that no amount can hold.
std::optional<float> ValueOf(const QString& text) {
  if (!IsNumeric(text)) return std::nullopt;
  try {
    return ToSingle(text);
  } catch (const RuntimeError&) {
    return std::nullopt;
  }
}

void FillColumns(Page& target, int row, const ColumnTexts& parts) {
  LoadColumns(target);
  ShowRowColumns(target, row, true);
  target.txtQty[row].SetText(parts.quantity);
  target.txtAmt[row].SetText(parts.each);
  target.txt[row].SetText(parts.description);
  TextAreaRecord& record = proposal.TextRec[target.pageIndex][row];
  record.QtyBox = true;
  record.QtyValue = parts.quantity;
  record.AmtValue = parts.each;
}

void FillText(Page& target, int area, const QString& field) {
  if (format.FormatTextRec[target.pageIndex][area].HasFormatText) return;  // the format's text stays
  const QString text = WithoutTrailingBlanks(field);
  proposal.PageText[target.pageIndex][area] = proposal.SavedText[target.pageIndex][area] = text;
  const std::optional<ColumnTexts> parts = target.IsRow(area) ? SplitColumns(text) : std::nullopt;
  if (parts) return FillColumns(target, area, *parts);
  if (text.isEmpty()) return;
  // A format may have given the row columns; the proposal's own text says that it has none.
  if (target.IsRow(area) && target.HasColumns(area)) ShowRowColumns(target, area, false);
  target.txt[area].SetText(text);
}

void FillAmount(Page& target, int area, const QString& field) {
  QString text = WithoutBlanks(field);
  if (text.isEmpty()) return;
  const bool exempt = text.startsWith(ExemptSign);
  if (exempt) {
    text = WithoutBlanks(text.mid(1));
    proposal.PageText[target.pageIndex][area] = proposal.SavedText[target.pageIndex][area] = text;
    target.txt[area].SetText(text);
  }
  // Also where a format has set the mark: the amount and its tax are the proposal's own.
  proposal.TextRec[target.pageIndex][area].TaxExempt = exempt;
  target.imgNoTax[area].SetShown(exempt);
  const std::optional<float> value = ValueOf(text);
  if (!value) return;
  proposal.AreaAmount[target.pageIndex][area] = *value;
  proposal.AreaTaxable[target.pageIndex][area] = exempt ? 0 : *value;
  target.CurrencyLabel(area).SetShown(true);
}

void FillItemPage(Page& target, const Array<QString>& fields) {
  for (int i = 0; i < fields.size(); ++i) {
    const QString& field = fields[i];
    FillText(target, i, field);
    if (target.IsAmount(i)) FillAmount(target, i, field);
  }
}

// Nothing is taken from the totals page but the deposit; the other five are worked out anew.
void TakeDeposit(const Array<QString>& fields) {
  for (int i = 0; i < fields.size(); ++i)
    proposal.PageText[5][i] = proposal.SavedText[5][i] = WithoutBlanks(fields[i]);
  const QString& deposit = proposal.PageText[5][DepositArea];
  const std::optional<float> value = deposit.isEmpty() ? 0.0F : ValueOf(deposit);
  if (!value)
    Tell(
        QStringLiteral("Deposit is not numeric. Zero will be entered. Please\n"
                       "double-check the Deposit amount from previous records."));
  proposal.DepositReceived = value.value_or(0.0F);
}

// Sums that no figure can hold are reported and cost the totals only; the texts are there.
void ShowTotals() {
  Guarded("CalculateMyTotals", CalculateAllPages);
  page(5).txt[DepositArea].SetText(FormatNumber(proposal.DepositReceived, patterns::Money));
  RecalculateTotals(0);
  for (int i = 0; i < page(5).txt.size(); ++i) {
    const QString& text = page(5).txt[i].Text();
    page(CopyOfPage6).txt[i].SetText(text);
    proposal.PageText[5][i] = proposal.SavedText[5][i] = text;
  }
}

void FillPages(const EventFields& fields) {
  const Scoped opening(editing.OpeningFile, true);
  for (int p = 0; p < ItemPages; ++p) FillItemPage(page(p), fields.text[p]);
  TakeDeposit(fields.text[5]);
  ShowTotals();
}

void TakeFileNames(const QString& folder, const QString& name) {
  proposal.CurrentFolder = folder;
  proposal.OpenedFromBackup = SameFolder(folder, prefs.BackupFolder);
  proposal.FileIsNamed = true;
  proposal.EventFileName = name;
  proposal.BaseName = name.chopped(4);
  proposal.TextFileName = proposal.BaseName + QStringLiteral(".txt");
  proposal.FootnoteFileName = proposal.BaseName + QStringLiteral(".wxt");
  proposal.DepositFileName = proposal.BaseName + QStringLiteral(".dep");
  proposal.Title = QStringLiteral("Proposal for ") + proposal.BaseName;
  proposal.TitleByHand = false;
}

void ShowFileNames() {
  frame()["lblDir"].SetCaption(QStringLiteral("Current Folder = ") + proposal.CurrentFolder);
  EnableMenu("mnuFileDelete", true);
  EnableMenu("mnuFileRestoreFromBackup", proposal.OpenedFromBackup);
  ShowFootnoteMark(FootnoteFileExists());
  UpdateEventNameLabels();
}

// Whatever a file, its properties or a format have put on the pages, what would be stored is what they show.
void TakeStoredForms() {
  for (int p = 0; p < ItemPages; ++p)
    for (int i = 0; i < AreaCount(p); ++i) {
      QString& stored = proposal.PageText[p][i];
      stored = proposal.SavedText[p][i] = StoredForm(page(p), i);
    }
}

bool OpenInto(const QString& folder, const QString& name) {
  const EventFields fields = ReadEventFields(ReadWholeFile(folder + name));
  if (!StartNewFile()) return false;
  TakeFileNames(folder, name);
  FillPages(fields);
  ShowFileNames();
  if (!fileDialog.IgnoreProperties) ReadFileProperties();
  TakeStoredForms();
  proposal.SavedPropertyLines = PropertyLinesNow();
  format.FormatLines = FormatLinesNow();
  FindHighestPage();
  UpdatePageNumbers();
  UpdatePageButtons(0);
  return true;
}

}  // namespace

bool OpenEventFile() {
  bool opened = false;
  Guarded("OpenEventFile", [&] {
    desk().ServeEvents();
    opened = OpenInto(WithSeparator(fileDialog.Folder), fileDialog.SelectedFileName);
  });
  return opened;
}

}  // namespace quillane
