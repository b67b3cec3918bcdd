// Text in lines of a given width.
#pragma once
#include <QStringList>

#include "ui/font.h"

namespace quillane {

/// The lines of one paragraph that are at most `width` twips wide in `font`.  Words are kept whole, one that
/// is wider than a line is broken; the blanks at which a line ends are dropped.  An empty text is one line.
QStringList WrapText(const Font& font, const QString& text, float width);

}  // namespace quillane
