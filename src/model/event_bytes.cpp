// The fixed layout of the proposal's file: where a field lies, how long it is, and what its bytes mean.
#include "model/event_bytes.h"

#include "platform/codepage.h"

namespace quillane {

namespace {

constexpr int BufferLength =
    120;  // every field is written through a buffer of this length, whatever its width
constexpr int FileLength =
    22000;  // the last field's buffer reaches this far; the length tells a current file
constexpr char ExemptMark = '\xD8';
constexpr QChar ExemptSign(0xD8);

// Files of older releases are known by their lengths alone.
struct OlderLength {
  qsizetype bytes;
  int amountWidth, longWidth;
};
constexpr OlderLength OlderLengths[] = {{17880, 10, 120}, {17170, 10, 100}, {17770, 20, 100}};

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

// Blanks only: a stored text may begin or end with any other character, a hard blank included.
QString WithoutTrailingBlanks(QString text) {
  while (text.endsWith(QLatin1Char(' '))) text.chop(1);
  return text;
}

QString WithoutBlanks(const QString& text) {
  QString trimmed = WithoutTrailingBlanks(text);
  qsizetype first = 0;
  while (first < trimmed.size() && trimmed[first] == QLatin1Char(' ')) ++first;
  return trimmed.mid(first);
}

TextAreaRecord TextOfField(const QString& field) {
  TextAreaRecord area;
  area.Text = WithoutTrailingBlanks(field);
  return area;
}

TextAreaRecord RowOfField(const QString& field) {
  TextAreaRecord row = TextOfField(field);
  if (const std::optional<ColumnTexts> parts = SplitColumns(row.Text)) {
    row.QtyBox = true;
    row.QtyValue = parts->quantity;
    row.Text = parts->description;
    row.AmtValue = parts->each;
  }
  return row;
}

TextAreaRecord AmountOfField(const QString& field) {
  TextAreaRecord amount = TextOfField(field);
  QString text = WithoutBlanks(field);
  amount.TaxExempt = text.startsWith(ExemptSign);
  if (amount.TaxExempt) amount.Text = text = WithoutBlanks(text.mid(1));
  amount.AreaAmount = AmountIn(text).value_or(0.0F);
  return amount;
}

}  // namespace

QByteArray EventFileBytes(const Document& document) {
  QByteArray bytes(FileLength, ' ');
  qsizetype position = 0;
  for (int p = 0; p < IndexedPages; ++p) {
    for (int i = 0; i < AreaCount(p); ++i) {
      const int width = shape::FieldWidth(p, i);
      const TextAreaRecord& area = document.TextRec[p][i];
      const bool exempt = shape::IsItemPage(p) && area.TaxExempt;
      bytes.replace(position, BufferLength, FieldBuffer(StoredForm(area), width, exempt));
      position += width;
    }
  }
  return bytes;
}

EventFields ReadEventFields(const QByteArray& bytes) {
  EventFields fields;
  qsizetype position = 0;
  for (int p = 0; p < IndexedPages; ++p) {
    Array<QString>& texts = fields.text[p];
    for (int i = 0; i < AreaCount(p); ++i) {
      const int width = WidthInFile(shape::FieldWidth(p, i), bytes.size());
      texts.push_back(FromCodePage(FieldBytes(bytes, position, width, shape::IsItemPage(p))));
      position += width;
    }
  }
  return fields;
}

Document ReadEventFile(const QByteArray& bytes) {
  const EventFields fields = ReadEventFields(bytes);
  Document document;
  for (int p = 0; p < ItemPages; ++p)
    for (int i = 0; i < AreaCount(p); ++i)
      document.TextRec[p][i] = shape::IsAmount(p, i) ? AmountOfField(fields.text[p][i])
                               : shape::IsRow(p, i)  ? RowOfField(fields.text[p][i])
                                                     : TextOfField(fields.text[p][i]);
  for (int i = 0; i < AreaCount(shape::Totals); ++i)
    document.TextRec[shape::Totals][i].Text = WithoutBlanks(fields.text[shape::Totals][i]);
  document.DepositReceived = AmountIn(document.TextRec[shape::Totals][shape::Deposit].Text).value_or(0.0F);
  return document;
}

}  // namespace quillane
