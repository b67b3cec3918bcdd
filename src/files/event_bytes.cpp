// The fixed layout of the proposal's file: where a field lies, how long it is, and what its bytes mean.
#include <algorithm>

#include "files/event_file.h"
#include "platform/codepage.h"

namespace quillane {

namespace {

constexpr int BufferLength =
    120;  // every field is written through a buffer of this length, whatever its width
constexpr int FileLength =
    22000;  // the last field's buffer reaches this far; the length tells a current file
constexpr char ExemptMark = '\xD8';
constexpr QChar QuantitySign(0xA5);
constexpr QChar EachSign(0xA7);

// Files of older releases are known by their lengths alone.
struct OlderLength {
  qsizetype bytes;
  int amountWidth, longWidth;
};
constexpr OlderLength OlderLengths[] = {{17880, 10, 120}, {17170, 10, 100}, {17770, 20, 100}};

int WidthOf(int pageIndex, int area) {
  return AreaLimit(page(pageIndex).txt[area]);
}

int WidthInFile(int width, qsizetype fileLength) {
  for (const OlderLength& older : OlderLengths)
    if (older.bytes == fileLength)
      return width == 20 ? older.amountWidth : width == 120 ? older.longWidth : width;
  return width;
}

QByteArray FieldBuffer(const QString& text, int width, bool exempt) {
  QByteArray field = ToCodePage(text).left(width);
  if (exempt) field.prepend(ExemptMark);
  return field.leftJustified(BufferLength, ' ', true);
}

// Past its end a short file reads as blanks on the item pages, but as zero bytes on the totals page, whose
// deposit thereby makes itself known as missing.
QByteArray FieldBytes(const QByteArray& bytes, qsizetype position, int width, bool itemPage) {
  QByteArray field = bytes.mid(position, width);
  field.append(width - field.size(), itemPage ? ' ' : '\0');
  if (itemPage && field.count('\0') == field.size()) field.fill(' ');
  return field;
}

}  // namespace

QByteArray EventFileBytes(const PageTexts& texts, const std::function<bool(int, int)>& exempt) {
  QByteArray bytes(FileLength, ' ');
  qsizetype position = 0;
  for (int p = 0; p < IndexedPages; ++p) {
    for (int i = 0; i < AreaCount(p); ++i) {
      const int width = WidthOf(p, i);
      const QString& text = texts[p][i];
      bytes.replace(position, BufferLength, FieldBuffer(text, width, p < ItemPages && exempt(p, i)));
      position += width;
    }
  }
  return bytes;
}

QByteArray EventFileBytes() {
  return EventFileBytes(proposal.PageText, [](int p, int i) { return proposal.TextRec[p][i].TaxExempt; });
}

EventFields ReadEventFields(const QByteArray& bytes) {
  EventFields fields;
  qsizetype position = 0;
  for (int p = 0; p < IndexedPages; ++p) {
    Array<QString>& texts = fields.text[p];
    for (int i = 0; i < AreaCount(p); ++i) {
      const int width = WidthInFile(WidthOf(p, i), bytes.size());
      texts.push_back(FromCodePage(FieldBytes(bytes, position, width, p < ItemPages)));
      position += width;
    }
  }
  return fields;
}

std::optional<ColumnTexts> SplitColumns(const QString& stored) {
  if (!stored.startsWith(QuantitySign)) return std::nullopt;
  const qsizetype second = stored.indexOf(QuantitySign, 1);
  if (second < 0) return std::nullopt;
  const qsizetype third = stored.indexOf(EachSign, second + 1);
  if (third < 0) return std::nullopt;
  return ColumnTexts{stored.mid(1, second - 1), stored.mid(second + 1, third - second - 1),
                     stored.mid(third + 1)};
}

bool HasStrayMark(const QString& stored) {
  return !SplitColumns(stored) && (stored.contains(QuantitySign) || stored.contains(EachSign));
}

}  // namespace quillane
