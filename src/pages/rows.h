// One row or amount area as a block: everything it has is read and written here, so that nothing is left
// behind.
#pragma once
#include "model/page.h"
#include "model/selection.h"

namespace quillane {

inline Control& Area(Page& page, int area) {
  return page.txt[area];
}

ClipRow ReadRow(const Page& page, int row);
ClipAmount ReadAmount(const Page& page, int area);
/// Columns first, then bold, then text: the change handler builds the stored form from what it finds.
void WriteRow(Page& page, int row, const ClipRow& contents);
void WriteAmount(Page& page, int area, const ClipAmount& contents);

enum class Look { Rest, Selected };
/// Colours of an area; for a description row with columns also of its two boxes.
void PaintArea(Page& page, int area, Look look);
/// PageText and both layers' row flags from what the row shows; for writes that run no change handler.
void KeepStoredForm(Page& page, int area);
bool IsBlue(const Control& control);

}  // namespace quillane
