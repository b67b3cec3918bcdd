// The commands around the totals: taking the amount in use, checking, exemption, recalculation, the rate.
#pragma once
#include "pages/totals.h"

namespace quillane {

/// Takes the focused amount, adds up all pages, runs both calculations and compares them: a difference turns
/// cmdReCalc red and is told.  True when they agree, and always while the totals are hidden.
bool CheckTheTotals();

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

/// The rate dialog's rules: what cmdOK makes of the text.  Text that is no number, and a rate that cannot be
/// written, is reported and changes nothing.
void AcceptTaxRate(const QString& typed);

}  // namespace quillane
