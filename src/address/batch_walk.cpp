// The walk through the records of an import: each comes into the fields, and is saved or skipped by hand.
#include "address/batch.h"
#include "address/book.h"
#include "address/book_file.h"
#include "address/book_window.h"
#include "model/report.h"
#include "platform/codepage.h"
#include "ui/desk.h"

namespace quillane {

namespace {

constexpr int LongestText = 32767;  // characters that a field takes from a list; a window shows no more

int SizeOf(const DelimitedList& list) {
  return static_cast<int>(list.BatchRecords.size());
}
int SizeOf(const CsvList& list) {
  return static_cast<int>(list.lines.size());
}
int SizeOf(const ReadyRecords& records) {
  return static_cast<int>(records.size());
}

template <class List>
FieldTexts TextsAt(const List& list, int index) {
  const BatchCells cells = CellsOf(list, index);
  FieldTexts texts;
  for (int i = 0; i < CategoryCount; ++i)
    texts[CategoryField(i)] = TrimBlanks(FromCodePage(cells[i].left(LongestText)));
  return texts;
}
FieldTexts TextsAt(const ReadyRecords& records, int index) {
  FieldTexts texts = records[static_cast<size_t>(index)];
  for (QString& text : texts) text.truncate(LongestText);
  return texts;
}

/// What the parsers read: one byte a character, every line break as CR LF.
QByteArray ClipboardBytes() {
  return ToCodePage(WithCrLf(desk().ClipboardText()));
}

void ParseBatchData() {
  const QByteArray text = ClipboardBytes();
  if (text.isEmpty()) return Tell(QStringLiteral("There's nothing in the Clipboard Memory."));
  DelimitedList list = ParseDelimitedList(text, batch.optList, batch.CategorySelected);
  batch.BatchIndex = 0;
  batch.BatchLastIndex = SizeOf(list) - 1;
  batch.list = std::move(list);
}

/// Adds the numbers of the bad lines, counted from 0.  Nobody reads more than the first of them.
void NameBadLines(const std::vector<bool>& flags) {
  constexpr int MostNamed = 200;
  int bad = 0;
  for (size_t i = 0; i < flags.size(); ++i)
    if (flags[i] && ++bad <= MostNamed) batch.BadRecordList += QString::number(i) + QStringLiteral(", ");
  if (bad > MostNamed) batch.BadRecordList += QStringLiteral("and %1 more, ").arg(bad - MostNamed);
}

bool MayLeaveOutBadLines() {
  if (batch.BadRecordList.isEmpty()) return true;
  return AskYesNo(QStringLiteral("The following records cound not be parsed...") +
                      batch.BadRecordList.chopped(2) +
                      QStringLiteral("\nand will be excluded from the Batch Import Process for the"
                                     "\nfollowing reason: The record(s) contain an odd number of quotation"
                                     "\nsymbols. Do you wish to import the rest of the records anyway?"),
                  QStringLiteral("Bad data in some records."));
}

void ParseCsvBatchData() {
  batch.BatchLastIndex = 0;
  const QByteArray text = ClipboardBytes();
  if (text.isEmpty()) return Tell(QStringLiteral("There's nothing in memory to batch process."));
  batch.BatchIndex = 0;
  std::optional<CsvList> list = ParseCsvList(text, batch.book, batch.CategorySelected);
  if (!list) return Tell(QStringLiteral("Error. No carriage returns found."));
  batch.BatchLastIndex = SizeOf(*list) - 1;
  NameBadLines(list->BadRecordFlags);
  if (MayLeaveOutBadLines()) batch.list = std::move(*list);
}

void ShowBatchResults() {
  if (batch.BatchIndex > batch.BatchLastIndex) return Tell(QStringLiteral("No more records to save."));
  // The records go into the book that was chosen for them, whatever was opened meanwhile.
  if (CurrentBook() != batch.book && !OpenBatchBook(batch.book)) return;
  ClearRecordFields();
  const FieldTexts texts = BatchRecordTexts(batch.BatchIndex);
  for (int i = 0; i < field::Count; ++i) SetField(i, texts[i]);
  // It is in no file yet, so there is nothing to delete.
  addressBook.NewRecordFlag = true;
  EnableAddressMenu(QStringLiteral("mnuFileDelete"), false);
  addressBook.WalkRecordShows = true;
}

void ShowWalkRecord() {
  Guarded("ShowBatchResults", ShowBatchResults);
}

void ForgetWalk() {
  batch.WalkShows = addressBook.WalkRecordShows = false;
  batch.BatchIndex = batch.BatchLastIndex = 0;
  batch.list = DelimitedList();
}

enum class Step { Saved, Skipped };

void GoToNextRecord(Step step) {
  ++batch.BatchIndex;
  if (batch.BatchIndex <= batch.BatchLastIndex) return ShowWalkRecord();
  Tell(QStringLiteral("Batch Process Finished."));
  ForgetWalk();
  if (step == Step::Saved) batch.CsvMode = false;
}

void StartWalk() {
  batch.WalkShows = true;
  batch.book = CurrentBook();
  batch.list = DelimitedList();
}

/// What a walk by hand would save of record `index`.
AddressRecord RecordOfList(int index) {
  FieldTexts texts = BatchRecordTexts(index);
  for (int i = 0; i < field::Count; ++i) texts[i] = FieldInput(i, texts[i]);
  return RecordToSave(texts);
}

enum class Ending { AllDone, Stopped };

/// Saves one record after the other and leaves BatchIndex at the first that was neither saved nor passed
/// over.
struct QuickWalk {
  int saved = 0, nameless = 0;

  Ending Run(const BatchProgress& progress) {
    const int first = batch.BatchIndex, total = batch.BatchLastIndex - first + 1;
    AddressRecord record = RecordToSave(TextsOnScreen());
    while (true) {
      if (!progress(batch.BatchIndex - first, total) || !Take(record)) return Ending::Stopped;
      if (++batch.BatchIndex > batch.BatchLastIndex) break;
      record = RecordOfList(batch.BatchIndex);
    }
    progress(total, total);
    return Ending::AllDone;
  }

  QString Summary() const {
    const QString passed =
        nameless == 0 ? QString() : QStringLiteral(" %1 without a name passed over.").arg(nameless);
    return QStringLiteral("%1 records saved.").arg(saved) + passed;
  }

 private:
  bool Take(const AddressRecord& record) {
    if (!HasName(record)) return ++nameless > 0;
    if (!Guarded("SaveRecord", [&record] { AppendRecord(BookPath(), BytesOf(record)); })) return false;
    return ++saved > 0;
  }
};

void SaveAllRemaining(const BatchProgress& progress) {
  QuickWalk walk;
  const Ending ending = walk.Run(progress);
  // What was typed into the record on the screen stays there when it could not be saved.
  if (walk.saved + walk.nameless == 0) return;
  OpenBatchBook(batch.book);
  if (ending == Ending::Stopped) return ShowBatchResults();
  Tell(QStringLiteral("Batch Process Finished.\n") + walk.Summary());
  ForgetWalk();
  batch.CsvMode = false;
}

}  // namespace

FieldTexts BatchRecordTexts(int index) {
  return std::visit(
      [index](const auto& list) {
        return index >= 0 && index < SizeOf(list) ? TextsAt(list, index) : FieldTexts();
      },
      batch.list);
}

int BatchRecordCount() {
  return std::visit([](const auto& list) { return SizeOf(list); }, batch.list);
}

bool WalkPanelShows() {
  return batch.WalkShows && !batch.SetUpShows;
}

void WalkClipboard() {
  StartWalk();
  if (batch.CsvMode) {
    Guarded("ParseCsvBatchData", ParseCsvBatchData);
  } else {
    Guarded("ParseBatchData", ParseBatchData);
  }
  ShowWalkRecord();
}

void WalkRecords(ReadyRecords records) {
  StartWalk();
  batch.BatchIndex = 0;
  batch.BatchLastIndex = SizeOf(records) - 1;
  batch.list = std::move(records);
  ShowWalkRecord();
}

void SaveBatchRecordCommand() {
  const bool walkRecord = addressBook.WalkRecordShows;
  if (SaveRecordCommand() == SaveResult::Failed) return;
  if (!walkRecord) return ShowWalkRecord();
  GoToNextRecord(Step::Saved);
}

void SkipBatchRecordCommand() {
  if (addressBook.WalkRecordShows) return GoToNextRecord(Step::Skipped);
  if (MayLeaveRecord()) ShowWalkRecord();
}

void EndBatchCommand() {
  ForgetWalk();
  batch.CsvMode = false;
  addressBook.RecordChanged = false;
}

void SaveAllRemainingCommand(const BatchProgress& progress) {
  if (!addressBook.WalkRecordShows) {
    if (!MayLeaveRecord()) return;
    ShowWalkRecord();
    if (!addressBook.WalkRecordShows) return;
  }
  const int total = batch.BatchLastIndex - batch.BatchIndex + 1;
  if (!AskYesNo(QStringLiteral("Save all %1 remaining records without looking at each?").arg(total),
                QStringLiteral("Importing Batch Records")))
    return;
  Guarded("cmdSaveAllRemaining", [&progress] { SaveAllRemaining(progress); });
}

}  // namespace quillane
