// Comparing what a script expects with what is there.
#pragma once
#include <QString>
#include <QVariant>
#include <optional>

namespace quillane::scenario {

/// How a property's values compare.
enum class ValueKind {
  Text,     ///< letter for letter
  Caption,  ///< letter for letter, with or without the "&" of an access key
  Name,     ///< without regard to case: font names
  Number,   ///< as numbers
  Twips,    ///< as numbers, half a twip apart at most
  Colour,   ///< as 32-bit integers, decimal or hexadecimal
  Boolean,  ///< "True" and "False", -1, 1 and 0
};

struct Value {
  ValueKind kind = ValueKind::Text;
  QVariant value;
  QString Text() const;  ///< as a script writes it
};

/// "&H80", "0x80" or decimal.
std::optional<double> ReadNumber(const QString& text);
/// True when `expected`, as a script writes it, is the value.
bool Equal(const Value& actual, const QString& expected);
/// In quotes, with line breaks and quotes escaped as scripts write them.
QString InQuotes(QString text);

}  // namespace quillane::scenario
