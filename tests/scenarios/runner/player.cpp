#include "player.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTimer>
#include <algorithm>

#include "app/startup.h"
#include "input.h"
#include "model/frame.h"
#include "model/page.h"
#include "model/proposal.h"
#include "platform/runtime_error.h"
#include "statements.h"
#include "windows/frame_window.h"

namespace quillane::scenario {

namespace {

const QString Greeting = QStringLiteral(
    "Although the program is easy to use, some of the features which will\n"
    "help you the most can be confusing to understand. For this reason, it\n"
    "is HIGHLY RECOMMENDED you explore the Quick Start Tutorial under Help.");
const QString RateQuestion = QStringLiteral("The current sales tax rate is 0%. Do you want to change it?");

bool SaysFirstInstance(const QString& preferences) {
  QFile file(preferences);
  if (!file.open(QIODevice::ReadOnly)) return !file.exists();
  return file.readLine().trimmed().toLower().endsWith("true");
}

bool Same(const QString& a, const QString& b) {
  return a.compare(b, Qt::CaseInsensitive) == 0;
}

/// The window that shows an object: a menu is part of the one that it belongs to.
const QWidget* WindowOf(const QObject* object) {
  for (; object; object = object->parent()) {
    const auto* widget = qobject_cast<const QWidget*>(object);
    if (widget && widget->isWindow() && widget->windowType() != Qt::Popup) return widget;
  }
  return nullptr;
}

template <class Kind>
Kind* ChildNamed(const QWidget& window, const QString& name) {
  for (Kind* child : window.findChildren<Kind*>())
    if (Same(child->objectName(), name) && WindowOf(child) == &window) return child;
  return nullptr;
}

/// "txt(35)" in the page's own spelling; a control that stands alone may be written with the index 0 or
/// without.
Control* PageControl(Page& page, const QString& name) {
  for (Control* control : page.Controls()) {
    const QString own = control->FullName().section(QLatin1Char('.'), 1);
    if (Same(own, name) || Same(own, name + QLatin1String("(0)")) || Same(own + QLatin1String("(0)"), name))
      return control;
  }
  return nullptr;
}

Control* FrameControl(const QString& name) {
  if (Control* found = frame().Find(name)) return found;
  for (const auto& [own, control] : frame().Controls())
    if (Same(own, name)) return control.get();
  return nullptr;
}

bool InPage(Target& target, Page& page, const QString& name) {
  target.page = &page;
  target.control = PageControl(page, name);
  return target.control != nullptr;
}

bool InWindow(Target& target, const QWidget& window, const QString& name) {
  if (window.objectName() == QLatin1String("frmMain")) target.control = FrameControl(name);
  target.widget = ChildNamed<QWidget>(window, name);
  target.action = FindAction(window, name);
  return target.control || target.widget || target.action;
}

}  // namespace

Page* FindPage(const QString& form) {
  for (int window = 0; window < PageCount; ++window)
    if (Same(page(window).form.name, form)) return &page(window);
  return nullptr;
}

QAction* FindAction(const QWidget& window, const QString& name) {
  return ChildNamed<QAction>(window, name);
}

Player::Player(const QString& path, std::vector<Statement> statements, Places places, QTextStream& out)
    : folder_(QDir::temp().filePath(QStringLiteral("quillane-XXXXXX"))),
      desk(folder_.filePath(QStringLiteral("spool"))),
      files(folder_.filePath(QStringLiteral("quillane")), QFileInfo(path).absolutePath()),
      paper(desk),
      path_(path),
      name_(QFileInfo(path).completeBaseName()),
      statements_(std::move(statements)),
      places_(std::move(places)),
      out_(out) {
  // Nothing of the user's own settings comes in, and nothing goes there.
  static const std::pair<const char*, const char*> homes[] = {{"spool", ""},
                                                              {"quillane", "QUILLANE_HOME"},
                                                              {"home", "HOME"},
                                                              {"config", "XDG_CONFIG_HOME"},
                                                              {"share", "XDG_DATA_HOME"},
                                                              {"cache", "XDG_CACHE_HOME"}};
  for (const auto& [name, variable] : homes) {
    QDir(folder_.path()).mkpath(QLatin1String(name));
    if (*variable) qputenv(variable, QFile::encodeName(folder_.filePath(QLatin1String(name))));
  }
}

FrameWindow& Player::Frame() const {
  if (!program || !program->Window())
    throw Failure(QStringLiteral("the main window is open"), QStringLiteral("the program is not running"));
  return *program->Window();
}

SheetView& Player::Sheet() const {
  if (SheetView* sheet = Frame().Sheet()) return *sheet;
  throw Failure(QStringLiteral("a page is in front"), QStringLiteral("no page shows"));
}

QWidget* Player::Window(const QString& name) const {
  if (program && Same(name, QStringLiteral("frmMain")))
    return program->Window() && program->Window()->isVisible() ? program->Window() : nullptr;
  for (const QString& open : desk.OpenWindows())
    if (Same(open, name)) return desk.OpenWindow(open);
  return nullptr;
}

QWidget& Player::OpenWindow(const QString& name) const {
  if (QWidget* window = Window(name)) return *window;
  throw Failure(name + QStringLiteral(" is open"), QStringLiteral("it is not open"));
}

QWidget* Player::Front() const {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  QWidget* active = QApplication::activeWindow();
  if (active && active->isVisible()) return active;
  return program ? program->Window() : nullptr;
}

/// Without a form: the window in front, then the main window, then the page in front.
Target Player::Find(const ControlName& name) const {
  Target target;
  target.name = name.Full();
  Page* page = FindPage(name.form);
  if (name.control.isEmpty()) {
    target.isWindow = true;
    target.page = page;
    target.widget = page ? nullptr : &OpenWindow(name.form);
    return target;
  }
  const auto found = [&] {
    if (page) return InPage(target, *page, name.control);
    if (!name.form.isEmpty()) return InWindow(target, OpenWindow(name.form), name.control);
    for (const QWidget* window : {Front(), program ? static_cast<QWidget*>(program->Window()) : nullptr})
      if (window && InWindow(target, *window, name.control)) return true;
    return InPage(target, quillane::page(editing.FrontWindow()), name.control);
  };
  if (!found()) throw Failure(QStringLiteral("a control ") + target.name, QStringLiteral("there is none"));
  return target;
}

void Player::FillFolder() const {
  if (!program) FillProgramFolder(files.Root() + QLatin1Char('/'), places_.data);
}

void Player::Start(Program::Splash splash) {
  if (program) throw Failure(QStringLiteral("a program to start"), QStringLiteral("it is running already"));
  desk.boxes.EndExcuses();
  // What a fresh folder asks at a first start is no surprise; a script may ask for it and need not.
  if (SaysFirstInstance(files.PathOf(QStringLiteral("UserPreferences.txt")))) desk.boxes.Excuse(Greeting);
  if (!QFile::exists(files.PathOf(QStringLiteral("SalesTax.txt")))) desk.boxes.Excuse(RateQuestion);
  program = std::make_unique<Program>(desk, files.Root(), places_.data);
  if (!program->Start(splash)) EndIfLeft();
}

void Player::Restart() {
  restarting_ = running_.size() > 1;
  if (restarting_) return;
  // A Yes saves and stays, as a person sees who then leaves once more.
  for (int tries = 0; tries < 2 && program && desk.boxes.HasAnswer(); ++tries) {
    PullMenu(*this, QStringLiteral("mnuFileExit"));
    EndIfLeft();
  }
  program.reset();
  Start(Program::Splash::Skip);
}

QString Player::OutputFolder() const {
  const QString folder = QDir(places_.shots).filePath(name_);
  QDir().mkpath(folder);
  return folder;
}

bool Player::Play() {
  Schedule();
  // The program's own end quits the application; the script goes on until it has ended itself.
  while (!finished_) QApplication::exec();
  return failures_ == 0;
}

/// A timer whose own function still runs does not fire in the loops that it opened: every look has a timer of
/// its own.
void Player::Schedule() {
  QTimer::singleShot(0, &clock_, [this] {
    if (finished_) return;
    Schedule();
    Tick();
  });
}

bool Player::MayGoOn() const {
  if (desk.Serving()) return false;
  if (running_.empty()) return true;
  // A statement is still at work.  The script goes on inside the window or menu that it has opened, and waits
  // for anything else.
  QWidget* modal = QApplication::activeModalWidget();
  QWidget* popup = QApplication::activePopupWidget();
  return (modal && modal != running_.back().modal && modal->isVisible()) ||
         (popup && popup != running_.back().popup);
}

void Player::Tick() {
  if (!MayGoOn()) return;
  if (restarting_ && CloseInFront()) return;
  const bool again = std::exchange(restarting_, false);
  if (!again && (stopped_ || next_ == statements_.size())) return Finish();
  const Statement& statement = statements_[again ? next_ - 1 : next_++];
  desk.boxes.SetLine(statement.line);
  running_.push_back({QApplication::activeModalWidget(), QApplication::activePopupWidget()});
  Run(statement);
  Settle();
  running_.pop_back();
  if (running_.empty()) EndIfLeft();
}

void Player::Run(const Statement& statement) {
  Looks looks = Looks::No;
  try {
    return Perform(*this, statement, looks);
  } catch (const Failure& failure) {
    Report(statement, failure.expected, failure.actual);
  } catch (const RuntimeError& error) {
    Report(statement, QStringLiteral("no error"),
           QStringLiteral("error %1: %2").arg(error.Number()).arg(error.Description()));
  } catch (const std::exception& error) {
    Report(statement, QStringLiteral("no error"), QString::fromUtf8(error.what()));
  }
  if (looks == Looks::No) stopped_ = true;
}

/// What a statement leaves to the event loop is done before the next one looks, such as the window's caption.
/// The keyboard goes back to the window in front where a menu or a window that has closed took it along: a
/// desktop's window manager does that, and the platform without a screen has none.
void Player::Settle() {
  if (program && program->Window()) QCoreApplication::sendPostedEvents(program->Window(), QEvent::MetaCall);
  // A window that the statement has opened is told later that the keyboard is its own.
  if (const QStringList open = desk.OpenWindows(); open != windows_) {
    windows_ = open;
    QCoreApplication::processEvents();
  }
  QWidget* active = QApplication::activeWindow();
  if (QApplication::activePopupWidget() || (active && active->isVisible())) return;
  QWidget* front = Front();
  if (!front || !front->isVisible()) return;
  front->activateWindow();
  QCoreApplication::processEvents();
}

/// Closes the menu or window in which a statement still runs; false when none does.
bool Player::CloseInFront() {
  if (running_.empty()) return false;
  if (QWidget* popup = QApplication::activePopupWidget())
    popup->close();
  else if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
    dialog->done(QDialog::Rejected);
  return true;
}

void Player::EndIfLeft() {
  if (program && program->Ended()) program.reset();
}

/// Closes what still stands, so that every statement that opened a window returns, and ends.
void Player::Finish() {
  stopped_ = true;
  if (CloseInFront()) return;
  ReportBoxes();
  finished_ = true;
  program.reset();
  QApplication::quit();
}

void Player::Report(const Statement& statement, const QString& expected, const QString& actual) {
  ++failures_;
  out_ << path_ << ':' << statement.line << ": " << statement.source << "\n  expected: " << expected
       << "\n  found:    " << actual << '\n';
}

void Player::ReportBoxes() {
  for (const Boxes::Fault& fault : desk.boxes.Faults()) {
    const auto at = std::find_if(statements_.begin(), statements_.end(),
                                 [&](const Statement& statement) { return statement.line == fault.line; });
    Report(at == statements_.end() ? Statement{} : *at, fault.expected, fault.actual);
  }
  for (const QString& unused : desk.boxes.Unused())
    out_ << path_ << ": note: nobody took the answer " << unused << '\n';
}

}  // namespace quillane::scenario
