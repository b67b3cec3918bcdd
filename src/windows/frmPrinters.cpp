// "Available Printers": which of them is this program's.
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "model/report.h"
#include "print/printer_choice.h"
#include "qt/dialog_parts.h"
#include "qt/windows.h"

namespace quillane {

namespace {

void Fill(QComboBox& box) {
  const PrinterList list = AvailablePrinters();
  box.clear();
  box.addItems(list.names);
  box.setPlaceholderText(list.prompt);
  box.setCurrentIndex(list.selected);
}

QComboBox* MakeBox() {
  auto* box = new QComboBox;
  box->setObjectName(QStringLiteral("cmbPrinters"));
  box->setAccessibleName(QStringLiteral("Printer"));
  Fill(*box);
  return box;
}

std::unique_ptr<QDialog> MakePrintersWindow(QWidget* parent) {
  auto window = std::make_unique<QDialog>(parent);
  QDialog* dialog = window.get();
  dialog->setObjectName(QStringLiteral("frmPrinters"));
  dialog->setWindowTitle(QStringLiteral("Available Printers"));

  auto* layout = new QVBoxLayout(dialog);
  auto* label = new QLabel(QStringLiteral("Select from Available Printers Below"));
  label->setObjectName(QStringLiteral("lblMain"));
  QComboBox* box = MakeBox();
  label->setBuddy(box);
  auto* buttons = new QDialogButtonBox;
  AddButton(*buttons, "cmdPrinter", "Make This My Default Printer", QDialogButtonBox::AcceptRole);
  AddButton(*buttons, "cmdExit", "Exit Without Changing", QDialogButtonBox::RejectRole);
  layout->addWidget(label);
  layout->addWidget(box);
  layout->addSpacing(layout->spacing());
  layout->addWidget(buttons);
  box->setFocus();

  QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
  QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, [dialog, box] {
    Guarded("cmdPrinter_Click", [&] {
      if (box->currentIndex() < 0) return;
      if (MakeDefaultPrinter(box->currentText())) return dialog->accept();
      // A printer may have gone since the list was made.
      Fill(*box);
    });
  });
  return window;
}

const RegisteredWindow registered("frmPrinters", MakePrintersWindow);

}  // namespace

}  // namespace quillane
