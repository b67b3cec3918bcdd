#include "address/names.h"
#include "address_fixture.h"

using namespace quillane;

namespace {

QByteArray KeyOrError(const QByteArray& row) {
  try {
    return KeyOf(Book::Personal, row);
  } catch (const RuntimeError& error) {
    return QByteArray::number(error.Number());
  }
}

TEST(AddressNames, APersonIsListedByTheLastNameAndFoundAgainByIt) {
  const struct {
    QByteArray stored, row, key;
  } cases[] = {{"Mary Ann Smith", "Smith, Mary Ann", "Mary Ann Smith"},
               {"John Doe, jr.", "Doe, jr., John", "John Doe, jr."},
               {"Henry Tudor III", "Tudor III, Henry", "Henry Tudor III"},
               {"John  Doe", "Doe, John ", "John  Doe"},
               {"Anna Neil SR. JR.", "Neil SR., Anna", "Anna Neil SR."},  // the later suffix is the one kept
               {"Cher JR.", "Cher", "Cher"},
               {"", " ", ""},
               {"Doe, John", "John, Doe,", "5"},
               {"Smith,", "Smith,", "5"},
               {",,,", ",,,", " ,"}};
  for (const auto& c : cases) {
    const QByteArray row = ListText(Book::Personal, c.stored.leftJustified(40));
    EXPECT_EQ(row, c.row);
    EXPECT_EQ(KeyOrError(row), c.key == "5" ? c.key : c.key.leftJustified(40));
    EXPECT_EQ(KeyOf(Book::Company, ListText(Book::Company, c.stored)), c.stored.leftJustified(40));
  }
  NameRows rows;
  for (const char* name : {"b", "\xC9mile Bo", "Emile Ann", "emile bo", "Z", "\xFF", "a", "a ", "A"})
    rows.Add(Book::Company, name);
  rows.Sort();
  QByteArray sorted;
  for (int row = 0; row < rows.Count(); ++row) sorted += rows[row].toByteArray() + '|';
  EXPECT_EQ(sorted, "A|a|a |b|Emile Ann|emile bo|\xC9mile Bo|\xFF|Z|");
}

TEST(AddressNames, ARecordIsCutAndPaddedToItsFields) {
  FieldTexts texts;
  texts[field::Name] = QString(45, 'x');
  texts[field::Notes] = QString(199, 'n') + "\r\nmore";
  const QByteArray bytes = BytesOf(RecordOf(texts));
  EXPECT_EQ(bytes, QByteArray(40, 'x') + QByteArray(280, ' ') + QByteArray(199, 'n') + ' ')
      << "no half break";
  EXPECT_EQ(BytesOf(RecordFromBytes(bytes.left(510))), bytes.left(510).leftJustified(520));
  EXPECT_EQ(FieldInput(field::City, "a\nb\rc\r\nd\x01"), "a b c d ");
  EXPECT_EQ(FieldInput(field::Notes, "a\nb\rc\r\nd"), "a\r\nb\r\nc\r\nd");
  EXPECT_EQ(UpperCase("straße ÿ ƒ é"), QString("STRAßE Ÿ ƒ É"));
  const int lengths[] = {260, 261, 780, 1300, 1301}, counts[] = {0, 1, 2, 2, 3};
  for (size_t i = 0; i < 5; ++i) EXPECT_EQ(CountRecords(lengths[i]), counts[i]) << "ties to even";
}

}  // namespace
