#include <gtest/gtest.h>

#include <QByteArrayList>

#include "address/csv.h"
#include "address/delimited.h"

using namespace quillane;

namespace {

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

TEST(AddressLists, FieldsGoToTheSelectedCategories) {
  const char* all = "111111111";
  const struct {
    ListType type;
    const char *selected, *text, *records;
  } cases[] = {{ListType::Commas, all, "Ann,1 Elm\r\n\r\nBob,2\r\nXY", "Ann|1 Elm\n\nBob|2"},
               {ListType::Commas, "110000001", "a,b,c,d,e", "a|b|||||||c"},
               {ListType::Commas, "111111011", "n,1,2,c,h,w,x,e\r\n", "n|1|2|c|h|w||x|e"},
               {ListType::Commas, all, " ,,c, ", "||c"},
               {ListType::Commas, all, "J\r\nJohn", "\nohn"},
               {ListType::Tabs, all, "Ann\t1, Elm\r\n\txyz", "Ann|1, Elm\n|xyz"},
               {ListType::MailProgram, all, "Ann,1", "Ann|1"},
               {ListType::Lines, all, "Ann\r\n1\r\n\r\nBob\r\n2 Fir\r\n\r\nJohn", "Ann|1\nBob|2 Fir\nhn"},
               {ListType::Lines, all, "Ann\r\n\r\n\r\nBob\r\nx", "n\n|Bob|x"}};
  for (const auto& c : cases) {
    const DelimitedList list = ParseDelimitedList(c.text, c.type, Selected(c.selected));
    EXPECT_EQ(AllOf(list, list.BatchRecords.size()), c.records) << c.text;
  }
}

TEST(AddressLists, AMailProgramsColumnsAreFoundByTheirNames) {
  const char *all = "111111111", *name = "100000000";
  const struct {
    Book book;
    const char *selected, *text, *records;
  } cases[] = {
      {Book::Personal, all,
       "First Name,Last Name,Home City,Home State,Home Postal "
       "Code\r\nAnn,Bell,Bend,OR,97701\r\n\"odd\r\nlost",
       "Ann Bell|||Bend, OR 97701\n "},
      {Book::Company, all, "Name,Company,Business Fax\r\nTess,Pine,8\r\n", "Pine|||,  ||8||Tess"},
      {Book::Company, "100000010", "Name,x\r\nTess,y\r\n", "No Company Name Given|||||||Tess"},
      // Too few commas: the count of columns begins anew at the line's beginning.
      {Book::Personal, "100000001", "x,y,z,E-mail Address,Name\r\na,b\r\n", "a||||||||b"},
      // "Name" stands only within "First Name", at the 7th character: the 8th column.
      {Book::Personal, name, "First Name,Home City\r\na,b,c,d,e,f,g,h,i\r\n", "h"},
      {Book::Personal, name, "Name,x\r\n\"S, Jr.\",x\r\n\"a, b, c\",x\r\n", "\"S\xEA Jr.\"\n\"a\xEA b"},
  };
  for (const auto& c : cases) {
    const auto list = ParseCsvList(c.text, c.book, Selected(c.selected));
    ASSERT_TRUE(list) << c.text;
    EXPECT_EQ(AllOf(*list, list->lines.size()), c.records) << c.text;
  }
  EXPECT_FALSE(ParseCsvList("Name,x", Book::Personal, Selected(name)));
}

}  // namespace
