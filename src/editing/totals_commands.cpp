// The commands around the totals: exemption, recalculation, the rate, and what shows.
#include "editing/totals_commands.h"

#include "editing/area_rules.h"
#include "editing/selection.h"
#include "model/focus.h"
#include "model/frame.h"
#include "model/proposal.h"
#include "model/report.h"
#include "platform/numbers.h"
#include "settings/tax_rate.h"
#include "ui/desk.h"

namespace quillane {

namespace {

enum class Exemption { Exempt, Taxable };

/// Writes the exemption onto the page.  The page's sums wait for the next calculation.
void SetExemption(Page& owner, int area, Exemption exemption) {
  owner.imgNoTax[area].SetShown(exemption == Exemption::Exempt);
  proposal.AreaMarks[owner.pageIndex][area].PropChanged = true;
}

void ChangeExemptionOfCurrentArea(Exemption exemption) {
  Page& owner = editing.CurrentForm();
  if (!owner.IsAmount(editing.CurrentArea) || FixedByFormat(owner, editing.CurrentArea)) return;
  SetExemption(owner, editing.CurrentArea, exemption);
  SetFocus(owner.txt[editing.CurrentArea]);
  MarkTotalsStale();
}

QString ReportLine(const char* name, float figure) {
  return QString::fromLatin1(name) + FormatNumber(figure, patterns::Report);
}

/// Empties the figures that the option hides.  The model keeps them.
void EmptyHiddenFigures() {
  const Scoped quiet(editing.OpeningFile, true);
  for (int window : {5, CopyOfPage6})
    for (int area : {0, 1, 2, 3, 5}) page(window).txt[area].SetText(QString());
}

void ShowTotals(bool shown) {
  for (const char* name : {"lblTotal", "cmdReCalc"}) frame()[QString::fromLatin1(name)].SetVisible(shown);
}

/// The amounts of frmP2 become V, 2 V, 3 V and so on, each the text before it and V.
void FillSecondPage(float value) {
  Page& second = page(1);
  for (int area = 36; area < 70; ++area) second.txt[area].SetText(QString());
  second.txt[35].SetText(SingleText(value));
  for (int area = 36; area < 70; ++area)
    second.txt[area].SetText(SingleText(ToSingle(second.txt[area - 1].Text()) + value));
}

float SumOfMultiples(float value) {
  FixedArray<float, 35> multiples;
  multiples[0] = value;
  for (int i = 1; i < multiples.size(); ++i) multiples[i] = multiples[i - 1] + value;
  float sum = 0;
  for (const float multiple : multiples) sum += multiple;
  return sum;
}

QString Comparable(float total) {
  return FormatText(SingleText(total), patterns::Comparison);
}

}  // namespace

bool CheckTheTotals() {
  TakeFocusedAmount();
  if (!Guarded("CalculateMyTotals", CalculateAllPages)) return false;
  CheckAddition();
  RecalculateTotals(0);
  if (editing.HideTotals || Comparable(proposal.CheckTotal) == Comparable(proposal.RunningTotal)) return true;
  MarkTotalsStale();
  Tell(
      QStringLiteral("A descrepancy has occurred in calculating the totals. Please verify\n"
                     "the total amounts manually or press \"Recalculate\" to continue the\n"
                     "calculation without true verification. We apologize for the inconvenience."));
  return false;
}

void TakeFocusedAmount() {
  SettleFocus();
  if (editing.CurrentForm().IsItemPage()) FinishMove(editing.CurrentForm());
}

void MakeTaxExempt() {
  ChangeExemptionOfCurrentArea(Exemption::Exempt);
}
void MakeTaxable() {
  ChangeExemptionOfCurrentArea(Exemption::Taxable);
}

void MarkClicked(Control& mark) {
  Page* owner = PageOf(mark);
  if (!owner || !owner->IsAmount(mark.Index()) || FixedByFormat(*owner, mark.Index())) return;
  SetExemption(*owner, mark.Index(), Exemption::Taxable);
  RecalculateTotals(0);
  MarkTotalsStale();
  Control& button = frame()["cmdReCalc"];
  if (button.Visible() && button.Enabled()) SetFocus(button);
}

void RecalculateCommand() {
  TakeFocusedAmount();
  if (!Guarded("CalculateMyTotals", CalculateAllPages)) return;
  CheckAddition();
  const QStringList lines = {QStringLiteral("All amounts have been recalculated."),
                             ReportLine("SubTotal = ", proposal.SubTotal),
                             ReportLine("Taxable SubTotal = ", proposal.TaxableAmount),
                             ReportLine("Sales Tax = ", proposal.SalesTax),
                             ReportLine("Total = ", proposal.GrandTotal),
                             ReportLine("Deposit = ", proposal.DepositReceived),
                             ReportLine("Balance = ", proposal.BalanceDue)};
  Tell(lines.join(QLatin1Char('\n')));
}

void ToggleHideTotals() {
  editing.HideTotals = !editing.HideTotals;
  if (Control* entry = frame().Find(QStringLiteral("mnuOptHideTotals")))
    entry->SetChecked(editing.HideTotals);
  ShowTotals(!editing.HideTotals);
  EmptyHiddenFigures();
  if (editing.HideTotals || !Guarded("CalculateMyTotals", CalculateAllPages)) return;
  RecalculateTotals(0);
}

void AdminCheckAddition() {
  const QString answer =
      desk().InputBox(QStringLiteral("Please enter value"), QStringLiteral("Quillane"), QString()).trimmed();
  if (answer.isEmpty()) return;
  Guarded("mnuAdminCheckAddition_Click", [&] {
    const float value = ToSingle(answer);
    FillSecondPage(value);
    Tell(SingleText(SumOfMultiples(value)));
  });
}

void AcceptTaxRate(const QString& typed) {
  const QString text = typed.trimmed();
  const TaxState before = tax;
  Guarded("cmdOK_Click", [&] {
    if (!text.isEmpty() && !IsNumeric(text)) Raise(errors::TypeMismatch, text);
    tax.TaxRateText = FormatText(text, patterns::Rate).left(5).trimmed();
    tax.TaxRate = static_cast<float>(Val(tax.TaxRateText));
    // A rate that is not on disk would tax this proposal and not the next, under a button that shows another.
    if (Guarded("SaveTaxRate", SaveTaxRate)) return;
    tax.TaxRateText = before.TaxRateText;
    tax.TaxRate = before.TaxRate;
  });
}

}  // namespace quillane
