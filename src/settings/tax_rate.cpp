#include "settings/tax_rate.h"

#include "model/frame.h"
#include "model/proposal.h"
#include "model/report.h"
#include "platform/codepage.h"
#include "platform/files.h"
#include "platform/numbers.h"
#include "ui/desk.h"

namespace quillane {

namespace {

constexpr int RateLength = 5;  // bytes in the file, however short the rate is

QString TaxFileName() {
  return QStringLiteral("SalesTax.txt");
}
QString TaxPath() {
  return prefs.ProposalFolder + TaxFileName();
}

bool WantsToChangeZero() {
  return AskYesNo(QStringLiteral("The current sales tax rate is 0%. Do you want to change it?"),
                  QStringLiteral("Sales Tax Rate is 0.0%"));
}

void SetRate(const QString& text, float rate) {
  tax.TaxRateText = text;
  tax.TaxRate = rate;
  ShowTaxRate();
}

}  // namespace

bool SalesTaxFileExists() {
  return FileExists(prefs.ProposalFolder, TaxFileName());
}

void GetTaxRate() {
  Guarded("GetTaxRate", [] {
    if (!SalesTaxFileExists()) WriteAt(TaxPath(), 1, {});
    const QString text = FromCodePage(ReadWholeFile(TaxPath()).left(RateLength)).trimmed();
    // Until the text has proved to be a rate there is none.
    SetRate(text, 0);
    if (Val(text) == 0 && WantsToChangeZero()) {
      SetRate(QStringLiteral("0.00"), 0);
      desk().ShowWindow(QStringLiteral("frmTax"), Modality::Modal);
    } else if (!text.isEmpty()) {
      SetRate(text, ToSingle(text));
    }
  });
}

void SaveTaxRate() {
  tax.TaxRateText = tax.TaxRateText.left(RateLength).trimmed();
  ReplaceFile(TaxPath(), ToCodePage(tax.TaxRateText.leftJustified(RateLength)));
  Tell(QStringLiteral("New Sales Tax Rate is %1 %.").arg(FormatNumber(tax.TaxRate, patterns::Rate)));
  ShowTaxRate();
  if (proposal.BalanceDue == 0) return;
  MarkTotalsStale();
  Tell(QStringLiteral("Please click Recalculate to update the totals."));
}

void ReadTextFile(const QString& path) {
  Guarded("ReadTextFile", [&] {
    const QString termsWindow = QStringLiteral("frmFUT");
    if (desk().WindowIsOpen(termsWindow)) desk().CloseWindow(termsWindow);
    desk().OpenExternally(ResolvePath(path));
  });
}

void ShowTaxRate() {
  frame()["cmdTaxRate"].SetCaption(QStringLiteral("Tax Rate: ") + SingleText(tax.TaxRate) + u'%');
}

}  // namespace quillane
