#include "address.h"

#include <QByteArrayList>
#include <stdexcept>

#include "address/book_file.h"
#include "address/book_window.h"
#include "address/contacts.h"
#include "model/proposal.h"
#include "platform/codepage.h"
#include "platform/files.h"

namespace quillane::test {

namespace {

void Require(bool holds, const char* what) {
  if (!holds) throw std::logic_error(what);
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
    while (!spanned && (lineBreak = Place(text, "\r\n", lineBreak)) > 0)
      lineBreak > closing ? void(spanned = true) : mask(lineBreak);
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
  for (int row = 0; row < addressBook.lstNames.ListCount(); ++row) {
    ChooseNameCommand(row);
    const QByteArray before = ReadWholeFile(path), saved = BytesOf(RecordToSave(TextsOnScreen()));
    if (addressBook.lstNames.ListIndex < 0 || SaveRecordCommand() != SaveResult::Saved) continue;
    Require(ReadWholeFile(path) ==
                QByteArray(before).replace((addressBook.CurrentRecord - 1) * RecordSize, RecordSize, saved),
            "a save changes one record");
  }
}

void CheckAddressLists(const QByteArray& input) {
  const QByteArray bytes = ToCodePage(WithCrLf(FromCodePage(input)));
  Categories all;
  all.fill(true);
  auto csv = ParseCsvList(bytes, Book::Personal, all);
  QByteArray masked = bytes;
  MaskBreaksSlowly(masked);
  Require(csv.has_value() == masked.contains("\r\n"), "a list where there is a line break");
  for (size_t i = 0; csv && i < csv->lines.size(); ++i) CellsOf(*csv, static_cast<int>(i));
  Require(!csv || csv->text.replace('\xEA', ',') == masked.replace('\xEA', ','),
          "the line breaks that are masked");
  const DelimitedList list = ParseDelimitedList(bytes, ListType::Commas, all);
  for (size_t i = 0; i < list.BatchRecords.size(); ++i)
    Require(!CellsOf(list, static_cast<int>(i))[0].contains(','), "a field ends at a comma");
}

void CheckContacts(const QByteArray& bytes) {
  for (const VCard& card : ReadVCards(bytes)) {
    const Book book = card.size() % 2 == 0 ? Book::Personal : Book::Company;
    FieldTexts texts = FieldsOfContact(card, book);
    for (int i = 0; i < field::Count; ++i) texts[i] = FieldInput(i, texts[i]);
    texts = TextsOf(RecordOf(texts));
    if (texts[field::Name].isEmpty()) continue;
    const std::vector<VCard> again = ReadVCards(ContactOf(texts, book));
    Require(again.size() == 1 && FieldsOfContact(again[0], book) == texts, "a contact comes back as it went");
  }
}

QByteArray AddressFileInput(std::mt19937& random) {
  const QByteArrayList names = {"Ann Bell", "Cher JR.", "Doe, John", ",", " x", "L\xF6we", ""};
  QByteArray book;
  for (auto left = random() % 6; left > 0; --left)
    book += Pieces(random, names, 3).leftJustified(40) + Pieces(random, names, 4).leftJustified(480);
  if (random() % 3 == 0) book.chop(static_cast<qsizetype>(random() % 520));
  for (char& byte : book)
    if (random() % 999 == 0) byte = static_cast<char>(random());
  return book;
}

QByteArray AddressListInput(std::mt19937& random) {
  return Pieces(random, {"Name", "x", "\r\n", "\r\n", "\r\n\r\n", ",", ",", "\"", ",\"", "\",", "\t", "b c"},
                60);
}

QByteArray ContactsInput(std::mt19937& random) {
  const QByteArray pieces =
      "BEGIN:VCARD\r\n|END:VCARD\n|FN:|N:|ORG:|TEL|EMAIL:|NOTE:|ADR|ANNIVERSARY:|RELATED:|;TYPE=home|;PREF=1|"
      ";TYPE=\"work,fax\"|;VALUE=uri|;VALUE=text|;ENCODING=QUOTED-PRINTABLE|;ENCODING=b|:|;|,|\\|\\n|=|=\r\n|"
      "=C3=AB|\r\n|\r\n|\r\n |Ann Bell|Bend, OR 97701|20270619|Jun 19,2027|tel:|urn:|\xC3\xAB|\xEB|\t|\"| |"
      "\x01|item1.|AGENT:\n|\r\nADR:;;;|\\,  OR| 9 ";
  return "BEGIN:VCARD\r\nFN:" + Pieces(random, pieces.split('|'), 60);
}

}  // namespace quillane::test
