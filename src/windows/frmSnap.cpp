// "Snap Value": by how much a dragged label jumps, and how far the points of the grid stand apart.
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "editing/grid.h"
#include "model/report.h"
#include "qt/windows.h"

namespace quillane {

namespace {

void ApplyAndClose(QDialog& dialog, QLineEdit& box) {
  const bool heard = Guarded("cmdOK_Click", [&] {
    if (TakeSnap(box.text())) dialog.accept();
  });
  if (heard && dialog.result() == QDialog::Accepted) return;
  box.setFocus();
  box.selectAll();
}

QLineEdit* MakeSnapBox() {
  auto box = std::make_unique<QLineEdit>(SnapText());
  box->setObjectName(QStringLiteral("txtSnap"));
  box->setAccessibleName(QStringLiteral("Snap value in inches"));
  box->selectAll();
  return box.release();
}

QHBoxLayout* MakeQuickButtons(QDialog& dialog, QLineEdit& box) {
  auto row = std::make_unique<QHBoxLayout>();
  for (int i = 0; i < QuickSnaps.size(); ++i) {
    const QString& inches = QuickSnaps[i];
    auto* button = new QPushButton(inches);
    button->setObjectName(QStringLiteral("cmdSnap(%1)").arg(i));
    button->setAccessibleName(inches + QStringLiteral(" inches"));
    button->setToolTip(SnapToolTip(inches));
    QObject::connect(button, &QPushButton::clicked, &dialog, [&dialog, &box, inches] {
      box.setText(inches);
      ApplyAndClose(dialog, box);
    });
    row->addWidget(button);
  }
  return row.release();
}

std::unique_ptr<QDialog> MakeSnapWindow(QWidget* parent) {
  auto window = std::make_unique<QDialog>(parent);
  QDialog* dialog = window.get();
  dialog->setObjectName(QStringLiteral("frmSnap"));
  dialog->setWindowTitle(QStringLiteral("Snap Value"));

  QLineEdit* box = MakeSnapBox();
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  QPushButton* ok = buttons->button(QDialogButtonBox::Ok);
  ok->setObjectName(QStringLiteral("cmdOK"));
  ok->setDefault(true);
  buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
  auto* form = new QFormLayout;
  form->addRow(QStringLiteral("&Inches:"), box);
  auto* layout = new QVBoxLayout(dialog);
  constexpr int between = 12;
  layout->setSpacing(between);
  layout->addLayout(MakeQuickButtons(*dialog, *box));
  layout->addLayout(form);
  layout->addWidget(buttons);
  QWidget::setTabOrder(dialog->findChild<QWidget*>(QStringLiteral("cmdSnap(3)")), box);
  QWidget::setTabOrder(box, ok);
  box->setFocus();

  QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
  QObject::connect(buttons, &QDialogButtonBox::accepted, dialog,
                   [dialog, box] { ApplyAndClose(*dialog, *box); });
  return window;
}

const RegisteredWindow registered("frmSnap", MakeSnapWindow);

}  // namespace

}  // namespace quillane
