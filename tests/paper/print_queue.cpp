#include "print_queue.h"

#include <unistd.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QStandardPaths>
#include <QThread>

namespace quillane::test {

namespace {

constexpr int Patience = 10'000;  // milliseconds, for a busy machine
constexpr int Glance = 20;

QString Find(const QString& program) {
  const QString found = QStandardPaths::findExecutable(program);
  const QStringList system{QStringLiteral("/usr/sbin"), QStringLiteral("/sbin")};
  return found.isEmpty() ? QStandardPaths::findExecutable(program, system) : found;
}

template <class Condition>
bool Await(Condition&& condition) {
  QElapsedTimer clock;
  clock.start();
  while (!condition()) {
    if (clock.elapsed() > Patience) return false;
    QThread::msleep(Glance);
  }
  return true;
}

/// What stands in tests/data/print-queue: the description of a colour printer for letter paper that takes PDF
/// files as they are, the last step of a job, which goes into a folder, what the server starts it through,
/// and the server's settings.
QByteArray Data(const QString& name) {
  QFile file(QStringLiteral(QUILLANE_TEST_DATA "/print-queue/") + name);
  if (!file.open(QIODevice::ReadOnly)) qFatal("cannot read %s", qPrintable(file.fileName()));
  return file.readAll();
}

/// The server works for nobody in particular when the test has all rights, and for its user otherwise.
QByteArray Users() {
  return geteuid() == 0 ? "User lp\nGroup lp\nSystemGroup root" : QByteArray();
}

}  // namespace

PrintServer::PrintServer() {
  const QString server = Find(QStringLiteral("cupsd"));
  if (server.isEmpty() || Find(QStringLiteral("lpadmin")).isEmpty()) {
    trouble_ = QStringLiteral("the print server is not installed (packages cups-daemon and cups-client)");
    return;
  }
  WriteFolder();
  process_.setStandardErrorFile(Path(QStringLiteral("log/words")));
  process_.start(server, {QStringLiteral("-f"), QStringLiteral("-c"), Path(QStringLiteral("cupsd.conf")),
                          QStringLiteral("-s"), Path(QStringLiteral("cups-files.conf"))});
  if (!process_.waitForStarted() || !WaitForSocket())
    trouble_ = QStringLiteral("the print server does not start");
  qputenv("CUPS_SERVER", QFile::encodeName(Path(QStringLiteral("socket"))));
}

PrintServer::~PrintServer() {
  process_.terminate();
  if (!process_.waitForFinished(Patience)) process_.kill();
}

void PrintServer::Write(const QString& name, const QByteArray& text) const {
  QFile file(Path(name));
  if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
    qFatal("cannot write %s", qPrintable(file.fileName()));
  constexpr auto everybody = QFileDevice::ReadOwner | QFileDevice::ReadGroup | QFileDevice::ReadOther;
  const bool program = text.startsWith("#!");
  constexpr auto run = QFileDevice::ExeOwner | QFileDevice::ExeGroup | QFileDevice::ExeOther;
  file.setPermissions(everybody | QFileDevice::WriteOwner | (program ? run : QFileDevice::Permissions()));
}

QByteArray PrintServer::QueueEntry(const QByteArray& name, const char* kind, const char* accepting) const {
  return QByteArray("<") + kind + ' ' + name + ">\nDeviceURI keep:" + QFile::encodeName(Path("jobs")) +
         "\nState Idle\nAccepting " + accepting + "\nShared No\n</" + kind + ">\n";
}

void PrintServer::WriteFolder() const {
  const QDir folder(folder_.path());
  for (const char* name :
       {"root/ppd", "bin/backend", "bin/daemon", "data/mime", "cache", "state", "spool/tmp", "log", "jobs"})
    folder.mkpath(QLatin1String(name));
  Write(QStringLiteral("data/mime/mime.types"), "application/pdf pdf string(0,%PDF)\n");
  Write(QStringLiteral("data/mime/mime.convs"), {});
  for (const auto& [name, data] :
       std::initializer_list<std::pair<const char*, const char*>>{{"bin/backend/keep", "keep"},
                                                                  {"bin/daemon/cups-exec", "cups-exec"},
                                                                  {"queue.ppd", "queue.ppd"},
                                                                  {"root/ppd/Office.ppd", "queue.ppd"},
                                                                  {"root/ppd/Closed.ppd", "queue.ppd"}})
    Write(QLatin1String(name), Data(QLatin1String(data)));
  Write(QStringLiteral("root/printers.conf"),
        QueueEntry("Office", "DefaultPrinter", "Yes") + QueueEntry("Closed", "Printer", "No"));
  for (const char* name : {"cupsd.conf", "cups-files.conf"})
    Write(QLatin1String(name),
          Data(QLatin1String(name)).replace("%1", folder_.path().toLocal8Bit()).replace("%2", Users()));
  if (geteuid() != 0) return;
  // Who has all rights hands the folder over to the server's own user.
  QProcess::execute(QStringLiteral("chmod"), {QStringLiteral("755"), folder_.path()});
  for (const char* name : {"cache", "state", "spool", "spool/tmp", "log", "jobs", "root"})
    QProcess::execute(QStringLiteral("chmod"), {QStringLiteral("777"), Path(QLatin1String(name))});
}

bool PrintServer::WaitForSocket() const {
  return Await([this] {
           return QFile::exists(Path(QStringLiteral("socket"))) || process_.state() == QProcess::NotRunning;
         }) &&
         process_.state() == QProcess::Running;
}

QStringList PrintServer::Jobs(int expected) const {
  const QDir jobs(Path(QStringLiteral("jobs")));
  const auto there = [&] { return jobs.entryList({QStringLiteral("*.pdf")}, QDir::Files, QDir::Name); };
  Await([&] { return there().size() >= expected; });
  QStringList paths;
  for (const QString& name : there()) paths.append(jobs.filePath(name));
  return paths;
}

void PrintServer::ForgetJobs() const {
  for (const QString& job : Jobs(0)) QFile::remove(job);
}

void PrintServer::RemoveQueue(const QString& name) const {
  QProcess::execute(Find(QStringLiteral("lpadmin")), {QStringLiteral("-x"), name});
}

void PrintServer::AddQueue(const QString& name) const {
  QProcess admin;  // its warning that descriptions will go one day is no news
  admin.start(Find(QStringLiteral("lpadmin")),
              {QStringLiteral("-p"), name, QStringLiteral("-E"), QStringLiteral("-v"),
               QStringLiteral("keep:") + Path(QStringLiteral("jobs")), QStringLiteral("-P"),
               Path(QStringLiteral("queue.ppd"))});
  admin.waitForFinished();
}

}  // namespace quillane::test
