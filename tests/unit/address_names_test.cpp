#include <gtest/gtest.h>

#include "address/book_file.h"
#include "address/names.h"
#include "platform/runtime_error.h"

using namespace quillane;

namespace {

QByteArray Stored(const QByteArray& name) {
  return name.leftJustified(40, ' ');
}

/// The key of a row without its padding; "error 5" where there is none.
QByteArray KeyOrError(const QByteArray& row) {
  try {
    const QByteArray key = KeyOf(Book::Personal, row);
    EXPECT_EQ(key.size(), 40);
    return TrimmedBytes(key).toByteArray();
  } catch (const RuntimeError& error) {
    return "error " + QByteArray::number(error.Number());
  }
}

TEST(AddressNames, APersonIsListedByTheLastNameAndFoundAgainByIt) {
  const struct {
    const char *stored, *row, *key;
  } cases[] = {
      {"Mary Ann Smith", "Smith, Mary Ann", "Mary Ann Smith"},
      {"John Doe JR.", "Doe JR., John", "John Doe JR."},
      {"John Doe, jr.", "Doe, jr., John", "John Doe, jr."},
      {"Henry Tudor III", "Tudor III, Henry", "Henry Tudor III"},
      {"John Doe, SR.", "Doe, SR., John", "John Doe, SR."},
      {"John  Doe", "Doe, John ", "John  Doe"},
      {"Anna O'Neil SR. JR.", "O'Neil SR., Anna", "Anna O'Neil SR."},  // the later suffix is the one kept
      {"Mary II Smith", "Mary", "Mary"},
      {"Cher", "Cher", "Cher"},
      {"Cher JR.", "Cher", "Cher"},
      {"", " ", ""},
      {"Doe, John", "John, Doe,", "error 5"},
      {"Smith,", "Smith,", "error 5"},
      {",,", ",,", "error 5"},
      {",,,", ",,,", ","},
      {"Zo\xEB L\xF6we", "L\xF6we, Zo\xEB", "Zo\xEB L\xF6we"},
  };
  for (const auto& c : cases) {
    const QByteArray row = ListText(Book::Personal, Stored(c.stored));
    EXPECT_EQ(row, c.row) << c.stored;
    EXPECT_EQ(KeyOrError(row), c.key) << c.stored;
  }
  EXPECT_EQ(ListText(Book::Company, Stored("Doe, JR.")), Stored("Doe, JR."));
  EXPECT_EQ(KeyOf(Book::Company, Stored("Doe, JR.")), Stored("Doe, JR."));
}

TEST(AddressNames, TheListIsSortedWithoutCaseAndAccents) {
  std::vector<QByteArray> names{"b",    "\xC9mile B", "Emile A", "emile b", "Z",
                                "\xFF", "a",          "Emile C", "a ",      "A"};
  SortNames(names);
  EXPECT_EQ(names, (std::vector<QByteArray>{"A", "a", "a ", "b", "Emile A", "emile b", "\xC9mile B",
                                            "Emile C", "\xFF", "Z"}));
}

TEST(AddressNames, ARecordIsCutAndPaddedToItsFields) {
  FieldTexts texts;
  texts[field::Name] = QString(45, u'x');
  texts[field::Notes] = QString(199, u'n') + QStringLiteral("\r\nmore");
  const AddressRecord record = RecordOf(texts);
  const QByteArray bytes = BytesOf(record);
  EXPECT_EQ(bytes.size(), RecordSize);
  EXPECT_EQ(record.Field[field::Name], QByteArray(40, 'x'));
  EXPECT_EQ(record.Field[field::Notes], QByteArray(199, 'n') + ' ') << "no half of a line break";
  EXPECT_EQ(RecordFromBytes(bytes), record);
  EXPECT_EQ(RecordFromBytes(bytes.left(30)).Field[field::Name], QByteArray(30, 'x').leftJustified(40, ' '));
  EXPECT_EQ(FieldInput(field::City, QStringLiteral("a\nb\rc\r\nd\x01")), "a b c d ");
  EXPECT_EQ(FieldInput(field::Notes, QStringLiteral("a\nb\rc\r\nd")), "a\r\nb\r\nc\r\nd");
  EXPECT_EQ(UpperCase(QStringLiteral("straße ÿ ƒ é")), QStringLiteral("STRAßE Ÿ ƒ É"));
}

TEST(AddressNames, HalfARecordOrMoreCountsAsOneWithTiesToEven) {
  const struct {
    qint64 bytes;
    int records;
  } cases[] = {{0, 0}, {259, 0}, {260, 0}, {261, 1}, {520, 1}, {780, 2}, {1299, 2}, {1300, 2}, {1301, 3}};
  for (const auto& c : cases) EXPECT_EQ(CountRecords(c.bytes), c.records) << c.bytes;
}

}  // namespace
