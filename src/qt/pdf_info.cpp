#include "qt/pdf_info.h"

#include <QRegularExpression>
#include <QStringEncoder>
#include <algorithm>

namespace quillane {

namespace {

/// A text of any language as the format writes one: UTF-16 behind its mark, in hexadecimal.
QByteArray TextObject(const QString& text) {
  QStringEncoder encode(QStringConverter::Utf16BE);
  return "<feff" + QByteArray(encode(text)).toHex() + ">";
}

/// The first group of the last place where `pattern` stands.
QByteArray LastMatch(const QByteArray& pdf, const char* pattern) {
  const QRegularExpression expression(QString::fromLatin1(pattern));
  QByteArray found;
  // One byte is one letter, so that places in the text are places in the file.
  auto matches = expression.globalMatch(QString::fromLatin1(pdf));
  while (matches.hasNext()) found = matches.next().captured(1).toLatin1();
  return found;
}

/// The dictionary of object `number`, from behind "<<" to its closing ">>".
QByteArray Dictionary(const QByteArray& pdf, const QByteArray& number) {
  const QByteArray head = "\n" + number + " 0 obj\n<<";
  const qsizetype at = pdf.indexOf(head);
  const qsizetype end = at < 0 ? -1 : pdf.indexOf("endobj", at);
  const qsizetype close = end < 0 ? -1 : pdf.lastIndexOf(">>", end);
  return close < at + head.size() ? QByteArray() : pdf.mid(at + head.size(), close - at - head.size());
}

}  // namespace

QByteArray WithAuthor(const QByteArray& pdf, const QString& author) {
  // The end of the file names everything that is needed; sheets before it may hold any bytes.
  const QByteArray tail = pdf.mid(std::max(pdf.lastIndexOf("trailer"), qsizetype{0}));
  const QByteArray info = LastMatch(tail, R"(/Info (\d+) 0 R)"), root = LastMatch(tail, R"(/Root (\d+) 0 R)"),
                   size = LastMatch(tail, R"(/Size (\d+))"), old = LastMatch(tail, R"(startxref\s+(\d+))");
  const QByteArray record = Dictionary(pdf, info);
  if (author.isEmpty() || root.isEmpty() || size.isEmpty() || old.isEmpty() || record.isEmpty()) return pdf;

  QByteArray out = pdf;
  if (!out.endsWith('\n')) out += '\n';
  const QByteArray place = QByteArray::number(out.size()).rightJustified(10, '0');
  out += info + " 0 obj\n<<" + record + "\n/Author " + TextObject(author) + "\n>>\nendobj\n";
  const QByteArray table = QByteArray::number(out.size());
  out += "xref\n" + info + " 1\n" + place + " 00000 n \n";
  out += "trailer\n<<\n/Size " + size + "\n/Info " + info + " 0 R\n/Root " + root + " 0 R\n/Prev " + old +
         "\n>>\nstartxref\n" + table + "\n%%EOF\n";
  return out;
}

}  // namespace quillane
