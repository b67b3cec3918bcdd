// Numbers as text, in the fixed forms that proposals and their files use whatever the desktop's language.
#pragma once
#include <QString>
#include <QStringView>

namespace quillane {

/// True for text that reads as a number: blanks around it, one leading or trailing sign, group commas in the
/// whole part, a decimal point, an exponent, a "$" in front, or the whole in parentheses, which make it
/// negative. Empty text is no number, nor is one beyond double precision.
bool IsNumeric(QStringView text);

/// The number that IsNumeric text stands for.  Throws 13 when it is not numeric, 6 when it is beyond the
/// type.
double ToDouble(QStringView text);
float ToSingle(QStringView text);

/// The value of the longest numeric beginning of `text` (blanks anywhere are skipped, no group commas); 0
/// where there is none.  Throws 6 when it is beyond the type.
double Val(QStringView text);

/// The shortest decimal text that reads back as the same single: "7.5", "0.5", "-1250", "1234.5"; "1E+20" for
/// one of more than fifteen whole digits.  This and the formats throw 6 for a sum that has overflowed.
QString SingleText(float value);

/// As SingleText, but with a leading blank for a number that is not negative and no zero before the point: "
/// .25".
QString StrText(float value);

/// Formats through a pattern of '#', '0', ',' and '.': digits and group commas as the pattern asks, rounded
/// half away from zero on the shortest decimal text of the value.  A result of zero has no sign.
QString FormatNumber(float value, const QString& pattern);
QString FormatNumber(double value, const QString& pattern);
/// The same on a text: empty gives empty, text that is no number is given back as it stands.
QString FormatText(const QString& text, const QString& pattern);

/// The patterns in use.
namespace patterns {
inline const QString Money = QStringLiteral("##,##0.00");
inline const QString Amount = QStringLiteral("###,##0.00");
inline const QString Product = QStringLiteral("###,###.00");
inline const QString Report = QStringLiteral("##,###.00");
inline const QString Comparison = QStringLiteral("#########.00");
inline const QString Rate = QStringLiteral("##.00");
inline const QString Position = QStringLiteral("##.##");
inline const QString Inches = QStringLiteral("#0.00");
}  // namespace patterns

}  // namespace quillane
