#include "keys.h"

#include <QStringList>
#include <map>

namespace quillane::scenario {

namespace {

struct Named {
  Qt::Key key;
  const char* text;
};

const std::map<QString, Named>& NamedKeys() {
  static const std::map<QString, Named> keys{
      {"enter", {Qt::Key_Return, "\r"}},
      {"return", {Qt::Key_Return, "\r"}},
      {"tab", {Qt::Key_Tab, "\t"}},
      {"backtab", {Qt::Key_Backtab, ""}},
      {"escape", {Qt::Key_Escape, "\x1b"}},
      {"esc", {Qt::Key_Escape, "\x1b"}},
      {"backspace", {Qt::Key_Backspace, "\b"}},
      {"back", {Qt::Key_Backspace, "\b"}},
      {"delete", {Qt::Key_Delete, "\x7f"}},
      {"del", {Qt::Key_Delete, "\x7f"}},
      {"insert", {Qt::Key_Insert, ""}},
      {"ins", {Qt::Key_Insert, ""}},
      {"space", {Qt::Key_Space, " "}},
      {"up", {Qt::Key_Up, ""}},
      {"down", {Qt::Key_Down, ""}},
      {"left", {Qt::Key_Left, ""}},
      {"right", {Qt::Key_Right, ""}},
      {"home", {Qt::Key_Home, ""}},
      {"end", {Qt::Key_End, ""}},
      {"pageup", {Qt::Key_PageUp, ""}},
      {"pgup", {Qt::Key_PageUp, ""}},
      {"pagedown", {Qt::Key_PageDown, ""}},
      {"pgdn", {Qt::Key_PageDown, ""}},
      {"pgdown", {Qt::Key_PageDown, ""}},
      {"menu", {Qt::Key_Menu, ""}},
      {"shift", {Qt::Key_Shift, ""}},
      {"ctrl", {Qt::Key_Control, ""}},
      {"control", {Qt::Key_Control, ""}},
      {"alt", {Qt::Key_Alt, ""}},
      {"plus", {Qt::Key_Plus, "+"}},
  };
  return keys;
}

const std::map<QString, Qt::KeyboardModifier>& Modifiers() {
  static const std::map<QString, Qt::KeyboardModifier> modifiers{
      {"shift", Qt::ShiftModifier}, {"ctrl", Qt::ControlModifier}, {"control", Qt::ControlModifier},
      {"alt", Qt::AltModifier},     {"meta", Qt::MetaModifier},
  };
  return modifiers;
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
  const QString lower = name.toLower();
  if (const auto found = NamedKeys().find(lower); found != NamedKeys().end())
    return KeyPress{found->second.key, {}, QLatin1String(found->second.text)};
  if (const int number = FunctionKey(lower))
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
    const auto found = Modifiers().find(part.toLower());
    if (found == Modifiers().end()) return std::nullopt;
    modifiers |= found->second;
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
  for (const Qt::Key key : {Qt::Key_Control, Qt::Key_Alt, Qt::Key_Shift, Qt::Key_Meta})
    if (modifiers & ModifierOf(key)) keys.push_back(key);
  return keys;
}

Qt::KeyboardModifier ModifierOf(Qt::Key key) {
  switch (key) {
    case Qt::Key_Control:
      return Qt::ControlModifier;
    case Qt::Key_Alt:
      return Qt::AltModifier;
    case Qt::Key_Shift:
      return Qt::ShiftModifier;
    default:
      return Qt::MetaModifier;
  }
}

}  // namespace quillane::scenario
