#include "keys.h"

#include <QStringList>

namespace quillane::scenario {

namespace {

struct Named {
  const char* names;  ///< with blanks between them
  Qt::Key key;
  const char* text = "";
};

constexpr Named NamedKeys[] = {
    {"enter return", Qt::Key_Return, "\r"},
    {"tab", Qt::Key_Tab, "\t"},
    {"backtab", Qt::Key_Backtab},
    {"escape esc", Qt::Key_Escape, "\x1b"},
    {"backspace back", Qt::Key_Backspace, "\b"},
    {"delete del", Qt::Key_Delete, "\x7f"},
    {"insert ins", Qt::Key_Insert},
    {"space", Qt::Key_Space, " "},
    {"up", Qt::Key_Up},
    {"down", Qt::Key_Down},
    {"left", Qt::Key_Left},
    {"right", Qt::Key_Right},
    {"home", Qt::Key_Home},
    {"end", Qt::Key_End},
    {"pageup pgup", Qt::Key_PageUp},
    {"pagedown pgdown pgdn", Qt::Key_PageDown},
    {"menu", Qt::Key_Menu},
    {"plus", Qt::Key_Plus, "+"},
};

struct Modifier {
  const char* names;
  Qt::Key key;
  Qt::KeyboardModifier modifier;
};

/// In the order in which a hand holds them.
constexpr Modifier Modifiers[] = {{"ctrl control", Qt::Key_Control, Qt::ControlModifier},
                                  {"alt", Qt::Key_Alt, Qt::AltModifier},
                                  {"shift", Qt::Key_Shift, Qt::ShiftModifier},
                                  {"meta", Qt::Key_Meta, Qt::MetaModifier}};

/// The row that has the name, in any case; null for none.
template <class Row, size_t Count>
const Row* Find(const Row (&rows)[Count], const QString& name) {
  for (const Row& row : rows)
    if (QString::fromLatin1(row.names).split(QLatin1Char(' ')).contains(name.toLower())) return &row;
  return nullptr;
}

/// "F8" is 8; 0 for what is no function key.
int FunctionKey(const QString& name) {
  bool good = false;
  const int number = name.startsWith(QLatin1Char('f')) ? name.mid(1).toInt(&good) : 0;
  return good && number >= 1 && number <= 35 ? number : 0;
}

/// With Ctrl a letter types its control character, with Alt nothing.
QString TypedText(const KeyPress& press) {
  if (press.modifiers & (Qt::AltModifier | Qt::MetaModifier)) return {};
  if (!(press.modifiers & Qt::ControlModifier)) return press.text;
  return press.key >= Qt::Key_A && press.key <= Qt::Key_Z ? QString(QChar(press.key - Qt::Key_A + 1))
                                                          : QString();
}

std::optional<KeyPress> ReadName(const QString& name) {
  if (const Named* named = Find(NamedKeys, name)) return KeyPress{named->key, {}, QLatin1String(named->text)};
  if (const Modifier* held = Find(Modifiers, name)) return KeyPress{held->key, {}, {}};
  if (const int number = FunctionKey(name.toLower()))
    return KeyPress{static_cast<Qt::Key>(Qt::Key_F1 + number - 1), {}, {}};
  if (name.size() != 1) return std::nullopt;
  return KeyOf(name[0]);
}

}  // namespace

std::optional<KeyPress> ReadKey(const QString& combination) {
  QStringList parts = combination.split(QLatin1Char('+'), Qt::SkipEmptyParts);
  QString name = parts.isEmpty() ? combination : parts.takeLast();
  Qt::KeyboardModifiers modifiers;
  for (const QString& part : parts) {
    const Modifier* held = Find(Modifiers, part);
    if (!held) return std::nullopt;
    modifiers |= held->modifier;
  }
  // "Ctrl+S" is the letter's key without Shift; "Shift+a" types its capital.
  if (name.size() == 1)
    name = modifiers & Qt::ShiftModifier ? name.toUpper() : modifiers ? name.toLower() : name;
  std::optional<KeyPress> press = ReadName(name);
  if (!press) return std::nullopt;
  press->modifiers |= modifiers;
  press->text = TypedText(*press);
  if (press->key == Qt::Key_Tab && modifiers & Qt::ShiftModifier) press->key = Qt::Key_Backtab;
  return press;
}

KeyPress KeyOf(QChar letter) {
  if (letter == QLatin1Char('\n') || letter == QLatin1Char('\r'))
    return {Qt::Key_Return, {}, QStringLiteral("\r")};
  if (letter == QLatin1Char('\t')) return {Qt::Key_Tab, {}, QStringLiteral("\t")};
  // A key carries the code of its capital letter; what Latin-1 lacks comes from a compose key or an input
  // method.
  const QChar capital = letter.toUpper();
  const Qt::Key key = capital.unicode() < 0x100 ? static_cast<Qt::Key>(capital.unicode()) : Qt::Key_unknown;
  const bool shifted = letter.isUpper() && letter.toLower() != letter;
  return {key, shifted ? Qt::ShiftModifier : Qt::NoModifier, QString(letter)};
}

std::vector<Qt::Key> ModifierKeys(Qt::KeyboardModifiers modifiers) {
  std::vector<Qt::Key> keys;
  for (const Modifier& one : Modifiers)
    if (modifiers & one.modifier) keys.push_back(one.key);
  return keys;
}

Qt::KeyboardModifier ModifierOf(Qt::Key key) {
  for (const Modifier& one : Modifiers)
    if (one.key == key) return one.modifier;
  return Qt::NoModifier;
}

}  // namespace quillane::scenario
