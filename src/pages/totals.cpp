#include "pages/totals.h"

namespace quillane {
void CalculateMyTotals(Page&) {}
void CalculateAllPages() {}
void RecalculateTotals(int) {}
void CheckAddition() {}
bool CheckTheTotals() {
  return true;
}
void AmountTextChanged(Page&, Control&) {}
void AmountLeft(Page&, Control&) {}
void MultiplyRow(Page&, int, Product) {}
void TotalsTextChanged(Page&, Control&) {}
void TotalsAreaLeft() {}
void RewriteDeposit() {}
void TakeFocusedAmount() {}
void MakeTaxExempt() {}
void MakeTaxable() {}
void MarkClicked(Control&) {}
void RecalculateCommand() {}
void ToggleHideTotals() {}
void ShowRunningSubTotal() {}
void AcceptTaxRate(const QString&) {}
}  // namespace quillane
