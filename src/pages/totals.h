// Amounts, the two calculations, sales tax, exemption.
#pragma once
#include "model/page.h"

namespace quillane {

/// Recomputes PageSubTotal and PageTaxable of an item page.
void CalculateMyTotals(Page& page);
void CalculateAllPages();
/// The fast calculation: adds the page sums and writes page 6.  The argument is not used.
void RecalculateTotals(int ignored);
/// The slow one: walks every amount area and adds what is actually in it.
void CheckAddition();
/// Both, and their comparison: a difference turns cmdReCalc red and is told.  True when they agree.
bool CheckTheTotals();

/// An amount area's text has changed: the value enters the model.
void AmountTextChanged(Page& page, Control& area);
/// An amount area is left: value, "###,##0.00", page sums, totals.
void AmountLeft(Page& page, Control& area);
enum class Product { FromTyping, FromLeaving };
/// Quantity times each-price into the row's amount area.
void MultiplyRow(Page& page, int row, Product when);
/// Page 6: a figure was typed or written; an area was left; Enter or Tab in the deposit.
void TotalsTextChanged(Page& page, Control& area);
void TotalsAreaLeft();
void RewriteDeposit();

/// Before anything that leaves the page or checks the sums: the amount that has the focus is taken as if it had been
/// left, and a pending catch-up of a move is finished.
void TakeFocusedAmount();

// Commands.
void MakeTaxExempt();
void MakeTaxable();
void MarkClicked(Control& mark);
void RecalculateCommand();
void ToggleHideTotals();
/// "Running Sub-Total = ", the currency symbol and the figure.
void ShowRunningSubTotal();

/// The rate dialog's rules: what cmdOK makes of the text.
void AcceptTaxRate(const QString& typed);

}  // namespace quillane
