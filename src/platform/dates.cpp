#include "platform/dates.h"

#include <QLocale>
#include <array>

namespace quillane {

namespace {

constexpr std::array<const char*, 12> Months = {"january",   "february", "march",    "april",
                                                "may",       "june",     "july",     "august",
                                                "september", "october",  "november", "december"};
constexpr std::array<const char*, 7> Weekdays = {"monday", "tuesday",  "wednesday", "thursday",
                                                 "friday", "saturday", "sunday"};

/// The place of a name, written out or cut to at least three letters, counted from 1; 0 for none.
template <size_t Count>
int PlaceOf(const QString& word, const std::array<const char*, Count>& names) {
  if (word.size() < 3) return 0;
  for (size_t i = 0; i < Count; ++i)
    if (QLatin1String(names[i]).startsWith(word)) return static_cast<int>(i) + 1;
  return 0;
}

struct Number {
  int value = -1;
  qsizetype length = 0;  ///< in digits
};

/// Reads a date from left to right; each step says whether its piece was there.
class DateReader {
 public:
  explicit DateReader(const QString& text) : text_(text.trimmed().toLower()) {}

  std::optional<QDate> Read() {
    Weekday();
    const QDate date = IsLetter(Peek()) ? MonthFirst() : NumberFirst();
    if (!date.isValid() || date.year() < 100 || !TimeOrEnd()) return std::nullopt;
    return date;
  }

 private:
  static bool IsLetter(QChar c) { return c >= u'a' && c <= u'z'; }
  static bool IsDigit(QChar c) { return c >= u'0' && c <= u'9'; }
  QChar Peek() const { return at_ < text_.size() ? text_[at_] : QChar(); }
  bool AtEnd() const { return at_ == text_.size(); }
  bool Take(char16_t c) {
    if (Peek() != c) return false;
    ++at_;
    return true;
  }
  bool Blanks() {
    const qsizetype start = at_;
    while (Peek().isSpace()) ++at_;
    return at_ > start;
  }
  QString Word() {
    const qsizetype start = at_;
    while (IsLetter(Peek())) ++at_;
    return text_.mid(start, at_ - start);
  }
  Number Digits() {
    const qsizetype start = at_;
    while (IsDigit(Peek())) ++at_;
    const qsizetype length = at_ - start;
    return {length == 0 || length > 4 ? -1 : text_.mid(start, length).toInt(), length};
  }
  /// What stands between the parts of a date that has a month's name: blanks, a comma, a hyphen or a slash.
  bool Gap() {
    bool any = Blanks();
    any = Take(u',') || Take(u'-') || Take(u'/') || any;
    return Blanks() || any;
  }

  static int FullYear(Number year) {
    if (year.length == 4) return year.value;
    if (year.length != 2) return -1;
    return year.value < 50 ? 2000 + year.value : 1900 + year.value;
  }
  static QDate Date(Number year, int month, Number day) {
    if (day.length > 2 || day.value < 0 || FullYear(year) < 0) return {};
    return QDate(FullYear(year), month, day.value);
  }

  int Month() {
    const QString word = Word();
    const int month = word == QLatin1String("sept") ? 9 : PlaceOf(word, Months);
    Take(u'.');
    return month;
  }

  void Weekday() {
    const qsizetype start = at_;
    if (PlaceOf(Word(), Weekdays) > 0) {
      Take(u'.');
      Gap();
    } else {
      at_ = start;
    }
  }

  QDate MonthFirst() {
    const int month = Month();
    Gap();
    const Number day = Digits();
    if (!Gap()) return {};
    return Date(Digits(), month, day);
  }

  QDate NumberFirst() {
    const Number first = Digits();
    const bool gap = Gap();
    if (IsLetter(Peek())) {
      const int month = Month();
      Gap();
      return Date(Digits(), month, first);
    }
    return gap ? NumbersOnly(first) : QDate();
  }

  /// "1/15/2008" or, where the year comes first, "2008-01-15"; the separator is one and the same.
  QDate NumbersOnly(Number first) {
    const QChar separator = text_[at_ - 1];
    if (separator != u'/' && separator != u'-') return {};
    const Number second = Digits();
    if (!Take(separator.unicode())) return {};
    const Number third = Digits();
    if (first.length == 4) return second.length <= 2 ? Date(first, second.value, third) : QDate();
    return first.length <= 2 ? Date(third, first.value, second) : QDate();
  }

  bool TimeOrEnd() {
    if (AtEnd()) return true;
    const bool iso = IsLetter(Peek()) && Take(u't');
    return (iso || Gap()) && Time() && AtEnd();
  }

  bool Time() {
    const Number hour = Digits();
    int parts = 1;
    for (; parts < 3 && Take(u':'); ++parts)
      if (const Number part = Digits(); part.length == 0 || part.length > 2 || part.value > 59) return false;
    if (parts == 3 && Take(u'.')) Digits();
    Blanks();
    const QString half = Word();
    if (hour.length == 0 || hour.length > 2) return false;
    if (half.isEmpty()) return parts > 1 && hour.value < 24;
    return (half == QLatin1String("am") || half == QLatin1String("pm")) && hour.value >= 1 &&
           hour.value <= 12;
  }

  QString text_;
  qsizetype at_ = 0;
};

}  // namespace

std::optional<QDate> ParseDate(const QString& text) {
  return DateReader(text).Read();
}
bool IsDate(const QString& text) {
  return ParseDate(text).has_value();
}

QString LongDate(QDate date) {
  return QLocale::c().toString(date, QStringLiteral("MMMM dd, yyyy"));
}

QString GeneralDateTime(const QDateTime& when) {
  return QLocale::c().toString(when, QStringLiteral("M/d/yyyy h:mm:ss AP"));
}

}  // namespace quillane
