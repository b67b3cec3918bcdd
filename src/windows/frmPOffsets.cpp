// "Printer Offsets": by how much the print is shifted on the sheet.
#include <QDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "model/report.h"
#include "print/offsets.h"
#include "qt/dialog_parts.h"
#include "qt/key_filter.h"
#include "qt/windows.h"

namespace quillane {

namespace {

/// A box whose Enter leads to another one instead of pressing the default button.
class LeadingBox : public QLineEdit {
 public:
  QWidget* next = nullptr;  // not owned

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
      return QLineEdit::keyPressEvent(event);
    event->accept();
    if (next) next->setFocus(Qt::TabFocusReason);
  }
};

QLineEdit* Prepare(QLineEdit* box, const char* name, const char* spoken, const QString& text) {
  box->setObjectName(QLatin1String(name));
  box->setAccessibleName(QString::fromLatin1(spoken));
  AllowOnly(*box, OffsetCharacters, RefusedKey::Dropped);
  box->setText(text);
  box->setMaximumWidth(box->fontMetrics().averageCharWidth() * 14);
  return box;
}

QLabel* MakeLabel(const char* name, const QString& text) {
  auto* label = new QLabel(text);
  label->setObjectName(QLatin1String(name));
  label->setTextFormat(Qt::PlainText);
  return label;
}

/// What stands, and below it where the new value goes.
void AddRows(QGridLayout& grid, QLabel* current, QLabel* enter, QLineEdit* box) {
  const int row = grid.rowCount();
  enter->setBuddy(box);
  grid.addWidget(current, row, 0, 1, 2);
  grid.addWidget(enter, row + 1, 0);
  grid.addWidget(box, row + 1, 1, Qt::AlignLeft);
  grid.setRowMinimumHeight(row + 2, 10);
}

QMenuBar* MakeMenuBar(QDialog* dialog) {
  auto* bar = new QMenuBar(dialog);
  QMenu* help = bar->addMenu(QStringLiteral("Help"));
  help->setObjectName(QStringLiteral("mnuHelp"));
  help->menuAction()->setObjectName(QStringLiteral("mnuHelp"));
  QAction* explain = help->addAction(QStringLiteral("Explain Printer Offsets"), [] { ExplainOffsets(); });
  explain->setObjectName(QStringLiteral("mnuHelpPrinterOffsets"));
  return bar;
}

std::unique_ptr<QDialog> MakeOffsetsWindow(QWidget* parent) {
  auto window = std::make_unique<QDialog>(parent);
  QDialog* dialog = window.get();
  dialog->setObjectName(QStringLiteral("frmPOffsets"));
  dialog->setWindowTitle(QStringLiteral("Printer Offsets"));

  const OffsetTexts texts = OffsetsToShow();
  auto* leading = new LeadingBox;
  QLineEdit* x = Prepare(leading, "txtX", "New X offset in inches", texts.x);
  QLineEdit* y = Prepare(new QLineEdit, "txtY", "New Y offset in inches", texts.y);
  leading->next = y;
  auto* grid = new QGridLayout;
  grid->setColumnStretch(1, 1);
  const QString enter = QStringLiteral("Enter New Value Here");
  AddRows(*grid, MakeLabel("lblXOffset", texts.xLabel), MakeLabel("lblEnterX", enter), x);
  AddRows(*grid, MakeLabel("lblYOffset", texts.yLabel), MakeLabel("lblEnterY", enter), y);

  auto* buttons = new QDialogButtonBox;
  QPushButton* apply = AddButton(*buttons, "cmdOK", "Apply", QDialogButtonBox::ApplyRole);
  QPushButton* save = AddButton(*buttons, "cmdSavePrinterOffsets", "Save these Values and Exit",
                                QDialogButtonBox::AcceptRole);
  save->setDefault(false);
  apply->setDefault(true);
  auto* layout = new QVBoxLayout(dialog);
  layout->setMenuBar(MakeMenuBar(dialog));
  layout->addLayout(grid);
  layout->addWidget(buttons);
  QWidget::setTabOrder(x, y);
  QWidget::setTabOrder(y, apply);
  QWidget::setTabOrder(apply, save);
  x->setFocus();
  x->selectAll();

  QObject::connect(apply, &QPushButton::clicked, dialog,
                   [x, y] { Guarded("cmdOK_Click", [&] { ApplyOffsets(x->text(), y->text()); }); });
  QObject::connect(save, &QPushButton::clicked, dialog, [dialog, x, y] {
    if (SaveOffsets(x->text(), y->text())) dialog->accept();
  });
  return window;
}

const RegisteredWindow registered("frmPOffsets", MakeOffsetsWindow);

}  // namespace

}  // namespace quillane
