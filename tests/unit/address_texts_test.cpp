#include "address/names.h"
#include "address_fixture.h"

using namespace quillane;
using namespace quillane::test;

namespace {

QByteArray KeyOrError(const QByteArray& row) {
  try {
    return KeyOf(Book::Personal, row);
  } catch (const RuntimeError& error) {
    return QByteArray::number(error.Number());
  }
}

TEST(AddressTexts, APersonIsListedByTheLastNameAndFoundAgainByIt) {
  const struct {
    QByteArray stored, row, key;
  } cases[] = {{"Mary Ann Smith", "Smith, Mary Ann", "Mary Ann Smith"},
               {"John Doe, jr.", "Doe, jr., John", "John Doe, jr."},
               {"John  Doe", "Doe, John ", "John  Doe"},
               {"Anna Neil SR. JR.", "Neil SR., Anna", "Anna Neil SR."},  // the later suffix is the one kept
               {"Cher JR.", "Cher", "Cher"},
               {"", " ", ""},
               {"Doe, John", "John, Doe,", "5"},
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
  EXPECT_EQ(rows.RowThatBegins("\xC9mile B", 6), 6);
  EXPECT_EQ(rows.RowThatBegins("EMILE b", 7), 5) << "from the last it goes round";
  EXPECT_EQ(rows.RowThatBegins("bo", 0), -1);
}

TEST(AddressTexts, ARecordIsCutAndPaddedToItsFields) {
  FieldTexts texts;
  texts[field::Name] = QString(45, 'x');
  texts[field::Notes] = QString(199, 'n') + "\r\nmore";
  const QByteArray bytes = BytesOf(RecordOf(texts));
  EXPECT_EQ(bytes, QByteArray(40, 'x') + QByteArray(280, ' ') + QByteArray(199, 'n') + ' ');
  EXPECT_EQ(BytesOf(RecordFromBytes(bytes.left(510))), bytes.left(510).leftJustified(520));
  EXPECT_EQ(FieldInput(field::City, "a\nb\rc\r\nd\x01"), "a b c d ");
  EXPECT_EQ(FieldInput(field::Notes, "a\nb\rc\r\nd"), "a\r\nb\r\nc\r\nd");
  EXPECT_EQ(UpperCase("straße ÿ ƒ é"), QString("STRAßE Ÿ ƒ É"));
  const int lengths[] = {260, 261, 780, 1300, 1301}, counts[] = {0, 1, 2, 2, 3};
  for (size_t i = 0; i < 5; ++i) EXPECT_EQ(CountRecords(lengths[i]), counts[i]) << "ties to even";
}

/// '1' selects: "100000001" are name and e-mail.
Categories Selected(const char* marks) {
  Categories selected;
  for (int i = 0; i < CategoryCount; ++i) selected[i] = marks[i] == '1';
  return selected;
}

/// A line for each record, "name|address 1||...", without the empty cells at its end.
template <class List>
std::string AllOf(const List& list, size_t count) {
  QByteArrayList records;
  for (size_t i = 0; i < count; ++i) {
    const BatchCells cells = CellsOf(list, static_cast<int>(i));
    records << QByteArrayList(cells.begin(), cells.end()).join('|');
    while (records.last().endsWith('|')) records.last().chop(1);
  }
  return records.join('\n').toStdString();
}

TEST(AddressTexts, FieldsGoToTheSelectedCategories) {
  const char* all = "111111111";
  const Cases<ListType, const char*, const char*, const char*> cases = {
      {ListType::Commas, all, "Ann,1 Elm\r\n\r\nBob,2\r\nXY", "Ann|1 Elm\n\nBob|2"},
      {ListType::Commas, "110000001", "a,b,c,d,e", "a|b|||||||c"},
      {ListType::Commas, "111111011", "n,1,2,c,h,w,x,e\r\n", "n|1|2|c|h|w||x|e"},
      {ListType::Commas, all, " ,,c, ", "||c"},
      {ListType::Commas, all, "J\r\nJohn", "\nohn"},
      {ListType::Tabs, all, "Ann\t1, Elm\r\n\txyz", "Ann|1, Elm\n|xyz"},
      {ListType::MailProgram, all, "Ann,1", "Ann|1"},
      {ListType::Lines, all, "Ann\r\n1\r\n\r\nBob\r\n2 Fir\r\n\r\nJohn", "Ann|1\nBob|2 Fir\nhn"},
      {ListType::Lines, all, "Ann\r\n\r\n\r\nBob\r\nx", "n\n|Bob|x"}};
  for (const auto& [type, selected, text, records] : cases) {
    const DelimitedList list = ParseDelimitedList(text, type, Selected(selected));
    EXPECT_EQ(AllOf(list, list.BatchRecords.size()), records) << text;
  }
}

TEST(AddressTexts, AMailProgramsColumnsAreFoundByTheirNames) {
  const char *all = "111111111", *name = "100000000";
  const Cases<Book, const char*, const char*, const char*> cases = {
      {Book::Personal, all, "First Name,Last Name,Home City,Home State\r\nAnn,Bell,Bend,OR\r\n\"odd\r\nlost",
       "Ann Bell|||Bend, OR \n "},
      {Book::Company, all, "Name,Company,Business Fax\r\nTess,Pine,8\r\n", "Pine|||,  ||8||Tess"},
      {Book::Company, "100000010", "Name,x\r\nTess,y\r\n", "No Company Name Given|||||||Tess"},
      // Too few commas: the count of columns begins anew at the line's beginning.
      {Book::Personal, "100000001", "x,y,z,E-mail Address,Name\r\na,b\r\n", "a||||||||b"},
      // "Name" stands only within "First Name", at the 7th character: the 8th column.
      {Book::Personal, name, "First Name,Home City\r\na,b,c,d,e,f,g,h,i\r\n", "h"},
      {Book::Personal, name, "Name,x\r\n\"S, Jr.\",x\r\n\"a, b, c\",x\r\n", "\"S\xEA Jr.\"\n\"a\xEA b"},
  };
  for (const auto& [book, selected, text, records] : cases) {
    const auto list = ParseCsvList(text, book, Selected(selected));
    ASSERT_TRUE(list) << text;
    EXPECT_EQ(AllOf(*list, list->lines.size()), records) << text;
  }
  EXPECT_FALSE(ParseCsvList("Name,x", Book::Personal, Selected(name)));
}

}  // namespace
