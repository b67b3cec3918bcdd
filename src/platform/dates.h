// Dates as text: English, month first, whatever the desktop's language.
#pragma once
#include <QDateTime>
#include <QString>
#include <optional>

namespace quillane {

/// The date that `text` states: "January 15, 2008", "Jan 15, 2008", "1/15/2008", "1/15/08", "1-15-08",
/// two-digit days and months, with or without a weekday in front, and ISO dates, each also with a time behind
/// it.  A time alone is no date.  Two-digit years: 00 to 49 are 2000 to 2049, 50 to 99 are 1950 to 1999.
std::optional<QDate> ParseDate(const QString& text);
bool IsDate(const QString& text);

/// "January 05, 2008": month name, two-digit day, four-digit year.
QString LongDate(QDate date);

/// "1/15/2008 4:30:05 PM": the general form of reports and questions.
QString GeneralDateTime(const QDateTime& when);

}  // namespace quillane
