#include "start.h"

#include <QApplication>
#include <QProcess>
#include <map>

#include "app/startup.h"
#include "editing/navigation.h"
#include "first_paint.h"
#include "model/page.h"
#include "print/print.h"
#include "samples.h"
#include "session.h"

namespace quillane::bench {

int RunAsChild(const char* programFolder) {
  BenchDesk desk;
  Program program(desk, QString::fromLocal8Bit(programFolder), QStringLiteral(QUILLANE_SOURCE_DATA));
  StartAndClickAway(program, desk, [] {
    Report("painted");
    OpenProposal(QStringLiteral("Emily Carter.wwf"));
    for (int window = 0; window < PageCount; ++window) {
      UpdatePageButtons(window);
      Settle();
    }
    Report("opened");
    PrintAllCommand();
    Report("printed");
    QApplication::exit();
  });
  return 0;
}

namespace {
struct Reached {
  double milliseconds, megabytes;
};

/// Runs a program to its end and gives what it reported, by name.
std::map<QByteArray, Reached> RunFresh(const QString& program, const QStringList& arguments) {
  constexpr int Patience = 60'000;
  QProcess process;
  process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  const long long begun = Now();
  process.start(program, arguments);
  if (!process.waitForFinished(Patience) || process.exitCode() != 0) qFatal("%s failed", qPrintable(program));
  std::map<QByteArray, Reached> reached;
  for (const QByteArray& line : process.readAllStandardOutput().split('\n')) {
    const QList<QByteArray> words = line.split(' ');
    if (words.size() != 3) continue;
    reached[words[0]] = {static_cast<double>(words[1].toLongLong() - begun) / 1e6,
                         words[2].toDouble() / 1024};
  }
  return reached;
}
}  // namespace

void MeasureStarts(int times) {
  const QString here = QApplication::applicationDirPath() + QLatin1Char('/');
  const Home home;
  Samples bareStart, bareMemory, start, blank, opened, printed;
  for (int i = 0; i <= times; ++i) {
    auto bare = RunFresh(here + QStringLiteral("quillane_bare"), {});
    auto ours = RunFresh(here + QStringLiteral("quillane_bench"), {QStringLiteral("--child"), home.Path()});
    if (i == 0) continue;  // the first of each reads its libraries from the disk
    bareStart.Add(bare["painted"].milliseconds);
    bareMemory.Add(bare["painted"].megabytes);
    start.Add(ours["painted"].milliseconds);
    blank.Add(ours["painted"].megabytes);
    opened.Add(ours["opened"].megabytes);
    printed.Add(ours["printed"].megabytes);
  }
  constexpr Aim memory{Aim::Of::Difference, 12};
  const QString ms = QStringLiteral("ms"), mb = QStringLiteral("MB");
  PrintLine(QStringLiteral("start to blank proposal"), ms, start, bareStart, {Aim::Of::Ratio, 1.3});
  PrintLine(QStringLiteral("peak memory, blank proposal"), mb, blank, bareMemory, memory);
  PrintLine(QStringLiteral("peak memory, opened, all pages seen"), mb, opened, bareMemory, memory);
  PrintLine(QStringLiteral("peak memory, all pages printed"), mb, printed, bareMemory, memory);
}

}  // namespace quillane::bench
