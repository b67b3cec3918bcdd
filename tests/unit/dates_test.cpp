#include "platform/dates.h"

#include <gtest/gtest.h>

#include <QLocale>

using namespace quillane;

namespace {

TEST(Dates, AreReadMonthFirstInEnglish) {
  const QDate day(2008, 1, 15);
  const struct {
    const char* text;
    QDate date;
  } cases[] = {{"January 15, 2008", day},
               {"Jan 15, 2008", day},
               {"jan. 15 2008", day},
               {"JANUARY 15,2008", day},
               {"1/15/2008", day},
               {"1/15/08", day},
               {"1-15-08", day},
               {"01/15/2008", day},
               {"  1/15/08  ", day},
               {"15 January 2008", day},
               {"15-Jan-08", day},
               {"Tuesday, January 15, 2008", day},
               {"Tue 1/15/2008", day},
               {"Sunday, 1/15/2008", day},  // a wrong weekday is the typist's, the date counts
               {"2008-01-15", day},
               {"2008/1/15", day},
               {"2008-01-15T16:30:00", day},
               {"1/15/2008 4:30 PM", day},
               {"January 15, 2008, 4:30:05 pm", day},
               {"Jan 15, 2008 4 PM", day},
               {"1/15/2008 16:30", day},
               {"2/29/2024", QDate(2024, 2, 29)},
               {"1/1/00", QDate(2000, 1, 1)},
               {"1/1/49", QDate(2049, 1, 1)},
               {"1/1/50", QDate(1950, 1, 1)},
               {"1/1/99", QDate(1999, 1, 1)},
               {"Sept 5, 2026", QDate(2026, 9, 5)}};
  for (const auto& c : cases) EXPECT_EQ(ParseDate(QString::fromLatin1(c.text)), c.date) << c.text;
}

TEST(Dates, RefuseWhatStatesNoDay) {
  for (const char* text : {"",
                           " ",
                           "4:30 PM",
                           "16:30",
                           "January 15th, 2008",
                           "January 2nd, 2008",
                           "January",
                           "Tuesday",
                           "13/1/2008",
                           "2/30/2008",
                           "2/29/2023",
                           "0/1/2008",
                           "1/0/2008",
                           "January 15",
                           "1/15",
                           "1/15/108",
                           "1/15/20081",
                           "Ja 15, 2008",
                           "1/15-2008",
                           "1.15.2008",
                           "2008",
                           "12",
                           "-1/15/2008",
                           "1/15/2008 25:00",
                           "1/15/2008 13 PM",
                           "1/15/2008 4:60",
                           "1/15/2008 x",
                           "Mayor 5, 2008",
                           "TBA",
                           "2008-13-01",
                           "99999999999/1/2008"})
    EXPECT_FALSE(IsDate(QString::fromLatin1(text))) << text;
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
