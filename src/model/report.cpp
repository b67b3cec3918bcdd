#include "model/report.h"

#include <QFileInfo>
#include <QStringList>

#include "model/proposal.h"
#include "platform/codepage.h"
#include "platform/dates.h"
#include "platform/files.h"
#include "ui/desk.h"

namespace quillane {

namespace {
// The log must not grow without bound: a report that would start behind this byte starts the file anew, and
// leaves the tail of the old reports behind it.
constexpr qint64 LongestPosition = 32767;

void AppendToLog(const QString& report) {
  if (prefs.ProgramFolder.isEmpty()) return;
  const QString path = prefs.ProgramFolder + QStringLiteral("Error.log");
  const QFileInfo log(path);
  const qint64 next = log.exists() ? log.size() + 1 : 1;
  WriteAt(path, next > LongestPosition ? 1 : next, ToCodePage(report));
}
}  // namespace

void ReportProgramError(const QString& procedure, const RuntimeError& error) {
  const QStringList lines = {GeneralDateTime(desk().Now()),
                             QStringLiteral("An error occurred in %1.").arg(procedure),
                             QStringLiteral("Error Number: ") + QString::number(error.Number()),
                             QStringLiteral("Error Description: ") + error.Description()};
  Tell(lines.join(u'\n'), QStringLiteral("Program Error"));
  try {
    AppendToLog(lines.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n"));
  } catch (const RuntimeError&) {
    // The box has been seen; a log that cannot be written must never raise anything.
  }
}

void ReportInOwnWords(const QString& firstLine, const RuntimeError& error) {
  Tell(firstLine + QStringLiteral("\nError Number: ") + QString::number(error.Number()) +
       QStringLiteral("\nError Description: ") + error.Description());
}

}  // namespace quillane
