#include "address/vcard.h"

#include <QStringDecoder>
#include <algorithm>

#include "platform/codepage.h"

namespace quillane {

namespace {

constexpr int LastPreference = 101;  // behind the 100 that a card can state

/// Where the value begins: the first colon outside quotes, or -1.
qsizetype ColonOf(const QByteArray& line) {
  bool quoted = false;
  for (qsizetype i = 0; i < line.size(); ++i) {
    if (line[i] == '"') quoted = !quoted;
    if (line[i] == ':' && !quoted) return i;
  }
  return -1;
}

/// The lines as the file means them: folded ones joined, and a quoted-printable one with what stands behind a
/// "=" at its end.
class LogicalLines {
 public:
  explicit LogicalLines(QByteArrayView file) : file_(file) {}

  /// False when there is none left.
  bool Next(QByteArray& line) {
    if (AtEnd()) return false;
    line = PhysicalLine().toByteArray();
    while (!AtEnd()) {
      if (BreaksSoftly(line)) {
        line.chop(1);
        line += PhysicalLine();
      } else if (file_[at_] == ' ' || file_[at_] == '\t') {
        line += PhysicalLine().sliced(1);
      } else {
        break;
      }
    }
    return true;
  }

 private:
  static bool BreaksSoftly(const QByteArray& line) {
    constexpr qsizetype LongestHead = 998;
    if (!line.endsWith('=')) return false;
    const QByteArray head = line.left(LongestHead);
    return head.left(ColonOf(head)).toUpper().contains("QUOTED-PRINTABLE");
  }
  bool AtEnd() const { return at_ >= file_.size(); }
  QByteArrayView PhysicalLine() {
    const qsizetype start = at_;
    while (!AtEnd() && file_[at_] != '\r' && file_[at_] != '\n') ++at_;
    const QByteArrayView line = file_.sliced(start, at_ - start);
    if (!AtEnd() && file_[at_] == '\r' && at_ + 1 < file_.size() && file_[at_ + 1] == '\n') ++at_;
    ++at_;
    return line;
  }

  QByteArrayView file_;
  qsizetype at_ = 0;
};

/// A file of another encoding as UTF-8, without the mark in front that tells the encoding.  UTF-8 itself is
/// decoded by the line, since a fold may part a character, and some lines may be in the code page.
QByteArray AsUtf8(const QByteArray& file) {
  const auto encoding = QStringConverter::encodingForData(file);
  if (!encoding) return file;
  if (*encoding == QStringConverter::Utf8) return file.mid(3);
  QStringDecoder decoder(*encoding);
  const QString text = decoder(file);
  return text.toUtf8();
}

QString TextOf(const QByteArray& bytes) {
  return bytes.isValidUtf8() ? QString::fromUtf8(bytes) : FromCodePage(bytes);
}

int HexValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  const char capital = static_cast<char>(c & ~0x20);
  return capital >= 'A' && capital <= 'F' ? capital - 'A' + 10 : -1;
}

QByteArray FromQuotedPrintable(const QByteArray& text) {
  QByteArray bytes;
  for (qsizetype i = 0; i < text.size(); ++i) {
    const bool escape = text[i] == '=' && i + 2 < text.size();
    const int high = escape ? HexValue(text[i + 1]) : -1, low = escape ? HexValue(text[i + 2]) : -1;
    if (high < 0 || low < 0) {
      bytes += text[i];
    } else {
      bytes += static_cast<char>(high * 16 + low);
      i += 2;
    }
  }
  return bytes;
}

/// What the head of a property says.
struct Head {
  QString name, encoding, charset, valueType;
  QStringList types;
  int preference = LastPreference;

  explicit Head(const QByteArray& bytes) {
    QStringList parts = SplitOutsideQuotes(TextOf(bytes), u';');
    name = parts.takeFirst().toUpper();
    name = name.mid(name.lastIndexOf(u'.') + 1).trimmed();
    for (const QString& part : parts) Take(part);
  }

 private:
  static QStringList SplitOutsideQuotes(const QString& text, QChar separator) {
    QStringList parts{QString()};
    bool quoted = false;
    for (const QChar c : text) {
      if (c == u'"') quoted = !quoted;
      if (c == separator && !quoted) {
        parts.append(QString());
      } else if (c != u'"' || separator != u',') {
        parts.last() += c;
      }
    }
    return parts;
  }

  void Take(const QString& parameter) {
    const qsizetype equals = parameter.indexOf(u'=');
    const QString key = equals < 0 ? QString() : parameter.left(equals).trimmed().toUpper();
    const QString value = parameter.mid(equals + 1).trimmed();
    if (key == QLatin1String("ENCODING")) encoding = value.toUpper();
    if (key == QLatin1String("CHARSET")) charset = value.toUpper();
    if (key == QLatin1String("VALUE")) valueType = value.toLower();
    if (key == QLatin1String("PREF")) preference = std::clamp(value.toInt(), 1, LastPreference);
    if (key == QLatin1String("TYPE")) ReadTypes(value);
    if (key.isEmpty()) ReadBare(value);
  }
  /// The oldest version leaves out which parameter a value is for.
  void ReadBare(const QString& value) {
    const QString upper = value.toUpper();
    if (upper == QLatin1String("QUOTED-PRINTABLE") || upper == QLatin1String("BASE64")) {
      encoding = upper;
    } else {
      ReadTypes(value);
    }
  }
  void ReadTypes(const QString& value) {
    for (const QString& part : SplitOutsideQuotes(value, u',')) {
      // A list may stand in quotes as a whole.
      for (const QString& type : part.toLower().split(u',')) types.append(type.trimmed());
    }
    if (types.contains(QLatin1String("pref"))) preference = std::min(preference, 1);
  }
};

/// Pictures and the like are as long as a hundred cards, and no field takes them.
bool IsOfUse(const QString& name) {
  static const QStringList names = {
      QStringLiteral("BEGIN"),        QStringLiteral("END"),         QStringLiteral("AGENT"),
      QStringLiteral("FN"),           QStringLiteral("N"),           QStringLiteral("ORG"),
      QStringLiteral("ADR"),          QStringLiteral("TEL"),         QStringLiteral("EMAIL"),
      QStringLiteral("RELATED"),      QStringLiteral("ANNIVERSARY"), QStringLiteral("NOTE"),
      QStringLiteral("X-ANNIVERSARY")};
  return names.contains(name);
}

VCardProperty PropertyOf(const Head& head, QByteArray value) {
  if (head.encoding == QLatin1String("QUOTED-PRINTABLE")) value = FromQuotedPrintable(value);
  if (head.encoding == QLatin1String("B") || head.encoding == QLatin1String("BASE64"))
    value = QByteArray::fromBase64(value);
  const bool utf8 = head.charset.isEmpty() || head.charset == QLatin1String("UTF-8");
  return {head.name, head.types, head.preference, head.valueType, utf8 ? TextOf(value) : FromCodePage(value)};
}

/// Collects properties into cards.
class Cards {
 public:
  void Take(VCardProperty property) {
    const bool isCard = property.value.trimmed().compare(u"VCARD", Qt::CaseInsensitive) == 0;
    if (property.name == QLatin1String("BEGIN") && isCard) return Begin();
    if (property.name == QLatin1String("END") && isCard) return End();
    agent_ = property.name == QLatin1String("AGENT") && property.value.trimmed().isEmpty();
    if (depth_ == 1) cards_.back().push_back(std::move(property));
  }
  std::vector<VCard> Result() {
    std::erase_if(cards_, [](const VCard& card) { return card.empty(); });
    return std::move(cards_);
  }

 private:
  void Begin() {
    // A card within a card is an agent's; any other means that the last one's end is missing.
    depth_ = agent_ || depth_ > 1 ? depth_ + 1 : 1;
    agent_ = false;
    if (depth_ == 1) cards_.emplace_back();
  }
  void End() { depth_ = std::max(0, depth_ - 1); }

  std::vector<VCard> cards_;
  int depth_ = 0;
  bool agent_ = false;
};

}  // namespace

std::vector<VCard> ReadVCards(const QByteArray& file) {
  const QByteArray text = AsUtf8(file);
  LogicalLines lines(text);
  Cards cards;
  for (QByteArray line; lines.Next(line);) {
    const qsizetype colon = ColonOf(line);
    if (colon <= 0) continue;
    const Head head(line.left(colon));
    if (IsOfUse(head.name)) cards.Take(PropertyOf(head, line.mid(colon + 1)));
  }
  return cards.Result();
}

QString UnescapedText(const QString& value) {
  QString text;
  for (qsizetype i = 0; i < value.size(); ++i) {
    if (value[i] != u'\\' || i + 1 == value.size()) {
      text += value[i];
      continue;
    }
    const QChar escaped = value[++i];
    text += escaped == u'n' || escaped == u'N' ? QChar(u'\n') : escaped;
  }
  return text;
}

QStringList SplitValue(const QString& value, QChar separator) {
  QStringList parts{QString()};
  for (qsizetype i = 0; i < value.size(); ++i) {
    if (value[i] == separator) {
      parts.append(QString());
      continue;
    }
    parts.last() += value[i];
    if (value[i] == u'\\' && i + 1 < value.size()) parts.last() += value[++i];
  }
  return parts;
}

QString EscapedText(const QString& text) {
  QString normal = text;
  normal.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  QString value;
  for (const QChar c : normal) {
    if (c == u'\n' || c == u'\r') {
      value += QStringLiteral("\\n");
      continue;
    }
    if (c == u'\\' || c == u',' || c == u';') value += u'\\';
    value += (c < u' ' && c != u'\t') || c == QChar(0x7F) ? QChar(u' ') : c;
  }
  return value;
}

QByteArray PropertyLine(const QString& name, const QString& value) {
  constexpr qsizetype LongestLine = 75;
  const QByteArray bytes = (name + u':' + value).toUtf8();
  const auto insideCharacter = [&bytes](qsizetype at) { return (bytes[at] & 0xC0) == 0x80; };
  QByteArray lines;
  for (qsizetype start = 0; start < bytes.size();) {
    const qsizetype room = start == 0 ? LongestLine : LongestLine - 1;
    qsizetype end = std::min(start + room, bytes.size());
    while (end < bytes.size() && insideCharacter(end)) --end;
    if (start > 0) lines += ' ';
    lines += QByteArrayView(bytes).sliced(start, end - start);
    lines += "\r\n";
    start = end;
  }
  return lines;
}

}  // namespace quillane
