// What a screen reader says when an area is reached.
#pragma once
#include "model/page.h"

namespace quillane {

/// "Page 2, row 5, amount"; a field outside the rows is called by the labels beside and above it: "Page 1,
/// Bride Information, Street Address".
QString AreaName(const Page& page, const Control& area);
/// What the eye sees beside an area: that its amount is exempt from tax.  Empty where there is nothing.
QString AreaRemark(const Page& page, const Control& area);

}  // namespace quillane
