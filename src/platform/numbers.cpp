#include "platform/numbers.h"

#include <stdexcept>
namespace quillane {
bool IsNumeric(QStringView) { return false; }
double ToDouble(QStringView) { return 0; }
float ToSingle(QStringView) { return 0; }
double Val(QStringView) { return 0; }
QString SingleText(float) { return {}; }
QString StrText(float) { return {}; }
QString FormatNumber(float, const QString&) { return {}; }
QString FormatNumber(double, const QString&) { return {}; }
QString FormatText(const QString& text, const QString&) { return text; }
}  // namespace quillane
