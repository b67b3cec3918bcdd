// The sales tax rate.
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "editing/totals_commands.h"
#include "model/proposal.h"
#include "model/report.h"
#include "qt/key_filter.h"
#include "qt/windows.h"

namespace quillane {

namespace {

QLabel* MakeExplanation() {
  auto label =
      std::make_unique<QLabel>(QStringLiteral("The Current Tax Rate is %1%. You can change it by entering a "
                                              "new value in the text area below.")
                                   .arg(tax.TaxRateText));
  label->setObjectName("lblTaxRate");
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  return label.release();
}

QLineEdit* MakeRateBox() {
  auto box = std::make_unique<QLineEdit>();
  box->setObjectName("txtTaxRate");
  box->setAccessibleName(QStringLiteral("Tax rate in percent"));
  if (tax.TaxRate != 0) box->setText(tax.TaxRateText);
  AllowOnly(*box, QStringLiteral("0123456789."), RefusedKey::Beeps);
  box->selectAll();
  return box.release();
}

std::unique_ptr<QDialog> MakeTaxWindow(QWidget* parent) {
  auto window = std::make_unique<QDialog>(parent);
  QDialog* dialog = window.get();
  dialog->setObjectName("frmTax");
  dialog->setWindowTitle(QStringLiteral("Sales Tax Rate"));

  auto* layout = new QVBoxLayout(dialog);
  QLineEdit* rate = MakeRateBox();
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  QPushButton* ok = buttons->button(QDialogButtonBox::Ok);
  ok->setObjectName("cmdOK");
  ok->setDefault(true);
  buttons->button(QDialogButtonBox::Cancel)->setObjectName("cmdCancel");
  layout->addWidget(MakeExplanation());
  layout->addWidget(rate);
  layout->addWidget(buttons);
  rate->setFocus();

  // The start-up sequence waits for this window; the flag says that it is there.
  tax.DialogOpen = true;
  QObject::connect(dialog, &QDialog::finished, [] { tax.DialogOpen = false; });
  QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
  QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, [dialog, rate] {
    if (Guarded("SaveTaxRate", [rate] { AcceptTaxRate(rate->text()); })) dialog->accept();
  });
  return window;
}

const RegisteredWindow registered("frmTax", MakeTaxWindow);

}  // namespace

}  // namespace quillane
