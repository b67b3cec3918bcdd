// The windows' own measure of text, and the one way in which a font of the pages becomes a font of the
// toolkit.
#pragma once
#include <QFont>

#include "ui/font.h"

namespace quillane {

/// Measures in twips from here on.  A width is a sum of single advances, at a size of one unit to the twip
/// and without hinting and kerning, so that it depends on no screen, zoom or printer.
void InstallTextMeasure();
/// The font that draws `font` on a surface whose unit is the twip.
QFont MakeFont(const Font& font);

}  // namespace quillane
