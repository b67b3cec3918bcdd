#include "pages/row_contents.h"

#include "model/proposal.h"
#include "pages/defaults.h"
#include "pages/features.h"

namespace quillane {

namespace {
const QString NoColumns = QStringLiteral("Hide");
const QString QtyPrompt = QStringLiteral("Qty.");
const QString AmtPrompt = QStringLiteral("Amt.");

TextAreaRecord& Record(TextTable& table, const Page& page, int area) {
  return table[static_cast<size_t>(page.pageIndex)][static_cast<size_t>(area)];
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
  const auto i = static_cast<size_t>(row);
  ClipRow contents{page.txt[i].Text(), page.txt[i].GetFont().bold, NoColumns, {}};
  if (page.HasColumns(row)) {
    contents.ClipQty = page.txtQty[i].Text();
    contents.ClipAmt = page.txtAmt[i].Text();
  }
  return contents;
}

ClipAmount ReadAmount(const Page& page, int area) {
  const auto i = static_cast<size_t>(area);
  return {page.txt[i].Text(), page.txt[i].GetFont().bold, page.imgNoTax[i].Visible()};
}

void WriteRow(Page& page, int row, const ClipRow& contents) {
  const auto i = static_cast<size_t>(row);
  const bool columns = contents.ClipQty != NoColumns;
  {
    // The row's text carries the handlers' work; the boxes are only brought to their state here.
    Scoped quiet(editing.MovingContents, true);
    page.txtQty[i].SetText(columns ? contents.ClipQty : QtyPrompt);
    page.txtAmt[i].SetText(columns ? contents.ClipAmt : AmtPrompt);
  }
  ShowRowColumns(page, row, columns);
  page.txt[i].SetFontBold(contents.ClipDescBold);
  page.txt[i].SetText(contents.ClipDescText);
  KeepStoredForm(page, row);
}

void WriteAmount(Page& page, int area, const ClipAmount& contents) {
  const auto i = static_cast<size_t>(area);
  page.imgNoTax[i].SetShown(contents.ClipAmtExempt);
  page.txt[i].SetFontBold(contents.ClipAmtBold);
  page.txt[i].SetText(contents.ClipAmtText);
  KeepStoredForm(page, area);
}

void PaintArea(Page& page, int area, Look look) {
  Control& box = Area(page, area);
  box.SetBackColor(look == Look::Selected ? colors::Blue : colors::Grey);
  box.SetForeColor(look == Look::Selected ? colors::White : proposal.UDP.FontColor);
  if (!page.IsRow(area)) return;
  const auto i = static_cast<size_t>(area);
  const Look boxes = page.HasColumns(area) ? look : Look::Rest;
  PaintBox(page.txtQty[i], boxes);
  PaintBox(page.txtAmt[i], boxes);
}

void KeepStoredForm(Page& page, int area) {
  const auto i = static_cast<size_t>(area);
  const bool columns = page.IsRow(area) && page.HasColumns(area);
  if (!editing.MovingContents)
    proposal.PageText[static_cast<size_t>(page.pageIndex)][i] = StoredForm(page, area);
  for (TextTable* table : {&proposal.TextRec, &format.FormatTextRec}) {
    TextAreaRecord& record = Record(*table, page, area);
    record.FontBold = page.txt[i].GetFont().bold;
    record.TaxExempt = page.imgNoTax[i].Visible();
    record.QtyBox = columns;
    if (page.IsRow(area)) {
      record.QtyValue = columns ? page.txtQty[i].Text() : QString();
      record.AmtValue = columns ? page.txtAmt[i].Text() : QString();
    }
  }
}

}  // namespace quillane
