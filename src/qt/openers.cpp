#include "qt/openers.h"

#include <QMimeDatabase>
#include <QProcess>
#include <QStandardPaths>
#include <algorithm>

namespace quillane {

namespace {

enum class Reply { None, Program, Unknown };

Reply ProgramFor(const QString& helper, const QString& kind) {
  constexpr int patience = 3000;  // milliseconds
  QProcess asked;
  asked.start(helper, {QStringLiteral("query"), QStringLiteral("default"), kind});
  if (!asked.waitForFinished(patience)) return Reply::Unknown;
  return asked.readAllStandardOutput().trimmed().isEmpty() ? Reply::None : Reply::Program;
}

/// A kind and what it is a kind of, as long as that is text: an editor opens every text, but what unpacks
/// archives is no word processor.
QStringList KindsOf(const QString& path) {
  const QMimeType own = QMimeDatabase().mimeTypeForFile(path);
  QStringList kinds{own.name()};
  for (const QString& parent : own.allAncestors())
    if (parent.startsWith(QLatin1String("text/"))) kinds.append(parent);
  return kinds;
}

}  // namespace

bool DesktopOpens(const QString& path) {
  const QString helper = QStandardPaths::findExecutable(QStringLiteral("xdg-mime"));
  if (helper.isEmpty()) return true;
  const QStringList kinds = KindsOf(path);
  return std::any_of(kinds.begin(), kinds.end(),
                     [&](const QString& kind) { return ProgramFor(helper, kind) != Reply::None; });
}

}  // namespace quillane
