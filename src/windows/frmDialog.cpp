// "Printing": which page is on its way, and the way to stop it.
#include <QDialog>
#include <QLabel>
#include <QMetaObject>
#include <QPushButton>
#include <QVBoxLayout>

#include "print/print.h"
#include "qt/windows.h"

namespace quillane {

namespace {

class PrintDialog : public QDialog {
 public:
  explicit PrintDialog(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmDialog"));
    setWindowTitle(QStringLiteral("Printing"));
    // Nothing may be typed into a page while it is on its way.
    setModal(true);
    auto* message = new QLabel(PrintMessage(), this);
    message->setObjectName(QStringLiteral("lblMessage"));
    message->setAlignment(Qt::AlignCenter);
    message->setMinimumWidth(280);
    auto* cancel = new QPushButton(QStringLiteral("Cancel Print"), this);
    cancel->setObjectName(QStringLiteral("cmdCancelPrint"));
    cancel->setDefault(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(message);
    layout->addWidget(cancel, 0, Qt::AlignHCenter);
    layout->setSpacing(16);
    layout->setContentsMargins(24, 20, 24, 16);
    connect(cancel, &QPushButton::clicked, this, [] { CancelPrint(); });
  }

  /// Escape and the close box cancel, as the button does.
  void reject() override { CancelPrint(); }
};

const RegisteredWindow registered("frmDialog", Make<PrintDialog>);

}  // namespace

}  // namespace quillane
