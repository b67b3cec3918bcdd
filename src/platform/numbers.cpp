#include "platform/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <string>

#include "platform/runtime_error.h"

namespace quillane {

namespace {

bool IsBlank(QChar c) {
  return c == u' ' || (c >= u'\t' && c <= u'\r') || c == QChar::Nbsp;
}
bool IsDigit(QChar c) {
  return c >= u'0' && c <= u'9';
}
bool IsExponent(QChar c) {
  return c == u'e' || c == u'E' || c == u'd' || c == u'D';
}

/// Walks a text and collects the number in it in the one form that the standard library reads.
class Scanner {
 public:
  explicit Scanner(QStringView text) : text_(text) {}

  /// The whole text as a number, or nothing.
  std::optional<std::string> Whole() {
    if (!Prefix() || !Mantissa(GroupCommas::Allowed) || !Exponent() || !Suffix()) return std::nullopt;
    return (negative_ ? "-" : "") + number_;
  }

  /// The longest numeric beginning; "0" where there is none.
  std::string Beginning() {
    if (Take(u'-')) {
      negative_ = true;
    } else {
      Take(u'+');
    }
    if (!Mantissa(GroupCommas::Refused)) return "0";
    const std::string mantissa = number_;
    if (!Exponent()) number_ = mantissa;
    return (negative_ ? "-" : "") + number_;
  }

 private:
  enum class GroupCommas { Allowed, Refused };

  QChar Peek() const { return at_ < text_.size() ? text_[at_] : QChar(); }
  bool Take(char16_t wanted) {
    if (Peek() != wanted) return false;
    ++at_;
    return true;
  }
  bool ParseSign() {
    if (signed_ || (Peek() != u'+' && Peek() != u'-')) return false;
    negative_ = text_[at_++] == u'-';
    return signed_ = true;
  }
  void Blanks() {
    while (IsBlank(Peek())) ++at_;
  }
  bool Digits() {
    const qsizetype start = at_;
    while (IsDigit(Peek())) number_ += text_[at_++].toLatin1();
    return at_ > start;
  }

  bool Prefix() {
    for (bool moved = true; moved;) {
      Blanks();
      moved = ParseSign() || (!dollar_ && (dollar_ = Take(u'$'))) ||
              (!parentheses_ && (parentheses_ = Take(u'(')));
    }
    return !(parentheses_ && signed_);
  }

  bool Mantissa(GroupCommas commas) {
    bool any = Digits();
    while (any && commas == GroupCommas::Allowed && Take(u',')) Digits();
    if (number_.empty()) number_ = "0";
    if (Take(u'.')) {
      number_ += '.';
      any = Digits() || any;
      if (number_.back() == '.') number_.pop_back();
    }
    return any;
  }

  bool Exponent() {
    if (!IsExponent(Peek())) return true;
    ++at_;
    number_ += 'e';
    if (Peek() == u'-') number_ += '-';
    if (!Take(u'-')) Take(u'+');
    return Digits();
  }

  bool Suffix() {
    Blanks();
    if (!parentheses_) ParseSign();
    Blanks();
    if (parentheses_) {
      if (!Take(u')')) return false;
      negative_ = true;
    }
    Blanks();
    return at_ == text_.size();
  }

  QStringView text_;
  qsizetype at_ = 0;
  bool signed_ = false, negative_ = false, dollar_ = false, parentheses_ = false;
  std::string number_;
};

/// The power of ten of the first digit that counts, which tells a number too great from one too small to
/// hold.
long Magnitude(const std::string& number) {
  const size_t e = number.find('e');
  long power = 0;
  if (e != std::string::npos) {
    const char* first = number.data() + e + 1;
    if (std::from_chars(first, number.data() + number.size(), power).ec != std::errc())
      power = *first == '-' ? -1'000'000'000 : 1'000'000'000;
  }
  const size_t point = std::min(number.find('.'), std::min(e, number.size()));
  const size_t digit = number.find_first_of("123456789");
  return power + static_cast<long>(point) - static_cast<long>(digit);
}

/// Nothing where the number is beyond the type; one too small for it is 0.
template <class Real>
std::optional<Real> Convert(const std::string& number) {
  Real value = 0;
  const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
  if (error != std::errc::result_out_of_range) return value;
  if (Magnitude(number) > 0) return std::nullopt;
  return Real{0};
}

template <class Real>
Real Required(QStringView text) {
  const auto number = Scanner(text).Whole();
  if (!number) Raise(errors::TypeMismatch, text.toString());
  const auto value = Convert<Real>(*number);
  if (!value) Raise(errors::Overflow, text.toString());
  return *value;
}

/// A number as its decimal digits: 0.DIGITS times ten to the power `point`.  Zero has no digits.
struct Decimal {
  bool negative = false;
  std::string digits;
  int point = 0;
};

template <class Real>
Decimal ShortestDecimal(Real value) {
  if (!std::isfinite(value)) Raise(errors::Overflow);
  std::array<char, 64> buffer;
  const auto end =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::scientific);
  std::string text(buffer.data(), end.ptr);
  Decimal decimal;
  if (text.front() == '-') {
    decimal.negative = value != 0;
    text.erase(0, 1);
  }
  const size_t e = text.find('e');
  decimal.point = 1 + std::stoi(text.substr(e + 1));
  decimal.digits = text.substr(0, e);
  std::erase(decimal.digits, '.');
  decimal.digits.erase(decimal.digits.find_last_not_of('0') + 1);
  return decimal;
}

/// Half goes away from zero, on the digits themselves, so that what a reader of the digits expects is what
/// comes.
void RoundTo(Decimal& decimal, int places) {
  const int keep = decimal.point + places;
  if (keep >= static_cast<int>(decimal.digits.size())) return;
  const bool up = keep >= 0 && decimal.digits[static_cast<size_t>(keep)] >= '5';
  decimal.digits.resize(static_cast<size_t>(std::max(keep, 0)));
  if (up) {
    const size_t last = decimal.digits.find_last_not_of('9');
    decimal.digits.resize(last == std::string::npos ? 0 : last + 1);
    if (decimal.digits.empty()) {
      decimal.digits = "1";
      ++decimal.point;
    } else {
      ++decimal.digits.back();
    }
  }
  if (decimal.digits.find_first_not_of('0') == std::string::npos) decimal = {};
}

char DigitAt(const Decimal& decimal, int index) {
  return index < 0 || index >= static_cast<int>(decimal.digits.size())
             ? '0'
             : decimal.digits[static_cast<size_t>(index)];
}

std::string WholePart(const Decimal& decimal) {
  std::string whole;
  for (int i = 0; i < decimal.point && !decimal.digits.empty(); ++i) whole += DigitAt(decimal, i);
  return whole;
}

std::string FractionPart(const Decimal& decimal) {
  std::string fraction;
  for (int i = decimal.point; i < static_cast<int>(decimal.digits.size()); ++i)
    fraction += DigitAt(decimal, i);
  return fraction;
}

QString Assemble(bool negative, const std::string& whole, const std::string& rest) {
  return QString::fromStdString((negative ? "-" : "") + whole + rest);
}

QString Exponential(const Decimal& decimal) {
  std::string mantissa = decimal.digits.substr(0, 1);
  if (decimal.digits.size() > 1) mantissa += "." + decimal.digits.substr(1);
  const int power = decimal.point - 1;
  const std::string digits = std::to_string(std::abs(power));
  return Assemble(decimal.negative, mantissa,
                  (power < 0 ? "E-" : "E+") + std::string(digits.size() < 2, '0') + digits);
}

enum class ZeroBeforePoint { Shown, LeftOut };

QString PlainText(const Decimal& decimal, ZeroBeforePoint zero) {
  constexpr int LongestWhole = 15, MostZerosBehindPoint = 6;  // beyond these a row of zeros hides the number
  if (decimal.point > LongestWhole || decimal.point < -MostZerosBehindPoint) return Exponential(decimal);
  std::string whole = WholePart(decimal), fraction = FractionPart(decimal);
  if (whole.empty() && (zero == ZeroBeforePoint::Shown || fraction.empty())) whole = "0";
  return Assemble(decimal.negative, whole, fraction.empty() ? "" : "." + fraction);
}

/// What a pattern of '#', '0', ',' and '.' asks for.
struct Pattern {
  int wholeDigits = 0;  ///< that are always shown
  bool groups = false, point = false;
  int places = 0, fixedPlaces = 0;

  explicit Pattern(const QString& text) {
    for (const QChar c : text) {
      if (c == u'.') point = true;
      if (c == u',') groups = true;
      if (c != u'#' && c != u'0') continue;
      if (point) {
        ++places;
        if (c == u'0') fixedPlaces = places;
      } else if (c == u'0' || wholeDigits > 0) {
        ++wholeDigits;
      }
    }
  }
};

std::string Grouped(std::string whole) {
  for (auto at = static_cast<std::ptrdiff_t>(whole.size()) - 3; at > 0; at -= 3)
    whole.insert(static_cast<size_t>(at), 1, ',');
  return whole;
}

QString FormatDecimal(Decimal decimal, const QString& text) {
  const Pattern pattern(text);
  RoundTo(decimal, pattern.places);
  std::string whole = WholePart(decimal), fraction = FractionPart(decimal);
  const auto wanted = static_cast<size_t>(pattern.wholeDigits);
  if (whole.size() < wanted) whole.insert(0, wanted - whole.size(), '0');
  if (fraction.size() < static_cast<size_t>(pattern.fixedPlaces))
    fraction.resize(static_cast<size_t>(pattern.fixedPlaces), '0');
  if (pattern.groups) whole = Grouped(whole);
  return Assemble(decimal.negative, whole, pattern.point ? "." + fraction : "");
}

}  // namespace

bool IsNumeric(QStringView text) {
  const auto number = Scanner(text).Whole();
  return number && Convert<double>(*number);
}

double ToDouble(QStringView text) {
  return Required<double>(text);
}
float ToSingle(QStringView text) {
  return Required<float>(text);
}

double Val(QStringView text) {
  QString solid;
  std::copy_if(text.begin(), text.end(), std::back_inserter(solid), [](QChar c) { return !IsBlank(c); });
  const auto value = Convert<double>(Scanner(solid).Beginning());
  if (!value) Raise(errors::Overflow, text.toString());
  return *value;
}

QString SingleText(float value) {
  return PlainText(ShortestDecimal(value), ZeroBeforePoint::Shown);
}

QString StrText(float value) {
  const QString text = PlainText(ShortestDecimal(value), ZeroBeforePoint::LeftOut);
  return text.startsWith(u'-') ? text : u' ' + text;
}

QString FormatNumber(float value, const QString& pattern) {
  return FormatDecimal(ShortestDecimal(value), pattern);
}
QString FormatNumber(double value, const QString& pattern) {
  return FormatDecimal(ShortestDecimal(value), pattern);
}

QString FormatText(const QString& text, const QString& pattern) {
  return IsNumeric(text) ? FormatNumber(ToDouble(text), pattern) : text;
}

}  // namespace quillane
