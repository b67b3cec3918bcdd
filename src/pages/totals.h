// Amounts, the two calculations, sales tax, exemption.
#pragma once
#include "model/page.h"

namespace quillane {

/// Recomputes PageSubTotal and PageTaxable of an item page.  Throws 6 when a sum leaves single precision.
void CalculateMyTotals(Page& page);
void CalculateAllPages();
/// The fast calculation: adds the page sums and writes page 6.  The argument is not used.  A failure is told
/// and leaves the figures as far as they got.
void RecalculateTotals(int ignored);
/// The slow one: walks every amount area and adds what is actually in it, so that the two can be compared.
void CheckAddition();
/// Takes the focused amount, adds up all pages, runs both calculations and compares them: a difference turns
/// cmdReCalc red and is told.  True when they agree, and always while the totals are hidden.
bool CheckTheTotals();

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

/// Before anything that leaves the page or checks the sums: the amount that has the focus is taken as if it
/// had been left, and a pending catch-up of a move is finished.
void TakeFocusedAmount();

// Commands.  Exemption works on the area in use and does nothing where that is no amount area.
void MakeTaxExempt();
void MakeTaxable();
/// A click on a tax mark makes its amount taxable.
void MarkClicked(Control& mark);
void RecalculateCommand();
void ToggleHideTotals();
/// A test aid: fills the amounts of frmP2 with multiples of a value and shows the sum that they must have.
void AdminCheckAddition();
/// "Running Sub-Total = ", the currency symbol and the figure.
void ShowRunningSubTotal();

/// The rate dialog's rules: what cmdOK makes of the text.  Text that is no number, and a rate that cannot be
/// written, is reported and changes nothing.
void AcceptTaxRate(const QString& typed);

}  // namespace quillane
