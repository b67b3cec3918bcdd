#include "windows/import_panel.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QPainter>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QToolButton>
#include <array>

#include "address/book.h"
#include "app/small_commands.h"
#include "qt/dialog_parts.h"
#include "qt/icons.h"
#include "qt/painter_surface.h"

namespace quillane {

namespace {

constexpr int CategoryColumns = 3;

struct TypeOfList {
  ListType type;
  const char *caption, *toolTip;
};
constexpr std::array<TypeOfList, 4> TypesOfList = {
    {{ListType::Lines, "Fields Separated by Carriage Returns",
      "Fields separated by Carriage Returns, Records separated by Double Carriage Returns."},
     {ListType::Commas, "Fields Separated by Commas",
      "Fields separated by Commas, Records separated by Carriage Returns."},
     {ListType::Tabs, "Fields Separated by Tabs",
      "Fields separated by Tabs, Records separated by Carriage Returns."},
     {ListType::MailProgram, "Microsoft CSV Address Book", ""}}};

QString Indexed(const char* array, int index) {
  return QStringLiteral("%1(%2)").arg(QLatin1String(array)).arg(index);
}

QLabel* WrappedLabel(const char* name, const QString& text) {
  QLabel* label = PlainLabel(QString::fromLatin1(name), text);
  label->setWordWrap(true);
  return label;
}

void SaveAllRemaining(QWidget* window) {
  std::unique_ptr<QProgressDialog> progress;
  SaveAllRemainingCommand([&](int done, int total) {
    if (!progress) {
      constexpr int longestWait = 1000;  // milliseconds, before there is something to look at
      progress = std::make_unique<QProgressDialog>(QStringLiteral("Saving the remaining records..."),
                                                   QStringLiteral("Cancel"), 0, total, window);
      progress->setWindowTitle(QStringLiteral("Importing Batch Records"));
      progress->setWindowModality(Qt::ApplicationModal);
      progress->setMinimumDuration(longestWait);
    }
    progress->setValue(done);
    return !progress->wasCanceled();
  });
}

}  // namespace

CategoryLabel::CategoryLabel() {
  setBackgroundRole(QPalette::Button);
  setAttribute(Qt::WA_Hover);
}

QSize CategoryLabel::sizeHint() const {
  constexpr int beside = 28, above = 12;
  return {fontMetrics().horizontalAdvance(text()) + beside, fontMetrics().height() + above};
}

void CategoryLabel::paintEvent(QPaintEvent*) {
  constexpr double radius = 4;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF whole = QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5);
  const QColor ground = palette().color(QPalette::Button);
  painter.setBrush(underMouse() ? ground.lighter(108) : ground);
  painter.setPen(hasFocus() ? QPen(palette().color(QPalette::Highlight), 2) : QPen(ground.darker(160), 1));
  painter.drawRoundedRect(whole, radius, radius);
  painter.setPen(palette().color(QPalette::ButtonText));
  painter.drawText(rect(), Qt::AlignCenter, text());
}

SetUpPanel::SetUpPanel(AddressRunner run) : run_(std::move(run)) {
  setObjectName(QStringLiteral("picImport"));
  auto* inside = new QWidget;
  auto* rows = new QVBoxLayout(inside);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(6);
  rows->addWidget(MakeTop());
  rows->addWidget(MakeCategories());
  rows->addWidget(MakeListTypes());
  rows->addWidget(MakeSample(), 1);
  auto* scroll = new QScrollArea;
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setFocusPolicy(Qt::NoFocus);
  scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroll->setWidget(inside);
  scroll->setWidgetResizable(true);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(scroll, 1);
  layout->addWidget(MakeButtons());
}

QWidget* SetUpPanel::MakeTop() {
  auto* top = new QWidget;
  auto* row = new QHBoxLayout(top);
  row->setContentsMargins(0, 0, 0, 0);
  lblMain_ = WrappedLabel("lblMain", QString());
  row->addWidget(lblMain_, 1);
  auto* exit = Named(new QToolButton, QStringLiteral("imgExit"), QStringLiteral("Click to Exit"));
  exit->setIcon(IconOf(QStringLiteral(":/icons/close.svg")));
  exit->setToolTip(QStringLiteral("Click to Exit"));
  exit->setAutoRaise(true);
  connect(exit, &QToolButton::clicked, this, [this] { run_(ExitImport); });
  row->addWidget(exit, 0, Qt::AlignTop);
  return top;
}

QWidget* SetUpPanel::MakeCategories() {
  auto* panel = new QWidget;
  auto* rows = new QVBoxLayout(panel);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->addWidget(WrappedLabel(
      "lblCat", QStringLiteral(
                    "Select/De-select categories below that apply. Selected categories appear as cyan (blue) "
                    "in color. \"Name\" is mandatory.")));
  auto* frame = Named(new QFrame, QStringLiteral("picFormat"));
  auto* grid = new QGridLayout(frame);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(4);
  for (int i = 0; i < CategoryCount; ++i) {
    lblFormat_[i] = Named(new CategoryLabel, Indexed("lblFormat", i));
    connect(lblFormat_[i], &QCheckBox::clicked, this, [this, i] { run_([i] { ToggleCategory(i); }); });
    grid->addWidget(lblFormat_[i], i / CategoryColumns, i % CategoryColumns);
  }
  rows->addWidget(frame);
  return panel;
}

QWidget* SetUpPanel::MakeListTypes() {
  auto* frame = Named(new QGroupBox(QStringLiteral("Select Type of List Below")), QStringLiteral("framList"),
                      QStringLiteral("Select Type of List Below"));
  auto* rows = new QVBoxLayout(frame);
  rows->setSpacing(2);
  for (const TypeOfList& type : TypesOfList) {
    const int index = static_cast<int>(type.type);
    auto* option = Named(new QRadioButton(QString::fromLatin1(type.caption)), Indexed("optList", index));
    option->setToolTip(QString::fromLatin1(type.toolTip));
    optList_.addButton(option, index);
    rows->addWidget(option, 0, Qt::AlignLeft);
  }
  connect(&optList_, &QButtonGroup::idClicked, this,
          [this](int index) { run_([index] { ChooseListType(static_cast<ListType>(index)); }); });
  return frame;
}

QWidget* SetUpPanel::MakeSample() {
  auto* panel = new QWidget;
  auto* rows = new QVBoxLayout(panel);
  rows->setContentsMargins(0, 0, 0, 0);
  QLabel* caption = PlainLabel(QStringLiteral("lblSample"), QStringLiteral("Sample List Type Shown Below"));
  constexpr int lines = 5;
  txtSample_ = Named(new LinesBox(lines), QStringLiteral("txtSample"), caption->text());
  txtSample_->setReadOnly(true);
  txtSample_->setTabChangesFocus(true);
  txtSample_->setLineWrapMode(QPlainTextEdit::NoWrap);
  caption->setBuddy(txtSample_);
  rows->addWidget(caption);
  rows->addWidget(txtSample_, 1);
  return panel;
}

QWidget* SetUpPanel::MakeButtons() {
  auto* bar = new QWidget;
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(0, 0, 0, 0);
  AddButton(*row, "cmdOK", "Begin Batch Process Now", BeginBatchProcess);
  AddButton(*row, "cmdRefresh", "Refresh", RefreshSampleCommand);
  row->addStretch(1);
  AddButton(*row, "cmdHelp", "Need Help?", [] { OpenHelp(QStringLiteral("batch_address_processing.htm")); });
  AddButton(*row, "cmdCancel", "Cancel/Exit", CancelImport);
  return bar;
}

QPushButton* SetUpPanel::AddButton(QHBoxLayout& row, const char* name, const char* caption,
                                   void (*command)()) {
  auto* button = Named(new QPushButton(QString::fromLatin1(caption)), QString::fromLatin1(name));
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this, [this, command] { run_(command); });
  row.addWidget(button);
  return button;
}

void SetUpPanel::ShowState() {
  lblMain_->setText(batch.lblMain);
  for (int i = 0; i < CategoryCount; ++i) {
    CategoryLabel& label = *lblFormat_[i];
    label.setText(batch.lblFormat[i]);
    label.setChecked(batch.CategorySelected[i]);
    QPalette palette;
    palette.setColor(QPalette::Button, ToQColor(batch.CategorySelected[i] ? colors::Cyan : colors::Grey));
    palette.setColor(QPalette::ButtonText, Qt::black);
    label.setPalette(palette);
  }
  optList_.button(static_cast<int>(batch.optList))->setChecked(true);
  QString sample = batch.txtSample;
  sample.remove(u'\r');
  if (txtSample_->toPlainText() != sample) txtSample_->setPlainText(sample);
}

WalkPanel::WalkPanel(AddressRunner run) : run_(std::move(run)) {
  setObjectName(QStringLiteral("picBatchProcess"));
  setFrameShape(StyledPanel);
  auto* grid = new QGridLayout(this);
  lblBatch_ = WrappedLabel("lblBatch", QString());
  grid->addWidget(lblBatch_, 0, 0, 1, 2);
  AddButton(*grid, 0, "cmdSaveBatchRecord", "Save This Record", SaveBatchRecordCommand);
  AddButton(*grid, 1, "cmdSkipBatchRecord", "Skip This Record", SkipBatchRecordCommand);
  AddButton(*grid, 2, "cmdSaveAllRemaining", "Save All Remaining Records", nullptr);
  AddButton(*grid, 3, "cmdEndBatch", "End Batch Process", EndBatchCommand);
}

void WalkPanel::AddButton(QGridLayout& grid, int place, const char* name, const char* caption,
                          void (*command)()) {
  auto* button = Named(new QPushButton(QString::fromLatin1(caption)), QString::fromLatin1(name));
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this,
          [this, command] { run_([this, command] { command ? command() : SaveAllRemaining(window()); }); });
  grid.addWidget(button, 1 + place / 2, place % 2);
}

void WalkPanel::ShowState() {
  setVisible(WalkPanelShows());
  const QString where =
      batch.book == Book::Personal ? QStringLiteral("Personal") : QStringLiteral("Business");
  const int count = BatchRecordCount();
  if (count == 0)
    lblBatch_->setText(QStringLiteral("There are no records to import."));
  else if (!addressBook.WalkRecordShows)
    lblBatch_->setText(
        QStringLiteral("Another record is on the screen. Saving or skipping it brings record %1 of %2 back.")
            .arg(batch.BatchIndex + 1)
            .arg(count));
  else
    lblBatch_->setText(QStringLiteral("Record %1 of %2, not yet in the %3 Address Book")
                           .arg(batch.BatchIndex + 1)
                           .arg(count)
                           .arg(where));
}

}  // namespace quillane
