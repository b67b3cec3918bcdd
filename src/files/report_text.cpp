// What the report says.
#include <iterator>

#include "files/export.h"
#include "model/proposal.h"
#include "pages/rows.h"
#include "pages/show_document.h"
#include "platform/codepage.h"

namespace quillane {

namespace {

const QString LineEnd = QStringLiteral("\r\n");

QString Rule(int length) {
  return QString(length, u'-') + LineEnd;
}
constexpr int SectionRule = 90, ItemRule = 45;

QString Heading(const char* words) {
  return QString::fromLatin1(words) + LineEnd + Rule(SectionRule);
}

QString Line(const QString& name, int tabs, const QString& value) {
  return name + QString(tabs, u'\t') + value + LineEnd;
}

QString Money(const QString& amount) {
  return prefs.CurrencySymbol + u' ' + amount;
}

/// One datum of page 1: the label that names it, the field that holds it, the tabs between.
struct Datum {
  int label, field;
  int tabs;
  const char* behindCaption = "";
};
constexpr Datum Bride[] = {{14, 2, 2}, {15, 3, 2}, {16, 4, 1}, {17, 5, 2}, {18, 6, 2}, {19, 7, 2}};
constexpr Datum Groom[] = {{21, 8, 2}, {22, 9, 2}, {23, 10, 1}, {24, 11, 2}, {25, 12, 2}, {26, 13, 2}};
constexpr Datum Ceremony[] = {{11, 0, 2, ":"}, {12, 1, 2, ":"}, {28, 14, 2}, {29, 15, 2}};
constexpr Datum Reception[] = {{33, 18, 3}, {34, 19, 3}, {31, 16, 2}, {32, 17, 2}};

template <size_t Count>
QString Section(const char* heading, const Datum (&data)[Count]) {
  QString text = Heading(heading);
  for (const Datum& datum : data)
    text += Line(page(0).lbl[datum.label].Caption() + QLatin1String(datum.behindCaption), datum.tabs,
                 PageText(0, datum.field).trimmed());
  return text + LineEnd + LineEnd;
}

QString PlainRow(const QString& text, bool bold) {
  if (text.isEmpty()) return LineEnd + LineEnd;
  return text + LineEnd + (bold ? Rule(ItemRule) : QString());
}

QString RowWithColumns(const QString& text, const QString& quantity, const QString& each) {
  if (text.isEmpty() && quantity.isEmpty() && each.isEmpty()) return LineEnd + LineEnd;
  QString parts;
  if (!text.isEmpty()) parts += Line(QStringLiteral("Desc:"), 3, text);
  if (!quantity.isEmpty()) parts += Line(QStringLiteral("Qty:"), 3, quantity);
  if (!each.isEmpty()) parts += Line(QStringLiteral("Amt Each:"), 2, Money(each));
  return parts;
}

QString Item(const Page& items, int row) {
  const TextAreaRecord area = ReadArea(items, row);
  const bool plain = !area.QtyBox || area.QtyValue == QuantityPrompt;
  const QString text = area.Text.trimmed(), each = area.AmtValue.trimmed();
  // A prompt stands in a column until something is typed there.
  QString item = plain ? PlainRow(text, area.FontBold)
                       : RowWithColumns(text, area.QtyValue.trimmed(), each == EachPrompt ? QString() : each);
  const QString amount = items.txt[row + items.AmountOffset()].Text().trimmed();
  if (!amount.isEmpty()) item += Line(QStringLiteral("Subtotal:"), 2, Money(amount)) + LineEnd;
  return item;
}

/// Of the pages in use: the last of them is the one with the totals.
QString Items() {
  QString text = Heading("Proposal Specifics") + LineEnd;
  for (int window = 0; window < proposal.HighestPage - 1; ++window)
    for (int row = page(window).FirstRow(); row <= page(window).LastRow(); ++row)
      text += Item(page(window), row);
  return text;
}

QString Totals() {
  struct Figure {
    const char* name;
    int tabs;
  };
  constexpr Figure figures[] = {{"Subtotal:", 2}, {"Taxable Amount:", 2},   {"Sales Tax:", 2},
                                {"Total:", 3},    {"Deposit Received:", 1}, {"Balance Due:", 2}};
  QString text = Heading("Totals");
  int area = 0;
  for (const Figure& figure : figures)
    text += Line(QString::fromLatin1(figure.name), figure.tabs, Money(page(5).txt[area++].Text().trimmed()));
  return text + LineEnd + LineEnd;
}

QString LabelLines(int first, int last) {
  QString text;
  for (int i = first; i <= last; ++i)
    if (const QString& caption = page(5).lbl[i].Caption(); !caption.isEmpty()) text += caption + LineEnd;
  return text;
}

/// Each signature has its space, whether or not a label names it.
QString Signatures() {
  struct Signature {
    int label;
    int lineEnds;
  };
  constexpr Signature block[] = {{47, 3}, {48, 1}, {49, 3}, {52, 1}, {53, 3},
                                 {50, 1}, {51, 3}, {54, 1}, {55, 3}};
  QString text;
  for (const Signature& signature : block)
    text += page(5).lbl[signature.label].Caption() + LineEnd.repeated(signature.lineEnds);
  return text;
}

}  // namespace

QString ProposalReport() {
  return prefs.CompanyName.trimmed() + QStringLiteral(" - ") + proposal.Title.trimmed() + LineEnd + LineEnd +
         Section("Bride Information", Bride) + Section("Groom Information", Groom) +
         Section("Ceremony Information", Ceremony) + Section("Reception Information", Reception) + Items() +
         Totals() + LabelLines(13, 46) + Signatures() + LabelLines(56, 62);
}

QByteArray ProposalReportBytes() {
  return ToCodePage(ProposalReport());
}

}  // namespace quillane
