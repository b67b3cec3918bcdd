#include "session.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QKeyEvent>
#include <QTimer>

#include "app/startup.h"
#include "files/file_dialog.h"
#include "first_paint.h"
#include "model/proposal.h"
#include "platform/files.h"
#include "sheet/sheet_view.h"

namespace quillane::bench {

Answer BenchDesk::MessageBox(const QString& text, const QString& title, Buttons buttons) {
  if (!text.startsWith(QLatin1String("File was saved as ")))
    std::fprintf(stderr, "unexpected box \"%s\": %s\n", qPrintable(title), qPrintable(text));
  return buttons == Buttons::Ok ? Answer::Ok : Answer::Yes;
}

QString BenchDesk::InputBox(const QString& prompt, const QString& title, const QString&) {
  std::fprintf(stderr, "unexpected question \"%s\": %s\n", qPrintable(title), qPrintable(prompt));
  return {};
}

namespace {
void Write(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
    qFatal("cannot write %s", qPrintable(path));
}

QByteArray Read(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) qFatal("cannot read %s", qPrintable(path));
  return file.readAll();
}
}  // namespace

Home::Home() : folder_(QCoreApplication::applicationDirPath() + QStringLiteral("/home-XXXXXX")) {
  FillProgramFolder(WithSeparator(Path()), QStringLiteral(QUILLANE_SOURCE_DATA));
  const QString settings = Path() + QStringLiteral("/UserPreferences.txt");
  QByteArray lines = Read(settings);
  lines.replace("App First Instance:True", "App First Instance:False");
  lines.replace("Default Printer:\r\n", "Default Printer:PDF File\r\n");
  Write(settings, lines);
  const QString proposals = Path() + QStringLiteral("/Wedding Proposals/");
  Write(proposals + QStringLiteral("SalesTax.txt"), "7.50 ");
  for (const QString& name :
       QDir(QStringLiteral(QUILLANE_SAMPLES)).entryList({QStringLiteral("Emily Carter.*")}))
    Write(proposals + name, Read(QStringLiteral(QUILLANE_SAMPLES "/") + name));
}

void StartAndClickAway(Program& program, QtDesk& desk, const std::function<void()>& painted) {
  FirstPaint first([](QObject* widget) { return !editing.StartingUp && widget == TheSheetView(); }, painted);
  QApplication::instance()->installEventFilter(&first);
  QTimer click;
  QObject::connect(&click, &QTimer::timeout, &click, [&] {
    QDialog* splash = desk.OpenWindow(QStringLiteral("frmSplash"));
    if (!splash || !splash->isVisible()) return;
    click.stop();
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
    QApplication::sendEvent(splash, &enter);
  });
  click.start(0);
  program.Start(Program::Splash::Show);
  QApplication::exec();
}

void Settle() {
  QApplication::sendPostedEvents();
  QApplication::processEvents();
}

void Activate(QWidget& window) {
  window.activateWindow();
  constexpr int Patience = 10'000;
  for (QDeadlineTimer deadline(Patience); !window.isActiveWindow(); Settle())
    if (deadline.hasExpired()) qFatal("the window did not get the keyboard");
}

void OpenProposal(const QString& fileName) {
  fileDialog.FileFilter = QStringLiteral("*.wwf");
  FileDialog dialog;
  dialog.Load();
  dialog.ChooseFile(fileName);
  dialog.Open();
  if (proposal.EventFileName != fileName) qFatal("%s was not opened", qPrintable(fileName));
}

}  // namespace quillane::bench
