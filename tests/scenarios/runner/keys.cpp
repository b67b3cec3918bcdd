#include "keys.h"

#include <QHash>
#include <QKeySequence>

namespace quillane::scenario {

namespace {

/// What a key types when no other is held; what Latin-1 lacks comes from a compose key or an input method.
QString TextOf(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  static const QHash<Qt::Key, char> typed{{Qt::Key_Return, '\r'},
                                          {Qt::Key_Tab, '\t'},
                                          {Qt::Key_Escape, '\x1b'},
                                          {Qt::Key_Backspace, '\b'},
                                          {Qt::Key_Delete, '\x7f'}};
  if (modifiers & (Qt::AltModifier | Qt::MetaModifier)) return {};
  const bool letter = key >= Qt::Key_A && key <= Qt::Key_Z;
  // With Ctrl a letter types its control character.
  if (modifiers & Qt::ControlModifier) return letter ? QString(QChar(key - Qt::Key_A + 1)) : QString();
  if (const auto special = typed.constFind(key); special != typed.cend())
    return QString(QLatin1Char(*special));
  if (key >= 0x100) return {};
  return modifiers & Qt::ShiftModifier ? QString(QChar(key)) : QString(QChar(key)).toLower();
}

/// The names that scripts may use and the toolkit spells another way.
QString Spelled(const QString& name) {
  static const QHash<QString, QString> other{
      {"enter", "Return"},    {"escape", "Esc"},     {"delete", "Del"},
      {"insert", "Ins"},      {"back", "Backspace"}, {"pageup", "PgUp"},
      {"pagedown", "PgDown"}, {"pgdn", "PgDown"},    {"plus", "+"}};
  return other.value(name.toLower(), name);
}

}  // namespace

std::optional<KeyPress> ReadKey(const QString& combination) {
  const QString name = combination.section(QLatin1Char('+'), -1);
  QString before = combination.chopped(name.size()).toLower();
  for (const Modifier& one : Modifiers)
    if (name.compare(QLatin1String(one.name), Qt::CaseInsensitive) == 0 && before.isEmpty())
      return KeyPress{one.key, {}, {}};
  if (before.isEmpty() && name.size() == 1) return KeyOf(name[0]);
  const QKeySequence sequence(before.replace(QLatin1String("control"), QLatin1String("ctrl")) + Spelled(name),
                              QKeySequence::PortableText);
  if (sequence.count() != 1 || sequence[0].key() == Qt::Key_unknown || sequence[0].key() == 0)
    return std::nullopt;
  const Qt::KeyboardModifiers modifiers = sequence[0].keyboardModifiers();
  const Qt::Key key = sequence[0].key();
  const bool backwards = key == Qt::Key_Tab && modifiers & Qt::ShiftModifier;
  return KeyPress{backwards ? Qt::Key_Backtab : key, modifiers, TextOf(key, modifiers)};
}

KeyPress KeyOf(QChar letter) {
  if (letter == QLatin1Char('\n') || letter == QLatin1Char('\r')) return *ReadKey(QStringLiteral("Return"));
  if (letter == QLatin1Char('\t')) return *ReadKey(QStringLiteral("Tab"));
  // A key carries the code of its capital letter.
  const QChar capital = letter.toUpper();
  const Qt::Key key = capital.unicode() < 0x100 ? static_cast<Qt::Key>(capital.unicode()) : Qt::Key_unknown;
  const bool shifted = letter.isUpper() && letter.toLower() != letter;
  return {key, shifted ? Qt::ShiftModifier : Qt::NoModifier, QString(letter)};
}

}  // namespace quillane::scenario
