// The line language of property and format files: one line states the properties of one control.
#pragma once
#include <QByteArray>
#include <QString>
#include <QStringList>
#include <map>

#include "model/document.h"

namespace quillane {

enum class LineWord { None, Text, Columns, Label, Logo, UserFont };

/// One line taken apart.  `values` is by key, without the dot and the equals sign: "FontBold", "Caption".
struct PropertyLine {
  LineWord word = LineWord::None;
  int page = -1;   ///< 0 to 5; -1 when the line names no page of this program
  int index = -1;  ///< of the control in its array; -1 for the logo and the user's font
  std::map<QString, QString> values;

  bool Has(const char* key) const { return values.contains(QString::fromLatin1(key)); }
  /// The value of a key as text.  Throws 5 when the line does not state it.
  const QString& Text(const char* key) const;
  /// "True" or "False".  Throws 5 or 13.
  bool Flag(const char* key) const;
  /// Throws 5, 6 or 13.
  float Single(const char* key) const;
  int Integer(const char* key) const;
  /// A place in twips.  Throws 6 for one that no page reaches.
  float Place(const char* key) const;
  /// Points.  Throws 5 for a size that no letter has.
  float FontSize() const;
};

/// Takes a line apart.  A line of neither kind gives LineWord::None; a malformed one throws 5 or 13.
PropertyLine ParseLine(const QString& line);

QString BoldLine(int page, int area);
QString ColumnsLine(int page, int row);
/// What a format's line states beside that: the texts of the quantity and of the each-price.
QString ColumnsLine(int page, int row, const QString& quantity, const QString& each);
QString TextLine(int page, int area, const QString& text);
QString ExemptLine(int page, int area);
QString LogoLine(const QString& path, float left, float top);
QString LabelLine(int page, int label, const LabelValues& record);
QString UserFontLine(const UserFont& font);

/// The lines of a property or format file.  Throws what ReadWholeFile throws.
QStringList ReadPropertyLines(const QString& path);
/// The bytes of such a file, each line with its end.
QByteArray BytesOfLines(const QStringList& lines);

/// The nine values of a label line, as a record keeps them; FontItalic and FontUnderline stay as they are
/// in `record` when an older line does not state them.
void TakeLabelValues(const PropertyLine& line, LabelValues& record);

}  // namespace quillane
