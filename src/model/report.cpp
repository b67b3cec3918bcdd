#include "model/report.h"

#include "model/proposal.h"
#include "platform/codepage.h"
#include "platform/dates.h"
#include "platform/files.h"
#include "ui/desk.h"

#include <QFileInfo>

namespace quillane {

namespace {
constexpr qint64 LongestPosition = 32767;  // the position is a signed 16-bit number, which is what bounds the log

void AppendToLog(const QString& report) {
  const QString path = prefs.ProgramFolder + QStringLiteral("Error.log");
  const QFileInfo log(path);
  const qint64 next = log.exists() ? log.size() + 1 : 1;
  WriteAt(path, next > LongestPosition ? 1 : next, ToCodePage(report));
}
}  // namespace

void ReportProgramError(const QString& procedure, const RuntimeError& error) {
  const QString report = QStringLiteral("%1\r\nAn error occurred in %2.\r\nError Number: %3\r\nError Description: %4\r\n")
                             .arg(GeneralDateTime(desk().Now()), procedure, QString::number(error.Number()),
                                  error.Description());
  Tell(report, QStringLiteral("Program Error"));
  try {
    AppendToLog(report);
  } catch (const RuntimeError&) {
    // The box has been seen; a log that cannot be written must never raise anything.
  }
}

void ReportInOwnWords(const QString& firstLine, const RuntimeError& error) {
  Tell(firstLine + QStringLiteral("\nError Number: ") + QString::number(error.Number()) +
       QStringLiteral("\nError Description: ") + error.Description());
}

}  // namespace quillane
