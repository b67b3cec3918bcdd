#include "address.h"

#include <QByteArrayList>
#include <stdexcept>

#include "address/book_file.h"
#include "address/book_window.h"
#include "address/contacts.h"
#include "address/names.h"
#include "model/proposal.h"
#include "platform/files.h"

namespace quillane::test {

namespace {

void Require(bool holds, const char* what) {
  if (!holds) throw std::logic_error(what);
}

/// What `before` becomes when record `number` of it is replaced, or taken out.
QByteArray WithRecord(QByteArray before, int number, const QByteArray& record) {
  return before.replace((number - 1) * RecordSize, RecordSize, record);
}

void CheckRow(const QString& path, int row) {
  ChooseNameCommand(row);
  if (addressBook.lstNames.ListIndex < 0) return;
  const int number = addressBook.CurrentRecord;
  const QByteArray before = ReadWholeFile(path);
  Require(before.mid((number - 1) * RecordSize, 40) ==
              KeyOf(Book::Personal, addressBook.lstNames.rows[static_cast<size_t>(row)]).left(before.size()),
          "a row opens a record of its name");
  const QByteArray saved = BytesOf(RecordToSave(TextsOnScreen()));
  if (SaveRecordCommand() != SaveResult::Saved) return;
  Require(ReadWholeFile(path) == WithRecord(before, number, saved), "a save changes one record");
}

// Places count from 1 here, and 0 is none, as the steps are told.
qsizetype Place(const QByteArray& text, const QByteArray& wanted, qsizetype after) {
  return text.indexOf(wanted, after) + 1;
}

void MaskBreaksSlowly(QByteArray& text) {
  const auto mask = [&text](qsizetype place) { text.replace(place - 1, 2, "\xC8\xC8"); };
  bool spanned = false;
  for (qsizetype opening = 0, closing = 0;;) {
    opening = Place(text, ",\"", opening);
    closing = Place(text, "\",", closing);
    if (opening == 0) return;
    qsizetype lineBreak = Place(text, "\r\n", opening);
    if (closing == 0 || lineBreak == 0 || lineBreak > closing) continue;
    mask(lineBreak);
    while (!spanned && (lineBreak = Place(text, "\r\n", lineBreak)) > 0) {
      if (lineBreak > closing) {
        spanned = true;
      } else {
        mask(lineBreak);
      }
    }
  }
}

void MaskCommasSlowly(QByteArray& line) {
  for (qsizetype quote = Place(line, "\"", 0); quote > 0; quote = Place(line, "\"", quote)) {
    const qsizetype comma = Place(line, ",", quote), next = Place(line, "\"", quote);
    if (comma > 0 && comma < next) line[comma - 1] = '\xEA';
  }
}

QByteArray ColumnSlowly(const QByteArray& line, int column) {
  qsizetype comma = 0;
  for (; column > 0; --column) comma = Place(line, ",", comma);
  const qsizetype next = Place(line, ",", comma);
  return next == 0 ? line.mid(comma) : line.mid(comma, next - comma - 1);
}

void CheckCsv(const QByteArray& bytes) {
  Categories all;
  all.fill(true);
  const auto list = ParseCsvList(bytes, Book::Personal, all);
  QByteArray text = bytes;
  MaskBreaksSlowly(text);
  qsizetype start = Place(text, "\r\n", 0);
  Require((start == 0) == !list, "there is a list where there is a line break");
  size_t lines = 0;
  for (qsizetype end = 0; start > 0 && (end = Place(text, "\r\n", start + 1)) > 0; start = end, ++lines) {
    Require(lines < list->lines.size(), "no line is left out");
    QByteArray line = text.mid(start + 1, end - start - 2);
    const bool bad = line.count('"') % 2 != 0;
    MaskCommasSlowly(line);
    for (const CsvField field : {CsvField::Name, CsvField::EmailAddress}) {
      const int index = static_cast<int>(field);
      if (list->CsvPresent[index])
        Require(CsvValue(*list, static_cast<int>(lines), field) ==
                    (bad ? QByteArray() : ColumnSlowly(line, list->CsvColumn[index])),
                "a column's value");
    }
  }
  Require(!list || lines == list->lines.size(), "no line is made up");
}

BatchCells CellsSlowly(const QByteArray& record, const QByteArray& separator, const Categories& selected) {
  BatchCells cells;
  qsizetype start = 1, place = 0;
  int next = 0, seen = 0;
  const auto category = [&] {
    while (next < CategoryCount && !selected[next]) ++next;
    return next;
  };
  while ((place = Place(record, separator, place)) > 0) {
    if (seen > 0) start += separator.size();
    if (category() < CategoryCount) cells[next] = record.mid(start - 1, place - start);
    start = place;
    ++next;
    ++seen;
  }
  if (separator.size() == 2) ++start;
  if (record.size() > start && category() < CategoryCount) cells[next] = record.right(record.size() - start);
  return cells;
}

void CheckDelimited(const QByteArray& bytes) {
  Categories selected;
  for (int i = 0; i < CategoryCount; ++i) selected[i] = i == 0 || (bytes.size() >> i) % 2 != 0;
  for (const ListType type : {ListType::Lines, ListType::Commas, ListType::Tabs}) {
    const DelimitedList list = ParseDelimitedList(bytes, type, selected);
    qsizetype length = 0;
    for (size_t i = 0; i < list.BatchRecords.size(); ++i) {
      const QByteArray record = PieceOf(list.text, list.BatchRecords[i]).toByteArray();
      length += record.size() + RecordSeparator(type).size();
      Require(CellsOf(list, static_cast<int>(i)) == CellsSlowly(record, FieldSeparator(type), selected),
              "the cells of a record");
    }
    Require(length + 2 >= list.text.size(), "the records are all of the list but two characters");
  }
}

QByteArray Pieces(std::mt19937& random, const QByteArrayList& pieces, unsigned most) {
  QByteArray text;
  for (auto left = random() % most; left > 0; --left)
    text += pieces[static_cast<qsizetype>(random() % static_cast<unsigned>(pieces.size()))];
  return text;
}

}  // namespace

void CheckAddressFile(const QByteArray& bytes) {
  UnloadAddressWindow();
  prefs.ProposalFolder = prefs.ProgramFolder;
  const QString path = prefs.ProgramFolder + QStringLiteral("PerAdd.apx");
  ReplaceFile(path, bytes);
  OpenAddressBookCommand();
  Require(addressBook.lstNames.ListCount() == CountRecords(bytes.size()), "every record has a row");
  for (int row = 0; row < addressBook.lstNames.ListCount(); ++row) CheckRow(path, row);
  SetField(field::Name, QStringLiteral("Somebody New"));
  const QByteArray before = ReadWholeFile(path);
  Require(SaveRecordCommand() == SaveResult::Saved, "a new name can be saved");
  const QByteArray after = ReadWholeFile(path);
  Require(after.startsWith(before) && after.size() % RecordSize == 0 &&
              after.size() < before.size() + 2 * RecordSize &&
              after.mid(after.size() - RecordSize, 12) == "Somebody New",
          "it stands behind all others");
}

void CheckAddressLists(const QByteArray& bytes) {
  CheckCsv(bytes);
  CheckDelimited(bytes);
}

void CheckContacts(const QByteArray& bytes) {
  for (const VCard& card : ReadVCards(bytes)) {
    for (const Book book : {Book::Personal, Book::Company}) {
      FieldTexts texts = FieldsOfContact(card, book);
      for (int i = 0; i < field::Count; ++i) texts[i] = FieldInput(i, texts[i]);
      texts = TextsOf(RecordOf(texts));
      if (texts[field::Name].isEmpty()) continue;
      const std::vector<VCard> again = ReadVCards(ContactOf(texts, book));
      Require(again.size() == 1 && FieldsOfContact(again[0], book) == texts,
              "a contact comes back as it went");
    }
  }
}

QByteArray AddressFileInput(std::mt19937& random) {
  const QByteArrayList names = {"Ann Bell", "Cher JR.", "John Doe, JR.",  "Doe, John",
                                ",",        " x",       "Zo\xEB L\xF6we", ""};
  QByteArray book;
  for (auto left = random() % 6; left > 0; --left)
    book += Pieces(random, names, 3).leftJustified(40, ' ') +
            Pieces(random, names, 4).leftJustified(480, ' ', true);
  if (random() % 3 == 0) book.chop(static_cast<qsizetype>(random() % 520));
  for (auto times = random() % 4; times > 0 && !book.isEmpty(); --times)
    book[static_cast<qsizetype>(random() % static_cast<size_t>(book.size()))] =
        static_cast<char>(random() % 256);
  return book;
}

QByteArray AddressListInput(std::mt19937& random) {
  const QByteArrayList pieces = {
      "Name", "First Name", "E-mail Address", "\r\n", "\r\n", "\r\n\r\n", ",", ",", "\"", ",\"", "\",", "\t",
      "a",    "b c"};
  return Pieces(random, pieces, 60);
}

QByteArray ContactsInput(std::mt19937& random) {
  const QByteArrayList pieces = {"BEGIN:VCARD\r\n",
                                 "END:VCARD\n",
                                 "FN:",
                                 "N:",
                                 "ORG:",
                                 "TEL",
                                 "EMAIL:",
                                 "NOTE:",
                                 "ADR",
                                 "ANNIVERSARY:",
                                 "RELATED:",
                                 ";TYPE=home",
                                 ";TYPE=\"work,fax\"",
                                 ";PREF=1",
                                 ";VALUE=uri",
                                 ";VALUE=text",
                                 ";ENCODING=QUOTED-PRINTABLE",
                                 ";ENCODING=b",
                                 ":",
                                 ";",
                                 ",",
                                 "\\",
                                 "\\n",
                                 "=",
                                 "=\r\n",
                                 "=C3=AB",
                                 "\r\n",
                                 "\r\n",
                                 "\r\n ",
                                 "Ann Bell",
                                 "Bend, OR 97701",
                                 "20270619",
                                 "Jun 19,2027",
                                 "tel:",
                                 "urn:",
                                 "\xC3\xAB",
                                 "\xEB",
                                 "\t",
                                 "\"",
                                 " ",
                                 "\x01",
                                 "item1.",
                                 "AGENT:\n",
                                 "\r\nADR:;;;",
                                 "\\,  OR",
                                 " 9 "};
  return "BEGIN:VCARD\r\nFN:" + Pieces(random, pieces, 60);
}

}  // namespace quillane::test
