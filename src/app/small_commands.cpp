#include "app/small_commands.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include "model/frame.h"
#include "model/proposal.h"
#include "pages/show_document.h"
#include "platform/files.h"
#include "platform/numbers.h"
#include "platform/runtime_error.h"
#include "ui/desk.h"

namespace quillane {

namespace {
const QString Title = QStringLiteral("Quillane");

/// A path inside quotes as a desktop entry's Exec line wants it.
QString QuotedForExec(QString path) {
  for (const QChar special : {u'\\', u'"', u'`', u'$'}) path.replace(special, QLatin1Char('\\') + special);
  path.replace(QLatin1Char('%'), QStringLiteral("%%"));
  return QLatin1Char('"') + path + QLatin1Char('"');
}

/// The program's own drawing, put into its folder where a desktop can find it without an icon theme.
QString IconForEntry() {
  const QString own = prefs.ProgramFolder + QStringLiteral("quillane.svg");
  if (QFileInfo::exists(own) || QFile::copy(QStringLiteral(":/icons/quillane.svg"), own)) return own;
  return QStringLiteral("quillane");
}

QByteArray DesktopEntry(const QString& name, const QString& program) {
  return QStringLiteral(
             "[Desktop Entry]\n"
             "Type=Application\n"
             "Name=%1\n"
             "Comment=Write, price and print event proposals\n"
             "Exec=%2\n"
             "Icon=%3\n"
             "Terminal=false\n"
             "Categories=Office;\n")
      .arg(name, QuotedForExec(program), IconForEntry())
      .toUtf8();
}

void WriteEntry(const QString& folder, const QString& name, const QString& program) {
  QDir().mkpath(folder);
  const QString path = WithSeparator(folder) + name + QStringLiteral(".desktop");
  ReplaceFile(path, DesktopEntry(name, program));
  // Desktops start an entry on their surface only when it may be executed.
  QFile::setPermissions(path, QFile::permissions(path) | QFileDevice::ExeOwner | QFileDevice::ExeUser);
}

void WriteBothEntries(const QString& name, const QString& program) {
  WriteEntry(QStandardPaths::writableLocation(QStandardPaths::DesktopLocation), name, program);
  WriteEntry(QStandardPaths::writableLocation(QStandardPaths::ApplicationsLocation), name, program);
}

void Toggle(const QString& entry, bool& flag) {
  flag = !flag;
  frame()[entry].SetChecked(flag);
}

QString FontWords(const Font& font) {
  return font.name + QStringLiteral(": Fontsize = ") + SingleText(font.size);
}
}  // namespace

QString ProgramVersion() {
  return QStringLiteral(QUILLANE_VERSION);
}

void OpenOutside(const QString& target) {
  if (desk().OpenExternally(target)) return;
  Tell(QStringLiteral("This could not be opened, because no program for it was found:\n") + target);
}

void OpenHelp(const QString& page) {
  const QString path = ResolvePath(prefs.ProgramFolder + QStringLiteral("Help/") + page);
  if (!QFileInfo::exists(path)) Raise(errors::FileNotFound, path);
  OpenOutside(path);
}

void AboutCommand() {
  Tell(Title + QStringLiteral(" Version ") + ProgramVersion() + QLatin1Char('\n') + maker::Name +
       QLatin1Char('\n') + maker::WebSite);
}

void VersionCommand() {
  const QString text = Title + QStringLiteral("\nVersion: ") + ProgramVersion() +
                       QStringLiteral("\nComments: ") + maker::BuildComment;
  Tell(text);
  QString onDisk = text;
  onDisk.replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
  ReplaceFile(prefs.ProgramFolder + QStringLiteral("QLNVersion.txt"), onDisk.toLatin1());
}

void CheckForUpdatesCommand() {
  Tell(Title + QStringLiteral("\nCurrent Version: ") + ProgramVersion());
  OpenOutside(maker::UpdatePage);
}

void CreateShortcutCommand() {
  WriteBothEntries(Title, QCoreApplication::applicationFilePath());
  Tell(QStringLiteral("A Shortcut has been successfully added to your Desktop."));
}

void CreateUpgradeShortcutCommand() {
  const QString program = QCoreApplication::applicationDirPath() + QStringLiteral("/quillane-upgrade");
  if (!QFileInfo::exists(program)) {
    Tell(QStringLiteral("The Upgrade Manager is not installed on this computer, so no Shortcut was added."));
    return;
  }
  WriteBothEntries(QStringLiteral("QuillaneUpgrade Upgrade Manager"), program);
  Tell(QStringLiteral("A Shortcut for the Upgrade Manager has been successfully added to your Desktop."));
}

void ToggleDoNotLockFormat() {
  Toggle(QStringLiteral("mnuOptDoNotLockFmtTextBoxes"), editing.DoNotLockFormat);
}
void ToggleUnderline() {
  Toggle(QStringLiteral("mnuOptUnderline"), editing.UnderlineMainCategories);
}

void LogonCommand() {
  const QString answer = desk().InputBox(QStringLiteral("Please enter password."),
                                         QStringLiteral("Password Required"), QString());
  if (answer != QLatin1String("kolbera")) return;
  for (const char* entry : {"mnuAdminConvert", "mnuAdminRecalc", "mnuAdminPrintAll"})
    frame()[QString::fromLatin1(entry)].SetEnabled(true);
}

void TestStringsCommand() {
  for (const int index : {3, 4}) {
    Tell(page(index).txt[3].Text() + QStringLiteral(" Text Area = ") + SavedText(index, 3));
  }
}

void DebugFontsCommand() {
  // The printer takes its font from the first area, so the two agree by construction.
  const QString area = FontWords(page(0).txt[0].GetFont());
  Tell(QStringLiteral("Form Font = ") + area + QStringLiteral(" | Text Font = ") + area +
       QStringLiteral(" | Label Font = ") + FontWords(page(0).lbl[0].GetFont()));
}

void ShowAllLabelsCommand() {
  for (int p = 0; p < IndexedPages; ++p)
    for (Control& label : page(p).lbl) label.SetShown(true);
}

}  // namespace quillane
