// The list of names: a row opens its record, and a record that is deleted leaves its row to a neighbour.
#include <algorithm>

#include "address/book.h"
#include "address/book_file.h"
#include "model/proposal.h"
#include "model/report.h"
#include "platform/files.h"
#include "ui/desk.h"

namespace quillane {

namespace {

AddressBook& book = addressBook;

/// A row by what it says: the n-th of those that say the same.
struct RowPlace {
  QByteArray text;
  int Occurrence = 1;
};

RowPlace PlaceOf(int row) {
  const NameRows& rows = book.lstNames.rows;
  RowPlace place{rows[row].toByteArray()};
  for (; row > 0 && rows[row - 1] == place.text; --row) ++place.Occurrence;
  return place;
}

/// The row of that place, or -1.
int RowOf(const RowPlace& place) {
  int left = place.Occurrence;
  for (int row = 0; row < book.lstNames.ListCount(); ++row)
    if (book.lstNames.rows[row] == place.text && --left == 0) return row;
  return -1;
}

void SelectRow(int row) {
  book.lstNames.ListIndex = book.SelectedListIndex = row;
}

/// Puts the selection back where it was, without opening anything.
void ReselectRow() {
  if (book.lstNames.ListIndex == book.SelectedListIndex) return;
  const Scoped reselecting(book.ListReselecting, true);
  book.lstNames.ListIndex = book.SelectedListIndex;
  ActivateCurrentRecord();
}

/// The number of the record that a row stands for, or 0 when none has that name.
int RecordOfRow(const QByteArray& bytes, const RowPlace& place) {
  const QByteArray key = KeyOf(CurrentBook(), place.text);
  const QByteArray padded = bytes.leftJustified(static_cast<qsizetype>(book.RecordCount) * RecordSize, ' ');
  int left = place.Occurrence;
  for (int number = 1; number <= book.RecordCount; ++number) {
    const qsizetype offset = static_cast<qsizetype>(number - 1) * RecordSize;
    if (QByteArrayView(padded).sliced(offset, FieldWidth(field::Name)) == key && --left == 0) return number;
  }
  return 0;
}

bool OpenRow(const RowPlace& place) {
  const int number = RecordOfRow(ReadBook(BookPath()), place);
  if (number == 0) return false;
  book.CurrentRecord = number;
  ShowRecord();
  return true;
}

/// A book with more names than a list takes is no failure of the delete.
void ListNames(const QByteArray& bytes) {
  Guarded("FillNameList", [&bytes] { FillNameList(bytes); });
}

/// Takes the record on the screen out of the file.  False when the file no longer has it as it was shown.
bool RemoveFromFile() {
  RemoveFileIfThere(book.Folder + book.AddressTmpName);
  const QByteArray bytes = ReadBook(BookPath());
  if (!HasRecord(bytes, book.CurrentRecord, book.RecordAsRead)) {
    book.RecordCount = CountRecords(bytes.size());
    ListNames(bytes);
    return false;
  }
  RemoveRecord(BookPath(), bytes, book.CurrentRecord);
  ResetSearch();
  RecountAfterDelete();
  return true;
}

void SelectNeighbour(int deleted) {
  NameList& list = book.lstNames;
  const int last = list.ListCount() - 1;
  if (last <= deleted && deleted <= 0) return;
  list.ListIndex = last > deleted ? deleted : std::min(deleted - 1, last);
  list.TopIndex = std::clamp(deleted, 0, std::max(0, last));
  if (list.ListIndex >= 0) ActivateCurrentRecord();
}

void DeleteAndShowNeighbour() {
  const int deleted = book.SelectedListIndex;
  if (!RemoveFromFile()) return Tell(QStringLiteral("Record doesn't exist."));
  const Scoped hidden(book.lstNames.Visible, false);
  ListNames(ReadBook(BookPath()));
  ClearRecordFields();
  SelectNeighbour(deleted);
  ShowRecord();
}

}  // namespace

void ActivateCurrentRecord() {
  if (book.ListReselecting) {
    book.FocusWanted = true;
    return;
  }
  if (book.lstNames.ListIndex < 0) return;
  const RowPlace place = PlaceOf(book.lstNames.ListIndex);
  if (!MayLeaveRecord()) return ReselectRow();
  bool opened = false;
  // A save has filled the list anew, and the row may stand elsewhere.
  SelectRow(RowOf(place));
  Guarded("ActivateCurrentRecord", [&] { opened = book.SelectedListIndex >= 0 && OpenRow(place); });
  if (!opened) SelectRow(-1);
}

void RecountAfterDelete() {
  book.RecordCount = std::max(1, book.RecordCount - 1);
  book.CurrentRecord = std::min(book.CurrentRecord, book.RecordCount);
}

void DeleteRecord() {
  if (!AskYesNo(QStringLiteral("Delete this record?"), QStringLiteral("Quillane"))) {
    book.FocusWanted = true;
    return;
  }
  try {
    DeleteAndShowNeighbour();
  } catch (const RuntimeError&) {
    Tell(QStringLiteral("Record doesn't exist."));
  }
}

}  // namespace quillane
