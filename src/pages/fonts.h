// The user's font, which all areas take.
#pragma once
#include "model/page.h"

namespace quillane {

/// Gives every text box of a page its font from proposal.UDP: areas and column boxes; bold stays with the
/// area.
void SetMyFonts(Page& page);
/// Gives every area and column of pages 1 to 5 the font in proposal.UDP.
void ApplyUserFont();

}  // namespace quillane
