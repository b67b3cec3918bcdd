// Find and Find Again: every field of every record, in the order of the file, without regard to case.
#include <algorithm>

#include "address/book.h"
#include "address/book_file.h"
#include "address/book_window.h"
#include "model/report.h"
#include "platform/codepage.h"
#include "ui/desk.h"

namespace quillane {

namespace {

AddressBook& book = addressBook;

void UnmarkFields() {
  for (AddressField& txt : book.txt) txt.SelLength = 0;
}

/// False when there is nothing to search for.
bool AskForText() {
  const QString answer = desk().InputBox(QStringLiteral("Search for:"), QStringLiteral("Search"), QString());
  ResetSearch();
  if (TrimBlanks(answer).isEmpty()) {
    Tell(QStringLiteral("Search cancelled."));
    return false;
  }
  book.SearchText = UpperCase(FoldToCodePage(answer));
  EnableAddressMenu(QStringLiteral("mnuEditFindAgain"), true);
  return true;
}

/// The search sees the book as it was at its start, until it is reset.
void LoadSlices() {
  if (book.SearchLoaded) return;
  book.SearchSlices = UpperCaseBytes(QByteArrayView(ReadBook(BookPath())));
  book.SearchLoaded = true;
}

bool SliceHasText(int slice, const QByteArray& text) {
  const QByteArrayView slices = book.SearchSlices;
  const qsizetype offset = std::min(static_cast<qsizetype>(slice) * RecordSize, slices.size());
  return slices.sliced(offset, std::min<qsizetype>(RecordSize, slices.size() - offset)).contains(text);
}

/// Moves SearchRecord behind the next record that has the text.
bool FindNextRecord() {
  LoadSlices();
  const QByteArray text = ToCodePage(book.SearchText);
  while (book.SearchRecord < book.RecordCount)
    if (SliceHasText(book.SearchRecord++, text)) return true;
  Tell(QStringLiteral("No more occurrances."));
  ResetSearch();
  return false;
}

/// A field after a hit is searched from behind that hit's place only, so a second field may stay unmarked.
void MarkHits() {
  UnmarkFields();
  qsizetype place = 0;
  for (AddressField& txt : book.txt) {
    place = UpperCase(txt.Text).indexOf(book.SearchText, place) + 1;
    if (place == 0) continue;
    txt.SelStart = static_cast<int>(place) - 1;
    txt.SelLength = static_cast<int>(book.SearchText.size());
  }
}

void Find() {
  if (book.RecordCount == 0) return Tell(QStringLiteral("There's no records to search."));
  if (!MayLeaveRecord()) return;
  if (book.FindAgainFlag) {
    UnmarkFields();
  } else if (!AskForText()) {
    return;
  }
  if (!FindNextRecord()) return;
  book.CurrentRecord = book.SearchRecord;
  ShowRecord();
  ++book.SearchHit;
  MarkHits();
}

}  // namespace

void ResetSearch() {
  book.SearchSlices.clear();
  book.SearchRecord = book.SearchHit = 0;
  book.SearchLoaded = false;
}

void FindInBook() {
  Guarded("FindInBook", Find);
}

}  // namespace quillane
