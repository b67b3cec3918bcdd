#include "model/event_bytes.h"

#include <gtest/gtest.h>

using namespace quillane;

namespace {

class EventBytes : public testing::Test {
 protected:
  QString& Text(int p, int i) { return document.TextRec[p][i].Text; }
  Document document;
};

QString Line(int length) {
  return QString(length, QLatin1Char('x'));
}

TEST_F(EventBytes, LieAtTheirOffsetsInAFileOfOneLength) {
  struct Case {
    int page;
    int area;
    qsizetype offset;
  };
  const Case cases[] = {{0, 2, 50},     {0, 18, 1010}, {0, 27, 1900}, {0, 28, 2020}, {1, 0, 2180},
                        {1, 34, 6260},  {1, 35, 6380}, {2, 0, 7080},  {3, 0, 11980}, {4, 0, 16880},
                        {4, 69, 21760}, {5, 0, 21780}, {5, 4, 21860}, {5, 5, 21880}};
  for (const Case& c : cases) {
    document = {};
    Text(c.page, c.area) = QStringLiteral("mark");
    const QByteArray bytes = EventFileBytes(document);
    EXPECT_EQ(bytes.size(), 22000);
    EXPECT_EQ(bytes.indexOf("mark"), c.offset) << c.page << " " << c.area;
    EXPECT_EQ(bytes.count(' '), 22000 - 4);
  }
}

TEST_F(EventBytes, AFieldEndsAtItsWidthAndTheMarkTakesALastCharacter) {
  Text(0, 0) = Line(30);
  Text(0, 1) = QStringLiteral("next");
  Text(1, 35) = QStringLiteral("12345678901234567890");
  Text(1, 36) = QStringLiteral("7");
  Text(4, 69) = QStringLiteral("12345678901234567890");
  document.TextRec[1][35].TaxExempt = true;
  document.TextRec[4][69].TaxExempt = true;
  const QByteArray bytes = EventFileBytes(document);
  EXPECT_EQ(bytes.mid(0, 29), QByteArray(25, 'x') + "next");
  EXPECT_EQ(bytes.mid(6380, 21), QByteArray("\xD8"
                                            "1234567890123456789"
                                            "7"));
  // The field behind the last item page's last amount is the totals page's, which overwrites the same way.
  EXPECT_EQ(bytes.mid(21760, 21), QByteArray("\xD8"
                                             "1234567890123456789"
                                             " "));
}

TEST_F(EventBytes, KeepEveryByteThroughWritingAndReading) {
  for (int c = 0x20; c < 0x100; ++c) {
    QByteArray bytes(22000, ' ');
    bytes.replace(2180, 3, QByteArray("a*a").replace('*', static_cast<char>(c)));
    const EventFields fields = ReadEventFields(bytes);
    Text(1, 0) = fields.text[1][0];
    EXPECT_EQ(EventFileBytes(document), bytes) << c;
  }
}

TEST_F(EventBytes, OlderLengthsHaveNarrowFields) {
  struct Case {
    qsizetype length;
    int longWidth, amountWidth;
  };
  for (const Case& c :
       {Case{17880, 120, 10}, Case{17170, 100, 10}, Case{17770, 100, 20}, Case{17771, 120, 20}}) {
    QByteArray bytes(c.length, ' ');
    const qsizetype firstAmount = 1060 + 8 * c.longWidth;
    bytes.replace(firstAmount, 4, "1.25");
    bytes.replace(firstAmount + 8 * c.amountWidth, 5, "Cakes");
    bytes.replace(2, 3, "May");
    const EventFields fields = ReadEventFields(bytes);
    EXPECT_EQ(fields.text[0][28].trimmed(), "1.25") << c.length;
    EXPECT_EQ(fields.text[0][28].size(), c.amountWidth);
    EXPECT_EQ(fields.text[1][0].trimmed(), "Cakes");
    EXPECT_EQ(fields.text[1][0].size(), c.longWidth);
    EXPECT_EQ(fields.text[0][0], "  May                    ");
  }
}

TEST_F(EventBytes, PastTheEndItemsAreBlankAndTotalsAreNot) {
  const EventFields cut = ReadEventFields(QByteArray("June 19"));
  EXPECT_EQ(cut.text[0][0], QStringLiteral("June 19").leftJustified(25));
  EXPECT_EQ(cut.text[4][69], QString(20, QLatin1Char(' ')));
  EXPECT_EQ(cut.text[5][4], QString(20, QChar(0)));
  QByteArray zeros(22000, ' ');
  zeros.replace(50, 60, QByteArray(60, '\0'));
  zeros.replace(110, 5, QByteArray("a\0b c", 5));
  const EventFields inside = ReadEventFields(zeros);
  EXPECT_EQ(inside.text[0][2], QString(60, QLatin1Char(' ')));
  EXPECT_EQ(inside.text[0][3].left(3), QString(QLatin1String("a\0b", 3)));
}

TEST(StoredColumns, NeedAllThreeSignsInOrder) {
  const QString yen(QChar(0xA5)), section(QChar(0xA7));
  const auto parts = SplitColumns(yen + "5" + yen + "Chairs, " + section + "white" + section + "7.75");
  ASSERT_TRUE(parts);
  EXPECT_EQ(parts->quantity, "5");
  EXPECT_EQ(parts->description, "Chairs, ");
  EXPECT_EQ(parts->each, "white" + section + "7.75");
  struct Case {
    QString text;
    bool stray;
  };
  const Case plain[] = {{"Chairs", false},
                        {yen + "5" + yen + "Chairs", true},
                        {"x" + yen + "5" + yen + "Chairs" + section + "1", true},
                        {yen + "5" + section + "1" + yen, true},
                        {QString(), false}};
  for (const Case& c : plain) {
    EXPECT_FALSE(SplitColumns(c.text)) << c.text.toStdString();
    EXPECT_EQ(HasStrayMark(c.text), c.stray);
  }
}

}  // namespace
