#include "qt/qt_desk.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDatabase>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>
#include <QStandardPaths>
#include <QUrl>
#include <algorithm>

#include "print/print.h"
#include "qt/icons.h"
#include "qt/openers.h"
#include "qt/pictures.h"
#include "qt/printers.h"
#include "qt/windows.h"
#include "qt/word_document.h"

namespace quillane {

namespace {
QMessageBox::StandardButtons ButtonsOf(Buttons buttons) {
  switch (buttons) {
    case Buttons::YesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case Buttons::YesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case Buttons::Ok:
      break;
  }
  return QMessageBox::Ok;
}

/// Words say enough; the toolkit's own pictures on buttons differ from desktop to desktop.
void LeaveButtonsPlain(const QDialog& window) {
  for (QDialogButtonBox* box : window.findChildren<QDialogButtonBox*>())
    for (QAbstractButton* button : box->buttons()) button->setIcon(QIcon());
}

/// Where the desktop keeps what its user writes.
QString DocumentsFolder() {
  return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

void OfferFiles(QFileDialog& dialog, const FileKind& kind) {
  dialog.setDefaultSuffix(kind.extension);
  dialog.setNameFilters(
      {QStringLiteral("%1 (*.%2)").arg(kind.name, kind.extension), QStringLiteral("All Files (*)")});
}

QString Chosen(QFileDialog& dialog) {
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}
}  // namespace

QtDesk::QtDesk() {
  sinceStart_.start();
}
QtDesk::~QtDesk() = default;

/// The window in front, so that a box never comes up under it.
QWidget* QtDesk::BoxParent() const {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  if (!frameWindow || !frameWindow->isVisible()) return nullptr;
  for (const Opened& opened : opened_)
    if (opened.window->isVisible() && opened.window->isActiveWindow()) return opened.window.get();
  return frameWindow;
}

Answer QtDesk::MessageBox(const QString& text, const QString& title, Buttons buttons) {
  QMessageBox box(QMessageBox::NoIcon, title, text, ButtonsOf(buttons), BoxParent());
  constexpr int markSize = 48;
  box.setIconPixmap(
      IconOf(QStringLiteral(":/icons/quillane.svg")).pixmap({markSize, markSize}, box.devicePixelRatio()));
  // The texts come in lines of their own; the box is made as wide as the longest instead of breaking it
  // again.
  constexpr int widestText = 720;
  if (auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))) {
    const int natural = label->fontMetrics().boundingRect({}, Qt::TextExpandTabs, text).width() + 8;
    label->setMinimumWidth(qMin(natural, widestText));
  }
  LeaveButtonsPlain(box);
  // The program's texts are plain; a "<" in a file's name must not become markup.
  box.setTextFormat(Qt::PlainText);
  switch (box.exec()) {
    case QMessageBox::Yes:
      return Answer::Yes;
    case QMessageBox::Ok:
      return Answer::Ok;
    case QMessageBox::No:
      return Answer::No;
    default:
      return buttons == Buttons::Ok ? Answer::Ok : buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
  }
}

QString QtDesk::InputBox(const QString& prompt, const QString& title, const QString& preset) {
  QInputDialog box(BoxParent());
  box.setWindowTitle(title);
  box.setTextValue(preset);
  box.setLabelText(prompt);
  if (auto* label = box.findChild<QLabel*>()) {
    constexpr int width = 450;  // prompts may be paragraphs, which wrap
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumSize(width, label->heightForWidth(width));
  }
  box.setOkButtonText(box.okButtonText());  // the buttons are there only once they have been asked for
  LeaveButtonsPlain(box);
  return box.exec() == QDialog::Accepted ? box.textValue() : QString();
}

QString QtDesk::FileToOpen(const QString& title, const FileKind& kind) {
  QFileDialog dialog(BoxParent(), title, DocumentsFolder());
  dialog.setFileMode(QFileDialog::ExistingFile);
  OfferFiles(dialog, kind);
  return Chosen(dialog);
}

QString QtDesk::FileToSave(const QString& title, const FileKind& kind, const QString& name) {
  QFileDialog dialog(BoxParent(), title, DocumentsFolder());
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  OfferFiles(dialog, kind);
  dialog.selectFile(name + u'.' + kind.extension);
  return Chosen(dialog);
}

void QtDesk::ShowWindow(const QString& name, Modality modality) {
  if (name == QLatin1String("frmMain")) {
    if (showFrame) showFrame();
    return;
  }
  if (QDialog* open = OpenWindow(name)) {
    open->show();
    open->raise();
    open->activateWindow();
    return;
  }
  QWidget* modal = QApplication::activeModalWidget();
  QWidget* frame = frameWindow && frameWindow->isVisible() ? frameWindow : nullptr;
  std::unique_ptr<QDialog> made = MakeWindow(name, modal ? modal : frame);
  if (!made) return;
  QDialog& window = *made;
  LeaveButtonsPlain(window);
  opened_.push_back({name, std::move(made)});
  if (modality == Modality::Modal) {
    RunModal(window);
    Forget(name);
  } else {
    QObject::connect(&window, &QDialog::finished, &window, [this, name] { Forget(name); });
    window.show();
  }
}

void QtDesk::RunModal(QDialog& window) {
  window.exec();
}

void QtDesk::Forget(const QString& name) {
  const auto found =
      std::find_if(opened_.begin(), opened_.end(), [&](const Opened& opened) { return opened.name == name; });
  if (found == opened_.end()) return;
  // A window may close from one of its own handlers: it goes when that handler has returned.
  found->window.release()->deleteLater();
  opened_.erase(found);
}

void QtDesk::CloseWindow(const QString& name) {
  if (name == QLatin1String("frmMain")) {
    CloseAllWindows();
    if (closeFrame) closeFrame();
  } else if (QDialog* window = OpenWindow(name)) {
    window->done(QDialog::Rejected);
  }
}

void QtDesk::CloseAllWindows() {
  for (size_t left = opened_.size(); left > 0; --left)
    if (left <= opened_.size()) opened_[left - 1].window->done(QDialog::Rejected);
}

bool QtDesk::WindowIsOpen(const QString& name) const {
  return name == QLatin1String("frmMain") ? frameWindow != nullptr : OpenWindow(name) != nullptr;
}

QDialog* QtDesk::OpenWindow(const QString& name) const {
  for (const Opened& opened : opened_)
    if (opened.name == name) return opened.window.get();
  return nullptr;
}

QStringList QtDesk::OpenWindows() const {
  QStringList names;
  for (const Opened& opened : opened_) names.append(opened.name);
  return names;
}

QString QtDesk::ClipboardText() const {
  return QApplication::clipboard()->text();
}
void QtDesk::SetClipboardText(const QString& text) {
  QApplication::clipboard()->setText(text);
}

bool QtDesk::OpenExternally(const QString& target) {
  const bool isFile = QFileInfo::exists(target);
  if (isFile && !DesktopOpens(target)) return false;
  return QDesktopServices::openUrl(isFile ? QUrl::fromLocalFile(target) : QUrl(target));
}

QStringList QtDesk::PrinterNames() const {
  return printers::PrinterNames();
}
bool QtDesk::HasPrinter(const QString& name) const {
  // The PDF file is always there.  Asking for the others loads the printing system, which costs what all the
  // rest of a start costs.
  return name == PdfPrinter || PrinterNames().contains(name);
}
QString QtDesk::DefaultPrinterName() const {
  return printers::DefaultPrinterName();
}
std::unique_ptr<Surface> QtDesk::BeginDocument(const QString& printer, const QString& title,
                                               const QString& pdfPath) {
  return printers::BeginDocument(printer, title, pdfPath);
}

QStringList QtDesk::ScreenFonts() const {
  // Where two makers have a font of one name, the toolkit adds the maker's; the font itself is known by its
  // name alone, in every file.
  QStringList names = QFontDatabase::families();
  for (QString& name : names) name = name.section(QStringLiteral(" ["), 0, 0);
  names.removeDuplicates();
  return names;
}

Picture QtDesk::LoadPicture(const QString& path) {
  return ReadPicture(path);
}

QByteArray QtDesk::WordDocument(const QString& title, const QString& report) {
  return MakeWordDocument(title, report);
}

int QtDesk::ScreenWidth() const {
  return QApplication::primaryScreen()->size().width();
}
QDateTime QtDesk::Now() const {
  return QDateTime::currentDateTime();
}
qint64 QtDesk::TickCount() const {
  return sinceStart_.elapsed();
}
void QtDesk::ServeEvents() {
  QApplication::processEvents();
}
void QtDesk::Beep() {
  QApplication::beep();
}

}  // namespace quillane
