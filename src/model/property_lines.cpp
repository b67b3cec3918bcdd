#include "model/property_lines.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "platform/codepage.h"
#include "platform/files.h"
#include "platform/numbers.h"
#include "platform/runtime_error.h"

namespace quillane {

namespace {

enum class Presence { Required, Optional };

// A value runs from the end of its key to `until`, or to the end of the line.  Values with blanks of their
// own run up to the key that follows; there is no escape.
struct KeySpec {
  const char* key;
  const char* until;
  Presence presence = Presence::Required;
};

struct WordSpec {
  const char* name;  // behind the page's name; empty for the user's font
  LineWord word;
  bool indexed;
  std::vector<KeySpec> keys;
};

const std::vector<WordSpec>& Words() {
  static const std::vector<WordSpec> words = {
      {"txt",
       LineWord::Text,
       true,
       {{".FontBold=", " ", Presence::Optional},
        {".Text=", "", Presence::Optional},
        {".TaxExempt=", "", Presence::Optional}}},
      {"txq",
       LineWord::Columns,
       true,
       {{".QtyBox=", " "},
        {".QtyValue=", " .AmtValue=", Presence::Optional},
        {".AmtValue=", "", Presence::Optional}}},
      {"lbl",
       LineWord::Label,
       true,
       {{".Left=", " "},
        {".Top=", " "},
        {".Caption=", " .FontName="},
        {".FontName=", " .FontBold="},
        {".FontBold=", " "},
        {".FontSize=", " "},
        {".ForeColor=", " "},
        {".FontItalic=", " ", Presence::Optional},
        {".FontUnderline=", "", Presence::Optional}}},
      {"pic", LineWord::Logo, false, {{".Picture=", " .Left="}, {".Left=", " "}, {".Top=", ""}}},
      {"UDP",
       LineWord::UserFont,
       false,
       {{".FontName=", " .FontSize="}, {".FontSize=", " "}, {".FontColor=", " "}, {".FontItalic=", ""}}},
  };
  return words;
}

constexpr qsizetype LongestLine = 32767;
constexpr float FarthestPlace = 100000;  // twips; several sheets beyond any edge
constexpr float LargestFont = 1000;      // points; no letter on a sheet is larger

// A report shows where the file went wrong, and not ten megabytes of it.
QString Shown(const QString& text) {
  return text.size() <= 80 ? text : text.left(80) + QStringLiteral("...");
}

const WordSpec* FindWord(QStringView name) {
  for (const WordSpec& word : Words())
    if (name == QLatin1String(word.name)) return &word;
  return nullptr;
}

int PageNamed(QStringView name) {
  for (int p = 0; p < IndexedPages; ++p)
    if (shape::PageName(p) == name) return p;
  return -1;
}

QString KeyName(const KeySpec& spec) {
  const QString key = QString::fromLatin1(spec.key);
  return key.mid(1, key.size() - 2);
}

std::map<QString, QString> TakeValues(const QString& body, const std::vector<KeySpec>& keys,
                                      const QString& line) {
  std::map<QString, QString> values;
  qsizetype position = 0;
  for (const KeySpec& spec : keys) {
    const QLatin1String key(spec.key), until(spec.until);
    if (!QStringView(body).sliced(position).startsWith(key)) {
      if (spec.presence == Presence::Required) Raise(errors::InvalidProcedureCall, Shown(line));
      continue;
    }
    const qsizetype start = position + key.size();
    qsizetype end = until.isEmpty() ? -1 : body.indexOf(until, start);
    if (end < 0) end = body.size();
    values[KeyName(spec)] = body.mid(start, end - start);
    position = std::min(end + 1, body.size());
  }
  if (values.empty()) Raise(errors::InvalidProcedureCall, Shown(line));
  return values;
}

int TakeIndex(const QString& line) {
  const qsizetype open = line.indexOf(QLatin1Char('('));
  const qsizetype close = line.indexOf(QLatin1Char(')'));
  bool isNumber = false;
  const int index = line.mid(open + 1, close - open - 1).trimmed().toInt(&isNumber);
  if (open < 0 || close < open || !isNumber) Raise(errors::TypeMismatch, Shown(line));
  return index;
}

QString FlagText(bool value) {
  return value ? QStringLiteral("True") : QStringLiteral("False");
}

QString ControlName(int pageIndex, const char* array, int index) {
  return QStringLiteral("%1.%2(%3)").arg(shape::PageName(pageIndex), QString::fromLatin1(array)).arg(index);
}

// A line is a line: a caption that holds a line break would cut it in two.
QString OneLine(QString text) {
  return text.replace(QStringLiteral("\r\n"), QStringLiteral(" "))
      .replace(QLatin1Char('\n'), QLatin1Char(' '))
      .replace(QLatin1Char('\r'), QLatin1Char(' '));
}

}  // namespace

const QString& PropertyLine::Text(const char* key) const {
  const auto found = values.find(QString::fromLatin1(key));
  if (found == values.end()) Raise(errors::InvalidProcedureCall, QString::fromLatin1(key));
  return found->second;
}

bool PropertyLine::Flag(const char* key) const {
  const QString text = Text(key).trimmed();
  if (text.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0) return true;
  if (text.compare(QLatin1String("False"), Qt::CaseInsensitive) == 0) return false;
  Raise(errors::TypeMismatch, QString::fromLatin1(key) + QLatin1Char('=') + Shown(text));
}

float PropertyLine::Single(const char* key) const {
  if (!IsNumeric(Text(key)))
    Raise(errors::TypeMismatch, QString::fromLatin1(key) + QLatin1Char('=') + Shown(Text(key)));
  return ToSingle(Text(key));
}

float PropertyLine::Place(const char* key) const {
  const float place = Single(key);
  if (std::abs(place) > FarthestPlace) Raise(errors::Overflow, QString::fromLatin1(key));
  return place;
}

float PropertyLine::FontSize() const {
  const float size = Single("FontSize");
  if (size <= 0 || size > LargestFont) Raise(errors::InvalidProcedureCall, QStringLiteral("FontSize"));
  return size;
}

int PropertyLine::Integer(const char* key) const {
  bool isNumber = false;
  const int value = Text(key).trimmed().toInt(&isNumber);
  if (!isNumber) Raise(errors::TypeMismatch, QString::fromLatin1(key) + QLatin1Char('=') + Shown(Text(key)));
  return value;
}

PropertyLine ParseLine(const QString& line) {
  PropertyLine parsed;
  parsed.page = PageNamed(QStringView(line).left(5));
  const bool userFont = line.startsWith(QLatin1String("UDP"));
  if (!userFont && !line.startsWith(QLatin1String("frm"))) return parsed;
  const WordSpec* word = FindWord(userFont ? QStringView(line).left(3) : QStringView(line).mid(6, 3));
  if (!word) return parsed;
  if (line.size() > LongestLine) Raise(errors::Overflow, Shown(line));
  parsed.word = word->word;
  if (word->indexed) parsed.index = TakeIndex(line);
  const qsizetype body = word->indexed ? line.indexOf(QLatin1Char(')')) + 1 : userFont ? 3 : 9;
  parsed.values = TakeValues(line.mid(body), word->keys, line);
  return parsed;
}

QString BoldLine(int pageIndex, int area) {
  return ControlName(pageIndex, "txt", area) + QStringLiteral(".FontBold=True");
}

QString ColumnsLine(int pageIndex, int row) {
  return ControlName(pageIndex, "txq", row) + QStringLiteral(".QtyBox=True");
}

QString ColumnsLine(int pageIndex, int row, const QString& quantity, const QString& each) {
  return ColumnsLine(pageIndex, row) + QStringLiteral(" .QtyValue=") + OneLine(quantity) +
         QStringLiteral(" .AmtValue=") + OneLine(each);
}

QString TextLine(int pageIndex, int area, const QString& text) {
  return ControlName(pageIndex, "txt", area) + QStringLiteral(".Text=") + OneLine(text);
}

QString ExemptLine(int pageIndex, int area) {
  return ControlName(pageIndex, "txt", area) + QStringLiteral(".TaxExempt=True");
}

QString LogoLine(const QString& path, float left, float top) {
  return QStringLiteral("frmP1.pic.Picture=") + path + QStringLiteral(" .Left=") + SingleText(left) +
         QStringLiteral(" .Top=") + SingleText(top);
}

QString LabelLine(int pageIndex, int label, const LabelValues& record) {
  // Joined piece by piece: a caption may hold "%1".
  return ControlName(pageIndex, "lbl", label) + QStringLiteral(".Left=") + SingleText(record.Left) +
         QStringLiteral(" .Top=") + SingleText(record.Top) + QStringLiteral(" .Caption=") +
         OneLine(record.Caption) + QStringLiteral(" .FontName=") + record.FontName +
         QStringLiteral(" .FontBold=") + FlagText(record.FontBold) + QStringLiteral(" .FontSize=") +
         SingleText(record.FontSize) + QStringLiteral(" .ForeColor=") + QString::number(record.ForeColor) +
         QStringLiteral(" .FontItalic=") + FlagText(record.FontItalic) + QStringLiteral(" .FontUnderline=") +
         FlagText(record.FontUnderline);
}

QString UserFontLine(const UserFont& font) {
  return QStringLiteral("UDP.FontName=") + font.FontName + QStringLiteral(" .FontSize=") +
         SingleText(font.FontSize) + QStringLiteral(" .FontColor=") + QString::number(font.FontColor) +
         QStringLiteral(" .FontItalic=") + FlagText(font.FontItalic);
}

QStringList ReadPropertyLines(const QString& path) {
  QStringList lines;
  for (const QByteArray& line : ReadFileLines(path)) lines << FromCodePage(line);
  return lines;
}

QByteArray BytesOfLines(const QStringList& lines) {
  QByteArray bytes;
  for (const QString& line : lines) bytes += ToCodePage(line) + "\r\n";
  return bytes;
}

void TakeLabelValues(const PropertyLine& line, LabelValues& record) {
  record.Left = line.Place("Left");
  record.Top = line.Place("Top");
  record.Caption = line.Text("Caption");
  record.FontName = line.Text("FontName");
  record.FontBold = line.Flag("FontBold");
  record.FontSize = line.FontSize();
  record.ForeColor = line.Integer("ForeColor");
  if (line.Has("FontItalic")) record.FontItalic = line.Flag("FontItalic");
  if (line.Has("FontUnderline")) record.FontUnderline = line.Flag("FontUnderline");
}

}  // namespace quillane
