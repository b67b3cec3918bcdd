#include "pages/rows.h"

#include "model/proposal.h"
#include "pages/defaults.h"
#include "pages/features.h"

namespace quillane {

namespace {
const QString NoColumns = QStringLiteral("Hide");
const QString QtyPrompt = QStringLiteral("Qty.");
const QString AmtPrompt = QStringLiteral("Amt.");

TextAreaRecord& Record(TextTable& table, const Page& page, int area) {
  return table[page.pageIndex][area];
}

void PaintBox(Control& box, Look look) {
  box.SetBackColor(look == Look::Selected ? colors::Blue : colors::LightGrey);
  box.SetForeColor(look == Look::Selected ? colors::White : proposal.UDP.FontColor);
}
}  // namespace

bool IsBlue(const Control& control) {
  return control.BackColor() == colors::Blue;
}

ClipRow ReadRow(const Page& page, int row) {
  ClipRow contents{page.txt[row].Text(), page.txt[row].GetFont().bold, NoColumns, {}};
  if (page.HasColumns(row)) {
    contents.ClipQty = page.txtQty[row].Text();
    contents.ClipAmt = page.txtAmt[row].Text();
  }
  return contents;
}

ClipAmount ReadAmount(const Page& page, int area) {
  return {page.txt[area].Text(), page.txt[area].GetFont().bold, page.imgNoTax[area].Visible()};
}

void WriteRow(Page& page, int row, const ClipRow& contents) {
  const bool columns = contents.ClipQty != NoColumns;
  {
    // The row's text carries the handlers' work; the boxes are only brought to their state here.
    Scoped quiet(editing.MovingContents, true);
    page.txtQty[row].SetText(columns ? contents.ClipQty : QtyPrompt);
    page.txtAmt[row].SetText(columns ? contents.ClipAmt : AmtPrompt);
  }
  ShowRowColumns(page, row, columns);
  page.txt[row].SetFontBold(contents.ClipDescBold);
  page.txt[row].SetText(contents.ClipDescText);
  KeepStoredForm(page, row);
}

void WriteAmount(Page& page, int area, const ClipAmount& contents) {
  page.imgNoTax[area].SetShown(contents.ClipAmtExempt);
  page.txt[area].SetFontBold(contents.ClipAmtBold);
  page.txt[area].SetText(contents.ClipAmtText);
  KeepStoredForm(page, area);
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

void KeepStoredForm(Page& page, int area) {
  const bool columns = page.IsRow(area) && page.HasColumns(area);
  if (!editing.MovingContents) proposal.PageText[page.pageIndex][area] = StoredForm(page, area);
  for (TextTable* table : {&proposal.TextRec, &format.FormatTextRec}) {
    TextAreaRecord& record = Record(*table, page, area);
    record.FontBold = page.txt[area].GetFont().bold;
    record.TaxExempt = page.imgNoTax[area].Visible();
    record.QtyBox = columns;
    if (page.IsRow(area)) {
      record.QtyValue = columns ? page.txtQty[area].Text() : QString();
      record.AmtValue = columns ? page.txtAmt[area].Text() : QString();
    }
  }
}

}  // namespace quillane
