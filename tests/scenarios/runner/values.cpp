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
  return number ? std::optional(*number != 0) : std::nullopt;
}

/// Hexadecimal colours are unsigned and decimal ones may be negative: both are the same 32 bits.
uint32_t Bits(double number) {
  return static_cast<uint32_t>(static_cast<int64_t>(number));
}

QString WithoutAccessKey(QString caption) {
  static const QRegularExpression access(QStringLiteral("&(.)"));
  return caption.replace(access, QStringLiteral("\\1"));
}

}  // namespace

QString Value::Text() const {
  switch (kind) {
    case ValueKind::Boolean:
      return value.toBool() ? QStringLiteral("True") : QStringLiteral("False");
    case ValueKind::Colour:
      return QStringLiteral("0x%1").arg(Bits(value.toDouble()), 6, 16, QLatin1Char('0'));
    case ValueKind::Number:
    case ValueKind::Twips:
      return QString::number(value.toDouble(), 'g', 9);
    default:
      return value.toString();
  }
}

std::optional<double> ReadNumber(const QString& text) {
  static const QRegularExpression hexadecimal(QStringLiteral("^\\s*(?:0x|&h)([0-9a-f]+)&?\\s*$"),
                                              QRegularExpression::CaseInsensitiveOption);
  bool good = false;
  const auto match = hexadecimal.match(text);
  const double number = match.hasMatch() ? static_cast<double>(match.captured(1).toULongLong(&good, 16))
                                         : text.trimmed().toDouble(&good);
  return good ? std::optional(number) : std::nullopt;
}

bool Equal(const Value& actual, const QString& expected) {
  const std::optional<double> wanted = ReadNumber(expected);
  switch (actual.kind) {
    case ValueKind::Caption:
      return actual.Text() == expected || WithoutAccessKey(actual.Text()) == expected;
    case ValueKind::Name:
      return actual.Text().compare(expected, Qt::CaseInsensitive) == 0;
    case ValueKind::Boolean:
      return ReadBoolean(expected) == actual.value.toBool();
    case ValueKind::Colour:
      return wanted && Bits(*wanted) == Bits(actual.value.toDouble());
    case ValueKind::Number:
      return wanted && std::abs(*wanted - actual.value.toDouble()) < 1e-4;
    case ValueKind::Twips:
      return wanted && std::abs(*wanted - actual.value.toDouble()) <= 0.5;
    default:
      return actual.Text() == expected;
  }
}

QString InQuotes(QString text) {
  static const std::pair<const char*, const char*> escapes[] = {
      {"\\", "\\\\"}, {"\"", "\\\""}, {"\r", "\\r"}, {"\t", "\\t"}, {"\n", "\\n"}};
  for (const auto& [plain, escaped] : escapes) text.replace(QLatin1String(plain), QLatin1String(escaped));
  return QLatin1Char('"') + text + QLatin1Char('"');
}

}  // namespace quillane::scenario
