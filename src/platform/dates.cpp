#include "platform/dates.h"

namespace quillane {
std::optional<QDate> ParseDate(const QString&) { return {}; }
bool IsDate(const QString&) { return false; }
QString LongDate(QDate) { return {}; }
QString GeneralDateTime(const QDateTime&) { return {}; }
}  // namespace quillane
