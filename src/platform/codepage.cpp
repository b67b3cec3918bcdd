#include "platform/codepage.h"

namespace quillane {
QString FromCodePage(const QByteArray& b) { return QString::fromLatin1(b); }
QByteArray ToCodePage(const QString& t) { return t.toLatin1(); }
QString FoldToCodePage(const QString& t) { return t; }
}  // namespace quillane
