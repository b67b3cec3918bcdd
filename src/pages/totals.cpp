#include "pages/totals.h"

#include <cmath>

#include "model/frame.h"
#include "model/proposal.h"
#include "model/report.h"
#include "platform/numbers.h"
#include "ui/desk.h"

namespace quillane {

namespace {

/// Single precision has no infinity here: a sum that leaves it is an error.
float Checked(float value) {
  if (!std::isfinite(value)) Raise(errors::Overflow);
  return value;
}

QString Money(float value) {
  return FormatNumber(value, patterns::Money);
}

Control& Figure(int area) {
  return page(5).txt[area];
}

void MarkFresh() {
  MarkTotalsFresh();
  editing.RecalcMarked = false;
}

bool NumericOrEmpty(const QString& text) {
  return text.isEmpty() || IsNumeric(text);
}

float ValueOf(const QString& trimmed) {
  return trimmed.isEmpty() ? 0.0F : ToSingle(trimmed);
}

void EnterAmount(const Page& owner, int area, float value) {
  proposal.AreaAmount[owner.pageIndex][area] = value;
}

/// The tax is worked out beyond double precision and rounded once, as it is stored.
float TaxOn(float taxable) {
  const long double rate = static_cast<long double>(tax.TaxRate) * static_cast<long double>(0.01);
  return Checked(static_cast<float>(static_cast<long double>(taxable) * rate));
}

/// What is taxable may sum below zero when a courtesy is larger than the goods: nothing is owed then.
float Floored(float taxable) {
  return taxable < 0 ? 0.0F : taxable;
}

void ShowHiddenTotals() {
  Figure(4).SetText(Money(proposal.DepositReceived));
  page(CopyOfPage6).txt[4].SetText(Money(proposal.DepositReceived));
}

void CopyFigures() {
  for (int area = 0; area < 6; ++area) page(CopyOfPage6).txt[area].SetText(Figure(area).Text());
}

void AddThePages() {
  proposal.SubTotal = 0;
  proposal.TaxableAmount = 0;
  for (const float sum : proposal.PageSubTotal) proposal.SubTotal = Checked(proposal.SubTotal + sum);
  for (const float sum : proposal.PageTaxable) proposal.TaxableAmount = Checked(proposal.TaxableAmount + sum);
  proposal.TaxableAmount = Floored(proposal.TaxableAmount);
  proposal.SalesTax = TaxOn(proposal.TaxableAmount);
  proposal.GrandTotal = Checked(proposal.SubTotal + proposal.SalesTax);
  proposal.RunningTotal = proposal.GrandTotal;
}

/// Writing a figure runs the page's change handler, which may calculate again before the next one is written:
/// each is read from the proposal as late as it can be.
void Recalculate() {
  if (editing.HideTotals) {
    ShowHiddenTotals();
    return;
  }
  AddThePages();
  Figure(0).SetText(Money(proposal.SubTotal));
  Figure(1).SetText(Money(proposal.TaxableAmount));
  Figure(2).SetText(Money(proposal.SalesTax));
  Figure(3).SetText(Money(proposal.GrandTotal));
  proposal.BalanceDue = Checked(proposal.GrandTotal - proposal.DepositReceived);
  Figure(5).SetText(Money(proposal.BalanceDue));
  CopyFigures();
  ShowRunningSubTotal();
  MarkFresh();
  editing.RecalcPending = false;
}

struct Sums {
  float all = 0, taxable = 0;
};

void AddWhatStandsOn(Page& owner, Sums& sums) {
  for (const Control* control : owner.Controls()) {
    if (control->GetKind() != Kind::TextBox || AreaKind(*control) != QLatin1String("Amou")) continue;
    const QString text = control->Text().trimmed();
    if (!IsNumeric(text)) continue;
    const float value = ToSingle(text);
    sums.all = Checked(sums.all + value);
    if (!owner.IsExempt(control->Index())) sums.taxable = Checked(sums.taxable + value);
  }
}

void WriteCheckedFigures(float sum) {
  if (sum != 0) {
    Figure(0).SetText(Money(proposal.SubTotal));
    Figure(1).SetText(Money(proposal.TaxableAmount));
    Figure(2).SetText(Money(proposal.SalesTax));
    // The plain number shows which of the two calculations wrote the total last.
    Figure(3).SetText(SingleText(proposal.GrandTotal));
    proposal.BalanceDue = Checked(proposal.GrandTotal - proposal.DepositReceived);
    Figure(4).SetText(Money(proposal.DepositReceived));
    Figure(5).SetText(Money(proposal.BalanceDue));
  } else if (proposal.DepositReceived == 0) {
    for (int area = 0; area < 6; ++area) Figure(area).SetText(QStringLiteral("0.00"));
  }
}

void AddEverything() {
  const Scoped running(editing.CheckRunning, true);
  if (editing.HideTotals) {
    Figure(4).SetText(Money(proposal.DepositReceived));
    return;
  }
  Sums sums;
  for (int window = 0; window < ItemPages; ++window) AddWhatStandsOn(page(window), sums);
  proposal.SubTotal = sums.all;
  proposal.TaxableAmount = Floored(sums.taxable);
  proposal.SalesTax = TaxOn(proposal.TaxableAmount);
  proposal.GrandTotal = Checked(sums.all + proposal.SalesTax);
  proposal.CheckTotal = proposal.GrandTotal;
  WriteCheckedFigures(sums.all);
  editing.RecalcPending = false;
  MarkFresh();
  ShowRunningSubTotal();
}

/// The figure of the proposal that an area of page 6 sets when a person types into it; null for the others.
float* FigureSetBy(const Control& area) {
  const QString kind = AreaKind(area);
  if (kind == QLatin1String("Depo")) return &proposal.DepositReceived;
  if (kind == QLatin1String("AllT")) return &proposal.TaxableAmount;
  return kind == QLatin1String("Tax.") ? &proposal.SalesTax : nullptr;
}

void TakeFigure(const Control& area) {
  float* figure = FigureSetBy(area);
  const QString text = area.Text().trimmed();
  if (!figure || !NumericOrEmpty(text)) return;
  *figure = ValueOf(text);
  if (!text.isEmpty() && !editing.CheckRunning) RecalculateTotals(0);
  MarkTotalsStale();
}

bool MayMultiply(Product when) {
  if (editing.AreasSelected) return false;
  if (when == Product::FromLeaving) return true;
  // RecalcPending here means that areas are being rewritten in bulk: an amount that was set by hand stays.
  return !editing.MovingContents && !editing.RebuildingPages && !editing.OpeningFile &&
         !editing.RecalcPending;
}

}  // namespace

float AreaTaxable(const Page& owner, int area) {
  return owner.IsExempt(area) ? 0.0F : proposal.AreaAmount[owner.pageIndex][area];
}

void CalculateMyTotals(Page& owner) {
  if (!owner.IsItemPage()) return;
  float& all = proposal.PageSubTotal[owner.pageIndex];
  float& taxable = proposal.PageTaxable[owner.pageIndex];
  all = 0;
  taxable = 0;
  for (int area = 0; area <= owner.LastText(); ++area) {
    all = Checked(all + proposal.AreaAmount[owner.pageIndex][area]);
    taxable = Checked(taxable + AreaTaxable(owner, area));
  }
}

void CalculateAllPages() {
  for (int window = 0; window < ItemPages; ++window) CalculateMyTotals(page(window));
}

void RecalculateTotals(int) {
  try {
    Recalculate();
  } catch (const RuntimeError& error) {
    ReportInOwnWords(QStringLiteral("Error encountered while recalculating totals."), error);
  }
}

void CheckAddition() {
  Guarded("CheckAddition", AddEverything);
}

void AmountTextChanged(Page& owner, Control& area) {
  const QString text = area.Text().trimmed();
  if (!NumericOrEmpty(text)) return;
  Guarded("txt_Change", [&] {
    EnterAmount(owner, area.Index(), ValueOf(text));
    owner.CurrencyLabel(area.Index()).SetShown(!text.isEmpty());
    MarkTotalsStale();
    editing.RecalcMarked = true;
    if (editing.RecalcPending) CalculateMyTotals(owner);
  });
}

void AmountLeft(Page& owner, Control& area) {
  const QString text = area.Text().trimmed();
  if (editing.AreasSelected || !NumericOrEmpty(text)) return;
  Guarded("txt_LostFocus", [&] {
    EnterAmount(owner, area.Index(), ValueOf(text));
    area.SetText(FormatText(text, patterns::Amount));
    CalculateMyTotals(owner);
    RecalculateTotals(0);
  });
}

void MultiplyRow(Page& owner, int row, Product when) {
  if (!owner.IsRow(row) || !MayMultiply(when)) return;
  const QString quantity = owner.txtQty[row].Text();
  const QString each = owner.txtAmt[row].Text();
  if (!IsNumeric(quantity) || !IsNumeric(each)) return;
  Guarded("txtQty_Change", [&] {
    const float product = Checked(ToSingle(quantity) * ToSingle(each));
    const Scoped pending(editing.RecalcPending, when == Product::FromTyping || editing.RecalcPending);
    Control& amount = owner.txt[row + owner.AmountOffset()];
    amount.SetText(FormatNumber(product, patterns::Product));
  });
}

void TotalsTextChanged(Page& owner, Control& area) {
  if (owner.window != 5 || editing.RebuildingPages || editing.OpeningFile) return;
  page(CopyOfPage6).txt[area.Index()].SetText(area.Text());
  Guarded("txt_Change", [&] { TakeFigure(area); });
}

void TotalsAreaLeft() {
  double sum = 0;
  for (const float figure :
       {proposal.SubTotal, proposal.DepositReceived, proposal.TaxableAmount, proposal.SalesTax})
    sum += ToDouble(SingleText(figure));
  if (sum != 0) RewriteDeposit();
}

void RewriteDeposit() {
  Figure(4).SetText(Money(proposal.DepositReceived));
  RecalculateTotals(0);
}

void ShowRunningSubTotal() {
  frame()["lblTotal"].SetCaption(QStringLiteral("Running Sub-Total = ") + prefs.CurrencySymbol +
                                 QLatin1Char(' ') + Money(proposal.SubTotal));
}

}  // namespace quillane
