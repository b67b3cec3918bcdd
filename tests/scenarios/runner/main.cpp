// quillane-scenario FILE...: plays scripts against the real windows, without a screen.
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>

#include "player.h"
#include "statements.h"

namespace quillane::scenario {

namespace {

/// The first `screen` line, so that the screen has that size from the start.
QSize ScreenOf(const std::vector<Statement>& statements) {
  for (const Statement& statement : statements)
    if (const auto size = Fit(QStringLiteral("screen X Y"), statement.words))
      return {size->Int(0), size->Int(1)};
  return {1280, 1024};
}

/// A screen of a size of our own, unless the caller wants to see the windows.
void ChoosePlatform(const QString& folder, QSize screen) {
  const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
  if (!platform.isEmpty() && platform != "offscreen") return;
  const QByteArray one = QStringLiteral(R"({"screens":[{"name":"screen","x":0,"y":0,"width":%1,"height":%2,)"
                                        R"("logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]})")
                             .arg(screen.width())
                             .arg(screen.height())
                             .toUtf8();
  QFile file(QDir(folder).filePath(QStringLiteral("screen.json")));
  if (!file.open(QIODevice::WriteOnly)) return;
  file.write(one);
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(file.fileName()));
}

std::vector<Statement> ReadScript(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) throw ScriptError(0, file.errorString());
  return ParseScript(file.readAll());
}

/// Drops what the platform without a screen says of itself; everything else is the program's and shows.
void FilterNoise(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (message.startsWith(QLatin1String("This plugin does not support"))) return;
  QTextStream(stderr) << qFormatLogMessage(type, context, message) << Qt::endl;
}

/// Plays one script in this process.
bool PlayOne(int& argc, char** argv, const QString& path, QTextStream& out) {
  try {
    const std::vector<Statement> statements = ReadScript(path);
    const QTemporaryDir folder;
    ChoosePlatform(folder.path(), ScreenOf(statements));
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR"))
      qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder.path()));
    qInstallMessageHandler(FilterNoise);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    // The caret does not blink and no pointer wanders: a picture is the same each time.
    QApplication::setCursorFlashTime(0);
    return Player(path, statements, {QStringLiteral(QUILLANE_DATA), QStringLiteral(QUILLANE_SHOTS)}, out)
        .Play();
  } catch (const ScriptError& error) {
    out << path << ':' << error.line << ": " << error.what() << '\n';
    return false;
  }
}

/// A script that takes longer waits for something that will not come (milliseconds).
constexpr int LongestScript = 100'000;

/// Plays a script in a process of its own: what one script leaves behind, or how it ends, is nothing to the
/// next.
bool PlayApart(const QString& program, const QString& path, QTextStream& out) {
  QProcess process;
  process.setProcessChannelMode(QProcess::MergedChannels);
  process.start(program, {QStringLiteral("--one"), path});
  if (!process.waitForFinished(LongestScript)) {
    out << path << ": still not at its end: " << process.errorString() << '\n';
    process.kill();
    process.waitForFinished();
  }
  out << QString::fromUtf8(process.readAll());
  if (process.exitStatus() == QProcess::CrashExit) out << path << ": the program crashed\n";
  return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

int PlayAll(const QStringList& paths, const QString& program, QTextStream& out) {
  int passed = 0, failed = 0;
  for (const QString& path : paths) {
    const bool good = PlayApart(program, path, out);
    out << (good ? "passed " : "FAILED ") << path << Qt::endl;
    ++(good ? passed : failed);
  }
  out << passed << " passed, " << failed << " failed" << Qt::endl;
  return failed == 0 ? 0 : 1;
}

}  // namespace

}  // namespace quillane::scenario

int main(int argc, char** argv) {
  QTextStream out(stdout);
  QStringList arguments;
  for (int at = 1; at < argc; ++at) arguments.append(QFile::decodeName(argv[at]));
  if (arguments.isEmpty()) {
    out << "usage: quillane-scenario FILE...\nThe statements:\n" << quillane::scenario::Language();
    return 2;
  }
  if (arguments.size() == 2 && arguments.front() == QLatin1String("--one"))
    return quillane::scenario::PlayOne(argc, argv, arguments.back(), out) ? 0 : 1;
  return quillane::scenario::PlayAll(arguments, QStringLiteral("/proc/self/exe"), out);
}
