#include "platform/codepage.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quillane {

namespace {

/// What the bytes 80 to 9F stand for; the five that the code page leaves open stand for themselves.
constexpr std::array<char16_t, 32> Upper = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                            0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                            0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                            0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// The byte of a character, or -1.
int ByteOf(char16_t c) {
  if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return c;
  const auto found = std::find(Upper.begin(), Upper.end(), c);
  return found == Upper.end() ? -1 : 0x80 + static_cast<int>(found - Upper.begin());
}

/// Equivalents that no decomposition gives, in order of the character.
struct Equivalent {
  char16_t character;
  const char* text;
};
constexpr Equivalent OtherEquivalents[] = {
    {0x0110, "D"},    {0x0111, "d"},  {0x0126, "H"},  {0x0127, "h"},    {0x0131, "i"}, {0x0138, "k"},
    {0x0141, "L"},    {0x0142, "l"},  {0x014A, "N"},  {0x014B, "n"},    {0x0166, "T"}, {0x0167, "t"},
    {0x0180, "b"},    {0x0189, "D"},  {0x0197, "I"},  {0x0237, "j"},    {0x02B9, "'"}, {0x02BA, "\""},
    {0x02BB, "'"},    {0x02BC, "'"},  {0x02C8, "'"},  {0x2010, "-"},    {0x2011, "-"}, {0x2012, "-"},
    {0x2015, "-"},    {0x201B, "'"},  {0x201F, "\""}, {0x2027, "\xB7"}, {0x2028, " "}, {0x2029, " "},
    {0x2032, "'"},    {0x2033, "\""}, {0x2035, "'"},  {0x2036, "\""},   {0x2043, "-"}, {0x2044, "/"},
    {0x2212, "-"},    {0x2215, "/"},  {0x2217, "*"},  {0x2219, "\xB7"}, {0x2223, "|"}, {0x223C, "~"},
    {0x25CF, "\x95"}, {0x301D, "\""}, {0x301E, "\""}};

bool TakesNoRoom(QChar c) {
  return c.category() == QChar::Other_Format || c.category() == QChar::Mark_NonSpacing ||
         c.category() == QChar::Mark_Enclosing;
}

/// The closest equivalent of one character that the code page lacks; empty for one that takes no room of its
/// own.
QString EquivalentOf(QChar c);

QString EquivalentOfParts(const QString& parts) {
  QString equivalent;
  for (const QChar part : parts)
    equivalent += ByteOf(part.unicode()) >= 0 ? QString(part) : EquivalentOf(part);
  return equivalent.contains(u'?') ? QStringLiteral("?") : equivalent;
}

QString EquivalentOf(QChar c) {
  const auto listed = std::find_if(std::begin(OtherEquivalents), std::end(OtherEquivalents),
                                   [c](const Equivalent& entry) { return entry.character == c.unicode(); });
  if (listed != std::end(OtherEquivalents)) return FromCodePage(listed->text);
  if (c == QChar(0x1E9E)) return QStringLiteral("\u00DF");
  if (TakesNoRoom(c)) return {};
  if (c.isSpace() || c.category() == QChar::Other_Control) return QStringLiteral(" ");
  const QString parts = QString(c).normalized(QString::NormalizationForm_KD);
  return parts == c ? QStringLiteral("?") : EquivalentOfParts(parts);
}

bool IsControl(QChar c) {
  return (c < u' ' && c != u'\t') || c == QChar(0x7F);
}

enum class Controls { Kept, Blanked };

bool Fits(const QString& text, Controls controls) {
  return std::all_of(text.begin(), text.end(), [controls](QChar c) {
    return ByteOf(c.unicode()) >= 0 && (controls == Controls::Kept || !IsControl(c));
  });
}

QString Fold(const QString& text, Controls controls) {
  if (Fits(text, controls)) return text;
  // Letters typed with their accent behind them become the one letter that the code page may have.
  const QString composed = text.normalized(QString::NormalizationForm_C);
  QString folded;
  for (qsizetype i = 0; i < composed.size(); ++i) {
    const QChar c = composed[i];
    if (controls == Controls::Blanked && IsControl(c)) {
      folded += u' ';
    } else if (ByteOf(c.unicode()) >= 0) {
      folded += c;
    } else if (c.isSurrogate()) {
      folded += u'?';
      if (c.isHighSurrogate() && i + 1 < composed.size() && composed[i + 1].isLowSurrogate()) ++i;
    } else {
      folded += EquivalentOf(c);
    }
  }
  return folded;
}

}  // namespace

QString FromCodePage(const QByteArray& bytes) {
  QString text = QString::fromLatin1(bytes);
  for (QChar& c : text)
    if (c >= QChar(0x80) && c < QChar(0xA0)) c = QChar(Upper[c.unicode() - 0x80u]);
  return text;
}

QByteArray ToCodePage(const QString& text) {
  const QString folded = Fold(text, Controls::Kept);
  QByteArray bytes(folded.size(), '\0');
  std::transform(folded.begin(), folded.end(), bytes.begin(),
                 [](QChar c) { return static_cast<char>(ByteOf(c.unicode())); });
  return bytes;
}

QString FoldToCodePage(const QString& text) {
  return Fold(text, Controls::Blanked);
}

}  // namespace quillane
