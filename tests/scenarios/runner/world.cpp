#include "world.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMenu>
#include <QTest>

#include "app/startup.h"
#include "failure.h"
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

/// What a person sees who opens the menus down to an entry: each is about to show in turn.
void OpenMenus(QWidget* window, QAction* action) {
  QMenu* menu = MenuOf(window, action);
  if (!menu) return;
  OpenMenus(window, menu->menuAction());
  if (!menu->menuAction()->isVisible() || !menu->menuAction()->isEnabled())
    throw Failure(QStringLiteral("the menu %1 opens").arg(menu->title()),
                  QStringLiteral("it is hidden or disabled"));
  QMetaObject::invokeMethod(menu, "aboutToShow");
}

void RequireUsable(const QAction& action, const QString& name) {
  if (!action.isVisible()) throw Failure(name + QStringLiteral(" shows"), QStringLiteral("it is hidden"));
  if (!action.isEnabled())
    throw Failure(name + QStringLiteral(" is enabled"), QStringLiteral("it is disabled"));
}

QString WithoutForm(const QString& name) {
  return ParseControl(name, Property::None).control;
}

}  // namespace

World::World(const QString& scriptFolder, QString scriptName, Places places)
    : folder_(QDir::temp().filePath(QStringLiteral("quillane-XXXXXX"))),
      desk(folder_.filePath(QStringLiteral("spool"))),
      stage{desk, nullptr},
      hands(stage),
      files(folder_.filePath(QStringLiteral("quillane")), scriptFolder),
      paper(desk),
      scriptName_(std::move(scriptName)),
      places_(std::move(places)) {
  for (const char* name : {"spool", "quillane", "config", "share"})
    QDir(folder_.path()).mkpath(QLatin1String(name));
  qputenv("QUILLANE_HOME", QFile::encodeName(files.Root()));
  // Nothing of the user's own settings comes in, and nothing goes there.
  qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder_.filePath(QStringLiteral("config"))));
  qputenv("XDG_DATA_HOME", QFile::encodeName(folder_.filePath(QStringLiteral("share"))));
}

void World::FillFolder() const {
  FillProgramFolder(files.Root() + QLatin1Char('/'), places_.data);
}

void World::Start(Program::Splash splash) {
  if (stage.Running())
    throw Failure(QStringLiteral("a program to start"), QStringLiteral("it is running already"));
  desk.boxes.EndExcuses();
  // What a fresh folder asks at a first start is no surprise; a script may ask for it and need not.
  if (SaysFirstInstance(files.PathOf(QStringLiteral("UserPreferences.txt")))) desk.boxes.Excuse(Greeting);
  if (!QFile::exists(files.PathOf(QStringLiteral("SalesTax.txt")))) desk.boxes.Excuse(RateQuestion);
  stage.program = std::make_unique<Program>(desk, files.Root(), places_.data);
  if (!stage.program->Start(splash)) return EndIfLeft();
}

void World::Exit() {
  PullMenu(QStringLiteral("mnuFileExit"));
}

void World::Restart() {
  // A Yes saves and stays, as a person sees who then leaves once more.
  for (int tries = 0; tries < 2 && stage.Running() && desk.boxes.HasAnswer(); ++tries) {
    Exit();
    EndIfLeft();
  }
  End();
  Start(Program::Splash::Skip);
}

void World::EndIfLeft() {
  if (stage.program && stage.program->Ended()) End();
}

void World::End() {
  stage.program.reset();
}

void World::PullMenu(const QString& name) const {
  if (!stage.Running()) throw Failure(QStringLiteral("the program runs"), QStringLiteral("it does not"));
  QWidget* front = QApplication::activeModalWidget();
  if (!front) front = stage.Front();
  QAction* action = front ? FindAction(front, WithoutForm(name)) : nullptr;
  // A small window on top, such as a list of terms, leaves the main window's menus in reach.
  if (!action && !QApplication::activeModalWidget()) {
    front = &stage.Frame();
    action = FindAction(front, WithoutForm(name));
  }
  if (!action)
    throw Failure(QStringLiteral("an entry %1 in the menu of the window in front").arg(name),
                  QStringLiteral("there is none"));
  OpenMenus(front, action);
  RequireUsable(*action, name);
  action->trigger();
}

void World::PullPopUp(const QString& name) const {
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  if (!menu) throw Failure(QStringLiteral("a pop-up menu is open"), QStringLiteral("none is"));
  for (QAction* action : menu->actions()) {
    if (action->objectName().compare(WithoutForm(name), Qt::CaseInsensitive) != 0) continue;
    RequireUsable(*action, name);
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
    return;
  }
  throw Failure(QStringLiteral("an entry %1 in the pop-up menu").arg(name), QStringLiteral("there is none"));
}

void World::Shot(const QString& name) const {
  QWidget* front = stage.Front();
  if (!front) throw Failure(QStringLiteral("a window to picture"), QStringLiteral("none is open"));
  const QString file = name.endsWith(QLatin1String(".png")) ? name : name + QStringLiteral(".png");
  if (!front->grab().save(QDir(OutputFolder()).filePath(file)))
    throw Failure(QStringLiteral("a picture ") + file, QStringLiteral("it cannot be written"));
}

void World::Keep(const QString& name) const {
  const QString from = files.PathOf(name), to = QDir(OutputFolder()).filePath(QFileInfo(name).fileName());
  if (!QFile::exists(from))
    throw Failure(QStringLiteral("a file \"%1\"").arg(name), QStringLiteral("there is none"));
  QFile::remove(to);
  if (!QFile::copy(from, to))
    throw Failure(QStringLiteral("a copy of ") + name, QStringLiteral("it cannot be written"));
}

QString World::OutputFolder() const {
  const QString folder = QDir(places_.shots).filePath(scriptName_);
  QDir().mkpath(folder);
  return folder;
}

}  // namespace quillane::scenario
