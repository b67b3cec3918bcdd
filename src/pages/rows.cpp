#include "pages/rows.h"

#include "model/proposal.h"
#include "pages/defaults.h"

namespace quillane {

namespace {

void PaintBox(Control& box, Look look) {
  box.SetBackColor(look == Look::Selected ? colors::Blue : colors::LightGrey);
  box.SetForeColor(look == Look::Selected ? colors::White : proposal.UDP.FontColor);
}

void WriteColumns(Page& page, int row, const TextAreaRecord& record) {
  // The row's text carries the handlers' work; the boxes are only brought to their state here.
  const Scoped quiet(editing.MovingContents, true);
  if (record.QtyBox) LoadColumns(page);
  page.txtQty[row].SetText(record.QtyBox ? record.QtyValue : QuantityPrompt);
  page.txtAmt[row].SetText(record.QtyBox ? record.AmtValue : EachPrompt);
  ShowRowColumns(page, row, record.QtyBox);
}

}  // namespace

bool IsBlue(const Control& control) {
  return control.BackColor() == colors::Blue;
}

TextAreaRecord ReadArea(const Page& page, int area) {
  TextAreaRecord record;
  record.Text = page.txt[area].Text();
  record.FontBold = page.txt[area].GetFont().bold;
  record.QtyBox = page.HasColumns(area);
  if (record.QtyBox) {
    record.QtyValue = page.txtQty[area].Text();
    record.AmtValue = page.txtAmt[area].Text();
  }
  record.TaxExempt = page.IsExempt(area);
  if (page.IsItemPage()) record.AreaAmount = proposal.AreaAmount[page.pageIndex][area];
  return record;
}

void WriteArea(Page& page, int area, const TextAreaRecord& record) {
  if (page.IsRow(area)) WriteColumns(page, area, record);
  if (page.IsItemPage()) page.imgNoTax[area].SetShown(record.TaxExempt);
  page.txt[area].SetFontBold(record.FontBold);
  page.txt[area].SetText(record.Text);
}

QString StoredForm(const Page& page, int area) {
  return StoredForm(ReadArea(page, area));
}

void PaintArea(Page& page, int area, Look look) {
  Control& box = Area(page, area);
  box.SetBackColor(look == Look::Selected ? colors::Blue : colors::Grey);
  box.SetForeColor(look == Look::Selected ? colors::White : proposal.UDP.FontColor);
  if (!page.IsRow(area)) return;
  const Look boxes = page.HasColumns(area) ? look : Look::Rest;
  PaintBox(page.txtQty[area], boxes);
  PaintBox(page.txtAmt[area], boxes);
}

}  // namespace quillane
