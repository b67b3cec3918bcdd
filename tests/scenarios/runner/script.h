// A scenario as text: one statement a line, words and quoted strings.
#pragma once
#include <QByteArray>
#include <QString>
#include <stdexcept>
#include <vector>

namespace quillane::scenario {

struct Word {
  QString text;
  bool quoted = false;
  bool operator==(const Word&) const = default;
};

struct Statement {
  int line = 0;    ///< counted from 1
  QString source;  ///< as written, without blanks at its ends
  std::vector<Word> words;

  QString Verb() const { return words.front().text.toLower(); }
  size_t Count() const { return words.size(); }
  /// The text of a word; empty past the end.
  QString At(size_t index) const { return index < words.size() ? words[index].text : QString(); }
  bool Quoted(size_t index) const { return index < words.size() && words[index].quoted; }
  /// True when the word stands there unquoted, in any case.
  bool Is(size_t index, const char* keyword) const;
  /// The number that stands there, decimal or hexadecimal.  Throws BadStatement with the statement's grammar
  /// when there is none.
  double Number(size_t index, const char* grammar) const;
  /// The words from `index` on, joined by blanks: a file name that was written without quotes.
  QString Rest(size_t index) const;
};

/// What is wrong with a script itself.
struct ScriptError : std::runtime_error {
  ScriptError(int where, const QString& what) : std::runtime_error(what.toStdString()), line(where) {}
  int line;
};

/// Reads UTF-8 text.  Throws ScriptError for a string without an end.
std::vector<Statement> ParseScript(const QByteArray& text);

/// A control as scripts write it: "frmP2.txt(35).Font.Bold" is the form frmP2, the control txt(35) and the
/// property FontBold.  The form may be left out.
struct ControlName {
  QString form, control, property;
  int propertyIndex = -1;  ///< of List(3)
  QString Full() const { return form.isEmpty() ? control : form + QLatin1Char('.') + control; }
};
/// With `takeProperty` the last part that is no control counts as the property; a form alone has an empty
/// control.
enum class Property { Expected, None };
ControlName ParseControl(const QString& text, Property property);

}  // namespace quillane::scenario
