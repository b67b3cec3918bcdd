// The address books: one record beside the list of all of them, the import of lists, and, cut down, the
// business's own details.
#include <QCloseEvent>
#include <QDialog>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "address/book_window.h"
#include "app/address_commands.h"
#include "editing/areas.h"
#include "model/proposal.h"
#include "model/report.h"
#include "model/upcalls.h"
#include "qt/dialog_parts.h"
#include "qt/painter_surface.h"
#include "qt/window_place.h"
#include "qt/windows.h"
#include "windows/address_fields.h"
#include "windows/import_panel.h"
#include "windows/menus.h"
#include "windows/names_view.h"

namespace quillane {

namespace {

class AddressWindow : public QDialog {
 public:
  explicit AddressWindow(QWidget* parent);
  ~AddressWindow() override;
  /// However the window ends, what was typed and not saved is dropped.
  void done(int result) override;
  /// Escape takes nothing away that was typed.
  void reject() override;

  void ShowState();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void MakeMenus();
  QWidget* MakeRecord();
  QWidget* MakeFields();
  QWidget* MakeList();
  QWidget* MakeButtons();
  void AddImport(QVBoxLayout& layout);
  void ShowImport();
  void MakeRoom(int panels);
  QString PlaceName() const;
  void TakePlace();
  void Run(const std::function<void()>& command);

  const bool details_ = addressBook.CompanyInfoMode;  ///< of the business, and no address book
  bool closed_ = false;
  std::unique_ptr<Menus> menus_;
  // Owned by the widget tree.
  QMenuBar* bar_ = nullptr;
  QStackedWidget* sides_ = nullptr;
  AddressFields* fields_ = nullptr;
  NamesView* lstNames_ = nullptr;  // these three are null for the details
  SetUpPanel* picImport_ = nullptr;
  WalkPanel* picBatchProcess_ = nullptr;
  QPushButton* cmdSave_ = nullptr;
};

AddressWindow* theWindow = nullptr;  // not owned

AddressWindow::AddressWindow(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmAddress"));
  MakeMenus();
  auto* layout = new QVBoxLayout(this);
  layout->setMenuBar(bar_);
  layout->setContentsMargins(8, 8, 8, 8);
  sides_ = new QStackedWidget;
  sides_->addWidget(MakeRecord());
  layout->addWidget(sides_, 1);
  if (!details_) AddImport(*layout);
  theWindow = this;
  upcalls().ShowAddresses = [] {
    if (theWindow) theWindow->ShowState();
  };
  ShowState();
  TakePlace();
}

AddressWindow::~AddressWindow() {
  if (theWindow == this) theWindow = nullptr;
}

void AddressWindow::AddImport(QVBoxLayout& layout) {
  const AddressRunner run = [this](const std::function<void()>& command) { Run(command); };
  picImport_ = new SetUpPanel(run);
  sides_->addWidget(picImport_);
  picBatchProcess_ = new WalkPanel(run);
  layout.insertWidget(0, picBatchProcess_);
}

void AddressWindow::MakeMenus() {
  bar_ = new QMenuBar;
  const auto stateOf = [this](const Command& command) {
    const QString name = QString::fromLatin1(command.name);
    const bool shows = !details_ || name != QLatin1String("mnuTools");
    return EntryState{QString::fromLatin1(command.caption), shows, AddressMenuEnabled(name), false};
  };
  const auto run = [this](const Command& command) {
    Run([&command] { Guarded(command.name, command.run); });
  };
  menus_ = std::make_unique<Menus>(*bar_, AddressCommands(), Menus::Owner{stateOf, run});
}

QWidget* AddressWindow::MakeRecord() {
  auto* record = new QWidget;
  auto* sides = new QHBoxLayout(record);
  sides->setContentsMargins(0, 0, 0, 0);
  sides->setSpacing(12);
  auto* left = new QVBoxLayout;
  left->setSpacing(8);
  fields_ = new AddressFields([this] { ShowState(); });
  left->addWidget(fields_, 1);
  left->addWidget(MakeButtons());
  sides->addLayout(left, 4);
  if (!details_) sides->addWidget(MakeList(), 3);
  return record;
}

QWidget* AddressWindow::MakeList() {
  auto* side = new QWidget;
  auto* rows = new QVBoxLayout(side);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(3);
  lstNames_ = new NamesView([this](int row) { Run([row] { ChooseNameCommand(row); }); });
  QLabel* caption = PlainLabel(QStringLiteral("lblInfo(11)"), QStringLiteral("Click to Open Record"));
  caption->setBuddy(lstNames_);
  rows->addWidget(caption);
  rows->addWidget(lstNames_, 1);
  return side;
}

QWidget* AddressWindow::MakeButtons() {
  auto* bar = new QWidget;
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(0, 0, 0, 0);
  const QString save = details_ ? QStringLiteral("Save and Exit") : QStringLiteral("Save");
  cmdSave_ = Named(new QPushButton(save), QStringLiteral("cmdSave"), save);
  const QString exit = QStringLiteral("Exit without Saving");
  auto* cmdExit = Named(new QPushButton(exit), QStringLiteral("cmdExit"), exit);
  connect(cmdSave_, &QPushButton::clicked, this, [this] { Run([] { SaveRecordCommand(); }); });
  connect(cmdExit, &QPushButton::clicked, this, [this] { done(Rejected); });
  for (QPushButton* button : {cmdSave_, cmdExit}) {
    button->setAutoDefault(false);
    row->addWidget(button, 1);
  }
  return bar;
}

/// The two forms of the window have a place each.
QString AddressWindow::PlaceName() const {
  return details_ ? QStringLiteral("frmAddress/details") : QStringLiteral("frmAddress");
}

void AddressWindow::TakePlace() {
  if (RestorePlace(*this, PlaceName())) return;
  const QSize room = screen()->availableSize() * 0.94;
  resize(sizeHint().expandedTo({details_ ? 320 : 560, 0}).boundedTo(room));
}

void AddressWindow::Run(const std::function<void()>& command) {
  fields_->TakeSelections();
  command();
  ShowState();
}

void AddressWindow::ShowState() {
  if (closed_) return;
  setWindowTitle(addressBook.Caption);
  menus_->FollowAll();
  if (picImport_) ShowImport();
  QPalette save;
  if (addressBook.cmdSaveBackColor != colors::ButtonFace) {
    save.setColor(QPalette::Button, ToQColor(addressBook.cmdSaveBackColor));
    save.setColor(QPalette::ButtonText, Qt::black);
  }
  cmdSave_->setPalette(save);
  if (lstNames_) lstNames_->ShowState();
  fields_->ShowState();
}

void AddressWindow::ShowImport() {
  const bool begins = batch.SetUpShows && sides_->currentWidget() != picImport_;
  sides_->setCurrentIndex(batch.SetUpShows ? 1 : 0);
  if (batch.SetUpShows) picImport_->ShowState();
  if (begins) picImport_->TakeFocus();
  const bool walked = !picBatchProcess_->isHidden();
  picBatchProcess_->ShowState();
  if (const bool walks = WalkPanelShows(); walks != walked) MakeRoom(walks ? 1 : -1);
}

/// The panel of the walk takes no room from the fields where the screen has some.
void AddressWindow::MakeRoom(int panels) {
  if (isMaximized()) return;
  const int panel = picBatchProcess_->sizeHint().height() + layout()->spacing();
  resize(QSize(width(), height() + panels * panel).boundedTo(screen()->availableSize() * 0.94));
}

void AddressWindow::done(int result) {
  if (closed_) return;
  closed_ = true;
  UnloadAddressWindow();
  if (picImport_) ShowImport();
  KeepPlace(*this, PlaceName());
  QDialog::done(result);
  if (editing.Quitting) return;
  if (QWidget* main = parentWidget()) main->activateWindow();
  Guarded("Form_Unload", [] { FocusPage(page(editing.FrontWindow())); });
}

void AddressWindow::reject() {
  if (batch.SetUpShows) return Run(CancelImport);
  if (WalkPanelShows() || addressBook.RecordChanged || addressBook.CompanyInfoChanged) return;
  done(Rejected);
}

void AddressWindow::closeEvent(QCloseEvent* event) {
  done(Rejected);
  event->accept();
}

void AddressWindow::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  ShowState();
}

void AddressWindow::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && menus_ && fields_) ShowState();
}

const RegisteredWindow registered("frmAddress", Make<AddressWindow>);

}  // namespace

}  // namespace quillane
