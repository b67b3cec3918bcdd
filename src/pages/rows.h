// One area of a page as a record: everything it has is read and written here, so that nothing is left behind.
#pragma once
#include "model/document.h"
#include "model/page.h"

namespace quillane {

inline Control& Area(Page& page, int area) {
  return page.txt[area];
}

TextAreaRecord ReadArea(const Page& page, int area);
/// Columns first, then exemption and bold, then text: the change handler finds the area as it will be.  The
/// value of an amount comes from its text, through that handler.
void WriteArea(Page& page, int area, const TextAreaRecord& record);
/// The text of an area as it is filed: trimmed, or the three-part form of a row with columns.
QString StoredForm(const Page& page, int area);

enum class Look { Rest, Selected };
/// Colours of an area; for a description row with columns also of its two boxes.
void PaintArea(Page& page, int area, Look look);
bool IsBlue(const Control& control);

}  // namespace quillane
