// Key names and letters as the events that a keyboard makes of them.
#pragma once
#include <QString>
#include <Qt>
#include <optional>
#include <vector>

namespace quillane::scenario {

struct KeyPress {
  Qt::Key key;
  Qt::KeyboardModifiers modifiers;
  QString text;
};

/// "Shift+Down", "Ctrl+S", "F8", "Enter", "a"; nothing for a name that no key has.
std::optional<KeyPress> ReadKey(const QString& combination);
/// The key that types a letter.
KeyPress KeyOf(QChar letter);
std::vector<Qt::Key> ModifierKeys(Qt::KeyboardModifiers modifiers);
Qt::KeyboardModifier ModifierOf(Qt::Key key);

}  // namespace quillane::scenario
