#include "address/record.h"

#include <QStringList>
#include <algorithm>
#include <array>

#include "platform/codepage.h"

namespace quillane {

namespace {

constexpr std::array<int, field::Count> Widths = {40, 40, 40, 40, 20, 20, 20, 20, 40, 40, 200};
const QString CrLf = QStringLiteral("\r\n");

template <class Text>
Text WithoutBlanksAround(const Text& text) {
  qsizetype start = 0, end = text.size();
  while (start < end && text[start] == ' ') ++start;
  while (end > start && text[end - 1] == ' ') --end;
  return text.sliced(start, end - start);
}

QByteArray Fitted(const QString& text, int width) {
  const QByteArray bytes = ToCodePage(text);
  const bool halfBreak = bytes.size() > width && bytes[width] == '\n' && bytes[width - 1] == '\r';
  return bytes.left(halfBreak ? width - 1 : width).leftJustified(width, ' ');
}

using ByteTable = std::array<char, 256>;

ByteTable MakeCapitals() {
  ByteTable capitals{};
  for (int i = 0; i < 256; ++i) {
    const char byte = static_cast<char>(i);
    const QChar capital = FromCodePage(QByteArray(1, byte))[0].toUpper();
    const QByteArray bytes = ToCodePage(capital);
    // Where the code page has only an equivalent of the capital, the letter is its own.
    const bool has = bytes.size() == 1 && FromCodePage(bytes) == capital;
    capitals[static_cast<size_t>(i)] = has ? bytes[0] : byte;
  }
  return capitals;
}

}  // namespace

int FieldWidth(int field) {
  RequireIndex(field, field::Count);
  return Widths[static_cast<size_t>(field)];
}

AddressRecord RecordOf(const FieldTexts& texts) {
  AddressRecord record;
  for (int i = 0; i < field::Count; ++i) record.Field[i] = Fitted(texts[i], FieldWidth(i));
  return record;
}

FieldTexts TextsOf(const AddressRecord& record) {
  FieldTexts texts;
  for (int i = 0; i < field::Count; ++i) texts[i] = TrimBlanks(FromCodePage(record.Field[i]));
  return texts;
}

QByteArray BytesOf(const AddressRecord& record) {
  QByteArray bytes;
  bytes.reserve(RecordSize);
  for (const QByteArray& field : record.Field) bytes += field;
  return bytes;
}

AddressRecord RecordFromBytes(QByteArrayView bytes) {
  const QByteArray whole = bytes.toByteArray().leftJustified(RecordSize, ' ', true);
  AddressRecord record;
  int offset = 0;
  for (int i = 0; i < field::Count; ++i) {
    record.Field[i] = whole.mid(offset, FieldWidth(i));
    offset += FieldWidth(i);
  }
  return record;
}

QString TrimBlanks(const QString& text) {
  return WithoutBlanksAround(text);
}
QByteArrayView TrimmedBytes(QByteArrayView text) {
  return WithoutBlanksAround(text);
}

QByteArray UpperCaseBytes(QByteArrayView text) {
  static const ByteTable capitals = MakeCapitals();
  QByteArray upper(text.size(), Qt::Uninitialized);
  std::transform(text.begin(), text.end(), upper.begin(),
                 [](char c) { return capitals[static_cast<unsigned char>(c)]; });
  return upper;
}
QString UpperCase(const QString& text) {
  return FromCodePage(UpperCaseBytes(ToCodePage(text)));
}

QString WithCrLf(const QString& text) {
  // By hand: the toolkit's replace takes minutes over a clipboard of nothing but line breaks.
  QString normal;
  normal.reserve(text.size() + text.size() / 16);
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QChar c = text[i];
    if (c != u'\r' && c != u'\n') {
      normal += c;
      continue;
    }
    normal += CrLf;
    if (c == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') ++i;
  }
  return normal;
}

QString FieldInput(int field, const QString& text) {
  QStringList lines = WithCrLf(text).split(CrLf);
  for (QString& line : lines) line = FoldToCodePage(line);
  return lines.join(field == field::Notes ? CrLf : QStringLiteral(" "));
}

}  // namespace quillane
