// The syntax of vCard files: versions 3.0 and 4.0 (RFC 6350) are read, and what 2.1 does differently; 4.0 is
// written.
#pragma once
#include <QByteArray>
#include <QString>
#include <QStringList>
#include <vector>

namespace quillane {

struct VCardProperty {
  QString name;        ///< in capitals, without its group: "TEL"
  QStringList types;   ///< in small letters: "home", "pref"
  int preference = 0;  ///< 1 comes first; where nothing is said, behind all that say it
  QString valueType;   ///< "text" or "uri" where the card says which, in small letters
  QString value;       ///< decoded, with its escapes
};
using VCard = std::vector<VCardProperty>;

/// The cards of a file, with the properties that a record has a field for.  Lines that are no property,
/// properties of a card within a card, and what stands outside any card are passed over; a card without its
/// end holds what is there.
std::vector<VCard> ReadVCards(const QByteArray& file);

/// The text that a value stands for; a line break in it is "\n".
QString UnescapedText(const QString& value);
/// The parts between separators that no backslash escapes, each with its escapes.
QStringList SplitValue(const QString& value, QChar separator);

/// The value that stands for a text.  Control characters but tabs and line breaks become blanks.
QString EscapedText(const QString& text);
/// One property line as the file has it, folded at 75 bytes.  `name` carries its parameters:
/// "TEL;TYPE=home".
QByteArray PropertyLine(const QString& name, const QString& value);

}  // namespace quillane
