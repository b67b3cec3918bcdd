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

// A colour printer for letter paper that takes PDF files as they are.
constexpr const char* Description = R"PPD(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "QUEUE.PPD"
*Manufacturer: "Test"
*Product: "(Test)"
*ModelName: "Test Queue"
*ShortNickName: "Test Queue"
*NickName: "Test Queue"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: True
*DefaultColorSpace: RGB
*FileSystem: False
*cupsFilter: "application/pdf 0 -"
*OpenUI *PageSize: PickOne
*OrderDependency: 10 AnySetup *PageSize
*DefaultPageSize: Letter
*PageSize Letter/US Letter: "<</PageSize[612 792]/ImagingBBox null>>setpagedevice"
*CloseUI: *PageSize
*OpenUI *PageRegion: PickOne
*OrderDependency: 10 AnySetup *PageRegion
*DefaultPageRegion: Letter
*PageRegion Letter/US Letter: "<</PageSize[612 792]/ImagingBBox null>>setpagedevice"
*CloseUI: *PageRegion
*DefaultImageableArea: Letter
*ImageableArea Letter/US Letter: "18 18 594 774"
*DefaultPaperDimension: Letter
*PaperDimension Letter/US Letter: "612 792"
*DefaultFont: Courier
)PPD";

// The last step of a job: it goes into a folder instead of a device.
constexpr const char* Backend = R"(#!/bin/sh
[ $# -eq 0 ] && { echo 'direct keep "Unknown" "Keeps jobs"'; exit 0; }
out="${DEVICE_URI#keep:}/$(printf %05d "$1").pdf"
if [ -n "$6" ]; then cat "$6"; else cat; fi > "$out.part" && mv "$out.part" "$out"
)";

// What the server starts the last step through.
constexpr const char* Starter = R"(#!/bin/sh
while getopts g:n:u: option; do :; done
shift $OPTIND
command="$1"
shift 2
exec "$command" "$@"
)";

constexpr const char* Rules = R"(LogLevel debug
Listen %1/socket
Browsing Off
WebInterface No
DefaultAuthType None
<Location />
  Order allow,deny
  Allow all
</Location>
<Location /admin>
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
)";

constexpr const char* Places = R"(%2
ServerRoot %1/root
ServerBin %1/bin
DataDir %1/data
DocumentRoot %1/data
CacheDir %1/cache
StateDir %1/state
RequestRoot %1/spool
TempDir %1/spool/tmp
AccessLog %1/log/access
ErrorLog %1/log/error
PageLog %1/log/page
SyncOnClose No
)";

/// The server works for nobody in particular when the test has all rights, and for its user otherwise.
QString Users() {
  return geteuid() == 0 ? QStringLiteral("User lp\nGroup lp\nSystemGroup root") : QString();
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
  Write(QStringLiteral("bin/backend/keep"), Backend);
  Write(QStringLiteral("bin/daemon/cups-exec"), Starter);
  Write(QStringLiteral("queue.ppd"), Description);
  Write(QStringLiteral("root/ppd/Office.ppd"), Description);
  Write(QStringLiteral("root/ppd/Closed.ppd"), Description);
  Write(QStringLiteral("root/printers.conf"),
        QueueEntry("Office", "DefaultPrinter", "Yes") + QueueEntry("Closed", "Printer", "No"));
  Write(QStringLiteral("cupsd.conf"), QString::fromLatin1(Rules).arg(folder_.path()).toLocal8Bit());
  Write(QStringLiteral("cups-files.conf"),
        QString::fromLatin1(Places).arg(folder_.path(), Users()).toLocal8Bit());
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
