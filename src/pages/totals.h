// Amounts, the two calculations, sales tax, exemption.
#pragma once
#include "model/page.h"

namespace quillane {

/// The value of an amount area as far as it is taxed: 0 where it is exempt or empty.
float AreaTaxable(const Page& page, int area);
/// Recomputes PageSubTotal and PageTaxable of an item page.  Throws 6 when a sum leaves single precision.
void CalculateMyTotals(Page& page);
void CalculateAllPages();
/// The fast calculation: adds the page sums and writes page 6.  The argument is not used.  A failure is told
/// and leaves the figures as far as they got.
void RecalculateTotals(int ignored);
/// The slow one: walks every amount area and adds what is actually in it, so that the two can be compared.
void CheckAddition();

/// An amount area's text has changed: the value enters the model.
void AmountTextChanged(Page& page, Control& area);
/// An amount area is left: value, "###,##0.00", page sums, totals.
void AmountLeft(Page& page, Control& area);
enum class Product { FromTyping, FromLeaving };
/// Quantity times each-price into the row's amount area, when both are numbers.  From typing the page's sums
/// follow at once; from leaving they wait for the amount area to be left.
void MultiplyRow(Page& page, int row, Product when);
/// Page 6: a figure was typed or written; an area was left; Enter or Tab in the deposit.
void TotalsTextChanged(Page& page, Control& area);
void TotalsAreaLeft();
void RewriteDeposit();

/// "Running Sub-Total = ", the currency symbol and the figure.
void ShowRunningSubTotal();

}  // namespace quillane
