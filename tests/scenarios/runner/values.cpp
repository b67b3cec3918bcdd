#include "values.h"

#include <QRegularExpression>
#include <cmath>
#include <cstdint>

namespace quillane::scenario {

namespace {

std::optional<bool> ReadBoolean(const QString& text) {
  const QString word = text.trimmed().toLower();
  if (word == QLatin1String("true") || word == QLatin1String("yes")) return true;
  if (word == QLatin1String("false") || word == QLatin1String("no")) return false;
  const std::optional<double> number = ReadNumber(word);
  if (!number) return std::nullopt;
  return *number != 0;
}

/// Hexadecimal colours are unsigned and decimal ones may be negative: both are the same 32 bits.
uint32_t Bits(double number) {
  return static_cast<uint32_t>(static_cast<int64_t>(number));
}

bool EqualNumbers(const Value& actual, const QString& expected) {
  const std::optional<double> wanted = ReadNumber(expected), there = ReadNumber(actual.text);
  if (!wanted || !there) return false;
  if (actual.kind == ValueKind::Colour) return Bits(*wanted) == Bits(*there);
  const double apart = std::abs(*wanted - *there);
  return actual.kind == ValueKind::Twips ? apart <= 0.5 : apart < 1e-4;
}

}  // namespace

Value TextValue(const QString& text) {
  return {ValueKind::Text, text};
}
Value NameValue(const QString& text) {
  return {ValueKind::Name, text};
}
Value CaptionValue(const QString& text) {
  return {ValueKind::Caption, text};
}
Value NumberValue(double number) {
  return {ValueKind::Number, QString::number(number, 'g', 9)};
}
Value TwipsValue(double twips) {
  return {ValueKind::Twips, QString::number(twips, 'g', 9)};
}
Value ColourValue(Color colour) {
  return {ValueKind::Colour,
          QStringLiteral("0x%1").arg(static_cast<uint32_t>(colour), 6, 16, QLatin1Char('0'))};
}
Value BooleanValue(bool value) {
  return {ValueKind::Boolean, value ? QStringLiteral("True") : QStringLiteral("False")};
}

std::optional<double> ReadNumber(const QString& text) {
  static const QRegularExpression hexadecimal(QStringLiteral("^\\s*(?:0x|&h)([0-9a-f]+)&?\\s*$"),
                                              QRegularExpression::CaseInsensitiveOption);
  bool good = false;
  double number = 0;
  if (const auto match = hexadecimal.match(text); match.hasMatch())
    number = static_cast<double>(match.captured(1).toULongLong(&good, 16));
  else
    number = text.trimmed().toDouble(&good);
  return good ? std::optional(number) : std::nullopt;
}

bool Equal(const Value& actual, const QString& expected) {
  switch (actual.kind) {
    case ValueKind::Text:
      return actual.text == expected;
    case ValueKind::Caption:
      return actual.text == expected || WithoutAccessKey(actual.text) == expected;
    case ValueKind::Name:
      return actual.text.compare(expected, Qt::CaseInsensitive) == 0;
    case ValueKind::Boolean: {
      const std::optional<bool> wanted = ReadBoolean(expected);
      return wanted && *wanted == *ReadBoolean(actual.text);
    }
    default:
      return EqualNumbers(actual, expected);
  }
}

QString WithoutAccessKey(const QString& caption) {
  QString plain;
  for (qsizetype at = 0; at < caption.size(); ++at) {
    if (caption[at] == QLatin1Char('&') && at + 1 < caption.size()) ++at;
    plain += caption[at];
  }
  return plain;
}

QString InQuotes(QString text) {
  text.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
  text.replace(QLatin1Char('"'), QLatin1String("\\\""));
  text.replace(QLatin1Char('\r'), QLatin1String("\\r"));
  text.replace(QLatin1Char('\t'), QLatin1String("\\t"));
  text.replace(QLatin1Char('\n'), QLatin1String("\\n"));
  return QLatin1Char('"') + text + QLatin1Char('"');
}

}  // namespace quillane::scenario
