// From a card to the fields of a record.
#include <QDate>
#include <QLocale>
#include <algorithm>

#include "address/contact_parts.h"
#include "address/contacts.h"

namespace quillane {

namespace {

const QString CrLf = QStringLiteral("\r\n");

QString Joined(const QStringList& parts, const QString& between) {
  QStringList filled;
  for (const QString& part : parts)
    if (!part.isEmpty()) filled << part;
  return filled.join(between);
}

QString PlainText(const QString& value) {
  return TrimBlanks(UnescapedText(value));
}

/// The properties of that name, the preferred one first.
std::vector<VCardProperty> All(const VCard& card, const char* name) {
  std::vector<VCardProperty> found;
  std::ranges::copy_if(card, std::back_inserter(found), [name](const VCardProperty& property) {
    return property.name == QLatin1String(name);
  });
  std::ranges::stable_sort(found, {}, &VCardProperty::preference);
  return found;
}

QString FirstText(const VCard& card, const char* name) {
  for (const VCardProperty& property : All(card, name))
    if (const QString text = PlainText(property.value); !text.isEmpty()) return text;
  return {};
}

/// The components of a structured value: at least `count`, each a text.
QStringList Components(const QString& value, int count) {
  QStringList parts;
  for (const QString& part : SplitValue(value, u';')) parts << PlainText(part);
  while (parts.size() < count) parts << QString();
  return parts;
}

QString PersonName(const VCard& card) {
  const QString full = FirstText(card, "FN");
  const std::vector<VCardProperty> names = All(card, "N");
  if (!full.isEmpty() || names.empty()) return full;
  enum { Family, Given, Additional, Prefix, Suffix, Count };
  const QStringList parts = Components(names.front().value, Count);
  return Joined({parts[Prefix], parts[Given], parts[Additional], parts[Family], parts[Suffix]},
                QStringLiteral(" "));
}

QString OrganizationName(const VCard& card) {
  const std::vector<VCardProperty> found = All(card, "ORG");
  return found.empty() ? QString() : Components(found.front().value, 1).front();
}

/// A person who is named, and not pointed to in another file.
QString RelatedPerson(const VCard& card) {
  for (const VCardProperty& property : All(card, "RELATED")) {
    const QString text = PlainText(property.value);
    const bool pointsAway = text.contains(QLatin1String("://")) || text.startsWith(QLatin1String("urn:"));
    if (!text.isEmpty() && (property.valueType == QLatin1String("text") || !pointsAway)) return text;
  }
  return {};
}

struct Names {
  QString name, contact, company;  ///< company: that of a person, which has no field
};

Names NamesOf(const VCard& card, Book book) {
  const QString person = PersonName(card), organization = OrganizationName(card);
  const QString related = RelatedPerson(card);
  if (organization.isEmpty()) return {person, related, {}};
  if (person.isEmpty()) return {organization, related, {}};
  if (book == Book::Personal) return {person, related, organization == person ? QString() : organization};
  return {organization, related.isEmpty() && person != organization ? person : related, {}};
}

VCardProperty BestAddress(const VCard& card, Book book) {
  const std::vector<VCardProperty> all = All(card, "ADR");
  if (all.empty()) return {};
  const QString type = book == Book::Personal ? QStringLiteral("home") : QStringLiteral("work");
  const auto best = std::ranges::find_if(
      all, [&type](const VCardProperty& address) { return address.types.contains(type); });
  return best == all.end() ? all.front() : *best;
}

void FillAddress(const VCard& card, Book book, FieldTexts& texts) {
  enum { PostBox, Extended, Street, Locality, Region, Code, Country, Count };
  const QString value = BestAddress(card, book).value;
  const QStringList parts = Components(value, Count);
  // Streets of several lines come as a list or as lines.
  QStringList lines;
  for (const QString& entry : SplitValue(SplitValue(value, u';').value(Street), u','))
    for (const QString& line : UnescapedText(entry).split(u'\n')) lines << TrimBlanks(line);
  texts[field::Address1] = lines.takeFirst();
  lines << parts[Extended] << parts[PostBox];
  texts[field::Address2] = Joined(lines, QStringLiteral(", "));
  if (texts[field::Address1].isEmpty() && parts[Street].isEmpty())
    std::swap(texts[field::Address1], texts[field::Address2]);
  texts[field::City] = CityLine({parts[Locality], parts[Region], parts[Code], parts[Country]});
}

QString NumberOf(const VCardProperty& phone) {
  QString number = PlainText(phone.value);
  if (phone.valueType != QLatin1String("uri")) return number;
  if (number.startsWith(QLatin1String("tel:"), Qt::CaseInsensitive)) number.remove(0, 4);
  return number.replace(QLatin1String(";ext="), QLatin1String(" x"));
}

/// The field that a telephone's types ask for.
int PhoneField(const VCardProperty& phone, Book book) {
  const auto is = [&phone](const char* type) { return phone.types.contains(QLatin1String(type)); };
  constexpr int NoField = -1;
  if (is("fax")) return book == Book::Company ? field::SecondPhone : NoField;
  if (is("pager")) return NoField;
  if (is("cell")) return field::Cell;
  if (is("work")) return book == Book::Company ? field::Phone : field::SecondPhone;
  return field::Phone;
}

/// Fills the fields of telephones and gives the numbers that found none.
QStringList FillPhones(const VCard& card, Book book, FieldTexts& texts) {
  QStringList left;
  for (const VCardProperty& phone : All(card, "TEL")) {
    const int wanted = PhoneField(phone, book);
    const QString number = NumberOf(phone);
    if (number.isEmpty()) continue;
    if (wanted >= 0 && texts[wanted].isEmpty()) {
      texts[wanted] = number;
    } else {
      left << (phone.types.contains(QLatin1String("fax")) ? QStringLiteral("Fax: ")
                                                          : QStringLiteral("Phone: ")) +
                  number;
    }
  }
  return left;
}

QStringList FillEmails(const VCard& card, FieldTexts& texts) {
  QStringList left;
  for (const VCardProperty& email : All(card, "EMAIL")) {
    const QString address = PlainText(email.value);
    if (texts[field::Email].isEmpty()) {
      texts[field::Email] = address;
    } else if (!address.isEmpty()) {
      left << QStringLiteral("Email: ") + address;
    }
  }
  return left;
}

QString EventDate(const VCard& card) {
  for (const char* name : {"ANNIVERSARY", "X-ANNIVERSARY"}) {
    for (const VCardProperty& property : All(card, name)) {
      const QString text = PlainText(property.value);
      const QString digits = QString(text).remove(u'-').left(8);
      const QDate date = QDate::fromString(digits, QStringLiteral("yyyyMMdd"));
      const bool isDate = date.isValid() && property.valueType != QLatin1String("text");
      if (!text.isEmpty()) return isDate ? EventDateText(date) : text;
    }
  }
  return {};
}

}  // namespace

QString EventDateText(QDate date) {
  return QLocale::c().toString(date, QStringLiteral("MMM dd,yyyy"));
}

QString CityLine(const CityParts& parts) {
  const QString state = Joined({parts.region, parts.code}, QStringLiteral(" "));
  const QString town = parts.region.isEmpty() ? Joined({parts.locality, parts.code}, QStringLiteral(" "))
                                              : Joined({parts.locality, state}, QStringLiteral(", "));
  return Joined({town, parts.country}, QStringLiteral(", "));
}

FieldTexts FieldsOfContact(const VCard& card, Book book) {
  FieldTexts texts;
  const Names names = NamesOf(card, book);
  texts[field::Name] = names.name;
  texts[field::Contact] = names.contact;
  FillAddress(card, book, texts);
  QStringList notes;
  for (const VCardProperty& note : All(card, "NOTE")) notes << WithCrLf(PlainText(note.value));
  if (!names.company.isEmpty()) notes << QStringLiteral("Company: ") + names.company;
  notes << FillPhones(card, book, texts) << FillEmails(card, texts);
  texts[field::EventDate] = EventDate(card);
  texts[field::Notes] = Joined(notes, CrLf);
  return texts;
}

}  // namespace quillane
