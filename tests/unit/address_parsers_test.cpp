#include <gtest/gtest.h>

#include <QByteArrayList>

#include "address/csv.h"
#include "address/delimited.h"

using namespace quillane;

namespace {

/// '1' selects: "111000001" are name, two address lines and e-mail.
Categories Selected(const char* marks) {
  Categories selected;
  for (int i = 0; i < CategoryCount; ++i) selected[i] = marks[i] == '1';
  return selected;
}

/// "Name|Address 1||..." without the empty cells at the end.
QByteArray Joined(const BatchCells& cells) {
  QByteArray joined = QByteArrayList(cells.begin(), cells.end()).join('|');
  while (joined.endsWith('|')) joined.chop(1);
  return joined;
}

template <class List>
QByteArrayList AllOf(const List& list, size_t count) {
  QByteArrayList records;
  for (size_t i = 0; i < count; ++i) records << Joined(CellsOf(list, static_cast<int>(i)));
  return records;
}

TEST(AddressLists, FieldsGoToTheSelectedCategories) {
  const char* all = "111111111";
  const struct {
    ListType type;
    const char *selected, *text;
    QByteArrayList records;
  } cases[] = {
      {ListType::Commas, all, "Ann,1 Elm\r\nBob,2 Fir\r\n", {"Ann|1 Elm", "Bob|2 Fir"}},
      {ListType::Commas, all, "Ann,1 Elm\r\n\r\nBob,2\r\nXY", {"Ann|1 Elm", "", "Bob|2"}},
      {ListType::Commas, all, "Ann,1 Elm\r\nXYZ", {"Ann|1 Elm", "YZ"}},
      {ListType::Commas, "110000001", "a,b,c,d,e", {"a|b|||||||c"}},
      {ListType::Commas, "111111011", "n,1,2,c,h,w,x,e", {"n|1|2|c|h|w||x|e"}},
      {ListType::Commas, all, ",,c,", {"||c"}},
      {ListType::Commas, all, "John", {"ohn"}},
      {ListType::Commas, all, "J\r\nAnn,x", {"", "Ann|x"}},
      {ListType::Commas, all, "  Ann,x  ", {"Ann|x"}},
      {ListType::Commas, all, "   ", {}},
      {ListType::Commas, all, "AB", {}},
      {ListType::Tabs, all, "Ann\t\t2\r\n\tx", {"Ann||2"}},
      {ListType::Tabs, all, "Ann\t1, Elm\r\n\txyz", {"Ann|1, Elm", "|xyz"}},
      {ListType::MailProgram, all, "Ann,1", {"Ann|1"}},
      {ListType::Lines, all, "Ann\r\n1 Elm\r\n\r\nBob\r\n2 Fir\r\n", {"Ann|1 Elm", "Bob|2 Fir"}},
      {ListType::Lines, all, "John", {"hn"}},
      {ListType::Lines, all, "Ann\r\n\r\n\r\nBob\r\nx", {"n", "|Bob|x"}},
  };
  for (const auto& c : cases) {
    const DelimitedList list = ParseDelimitedList(c.text, c.type, Selected(c.selected));
    EXPECT_EQ(AllOf(list, list.BatchRecords.size()), c.records) << c.text;
  }
}

TEST(AddressLists, AMailProgramsColumnsAreFoundByTheirNames) {
  const struct {
    Book book;
    const char *selected, *text;
    QByteArrayList records;
  } cases[] = {
      {Book::Personal,
       "111111111",
       "First Name,Last Name,Home Street,Home City,Home State,Home Postal Code,Home Phone,Business "
       "Phone,Mobile "
       "Phone,E-mail Address\r\nAnn,Bell,1 Elm,Bend,OR,97701,1,2,3,a@b\r\nlost",
       {"Ann Bell|1 Elm||Bend, OR 97701|1|2|3||a@b"}},
      {Book::Company,
       "111111111",
       "Name,Company,Business Street,Business Phone,Business Fax\r\nTess,Pine,15 Lodge,7,8\r\n",
       {"Pine|15 Lodge||,  |7|8||Tess"}},
      {Book::Company, "100000010", "Name,x\r\nTess,y\r\n", {"No Company Name Given|||||||Tess"}},
      // Too few commas: the count of columns begins anew at the line's beginning.
      {Book::Personal,
       "100000001",
       "Name,x,y,E-mail Address\r\nAnn,b\r\nBob\r\n",
       {"Ann|||||||"
        "|b",
        "Bob||||||||Bob"}},
      // "Name" stands only within "First Name", at the 7th character: the 8th column, counted round.
      {Book::Personal, "100000000", "First Name,Home City\r\na,b,c,d,e,f,g,h,i\r\n", {"h"}},
      {Book::Personal, "100000000", "x,Home City\r\nAnn,Bend\r\n", {""}},
      {Book::Personal,
       "100000000",
       "Name,x\r\n\"Smith, Jr.\",x\r\n\"a, b, c\",x\r\n",
       {"\"Smith\xEA Jr.\"", "\"a\xEA b"}},
      // The separator behind a closing quote goes too when a further quote follows.
      {Book::Personal, "100000000", "Name,x\r\n\"a\",\"b\",c\r\n", {"\"a\"\xEA\"b\""}},
      // Once a quoted field was followed to its end, later ones lose their first line break only.
      {Book::Personal,
       "100000000",
       "x,Name\r\n1,\"g\r\nh\r\ni\",2\r\n1,\"j\r\nk\r\nl\",2\r\n",
       {"\"g\xC8\xC8h\xC8\xC8i\"", "", ""}},
  };
  for (const auto& c : cases) {
    const auto list = ParseCsvList(c.text, c.book, Selected(c.selected));
    ASSERT_TRUE(list) << c.text;
    EXPECT_EQ(AllOf(*list, list->lines.size()), c.records) << c.text;
  }
  EXPECT_FALSE(ParseCsvList("Name,x", Book::Personal, Selected("100000000")));
}

TEST(AddressLists, ALineWithAnOddNumberOfQuotesIsFlaggedAndEmptied) {
  const auto list = ParseCsvList("First Name,Last Name,Home City\r\nA,B,C\r\n\"A,B,C\r\nD,E,F\r\n",
                                 Book::Personal, Selected("100100000"));
  EXPECT_EQ(list->BadRecordFlags, (std::vector<bool>{false, true, false}));
  EXPECT_EQ(AllOf(*list, 3), (QByteArrayList{"A B|||C,  ", " ", "D E|||F,  "}));
}

}  // namespace
