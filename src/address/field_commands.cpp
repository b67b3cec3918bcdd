#include "address/field_commands.h"

#include <algorithm>

#include "address/book.h"
#include "address/contact_parts.h"
#include "platform/dates.h"
#include "ui/desk.h"

namespace quillane {

namespace {

AddressBook& book = addressBook;

/// The first letter of each word as a capital, the others small, one character for one.
QString ProperCase(const QString& text) {
  QString proper = text;
  QChar before = u' ';
  for (QChar& c : proper) {
    const QString letter(c);
    c = before.isSpace() ? UpperCase(letter)[0] : c.toLower();
    before = c;
  }
  return proper;
}

bool IsDigits(const QString& text) {
  return !text.isEmpty() && std::ranges::all_of(text, [](QChar c) { return c >= u'0' && c <= u'9'; });
}

void CopyFields(int count) {
  QStringList texts;
  for (int i = 0; i < count; ++i) texts << book.txt[i].Text;
  desk().SetClipboardText(texts.join(u'\n'));
}

void SelectAll(int index) {
  book.txt[index].SelStart = 0;
  book.txt[index].SelLength = static_cast<int>(book.txt[index].Text.size());
}

}  // namespace

void DoubleClickField(int index) {
  const QString text = book.txt[index].Text;
  if (!book.CompanyInfoMode) {
    if (index <= field::City) SetField(index, ProperCase(text));
    if (index >= field::Phone && index <= field::Cell && IsDigits(text)) SetField(index, PhoneText(text));
    if (const auto date = ParseDate(text); index == field::EventDate && date)
      return SetField(index, EventDateText(*date));
  }
  SelectAll(index);
}

QString FieldTip(int index) {
  const QString tip = QStringLiteral("Double-click to change format: i.e., %1");
  if (book.CompanyInfoMode || index > field::EventDate) return {};
  if (index <= field::City) return tip.arg(QStringLiteral("john doe becomes John Doe"));
  if (index <= field::Cell) return tip.arg(QStringLiteral("1234567890 becomes (123) 456-7890"));
  return tip.arg(QStringLiteral("12/17/08 becomes Dec 17, 2008"));
}

int FieldBelow(int index) {
  if (!book.CompanyInfoMode) return std::min(index + 1, field::Count - 1);
  return index == field::Cell ? field::Contact : std::min<int>(index + 1, field::Email);
}

int FieldAbove(int index) {
  if (book.CompanyInfoMode && index == field::Contact) return field::Cell;
  return std::max(index - 1, 0);
}

QString PhoneText(const QString& digits) {
  const QString line = digits.right(4), rest = digits.chopped(line.size());
  const QString exchange = rest.right(3);
  return QStringLiteral("(%1) %2-%3").arg(rest.chopped(exchange.size()), exchange, line);
}

void CopyAllCommand() {
  CopyFields(field::Count);
}
void CopyNameAddressCommand() {
  CopyFields(field::City + 1);
}

}  // namespace quillane
