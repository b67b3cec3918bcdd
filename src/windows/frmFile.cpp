// frmFile: drives and folders on the left, files on the right, and under them the second step that opens or
// deletes the file that was picked.
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QDialog>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "files/file_dialog.h"
#include "model/proposal.h"
#include "platform/files.h"
#include "platform/runtime_error.h"
#include "qt/windows.h"

namespace quillane {

namespace {

constexpr int PathRole = Qt::UserRole;

QString PathOf(const QTreeWidgetItem& item) {
  return item.data(0, PathRole).toString();
}

QStringList SubFolders(const QString& folder) {
  try {
    return ListFolders(folder);
  } catch (const RuntimeError&) {
    return {};
  }
}

class FileWindow : public QDialog {
 public:
  explicit FileWindow(QWidget* parent);
  /// However the window ends, the next one begins with no mode set.
  void done(int result) override {
    if (!dialog_.closed) dialog_.Unload();
    QDialog::done(result);
  }
  /// Escape goes one step back, and closes from the first.
  void reject() override {
    if (dialog_.picking) return Finish();
    dialog_.Back();
    ShowState();
  }

 protected:
  void closeEvent(QCloseEvent* event) override {
    Finish();
    event->accept();
  }
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  template <class Widget>
  Widget* Named(Widget* widget, const char* name, const char* accessibleName);
  QWidget* MakeFolders();
  QWidget* MakeFiles();
  QFrame* MakeConfirmation();
  void ConnectControls();

  QTreeWidgetItem* AddFolder(QTreeWidgetItem* parent, const QString& name, const QString& path);
  void FillFolder(QTreeWidgetItem& item);
  void ShowFolders();
  void ShowFiles();
  void ShowState();
  void PickCurrent();
  void Confirm();
  void Finish();

  FileDialog dialog_;
  QLabel* lblHelp_ = nullptr;
  QComboBox* Drive1_ = nullptr;
  QTreeWidget* Dir1_ = nullptr;
  QListWidget* FileList1_ = nullptr;
  QFrame* picFileOpen_ = nullptr;
  QLabel* lblPointOpen_ = nullptr;
  QLabel* lblOpenFileName_ = nullptr;
  QCheckBox* chkProp_ = nullptr;
  QPushButton *cmdOpenOK_ = nullptr, *cmdOpenBack_ = nullptr, *cmdOpenCancel_ = nullptr;
};

template <class Widget>
Widget* FileWindow::Named(Widget* widget, const char* name, const char* accessibleName) {
  widget->setObjectName(QString::fromLatin1(name));
  widget->setAccessibleName(QString::fromLatin1(accessibleName));
  return widget;
}

FileWindow::FileWindow(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmFile"));
  dialog_.Load();
  lblHelp_ = Named(new QLabel(dialog_.help), "lblHelp", "");
  lblHelp_->setWordWrap(true);

  auto* lists = new QSplitter(Qt::Horizontal);
  lists->setChildrenCollapsible(false);
  lists->addWidget(MakeFolders());
  lists->addWidget(MakeFiles());
  lists->setSizes({280, 420});
  picFileOpen_ = MakeConfirmation();

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(lblHelp_);
  layout->addWidget(lists, 1);
  layout->addWidget(picFileOpen_);
  resize(720, 480);

  ShowFolders();
  ShowFiles();
  ShowState();
  ConnectControls();
  FileList1_->setFocus();
}

QWidget* FileWindow::MakeFolders() {
  auto* side = new QWidget;
  Drive1_ = Named(new QComboBox, "Drive1", "Drive");
  Drive1_->addItems(Drives());
  Dir1_ = Named(new QTreeWidget, "Dir1", "Folder");
  Dir1_->setHeaderHidden(true);
  Dir1_->installEventFilter(this);
  auto* lblDrive = Named(new QLabel(QStringLiteral("&Drive")), "lblDrive", "");
  lblDrive->setBuddy(Drive1_);
  auto* lblDir1 = Named(new QLabel(QStringLiteral("F&older")), "lblDir1", "");
  lblDir1->setBuddy(Dir1_);
  auto* layout = new QVBoxLayout(side);
  layout->setContentsMargins(0, 0, 0, 0);
  for (QWidget* widget : std::initializer_list<QWidget*>{lblDrive, Drive1_, lblDir1})
    layout->addWidget(widget);
  layout->addWidget(Dir1_, 1);
  return side;
}

QWidget* FileWindow::MakeFiles() {
  auto* side = new QWidget;
  FileList1_ = Named(new QListWidget, "FileList1", "File");
  FileList1_->setUniformItemSizes(true);
  FileList1_->setIconSize({16, 16});
  FileList1_->installEventFilter(this);
  auto* lblFileList1 = Named(new QLabel(QStringLiteral("&File")), "lblFileList1", "");
  lblFileList1->setBuddy(FileList1_);
  auto* layout = new QVBoxLayout(side);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(lblFileList1);
  layout->addWidget(FileList1_, 1);
  return side;
}

QFrame* FileWindow::MakeConfirmation() {
  auto* panel = new QFrame;
  panel->setObjectName(QStringLiteral("picFileOpen"));
  panel->setFrameShape(QFrame::StyledPanel);
  lblPointOpen_ = Named(new QLabel(dialog_.pointOpen), "lblPointOpen", "");
  lblOpenFileName_ = Named(new QLabel, "lblOpenFileName", "");
  lblOpenFileName_->setTextFormat(Qt::PlainText);
  QFont bold = lblOpenFileName_->font();
  bold.setBold(true);
  lblOpenFileName_->setFont(bold);
  chkProp_ = Named(new QCheckBox(QStringLiteral("Ignore Associated Properties")), "chkProp",
                   "Ignore Associated Properties");
  cmdOpenOK_ = Named(new QPushButton(QStringLiteral("OK")), "cmdOpenOK", "OK");
  cmdOpenOK_->setDefault(true);
  cmdOpenBack_ = Named(new QPushButton(QStringLiteral("Return to List")), "cmdOpenBack", "Return to List");
  cmdOpenCancel_ = Named(new QPushButton(QStringLiteral("Cancel")), "cmdOpenCancel", "Cancel");

  auto* name = new QHBoxLayout;
  name->addWidget(lblPointOpen_);
  name->addWidget(lblOpenFileName_, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(chkProp_);
  buttons->addStretch(1);
  for (QPushButton* button : {cmdOpenOK_, cmdOpenBack_, cmdOpenCancel_}) {
    button->setAutoDefault(button == cmdOpenOK_);
    buttons->addWidget(button);
  }
  auto* layout = new QVBoxLayout(panel);
  layout->addLayout(name);
  layout->addLayout(buttons);
  return panel;
}

void FileWindow::ConnectControls() {
  connect(Drive1_, &QComboBox::currentTextChanged, this, [this](const QString& drive) {
    dialog_.ChooseDrive(drive);
    ShowFolders();
    ShowFiles();
    ShowState();
  });
  connect(Dir1_, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem* item) { FillFolder(*item); });
  connect(Dir1_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
    if (!item) return;
    dialog_.ChooseFolder(PathOf(*item));
    ShowFiles();
    ShowState();
  });
  connect(FileList1_, &QListWidget::itemClicked, this, [this] { PickCurrent(); });
  connect(FileList1_, &QListWidget::itemActivated, this, [this] { PickCurrent(); });
  connect(chkProp_, &QCheckBox::toggled, this, [](bool ticked) { fileDialog.IgnoreProperties = ticked; });
  connect(cmdOpenOK_, &QPushButton::clicked, this, [this] { Confirm(); });
  connect(cmdOpenBack_, &QPushButton::clicked, this, [this] {
    dialog_.Back();
    ShowState();
  });
  connect(cmdOpenCancel_, &QPushButton::clicked, this, [this] { Finish(); });
}

// Enter belongs to the lists here: passed on to the dialog it would confirm in the same stroke that picks.
bool FileWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  if (key != Qt::Key_Return && key != Qt::Key_Enter) return QDialog::eventFilter(watched, event);
  if (watched == FileList1_)
    PickCurrent();
  else if (QTreeWidgetItem* item = Dir1_->currentItem())
    item->setExpanded(!item->isExpanded());
  return true;
}

QTreeWidgetItem* FileWindow::AddFolder(QTreeWidgetItem* parent, const QString& name, const QString& path) {
  auto* item = parent ? new QTreeWidgetItem(parent) : new QTreeWidgetItem(Dir1_);
  item->setText(0, name);
  item->setIcon(0, style()->standardIcon(QStyle::SP_DirIcon));
  item->setData(0, PathRole, path);
  item->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
  return item;
}

// A folder's own folders are looked up when it is first opened, so that no tree is read that nobody looks at.
void FileWindow::FillFolder(QTreeWidgetItem& item) {
  if (item.childCount() > 0) return;
  const QString path = PathOf(item);
  for (const QString& name : SubFolders(path)) AddFolder(&item, name, path + name + QLatin1Char('/'));
  item.setChildIndicatorPolicy(QTreeWidgetItem::DontShowIndicatorWhenChildless);
}

// The drive's root, and the way from it down to the folder in use.
void FileWindow::ShowFolders() {
  const QSignalBlocker driveQuiet(Drive1_), folderQuiet(Dir1_);
  Drive1_->setCurrentText(dialog_.drive);
  Dir1_->clear();
  const QString root = RootOf(dialog_.drive);
  QTreeWidgetItem* item = AddFolder(nullptr, dialog_.drive, root);
  FillFolder(*item);
  item->setExpanded(true);
  for (const QString& name : dialog_.folder.mid(root.size()).split(QLatin1Char('/'), Qt::SkipEmptyParts)) {
    QTreeWidgetItem* next = nullptr;
    for (int i = 0; i < item->childCount(); ++i)
      if (item->child(i)->text(0) == name) next = item->child(i);
    if (!next) break;
    item = next;
    FillFolder(*item);
    item->setExpanded(true);
  }
  Dir1_->setCurrentItem(item);
  Dir1_->scrollToItem(item, QAbstractItemView::PositionAtCenter);
}

void FileWindow::ShowFiles() {
  const QSignalBlocker quiet(FileList1_);
  FileList1_->clear();
  const QIcon icon = style()->standardIcon(QStyle::SP_FileIcon);
  for (const QString& name : dialog_.files) new QListWidgetItem(icon, name, FileList1_);
  if (FileList1_->count() > 0) FileList1_->setCurrentRow(0);
}

void FileWindow::ShowState() {
  setWindowTitle(dialog_.caption);
  lblOpenFileName_->setText(dialog_.openFileName);
  chkProp_->setVisible(dialog_.propertiesOffered);
  const bool confirming = !dialog_.picking;
  if (confirming == picFileOpen_->isVisibleTo(this)) return;
  // The panel takes the focus and gives it back to the files, unless a folder is being looked for.
  const bool hadFocus = picFileOpen_->isAncestorOf(focusWidget());
  picFileOpen_->setVisible(confirming);
  if (confirming)
    cmdOpenOK_->setFocus();
  else if (hadFocus)
    FileList1_->setFocus();
}

void FileWindow::PickCurrent() {
  const QListWidgetItem* item = FileList1_->currentItem();
  if (!item) return;
  dialog_.ChooseFile(item->text());
  ShowState();
}

void FileWindow::Confirm() {
  dialog_.Open();
  if (dialog_.closed) return done(Accepted);
  if (dialog_.picking) ShowFiles();
  ShowState();
}

void FileWindow::Finish() {
  dialog_.Cancel();
  done(Rejected);
}

const RegisteredWindow registered("frmFile", Make<FileWindow>);

}  // namespace

}  // namespace quillane
