#include "pages/features.h"

#include "model/proposal.h"
#include "model/report.h"

namespace quillane {

namespace {

// The stored form's separators: before and behind the quantity, and before the each-price.
constexpr QChar BeforePart(165), BeforePrice(167);

/// Bold and exemption of an area, into both layers.
void TakeLook(const Page& page, size_t area) {
  const auto p = static_cast<size_t>(page.pageIndex);
  for (TextAreaRecord* record : {&proposal.TextRec[p][area], &format.FormatTextRec[p][area]}) {
    record->FontBold = page.txt[area].GetFont().bold;
    record->TaxExempt = page.imgNoTax[area].Visible();
  }
}

/// The columns of a row, into both layers.
void TakeColumns(const Page& page, size_t row) {
  const auto p = static_cast<size_t>(page.pageIndex);
  const bool columns = page.HasColumns(static_cast<int>(row));
  for (TextAreaRecord* record : {&proposal.TextRec[p][row], &format.FormatTextRec[p][row]}) {
    record->QtyWritten = columns;
    record->QtyBox = columns;
    record->QtyValue = page.txtQty[row].Text();
    record->AmtValue = page.txtAmt[row].Text();
  }
}

void TakePage(const Page& page) {
  auto& texts = proposal.PageText[static_cast<size_t>(page.pageIndex)];
  for (int area = 0; area <= page.LastText(); ++area) {
    const auto i = static_cast<size_t>(area);
    if (page.IsItemPage()) TakeLook(page, i);
    if (page.IsRow(area)) TakeColumns(page, i);
    texts[i] = StoredForm(page, area);
  }
}

}  // namespace

QString StoredForm(const Page& page, int area) {
  const auto i = static_cast<size_t>(area);
  const QString text = page.txt[i].Text().trimmed();
  if (!page.IsRow(area) || !page.HasColumns(area)) return text;
  return BeforePart + page.txtQty[i].Text() + BeforePart + text + BeforePrice + page.txtAmt[i].Text();
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
    const auto p = static_cast<size_t>(window);
    for (int row = current.FirstRow(); row <= current.LastRow(); ++row) {
      const auto i = static_cast<size_t>(row);
      const bool columns = !current.txtQty[i].Hidden();
      proposal.TextRec[p][i].QtyBox = columns;
      format.FormatTextRec[p][i].QtyBox = columns;
    }
  }
}

}  // namespace quillane
