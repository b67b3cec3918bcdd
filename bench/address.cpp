#include "address.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QListView>
#include <QTemporaryDir>
#include <algorithm>
#include <cctype>
#include <cstring>

#include "address/book_file.h"
#include "address/book_window.h"
#include "address/names.h"
#include "model/proposal.h"
#include "model/upcalls.h"
#include "platform/files.h"
#include "samples.h"
#include "session.h"

namespace quillane::bench {

namespace {

constexpr int NameWidth = 40;

template <class Body>
double Milliseconds(Body&& body) {
  QElapsedTimer timer;
  timer.start();
  body();
  return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

/// One record less than a book can have, so that one can be added; the last is the only one with "zz top".
QByteArray FullBook() {
  const QStringList first = {"Ann", "Bob", "Mary Ann", "Zo\u00EB", "henry", "\u00C9mile", "Cher"};
  const QStringList last = {"Smith", "Doe JR.", "Tudor III", "L\u00F6we", "de Vries", "O'Neil"};
  QByteArray book;
  for (int i = 1; i < MostRecords; ++i) {
    FieldTexts texts;
    texts[field::Name] = QStringLiteral("%1 %2%3")
                             .arg(first[i % first.size()])
                             .arg(i * 7919 % 10007)
                             .arg(last[i % last.size()]);
    texts[field::City] = i == MostRecords - 1 ? QStringLiteral("Zz Top") : QStringLiteral("Bend, OR 97701");
    book += BytesOf(RecordOf(texts));
  }
  return book;
}

std::vector<char> ReadByHand(const QByteArray& name) {
  const int file = open(name.constData(), O_RDONLY);
  struct stat status {};
  if (file < 0 || fstat(file, &status) != 0) qFatal("cannot read the book");
  std::vector<char> bytes(static_cast<size_t>(status.st_size));
  if (read(file, bytes.data(), bytes.size()) != status.st_size) qFatal("cannot read the book");
  close(file);
  return bytes;
}

/// The last name in order, so that nothing of it is left out.
QByteArray ReadAndSortByHand(const QByteArray& name) {
  const std::vector<char> bytes = ReadByHand(name);
  std::vector<const char*> names;
  for (size_t at = 0; at + RecordSize <= bytes.size(); at += RecordSize) names.push_back(bytes.data() + at);
  std::sort(names.begin(), names.end(),
            [](const char* a, const char* b) { return std::memcmp(a, b, NameWidth) < 0; });
  return QByteArray(names.back(), NameWidth);
}

bool ScanByHand(const QByteArray& name, const QByteArray& wanted) {
  const std::vector<char> bytes = ReadByHand(name);
  for (size_t at = 0; at + RecordSize <= bytes.size(); at += RecordSize)
    if (std::memcmp(bytes.data() + at, wanted.constData(), NameWidth) == 0) return true;
  return false;
}

bool SearchByHand(const QByteArray& name, const char* wanted) {
  std::vector<char> bytes = ReadByHand(name);
  for (char& c : bytes) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return memmem(bytes.data(), bytes.size(), wanted, std::strlen(wanted)) != nullptr;
}

void AppendByHand(const QByteArray& name) {
  const int file = open(name.constData(), O_WRONLY | O_APPEND);
  if (file < 0 || write(file, std::string(RecordSize, 'x').data(), RecordSize) != RecordSize ||
      fsync(file) != 0)
    qFatal("cannot write the book");
  close(file);
}

void Require(bool holds, const char* what) {
  if (!holds) qFatal("%s", what);
}

/// Our list, the list in its window and the list by hand, a click on the last record and a scan for it, a
/// search for its town.
void MeasureReading(int times, const QByteArray& name, QListView& names) {
  Samples list, shown, letters, listByHand, click, clickByHand, find, findByHand;
  OpenPersonalBook();
  const QByteArray last = RecordBytesAt(ReadBook(BookPath()), addressBook.RecordCount).left(NameWidth);
  const QByteArray row = ListText(Book::Personal, last);
  for (int i = 0; i < times; ++i) {
    list.Add(Milliseconds([] { LoadBook(); }));
    shown.Add(Milliseconds([] {
      LoadBook();
      upcalls().ShowAddresses();
      Settle();
    }));
    letters.Add(Milliseconds([&] { names.keyboardSearch(QStringLiteral("xq")); }));
    listByHand.Add(Milliseconds([&] { Require(!ReadAndSortByHand(name).isEmpty(), "no names"); }));
    int at = 0;
    while (addressBook.lstNames.rows[at] != row) ++at;
    click.Add(Milliseconds([at] { ChooseNameCommand(at); }));
    Require(addressBook.CurrentRecord == addressBook.RecordCount, "the click opened another record");
    clickByHand.Add(Milliseconds([&] { Require(ScanByHand(name, last), "not found by hand"); }));
    ResetSearch();
    addressBook.SearchText = QStringLiteral("ZZ TOP");
    find.Add(Milliseconds([] { FindAgainCommand(); }));
    Require(addressBook.SearchHit == 1, "the search found nothing");
    findByHand.Add(Milliseconds([&] { Require(SearchByHand(name, "ZZ TOP"), "not found by hand"); }));
  }
  PrintLine(QStringLiteral("list of 32,766 names"), QStringLiteral("ms"), list, listByHand,
            {Aim::Of::Ratio, 2});
  PrintLine(QStringLiteral("the same, shown in its window"), QStringLiteral("ms"), shown, listByHand,
            {Aim::Of::Ratio, 2});
  PrintLine(QStringLiteral("letters that no name begins with"), QStringLiteral("ms"), letters, findByHand,
            {Aim::Of::Value, 5});
  PrintLine(QStringLiteral("click on the last of them"), QStringLiteral("ms"), click, clickByHand,
            {Aim::Of::Value, 50});
  PrintLine(QStringLiteral("find in the last of them"), QStringLiteral("ms"), find, findByHand,
            {Aim::Of::Value, 100});
}

/// A new record, which goes behind the others, and the list filled anew.
void MeasureSaves(int times, const QByteArray& name, const QByteArray& book) {
  Samples save, saveByHand;
  for (int i = 0; i < times; ++i) {
    ReplaceFile(BookPath(), book);
    OpenPersonalBook();
    NewRecord();
    SetField(field::Name, QStringLiteral("Somebody New"));
    save.Add(Milliseconds([] { Require(SaveRecord() == SaveResult::Saved, "the record was not saved"); }));
    ReplaceFile(BookPath(), book);
    saveByHand.Add(Milliseconds([&name] {
      AppendByHand(name);
      Require(!ReadAndSortByHand(name).isEmpty(), "no names");
    }));
  }
  PrintLine(QStringLiteral("save into that book, and its list"), QStringLiteral("ms"), save, saveByHand,
            {Aim::Of::Ratio, 2});
}

}  // namespace

void MeasureAddressBook(int times) {
  // Beside the bench, on a disk, and not among the temporary files.
  const QTemporaryDir folder(QCoreApplication::applicationDirPath() + QStringLiteral("/books-XXXXXX"));
  BenchDesk desk;
  prefs.ProposalFolder = WithSeparator(folder.path());
  UnloadAddressWindow();
  const QByteArray book = FullBook();
  const QString path = prefs.ProposalFolder + QStringLiteral("PerAdd.apx");
  ReplaceFile(path, book);
  OpenAddressBookCommand();
  Settle();
  MeasureReading(times, QFile::encodeName(path),
                 *desk.OpenWindow(QStringLiteral("frmAddress"))->findChild<QListView*>());
  MeasureSaves(times, QFile::encodeName(path), book);
  desk.CloseAllWindows();
}

}  // namespace quillane::bench
