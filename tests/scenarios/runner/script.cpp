#include "script.h"

#include <QRegularExpression>
#include <QStringList>

#include "values.h"

namespace quillane::scenario {

namespace {

QString Unescaped(const QString& quoted) {
  QString text;
  for (qsizetype at = 0; at < quoted.size(); ++at) {
    if (quoted[at] != QLatin1Char('\\') || at + 1 == quoted.size()) {
      text += quoted[at];
      continue;
    }
    const QChar letter = quoted[++at];
    const qsizetype known = QStringLiteral("ntr").indexOf(letter);
    text += known < 0 ? letter : QStringLiteral("\n\t\r")[known];
  }
  return text;
}

Words WordsOf(const QString& line, int number) {
  // A quoted text; or what runs to the next blank, comment or quote, where blanks in parentheses are dropped:
  // "txt( 35 )".
  static const QRegularExpression word(
      QStringLiteral(R"re(\G\s*(?:"((?:\\.|[^"\\])*)"|((?:\([^)#"]*\)|[^\s#"])+)))re"));
  Words words;
  qsizetype at = 0;
  for (auto match = word.match(line); match.hasMatch(); match = word.match(line, at)) {
    const bool quoted = match.capturedStart(1) >= 0;
    words.push_back(
        {quoted ? Unescaped(match.captured(1)) : match.captured(2).remove(QLatin1Char(' ')), quoted});
    at = match.capturedEnd();
  }
  if (line.mid(at).trimmed().startsWith(QLatin1Char('"')))
    throw ScriptError(number, QStringLiteral("a string in quotes has no end"));
  return words;
}

/// True when one word of a statement is what this token of a pattern stands for.
bool FitsToken(const QString& token, const Word& word) {
  if (token == QLatin1String("\"text\"")) return word.quoted;
  if (token == QLatin1String("N") || token == QLatin1String("X") || token == QLatin1String("Y"))
    return !word.quoted && ReadNumber(word.text);
  if (token[0].isUpper()) return true;
  return !word.quoted && token.split(QLatin1Char('|')).contains(word.text, Qt::CaseInsensitive);
}

bool IsArgument(const QString& token) {
  return token[0].isUpper() || token[0] == QLatin1Char('"') || token.contains(QLatin1Char('|'));
}

/// The arguments for `tokens` from `words`, the first `used` of which are spent.
std::optional<Arguments> Fit(QStringList tokens, const Words& words, size_t used, Arguments taken) {
  if (tokens.isEmpty()) return used == words.size() ? std::optional(taken) : std::nullopt;
  QString token = tokens.takeFirst();
  if (token == QLatin1String("[")) {
    const qsizetype end = tokens.indexOf(QStringLiteral("]"));
    if (const auto with = Fit(tokens.mid(0, end) + tokens.mid(end + 1), words, used, taken)) return with;
    for (const QString& left : tokens.mid(0, end))
      if (IsArgument(left)) taken.Add({});
    return Fit(tokens.mid(end + 1), words, used, taken);
  }
  const bool more = token.endsWith(QLatin1String("..."));
  if (more) token.chop(3);
  size_t end = used;
  while (end < words.size() && (more || end == used) && FitsToken(token, words[end])) ++end;
  if (end == used) return std::nullopt;
  if (IsArgument(token))
    taken.Add(
        Words(words.begin() + static_cast<qsizetype>(used), words.begin() + static_cast<qsizetype>(end)));
  return Fit(tokens, words, end, taken);
}

}  // namespace

std::vector<Statement> ParseScript(const QByteArray& text) {
  std::vector<Statement> statements;
  int number = 0;
  QString all = QString::fromUtf8(text);
  if (all.startsWith(QChar(0xFEFF))) all.remove(0, 1);
  for (const QString& line : all.split(QLatin1Char('\n'))) {
    ++number;
    Statement statement{number, line.trimmed(), WordsOf(line, number)};
    if (!statement.words.empty()) statements.push_back(std::move(statement));
  }
  return statements;
}

QStringList Arguments::Texts(size_t at) const {
  QStringList texts;
  for (const Word& word : All(at)) texts.append(word.text);
  return texts;
}

QString Arguments::Text(size_t at) const {
  return Texts(at).join(QLatin1Char(' '));
}

double Arguments::Number(size_t at) const {
  return ReadNumber(Text(at)).value_or(0);
}

std::optional<Arguments> Fit(const QString& pattern, const Words& words) {
  QString spaced = pattern;
  spaced.replace(QLatin1Char('['), QLatin1String("[ ")).replace(QLatin1Char(']'), QLatin1String(" ]"));
  return Fit(spaced.split(QLatin1Char(' ')), words, 0, {});
}

ControlName ParseControl(const QString& text, Property property) {
  static const QRegularExpression indexed(QStringLiteral("^(\\w+)\\((-?\\d+)\\)$"));
  QStringList parts = text.split(QLatin1Char('.'));
  ControlName name;
  if (parts.front().startsWith(QLatin1String("frm"), Qt::CaseInsensitive)) name.form = parts.takeFirst();
  // A property of the form itself, "frmMain.Caption", reads like a control: who looks it up decides.
  if (!parts.isEmpty()) name.control = parts.takeFirst();
  if (property == Property::None) return name;
  name.property = parts.join(QString());
  if (const auto match = indexed.match(name.property); match.hasMatch()) {
    name.property = match.captured(1);
    name.propertyIndex = match.captured(2).toInt();
  }
  return name;
}

}  // namespace quillane::scenario
