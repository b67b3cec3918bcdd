// The commands too small for a subsystem of their own: help, support, shortcuts, switches, the Administrator
// workbench.
#pragma once
#include <QString>

namespace quillane {

/// The maker's lines and the addresses of its pages, in this one place.
namespace maker {
inline const QString Name = QStringLiteral("Made by the Quillane workshop");
inline const QString WebSite = QStringLiteral("https://quillane.example/");
inline const QString UpdatePage = WebSite + QStringLiteral("updates");
inline const QString FaqPage = WebSite + QStringLiteral("questions");
inline const QString ProblemPage = WebSite + QStringLiteral("report-a-problem");
inline const QString SuggestionPage = WebSite + QStringLiteral("suggestions");
inline const QString BuildComment = QStringLiteral("Proposals, from first call to last dance");
}  // namespace maker

/// "0.1.0": major, minor, revision.
QString ProgramVersion();

/// Opens a file or page with the desktop's program; says so when nothing can.
void OpenOutside(const QString& target);
/// Opens a page of the help that lies in the program's folder.
void OpenHelp(const QString& page);
void AboutCommand();
/// Shows the version and writes the same text to QLNVersion.txt in the program's folder.
void VersionCommand();
void CheckForUpdatesCommand();

/// Freedesktop entries for the program, on the desktop and among the applications.  Throws what a file can.
void CreateShortcutCommand();
/// The same for the Upgrade Manager beside the program; only a sentence where there is none.
void CreateUpgradeShortcutCommand();

void ToggleDoNotLockFormat();
void ToggleUnderline();

void LogonCommand();
void TestStringsCommand();
void DebugFontsCommand();
void ShowAllLabelsCommand();

}  // namespace quillane
