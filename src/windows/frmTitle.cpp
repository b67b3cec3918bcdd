// The proposal's title and subtitle.
#include <QDialog>
#include <QFocusEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>

#include "model/report.h"
#include "pages/titles.h"
#include "qt/dialog_parts.h"
#include "qt/windows.h"

namespace quillane {

namespace {

/// A box that comes with its text selected, and selects it whenever it gets the focus, by a click too.
class SelectingBox : public QLineEdit {
 public:
  explicit SelectingBox(const QString& text) : QLineEdit(text) {
    // When its window becomes active the toolkit takes the selection of a box without focus away.
    connect(this, &QLineEdit::selectionChanged, this, [this] {
      if (!visited_ && !hasSelectedText() && !this->text().isEmpty()) selectAll();
    });
    selectAll();
  }

 protected:
  void focusInEvent(QFocusEvent* event) override {
    visited_ = true;
    QLineEdit::focusInEvent(event);
    // The click goes on to set the caret; the selection comes after it.
    if (event->reason() == Qt::MouseFocusReason) QTimer::singleShot(0, this, &QLineEdit::selectAll);
  }

 private:
  bool visited_ = false;
};

/// A label, the box under it, and the button that clears the box.
QLineEdit* AddTitle(QGridLayout& grid, int number, const QString& name, const QString& caption,
                    const QString& text) {
  auto* box = Named(new SelectingBox(text), name);
  box->setMinimumWidth(box->fontMetrics().averageCharWidth() * 60);
  auto* label = PlainLabel(QStringLiteral("lblTitle(%1)").arg(number), caption);
  label->setBuddy(box);
  box->setAccessibleName(caption);
  auto* clear = Named(new QPushButton(QStringLiteral("Clear")), QStringLiteral("cmdClear(%1)").arg(number),
                      QStringLiteral("Clear ") +
                          (number == 0 ? QStringLiteral("the title") : QStringLiteral("the subtitle")));
  clear->setAutoDefault(false);
  QObject::connect(clear, &QPushButton::clicked, box, [box] {
    box->clear();
    box->setFocus();
  });
  const int row = 3 * number;
  grid.addWidget(label, row, 0, 1, 2);
  grid.addWidget(box, row + 1, 0);
  grid.addWidget(clear, row + 1, 1);
  grid.setRowMinimumHeight(row + 2, 10);
  return box;
}

std::unique_ptr<QDialog> MakeTitleWindow(QWidget* parent) {
  auto window = std::make_unique<QDialog>(parent);
  QDialog* dialog = window.get();
  dialog->setObjectName(QStringLiteral("frmTitle"));
  dialog->setWindowTitle(QStringLiteral("Proposal Page Titles and Subtitles"));

  const ProposalTitles shown = TitlesToEdit();
  auto* grid = new QGridLayout;
  grid->setColumnStretch(0, 1);
  QLineEdit* title = AddTitle(*grid, 0, QStringLiteral("txtTitle"),
                              QStringLiteral("Your Current Proposal is Titled..."), shown.title);
  QLineEdit* subTitle = AddTitle(*grid, 1, QStringLiteral("txtSubTitle"),
                                 QStringLiteral("Your Current Proposal is Sub-titled..."), shown.subTitle);
  auto* buttons = new QDialogButtonBox;
  QPushButton* byDefault =
      AddButton(*buttons, "cmdDefault", "Make This Title Default", QDialogButtonBox::ResetRole);
  byDefault->setToolTip(QStringLiteral("New proposals will begin with this subtitle"));
  AddButton(*buttons, "cmdOK", "Save and Exit", QDialogButtonBox::AcceptRole);
  AddButton(*buttons, "cmdCancel", "Cancel", QDialogButtonBox::RejectRole);
  auto* layout = new QVBoxLayout(dialog);
  layout->addLayout(grid);
  layout->addWidget(buttons);
  title->setFocus();

  QObject::connect(byDefault, &QPushButton::clicked, dialog, [subTitle] {
    Guarded("cmdDefault_Click", [subTitle] { MakeSubTitleDefault(subTitle->text()); });
  });
  QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
  QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, [dialog, title, subTitle] {
    if (Guarded("cmdOK_Click", [&] { SaveTitles({title->text(), subTitle->text()}); })) dialog->accept();
  });
  return window;
}

const RegisteredWindow registered("frmTitle", MakeTitleWindow);

}  // namespace

}  // namespace quillane
