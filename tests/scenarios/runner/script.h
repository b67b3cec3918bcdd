// A scenario as text: one statement a line, words and quoted strings, and the patterns that statements
// follow.
#pragma once
#include <QByteArray>
#include <QString>
#include <optional>
#include <stdexcept>
#include <vector>

namespace quillane::scenario {

/// What a statement wanted and what was there instead.
struct Failure : std::exception {
  Failure(QString wanted, QString found) : expected(std::move(wanted)), actual(std::move(found)) {}
  const char* what() const noexcept override { return "a statement failed"; }
  QString expected, actual;
};

/// What is wrong with a script itself.
struct ScriptError : std::runtime_error {
  ScriptError(int where, const QString& what) : std::runtime_error(what.toStdString()), line(where) {}
  int line;
};

struct Word {
  QString text;
  bool quoted = false;
};
using Words = std::vector<Word>;

struct Statement {
  int line = 0;    ///< counted from 1
  QString source;  ///< as written, without blanks at its ends
  Words words;
};

/// Reads UTF-8 text.  Throws ScriptError for a string without an end.
std::vector<Statement> ParseScript(const QByteArray& text);

/// What a statement has for the placeholders of its pattern, counted from 0.
class Arguments {
 public:
  bool Has(size_t at) const { return at < at_.size() && !at_[at].empty(); }
  Words All(size_t at) const { return Has(at) ? at_[at] : Words(); }
  QStringList Texts(size_t at) const;
  /// The words joined by blanks; empty for what was left out.
  QString Text(size_t at) const;
  /// Decimal or hexadecimal.
  double Number(size_t at) const;
  int Int(size_t at) const { return static_cast<int>(Number(at)); }
  void Add(Words words) { at_.push_back(std::move(words)); }

 private:
  std::vector<Words> at_;
};

/// Fits words to a pattern such as `choose C ROW with ctrl|shift`: small letters are words of the language,
/// in any case and without quotes; "a|b" is one of them and an argument.  A name in capitals is an argument
/// of one word, N, X and Y one that is a number, "text" one in quotes, and "..." lets it have more than one.
/// What stands in [ ] may be left out.  Nothing where the words do not fit.
std::optional<Arguments> Fit(const QString& pattern, const Words& words);

/// A control as scripts write it: "frmP2.txt(35).Font.Bold" is the form frmP2, the control txt(35) and the
/// property FontBold.  The form may be left out.
struct ControlName {
  QString form, control, property;
  int propertyIndex = -1;  ///< of List(3)
  QString Full() const { return form.isEmpty() ? control : form + QLatin1Char('.') + control; }
};
enum class Property { Expected, None };
/// With Property::Expected what follows the control is the property; a form alone has an empty control.
ControlName ParseControl(const QString& text, Property property);

}  // namespace quillane::scenario
