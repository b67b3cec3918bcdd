// The columns of a row: quantity and each-price beside its description.
#include "editing/area_rules.h"
#include "model/focus.h"
#include "model/proposal.h"
#include "pages/defaults.h"

namespace quillane {

namespace {

void PutPromptsBack(Page& page, int row) {
  At(page.txtQty, row).SetText(QuantityPrompt);
  At(page.txtAmt, row).SetText(EachPrompt);
}

void ShowColumns(Page& page, int row, bool shown) {
  ShowRowColumns(page, row, shown);
  PutPromptsBack(page, row);
  RefreshWarning(page, At(page.txt, row));
}

}  // namespace

void ToggleColumns() {
  Page& page = editing.CurrentForm();
  const int row = editing.CurrentArea;
  if (!page.IsRow(row) || editing.AreasSelected || FixedByFormat(page, row)) return;
  if (!page.ColumnsLoaded) LoadColumns(page);
  const bool show = !page.HasColumns(row);
  ShowColumns(page, row, show);
  // With the client's copy in front the command still acts, but the focus does not leave the page that is
  // seen.
  if (!editing.CopyInFront) SetFocus(At(show ? page.txtQty : page.txt, row));
}

}  // namespace quillane
