#include "platform/dates.h"

#include <gtest/gtest.h>

#include <QLocale>

using namespace quillane;

namespace {

TEST(Dates, AreReadMonthFirstInEnglish) {
  const struct {
    QDate date;
    const char* texts;  ///< with bars between them
  } cases[] = {
      {QDate(2008, 1, 15),
       "January 15, 2008|Jan 15, 2008|jan. 15 2008|JANUARY 15,2008|1/15/2008|1/15/08|1-15-08|01/15/2008"
       "|  1/15/08  |15 January 2008|15-Jan-08|Tuesday, January 15, 2008|Tue 1/15/2008|2008-01-15"
       "|2008/1/15|2008-01-15T16:30:00|1/15/2008 4:30 PM|January 15, 2008, 4:30:05 pm"
       "|Jan 15, 2008 4 PM|1/15/2008 16:30"},
      {QDate(2008, 1, 15), "Sunday, 1/15/2008"},  // a wrong weekday is the typist's, the date counts
      {QDate(2024, 2, 29), "2/29/2024"},
      {QDate(2000, 1, 1), "1/1/00"},
      {QDate(2049, 1, 1), "1/1/49"},
      {QDate(1950, 1, 1), "1/1/50"},
      {QDate(1999, 1, 1), "1/1/99"},
      {QDate(2026, 9, 5), "Sept 5, 2026"}};
  for (const auto& c : cases)
    for (const QString& text : QString::fromLatin1(c.texts).split(u'|'))
      EXPECT_EQ(ParseDate(text), c.date) << text.toStdString();
}

TEST(Dates, RefuseWhatStatesNoDay) {
  const QString texts =
      "| |4:30 PM|16:30|January 15th, 2008|January 2nd, 2008|January|Tuesday|13/1/2008|2/30/2008|2/29/2023"
      "|0/1/2008|1/0/2008|January 15|1/15|1/15/108|1/15/20081|Ja 15, 2008|1/15-2008|1.15.2008|2008|12"
      "|-1/15/2008|1/15/2008 25:00|1/15/2008 13 PM|1/15/2008 4:60|1/15/2008 x|Mayor 5, 2008|TBA|2008-13-01"
      "|99999999999/1/2008";
  for (const QString& text : texts.split(u'|')) EXPECT_FALSE(IsDate(text)) << text.toStdString();
}

TEST(Dates, AreWrittenTheSameUnderAnyDesktop) {
  const QLocale before;
  QLocale::setDefault(QLocale(QLocale::German));
  EXPECT_EQ(LongDate(QDate(2008, 1, 5)), "January 05, 2008");
  EXPECT_EQ(GeneralDateTime(QDateTime(QDate(2008, 1, 15), QTime(16, 30, 5))), "1/15/2008 4:30:05 PM");
  EXPECT_EQ(GeneralDateTime(QDateTime(QDate(2026, 11, 2), QTime(0, 5, 0))), "11/2/2026 12:05:00 AM");
  QLocale::setDefault(before);
}

}  // namespace
