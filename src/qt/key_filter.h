// Keeps all but a few characters out of a one-line box.
#pragma once
#include <QLineEdit>

namespace quillane {

enum class RefusedKey { Dropped, Beeps };

/// From now on only the characters of `allowed` can be typed, pasted or dropped into `box`.  Keys that write
/// nothing (arrows, Backspace, Delete, Tab, Enter, Escape) and the edit shortcuts work as ever.
void AllowOnly(QLineEdit& box, const QString& allowed, RefusedKey refused);

}  // namespace quillane
