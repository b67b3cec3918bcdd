#include <QApplication>
#include <QDir>
#include <QLockFile>
#include <QStandardPaths>
#include <QTimer>

#include "app/small_commands.h"
#include "platform/files.h"
#include "windows/program.h"

namespace {

using namespace quillane;

/// $QUILLANE_HOME where it is set, otherwise "quillane" in the user's data folder.
QString ProgramFolder() {
  const QString chosen = qEnvironmentVariable("QUILLANE_HOME");
  if (!chosen.isEmpty()) return WithSeparator(QDir(chosen).absolutePath());
  return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/quillane/");
}

/// What is installed beside the program, wherever that is; a program run where it was built is told where it
/// lies.
QString DataFolder() {
  const QString told = qEnvironmentVariable("QUILLANE_DATA");
  if (!told.isEmpty()) return told;
  const QString beside =
      QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../share/quillane"));
  return QDir(beside).exists() ? beside : QStringLiteral(QUILLANE_DATA_DIR);
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Quillane"));
  QApplication::setApplicationVersion(ProgramVersion());
  QApplication::setDesktopFileName(QStringLiteral("quillane"));
  // The program ends by its own command only: the splash goes before the main window stands.
  QApplication::setQuitOnLastWindowClosed(false);

  QtDesk desk;
  SetDesk(&desk);
  const QString folder = ProgramFolder();
  QDir().mkpath(folder);
  QLockFile instance(folder + QStringLiteral(".running"));
  instance.setStaleLockTime(0);  // held for as long as its process lives
  if (!instance.tryLock(0) && instance.error() == QLockFile::LockFailedError) {
    Tell(QStringLiteral("Another instance of this application is already running."));
    return 0;
  }
  Program program(desk, folder, DataFolder());
  int result = 0;
  QTimer::singleShot(0, &application, [&] {
    if (!program.Start(Program::Splash::Show)) QApplication::quit();
  });
  result = QApplication::exec();
  return result;
}
