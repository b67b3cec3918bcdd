#include "editing/selection.h"

#include "editing/areas.h"
#include "editing/totals_commands.h"
#include "model/focus.h"
#include "model/frame.h"
#include "model/proposal.h"
#include "model/report.h"
#include "model/selection.h"
#include "pages/rows.h"
#include "ui/desk.h"

namespace quillane {

namespace {

bool LiesInside(const Control& area, const Band& band) {
  return area.Left() >= band.left && area.Top() >= band.top && area.Left() + area.Width() <= band.right &&
         area.Top() + area.Height() <= band.bottom;
}

// Dates, names and totals can never be selected: they belong to their place on the page.
bool CanBeSelected(const Page& page, int area) {
  return page.IsRow(area) || page.IsAmount(area);
}

void SetSigns(Color text, Color button) {
  for (const char* name : {"lblEvent", "lblCurPos", "lblTextNum", "lblDir", "lblTotal"})
    frame()[QString::fromLatin1(name)].SetForeColor(text);
  frame()[QStringLiteral("cmdClearMem")].SetBackColor(button);
}

void SelectArea(Page& page, int area) {
  PaintArea(page, area, Look::Selected);
  editing.AreasSelected = true;
  selection.MultiSelected = ++selection.SelectedCount > 1;
}

// The last area of the unbroken blue run that begins at `first`.
int EndOfRun(Page& page, int first, int last) {
  int area = first;
  while (area < last && IsBlue(Area(page, area + 1))) ++area;
  return area;
}

AreaRange BlueAmounts(Page& page) {
  AreaRange range;
  for (int area = page.FirstRow() + page.AmountOffset(); area <= page.LastText(); ++area) {
    if (!IsBlue(Area(page, area))) continue;
    if (!range.IsSet()) range.first = area;
    range.last = area;
  }
  return range;
}

void ForgetRanges() {
  for (const Side side : {Source, Destination}) {
    selection.SetDesc(side, {});
    selection.SetAmt(side, {});
  }
}

void RestPage(Page& page) {
  for (int area = 0; area <= page.LastText(); ++area) PaintArea(page, area, Look::Rest);
}

}  // namespace

void RubberBandSelect(Page& page, const Band& band) {
  TakeFocusedAmount();
  ClearSelection();
  for (int area = 0; area <= page.LastText(); ++area)
    if (CanBeSelected(page, area) && LiesInside(Area(page, area), band)) SelectArea(page, area);
  // A rectangle around nothing has still let go of what was selected before.
  if (!editing.AreasSelected) return SetEditMenuState();
  SetSigns(colors::Blue, colors::Blue);
  frame()[QStringLiteral("cmdClearMem")].SetVisible(true);
  frame()[QStringLiteral("mnuEditTextDeselect")].SetEnabled(true);
  if (ScanSelection(page) == Scan::Rows) CopySelectionToMemory(page);
  SetEditMenuState();
}

bool HasBlueRow(const Page& page) {
  for (int row = page.FirstRow(); page.IsItemPage() && row <= page.LastRow(); ++row)
    if (IsBlue(page.txt[row])) return true;
  return false;
}

Scan ScanSelection(Page& page) {
  selection.DescRowFirst = page.window == 5 ? 0 : page.FirstRow();
  selection.DescRowLast = page.window == 5 ? 7 : page.LastRow();
  ForgetRanges();
  selection.AmountsInClip = selection.TopRowSelected = selection.BottomRowSelected = false;
  if (!page.IsItemPage()) return Scan::Nothing;
  int first = 0;
  while (first <= page.LastText() && !IsBlue(Area(page, first))) ++first;
  if (first > page.LastText()) return Scan::Nothing;
  if (first > selection.DescRowLast) {
    Tell(QStringLiteral("Cannot select Amount Areas only. Please copy Description Areas also."));
    DeselectAll(page);
    return Scan::Nothing;
  }
  editing.AreasSelected = true;
  selection.SetDesc(Source, {first, EndOfRun(page, first, selection.DescRowLast)});
  SetFocus(Area(page, first));
  selection.SetAmt(Source, BlueAmounts(page));
  selection.AmountsInClip = selection.Amt(Source).IsSet();
  selection.TopRowSelected = IsBlue(Area(page, selection.DescRowFirst));
  selection.BottomRowSelected = IsBlue(Area(page, selection.DescRowLast));
  return Scan::Rows;
}

void CopySelectionToMemory(Page& page) {
  if (!selection.Desc(Source).IsSet()) {
    Tell(QStringLiteral("Nothing Selected"));
    return;
  }
  selection.rows.clear();
  selection.amounts.clear();
  for (int row = selection.SelDescFirst[Source]; row <= selection.SelDescLast[Source]; ++row)
    selection.rows.push_back(ReadArea(page, row));
  if (!selection.AmountsInClip) return;
  for (int area = selection.SelAmtFirst[Source]; area <= selection.SelAmtLast[Source]; ++area)
    selection.amounts.push_back(ReadArea(page, area));
}

void ClearSelection() {
  for (int window = 0; window <= CopyOfPage6; ++window) RestPage(page(window));
  ForgetRanges();
  selection.rows.clear();
  selection.amounts.clear();
  selection.SelectedCount = 0;
  selection.MultiSelected = selection.AmountsInClip = selection.ClipboardFull = false;
  editing.AreasSelected = editing.SelectionMemoryFull = editing.RecalcPending = false;
  SetSigns(colors::Black, colors::ButtonFace);
}

void DeselectAll(Page&) {
  Guarded("DeselectAll", [] {
    ClearSelection();
    SetEditMenuState();
  });
}

}  // namespace quillane
