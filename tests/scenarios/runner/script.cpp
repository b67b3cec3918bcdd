#include "script.h"

#include <QRegularExpression>

#include "failure.h"
#include "values.h"

namespace quillane::scenario {

namespace {

QChar Unescaped(QChar letter) {
  switch (letter.unicode()) {
    case 'n':
      return QLatin1Char('\n');
    case 't':
      return QLatin1Char('\t');
    case 'r':
      return QLatin1Char('\r');
    default:
      return letter;
  }
}

/// Takes one line apart.
class Scanner {
 public:
  Scanner(const QString& text, int line) : text_(text), line_(line) {}

  std::vector<Word> Words() {
    std::vector<Word> words;
    for (SkipBlanks(); !AtEnd(); SkipBlanks())
      words.push_back(text_[at_] == QLatin1Char('"') ? Quoted() : Bare());
    return words;
  }

 private:
  bool AtEnd() const { return at_ >= text_.size() || text_[at_] == QLatin1Char('#'); }
  void SkipBlanks() {
    while (at_ < text_.size() && text_[at_].isSpace()) ++at_;
  }

  Word Quoted() {
    QString value;
    for (++at_; at_ < text_.size(); ++at_) {
      const QChar letter = text_[at_];
      if (letter == QLatin1Char('"')) {
        ++at_;
        return {value, true};
      }
      value += letter == QLatin1Char('\\') && at_ + 1 < text_.size() ? Unescaped(text_[++at_]) : letter;
    }
    throw ScriptError(line_, QStringLiteral("a string in quotes has no end"));
  }

  /// Runs to the next blank or comment; blanks inside parentheses are dropped: "txt( 35 )".
  Word Bare() {
    QString value;
    int depth = 0;
    for (; at_ < text_.size(); ++at_) {
      const QChar letter = text_[at_];
      if (letter == QLatin1Char('(')) ++depth;
      if (letter == QLatin1Char(')')) --depth;
      if (letter == QLatin1Char('#') || letter == QLatin1Char('"') || (letter.isSpace() && depth <= 0)) break;
      if (!letter.isSpace()) value += letter;
    }
    return {value, false};
  }

  const QString& text_;
  int line_;
  qsizetype at_ = 0;
};

bool IsForm(const QString& part) {
  return part.startsWith(QLatin1String("frm"), Qt::CaseInsensitive);
}

/// "List(3)" becomes "List" and 3; what has no index stays.
void SplitIndex(ControlName& name) {
  static const QRegularExpression indexed(QStringLiteral("^(\\w+)\\((-?\\d+)\\)$"));
  const QRegularExpressionMatch match = indexed.match(name.property);
  if (!match.hasMatch()) return;
  name.property = match.captured(1);
  name.propertyIndex = match.captured(2).toInt();
}

}  // namespace

bool Statement::Is(size_t index, const char* keyword) const {
  return index < words.size() && !words[index].quoted &&
         words[index].text.compare(QLatin1String(keyword), Qt::CaseInsensitive) == 0;
}

double Statement::Number(size_t index, const char* grammar) const {
  const std::optional<double> number = ReadNumber(At(index));
  if (!number) throw BadStatement(QLatin1String(grammar));
  return *number;
}

QString Statement::Rest(size_t index) const {
  QStringList parts;
  for (size_t at = index; at < words.size(); ++at) parts.append(words[at].text);
  return parts.join(QLatin1Char(' '));
}

std::vector<Statement> ParseScript(const QByteArray& text) {
  std::vector<Statement> statements;
  int number = 0;
  QString all = QString::fromUtf8(text);
  if (all.startsWith(QChar(0xFEFF))) all.remove(0, 1);
  for (const QString& line : all.split(QLatin1Char('\n'))) {
    ++number;
    Statement statement{number, line.trimmed(), Scanner(line, number).Words()};
    if (!statement.words.empty()) statements.push_back(std::move(statement));
  }
  return statements;
}

ControlName ParseControl(const QString& text, Property property) {
  QStringList parts = text.split(QLatin1Char('.'));
  ControlName name;
  if (IsForm(parts.front())) name.form = parts.takeFirst();
  // A property of the form itself, "frmMain.Caption", reads like a control: who looks it up decides.
  if (!parts.isEmpty()) name.control = parts.takeFirst();
  if (property == Property::Expected) {
    name.property = parts.join(QString());
    SplitIndex(name);
  }
  return name;
}

}  // namespace quillane::scenario
