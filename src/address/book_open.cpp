// Opening an address book: its file, its labels, its list of names.
#include <algorithm>

#include "address/book.h"
#include "address/book_file.h"
#include "address/book_window.h"
#include "address/company_info.h"
#include "model/proposal.h"
#include "model/report.h"
#include "platform/files.h"

namespace quillane {

namespace {

const QString PersonalName = QStringLiteral("PerAdd");
const QString CompanyName = QStringLiteral("ComAdd");

QString FileOf(Book book) {
  return book == Book::Personal ? PersonalName + QStringLiteral(".apx")
                                : CompanyName + QStringLiteral(".acx");
}

/// An open book keeps its folder, whatever the preferences say meanwhile.
QString BookFolder() {
  return addressBook.Folder.isEmpty() ? prefs.ProposalFolder : addressBook.Folder;
}

bool& Checked(Book book) {
  if (checkedBooks.Folder != BookFolder()) checkedBooks = {BookFolder()};
  return book == Book::Personal ? checkedBooks.PersonalFileChecked : checkedBooks.CompanyFileChecked;
}

void CreateFileOf(Book book) {
  CreateBook(BookFolder() + FileOf(book));
  Checked(book) = true;
}

void SetBookNames(Book book) {
  const QString& base = book == Book::Personal ? PersonalName : CompanyName;
  addressBook.Folder = BookFolder();
  if (addressBook.AddressFileName != FileOf(book)) {
    ResetSearch();
    addressBook.lstNames.TopIndex = 0;
  }
  addressBook.AddressFileName = FileOf(book);
  addressBook.AddressBakName = base + QStringLiteral(".bak");
  addressBook.AddressTmpName = base + QStringLiteral(".tmp");
}

template <class Create>
bool OpenTheBook(Book book, Create&& create) {
  if (!MayLeaveRecord()) return false;
  if (!Checked(book)) create();
  EnableAddressMenu(QStringLiteral("mnuFileOpenClientele"), book != Book::Personal);
  EnableAddressMenu(QStringLiteral("mnuFileOpenBusiness"), book != Book::Company);
  SetBookNames(book);
  SetBookLabels();
  LoadBook();
  return true;
}

QString LabelOf(Book book, int index) {
  const bool person = book == Book::Personal;
  switch (index) {
    case field::Name:
      return person ? QStringLiteral("Name (First Name First)") : QStringLiteral("Name");
    case field::Address1:
      return QStringLiteral("Address 1");
    case field::Address2:
      return QStringLiteral("Address 2");
    case field::City:
      return QStringLiteral("City, State Zip");
    case field::Phone:
      return person ? QStringLiteral("Home Phone") : QStringLiteral("Phone");
    case field::SecondPhone:
      return person ? QStringLiteral("Work Phone") : QStringLiteral("Fax");
    case field::Cell:
      return QStringLiteral("Cell Phone");
    case field::EventDate:
      return QStringLiteral("Event Date");
    case field::Contact:
      return person ? QStringLiteral("Other Contact") : QStringLiteral("Contact");
    case field::Email:
      return QStringLiteral("Email");
    default:
      return QStringLiteral("Notes");
  }
}

void EmptyNameList() {
  NameList& list = addressBook.lstNames;
  list.rows.Clear();
  list.ListIndex = addressBook.SelectedListIndex = -1;
  ++list.revision;
}

}  // namespace

Book CurrentBook() {
  return addressBook.AddressFileName == FileOf(Book::Company) ? Book::Company : Book::Personal;
}
QString BookPath() {
  return BookFolder() + addressBook.AddressFileName;
}

void CreatePersonalFile() {
  try {
    CreateFileOf(Book::Personal);
  } catch (const RuntimeError& error) {
    ReportInOwnWords(QStringLiteral("Unable to Create Personal Address File. "), error);
  }
}

void CreateCompanyFile() {
  CreateFileOf(Book::Company);
}

bool OpenPersonalBook() {
  return OpenTheBook(Book::Personal, CreatePersonalFile);
}
bool OpenCompanyBook() {
  return OpenTheBook(Book::Company, CreateCompanyFile);
}

void SetBookLabels() {
  for (int i = 0; i < field::Count; ++i)
    addressBook.lblInfo[i] = addressBook.CompanyInfoMode ? CompanyInfoLabel(i) : LabelOf(CurrentBook(), i);
}

void LoadBook() {
  AddressBook& book = addressBook;
  EmptyNameList();
  book.RecordLength = RecordSize;
  book.RecordCount = 0;
  book.NewRecordFlag = book.RecordChanged = book.NameChanged = false;
  Guarded("LoadBook", [] {
    // Where the file could not be made, that has been told, and there is nothing to read.
    const QByteArray bytes = Checked(CurrentBook()) ? ReadBook(BookPath()) : QByteArray();
    addressBook.RecordCount = CountRecords(bytes.size());
    Guarded("FillNameList", [&bytes] { FillNameList(bytes); });
  });
}

void FillNameList(const QByteArray& bytes) {
  AddressBook& book = addressBook;
  EmptyNameList();
  const int count = std::min(book.RecordCount, MostRecords);
  const QByteArray padded = bytes.leftJustified(static_cast<qsizetype>(count) * RecordSize, ' ');
  NameRows& rows = book.lstNames.rows;
  rows.Reserve(count);
  for (qsizetype offset = 0; offset < static_cast<qsizetype>(count) * RecordSize; offset += RecordSize)
    rows.Add(CurrentBook(), QByteArrayView(padded).sliced(offset, FieldWidth(field::Name)));
  rows.Sort();
  book.lstNames.TopIndex = std::clamp(book.lstNames.TopIndex, 0, std::max(0, count - 1));
  book.Caption = book.BookTitle + book.txt[field::Name].Text;
  if (book.RecordCount > MostRecords)
    Raise(errors::Overflow, QStringLiteral("an address book lists at most %1 records, and this one has %2")
                                .arg(MostRecords)
                                .arg(book.RecordCount));
}

}  // namespace quillane
