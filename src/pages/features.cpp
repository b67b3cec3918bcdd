#include "pages/features.h"

#include "model/proposal.h"
#include "model/report.h"

namespace quillane {

namespace {

// The stored form's separators: before and behind the quantity, and before the each-price.
constexpr QChar BeforePart(165), BeforePrice(167);

/// Bold and exemption of an area, into both layers.
void TakeLook(const Page& page, int area) {
  for (TextAreaRecord* record :
       {&proposal.TextRec[page.pageIndex][area], &format.FormatTextRec[page.pageIndex][area]}) {
    record->FontBold = page.txt[area].GetFont().bold;
    record->TaxExempt = page.imgNoTax[area].Visible();
  }
}

/// The columns of a row, into both layers.
void TakeColumns(const Page& page, int row) {
  const bool columns = page.HasColumns(static_cast<int>(row));
  for (TextAreaRecord* record :
       {&proposal.TextRec[page.pageIndex][row], &format.FormatTextRec[page.pageIndex][row]}) {
    record->QtyWritten = columns;
    record->QtyBox = columns;
    record->QtyValue = page.txtQty[row].Text();
    record->AmtValue = page.txtAmt[row].Text();
  }
}

void TakePage(const Page& page) {
  auto& texts = proposal.PageText[page.pageIndex];
  for (int area = 0; area <= page.LastText(); ++area) {
    if (page.IsItemPage()) TakeLook(page, area);
    if (page.IsRow(area)) TakeColumns(page, area);
    texts[area] = StoredForm(page, area);
  }
}

}  // namespace

QString StoredForm(const Page& page, int area) {
  const QString text = page.txt[area].Text().trimmed();
  if (!page.IsRow(area) || !page.HasColumns(area)) return text;
  return BeforePart + page.txtQty[area].Text() + BeforePart + text + BeforePrice + page.txtAmt[area].Text();
}

void SaveTextBoxFeatures() {
  Guarded("SaveTextBoxFeatures", [] {
    for (int window = 0; window < IndexedPages; ++window) TakePage(page(window));
  });
}

void SyncQtyFlags() {
  for (int window = 0; window < ItemPages; ++window) {
    const Page& current = page(window);
    if (!current.columnsLoaded) continue;
    for (int row = current.FirstRow(); row <= current.LastRow(); ++row) {
      const bool columns = !current.txtQty[row].Hidden();
      proposal.TextRec[window][row].QtyBox = columns;
      format.FormatTextRec[window][row].QtyBox = columns;
    }
  }
}

}  // namespace quillane
