// The way of the focus: from area to area, row to row and page to page.
#include "editing/area_rules.h"
#include "editing/navigation.h"
#include "model/focus.h"
#include "model/frame.h"

namespace quillane {

namespace {

Control& FirstOf(int window) {
  return page(window).txt.front();
}
Control& LastOf(int window) {
  return page(window).txt.back();
}

Control& StartOfRow(Page& page, int row) {
  return page.HasColumns(row) ? At(page.txtQty, row) : At(page.txt, row);
}

Control* BeforeRow(Page& page, int row) {
  if (row > page.FirstRow()) return &At(page.txt, row - 1 + page.AmountOffset());
  if (page.window == 0) return &At(page.txt, row - 1);
  return &LastOf(page.window - 1);
}

Control* AfterAmount(Page& page, int row) {
  return row < page.LastRow() ? &StartOfRow(page, row + 1) : &FirstOf(page.window + 1);
}

Control* NextOfTotals(Page& page, int area) {
  return area < page.LastText() ? &At(page.txt, area + 1) : nullptr;
}

Control* PreviousOfTotals(Page& page, int area) {
  if (area > 0) return &At(page.txt, area - 1);
  return page.window == CopyOfPage6 ? nullptr : &LastOf(page.window - 1);
}

// Up and down from a column box: the same column of the next row if it shows, else the row's description.
Control* BoxInRow(Page& page, const Control& from, int row) {
  if (row < page.FirstRow() || row > page.LastRow()) return nullptr;
  Control& box = At(IsQuantity(from) ? page.txtQty : page.txtAmt, row);
  return box.Visible() ? &box : &At(page.txt, row);
}

bool OutOfSight(const Control& control) {
  const auto top = static_cast<float>(frame().VScroll1.Value);
  return control.Top() + control.Height() <= top || control.Top() >= top + frame().clientHeight;
}

}  // namespace

Control* NextControl(Page& page, const Control& from) {
  const int index = from.Index();
  if (IsQuantity(from)) return &At(page.txt, index);
  if (IsEachPrice(from)) return &At(page.txt, index + page.AmountOffset());
  if (page.IsTotalsPage()) return NextOfTotals(page, index);
  if (page.IsRow(index))
    return page.HasColumns(index) ? &At(page.txtAmt, index) : &At(page.txt, index + page.AmountOffset());
  if (page.IsAmount(index)) return AfterAmount(page, index - page.AmountOffset());
  return index + 1 == page.FirstRow() ? &StartOfRow(page, index + 1) : &At(page.txt, index + 1);
}

Control* PreviousControl(Page& page, const Control& from) {
  const int index = from.Index();
  if (IsQuantity(from)) return BeforeRow(page, index);
  if (IsEachPrice(from)) return &At(page.txt, index);
  if (page.IsTotalsPage()) return PreviousOfTotals(page, index);
  if (page.IsRow(index)) return page.HasColumns(index) ? &At(page.txtQty, index) : BeforeRow(page, index);
  if (page.IsAmount(index)) {
    const int row = index - page.AmountOffset();
    return page.HasColumns(row) ? &At(page.txtAmt, row) : &At(page.txt, row);
  }
  return index > 0 ? &At(page.txt, index - 1) : nullptr;
}

Control* ControlBelow(Page& page, const Control& from) {
  if (IsColumnBox(from)) return BoxInRow(page, from, from.Index() + 1);
  return from.Index() < page.LastText() ? &At(page.txt, from.Index() + 1) : &FirstOf(page.window + 1);
}

Control* ControlAbove(Page& page, const Control& from) {
  if (IsColumnBox(from)) return BoxInRow(page, from, from.Index() - 1);
  return from.Index() > 0 ? &At(page.txt, from.Index() - 1) : nullptr;
}

void GoTo(Page& from, Control& target, int scrollKey) {
  Page* owner = PageOf(target);
  if (owner != &from) UpdatePageButtons(owner->window);
  SetFocus(target);
  ScrollToShow(target, scrollKey);
  // A hand on the scroll bar may have left the target on the far side.
  if (OutOfSight(target)) ScrollToShow(target, scrollKey == keys::PageUp ? keys::PageDown : keys::PageUp);
}

}  // namespace quillane
