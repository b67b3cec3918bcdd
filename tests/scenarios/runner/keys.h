// Key names and letters as the events that a keyboard makes of them.
#pragma once
#include <QString>
#include <Qt>
#include <optional>

namespace quillane::scenario {

struct KeyPress {
  Qt::Key key;
  Qt::KeyboardModifiers modifiers;
  QString text;
};

struct Modifier {
  const char* name;
  Qt::Key key;
  Qt::KeyboardModifier modifier;
};
/// In the order in which a person holds them.
inline constexpr Modifier Modifiers[] = {{"ctrl", Qt::Key_Control, Qt::ControlModifier},
                                         {"alt", Qt::Key_Alt, Qt::AltModifier},
                                         {"shift", Qt::Key_Shift, Qt::ShiftModifier},
                                         {"meta", Qt::Key_Meta, Qt::MetaModifier}};

/// "Shift+Down", "Ctrl+S", "F8", "Enter", "a", "Shift"; nothing for a name that no key has.
std::optional<KeyPress> ReadKey(const QString& combination);
/// The key that types a letter.
KeyPress KeyOf(QChar letter);

}  // namespace quillane::scenario
