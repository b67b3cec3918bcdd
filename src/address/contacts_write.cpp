// From the fields of a record to a card.
#include <QRegularExpression>
#include <algorithm>

#include "address/contact_parts.h"
#include "address/contacts.h"
#include "address/names.h"
#include "platform/codepage.h"
#include "platform/dates.h"

namespace quillane {

namespace {

/// The parts of a city line that are put together to the same line again; else the line is the town.
CityParts PartsOfCity(const QString& line) {
  static const QRegularExpression form(QStringLiteral("^(.+), ([^,0-9]*[^,0-9 ])(?: ([0-9][0-9-]*))?$"));
  const QRegularExpressionMatch match = form.match(line);
  if (!match.hasMatch()) return {line, {}, {}, {}};
  const auto part = [&match](int number) { return TrimBlanks(match.captured(number)); };
  const CityParts parts{part(1), part(2), part(3), {}};
  return CityLine(parts) == line ? parts : CityParts{line, {}, {}, {}};
}

class CardWriter {
 public:
  CardWriter(const FieldTexts& texts, Book book) : texts_(texts), person_(book == Book::Personal) {}

  QByteArray Card() {
    Add("BEGIN", QStringLiteral("VCARD"));
    Add("VERSION", QStringLiteral("4.0"));
    Add("KIND", person_ ? QStringLiteral("individual") : QStringLiteral("org"));
    AddNames();
    AddAddress();
    AddText(person_ ? "TEL;TYPE=home" : "TEL;TYPE=work", field::Phone);
    AddText(person_ ? "TEL;TYPE=work" : "TEL;TYPE=fax", field::SecondPhone);
    AddText("TEL;TYPE=cell", field::Cell);
    AddText("EMAIL", field::Email);
    AddText("RELATED;TYPE=contact;VALUE=text", field::Contact);
    AddEventDate();
    AddText("NOTE", field::Notes);
    Add("END", QStringLiteral("VCARD"));
    return bytes_;
  }

 private:
  void Add(const char* name, const QString& value) {
    bytes_ += PropertyLine(QString::fromLatin1(name), value);
  }
  void AddText(const char* name, int field) {
    if (!texts_[field].isEmpty()) Add(name, EscapedText(texts_[field]));
  }

  /// A card must have a name, also where the record has none.
  QString FullName() const {
    for (const int field : {field::Name, field::Contact, field::Email, field::Phone, field::Cell})
      if (!texts_[field].isEmpty()) return texts_[field];
    return QStringLiteral("?");
  }
  void AddNames() {
    Add("FN", EscapedText(FullName()));
    if (person_) {
      AddNameParts();
    } else {
      AddText("ORG", field::Name);
    }
  }

  /// Last name, first names, and what stands behind.
  void AddNameParts() {
    const QByteArray name = ToCodePage(texts_[field::Name]);
    const PersonNameParts parts = PartsOfName(name);
    QString last = FromCodePage(parts.last.toByteArray());
    if (last.endsWith(u',')) last.chop(1);
    Add("N", EscapedText(last) + u';' + EscapedText(FromCodePage(parts.first.toByteArray())) +
                 QStringLiteral(";;;") + EscapedText(FromCodePage(TrimmedBytes(parts.suffix).toByteArray())));
  }

  void AddAddress() {
    const auto text = [this](int field) { return EscapedText(texts_[field]); };
    if (texts_[field::Address1].isEmpty() && texts_[field::Address2].isEmpty() &&
        texts_[field::City].isEmpty())
      return;
    QString street = text(field::Address1);
    if (!texts_[field::Address2].isEmpty()) street += u',' + text(field::Address2);
    const CityParts city = PartsOfCity(texts_[field::City]);
    Add(person_ ? "ADR;TYPE=home" : "ADR;TYPE=work",
        QStringLiteral(";;") + street + u';' + EscapedText(city.locality) + u';' + EscapedText(city.region) +
            u';' + EscapedText(city.code) + u';');
  }

  /// A date in the form that other programs read; one in words of its own as it stands.
  void AddEventDate() {
    const QString& text = texts_[field::EventDate];
    const auto date = ParseDate(text);
    if (date && EventDateText(*date) == text) {
      Add("ANNIVERSARY", date->toString(QStringLiteral("yyyyMMdd")));
    } else {
      AddText("ANNIVERSARY;VALUE=text", field::EventDate);
    }
  }

  const FieldTexts& texts_;
  bool person_;
  QByteArray bytes_;
};

}  // namespace

QByteArray ContactOf(const FieldTexts& texts, Book book) {
  if (std::ranges::all_of(texts, [](const QString& text) { return text.isEmpty(); })) return {};
  return CardWriter(texts, book).Card();
}

}  // namespace quillane
