#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include "app/small_commands.h"
#include "app/startup.h"
#include "model/proposal.h"
#include "platform/files.h"
#include "platform/runtime_error.h"
#include "settings/preferences.h"
#include "ui/desk.h"
#include "ui/font_twins.h"

namespace quillane {

namespace {

/// What of the installed data a user works with; the rest serves building and packaging.
const QStringList& Installed() {
  static const QStringList parts = {QStringLiteral("UserPreferences.txt"), QStringLiteral("events.jpg"),
                                    QStringLiteral("Wedding Proposals"), QStringLiteral("Help")};
  return parts;
}

void CopyWhereMissing(const QString& from, const QString& to) {
  if (QFileInfo::exists(to)) return;
  if (!QFile::copy(from, to)) Raise(errors::PathFileAccess, to);
  // The installed copy is read-only for good reasons that do not hold for the user's own.
  QFile::setPermissions(to, QFile::permissions(to) | QFileDevice::WriteOwner | QFileDevice::WriteUser);
}

void NeedFolder(const QString& path) {
  if (!QDir().mkpath(path)) Raise(errors::PathFileAccess, path);
}

using CopyOne = void (*)(const QString& from, const QString& to);

void CopyPart(const QString& from, const QString& to, CopyOne copy) {
  const QFileInfo source(from);
  if (!source.isDir()) {
    if (source.exists()) copy(from, to);
    return;
  }
  NeedFolder(to);
  for (const QString& name : QDir(from).entryList(QDir::AllEntries | QDir::NoDotAndDotDot))
    CopyPart(from + QLatin1Char('/') + name, to + QLatin1Char('/') + name, copy);
}

/// The first line of the preferences says whether the program has run before; reading them all would change
/// it.
bool IsFirstStart() {
  QFile file(prefs.ProgramFolder + QStringLiteral("UserPreferences.txt"));
  if (!file.open(QIODevice::ReadOnly)) return false;
  const QString line = QString::fromLatin1(file.readLine(200)).trimmed();
  return line.mid(SettingKey(Setting::FirstInstance).size()) == QLatin1String("True");
}

bool GoOnWithoutArial() {
  return AskYesNo(QStringLiteral("The font \"Arial\" is not installed on this computer.\n"
                                 "Some features of this software may not work correctly\n"
                                 "without it. Would you like to try the software anyway?\n"
                                 "\n"
                                 "Please contact us for instructions to install the font."),
                  QStringLiteral("Arial font not found."));
}

}  // namespace

void FillProgramFolder(const QString& folder, const QString& data) {
  NeedFolder(folder);
  const QString mark = WithSeparator(folder) + QStringLiteral(".filled");
  const QByteArray version = ProgramVersion().toLatin1() + '\n';
  const bool filled = QFileInfo::exists(mark);
  if (!QFileInfo(data).isDir() || (filled && ReadWholeFile(mark) == version)) return;
  // A folder that was filled once is the user's: what was removed since stays removed.  Only the help is the
  // program's own, and tells of the version that runs.
  const auto copy = [&](const QString& part, CopyOne one) {
    CopyPart(WithSeparator(data) + part, WithSeparator(folder) + part, one);
  };
  if (filled)
    copy(QStringLiteral("Help"), CopyFileOver);
  else
    for (const QString& part : Installed()) copy(part, CopyWhereMissing);
  ReplaceFile(mark, version);
}

bool FontInstalled(const QString& name) {
  return WithTwins(desk().ScreenFonts()).contains(name, Qt::CaseInsensitive);
}

bool Main() {
  if (!IsFirstStart()) return true;
  Tell(
      QStringLiteral("Although the program is easy to use, some of the features which will\n"
                     "help you the most can be confusing to understand. For this reason, it\n"
                     "is HIGHLY RECOMMENDED you explore the Quick Start Tutorial under Help."));
  if (FontInstalled(QStringLiteral("Arial")) || GoOnWithoutArial()) return true;
  QuitApplication();
  return false;
}

}  // namespace quillane
