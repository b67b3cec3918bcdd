// The logo of the first page: where it comes from, where it stands, and whether it shows.
#include "files/logo.h"

#include <QFileInfo>

#include "files/new_proposal.h"
#include "model/frame.h"
#include "model/proposal.h"
#include "pages/defaults.h"
#include "platform/codepage.h"
#include "platform/files.h"
#include "platform/numbers.h"
#include "platform/runtime_error.h"
#include "settings/preferences.h"
#include "ui/desk.h"

namespace quillane {

namespace {

struct LogoChoice {
  QString path;  ///< empty for none
  float left = 0, top = 0;
};

bool HasFolder(const QString& stored) {
  return stored.contains(QLatin1Char('\\')) || stored.contains(QLatin1Char('/'));
}

LogoChoice PreferredLogo(const QString& path) {
  return {path, prefs.LogoLeft, prefs.LogoTop};
}

LogoChoice LogoUnderFormat() {
  if (format.LogoChanged) {  // the format's own logo could be read
    if (!HasFolder(format.LogoPath)) return {};
    return {ResolvePath(format.LogoPath), format.LogoLeft, format.LogoTop};
  }
  if (prefs.LogoFile.isEmpty()) return {};
  if (HasFolder(prefs.LogoFile)) return PreferredLogo(ResolvePath(prefs.LogoFile));
  if (FileExists(prefs.ProgramFolder, prefs.LogoFile))
    return PreferredLogo(prefs.ProgramFolder + prefs.LogoFile);
  return {};
}

LogoChoice LogoWithoutFormat() {
  if (prefs.LogoFile.isEmpty()) return {};
  // The installed logo lies in the program's folder, and so do others that are named without a folder; one
  // that is not there is looked up where the program was started.
  const bool inProgramFolder =
      prefs.LogoFile == QLatin1String("events.jpg") ||
      (!HasFolder(prefs.LogoFile) && FileExists(prefs.ProgramFolder, prefs.LogoFile));
  if (inProgramFolder) return PreferredLogo(prefs.ProgramFolder + prefs.LogoFile);
  return PreferredLogo(ResolvePath(prefs.LogoFile));
}

bool HasLogo() {
  if (!page(0).pic[0].GetPicture().source.isEmpty()) return true;
  Tell(QStringLiteral("There is no logo on page 1. Choose one with \"Select Different Logo\" first."));
  return false;
}

/// Settings and formats hold the characters of the code page only; another path would be written as one that
/// is not there.
bool PathCanBeKept(const QString& path) {
  if (FoldToCodePage(path) == path) return true;
  Tell(QStringLiteral(
           "The path of this logo has characters that neither the settings nor a format can hold:\n"
           "%1\n"
           "This proposal shows it. To keep it, copy the picture to a folder and a name without them.")
           .arg(path));
  return false;
}

/// Remembers where the logo stands for a format that is made of the proposal.
void TakePlace() {
  const Control& pic = page(0).pic[0];
  format.LogoLeft = pic.Left();
  format.LogoTop = pic.Top();
}

void TellUnreadable(const QString& path) {
  Tell(QStringLiteral("\"%1\" cannot be used as a logo. It is damaged, too large, or not a picture at all.\n"
                      "The logo of this proposal stays as it is.")
           .arg(QFileInfo(path).fileName()));
}

}  // namespace

void OpenLogoCommand() {
  fileDialog.FormatMode = true;  // a picture has no properties beside it
  fileDialog.FileFilter = LogoFilter;
  fileDialog.Caption = QStringLiteral("Opening Graphics File...");
  desk().ShowWindow(QStringLiteral("frmFile"), Modality::Modal);
}

void ChooseLogo(const QString& path) {
  Picture picture;
  try {
    picture = desk().LoadPicture(path);
  } catch (const RuntimeError&) {
    return TellUnreadable(path);
  }
  Control& pic = page(0).pic[0];
  if (pic.GetPicture().source.isEmpty()) {
    pic.SetLeft(prefs.LogoLeft);
    pic.SetTop(prefs.LogoTop);
  }
  TakePlace();
  ShowLogoPicture(picture);
  if (PathCanBeKept(path)) {
    format.LogoPath = path;
    format.LogoChanged = true;
  }
  if (!prefs.LogoVisible)
    Tell(QStringLiteral("The new logo is in its place, but hidden. Choose \"Show Logo\" to see it."));
}

void SaveLogoAsDefault() {
  if (!HasLogo()) return;
  const Control& pic = page(0).pic[0];
  const QString path = pic.GetPicture().source;
  if (!PathCanBeKept(path)) return;
  if (format.FormatIsOpen && format.LogoPath.isEmpty()) {
    format.LogoPath = path;
    format.LogoChanged = true;
  }
  TakePlace();
  StorePreferences({{QStringLiteral("Logo File:"), path},
                    {QStringLiteral("Logo Left:"), SingleText(pic.Left())},
                    {QStringLiteral("Logo Top:"), SingleText(pic.Top())}});
}

void ToggleLogoVisible() {
  if (!HasLogo()) return;
  const bool shown = !page(0).pic[0].Hidden();
  StorePreference(QStringLiteral("Logo Visible:"), shown ? QStringLiteral("False") : QStringLiteral("True"));
  ShowLogoPicture(page(0).pic[0].GetPicture());  // by the setting as the file has it now
}

void ToggleLogoBorder() {
  const bool border = !frame()[QStringLiteral("mnuEditLogoBorder")].Checked();
  if (border && !HasLogo()) return;
  CheckMenu("mnuEditLogoBorder", border);
  Control& pic = page(0).pic[0];
  if (border && pic.Hidden()) return ToggleLogoVisible();
  // Hidden and shown again, so that its rectangle is painted anew.
  const bool visible = pic.Visible();
  pic.SetVisible(false);
  pic.SetVisible(visible);
}

void LoadLogo() {
  ShowLogoPicture({});
  const LogoChoice choice = format.FormatIsOpen ? LogoUnderFormat() : LogoWithoutFormat();
  if (choice.path.isEmpty()) return;
  const Picture picture = desk().LoadPicture(choice.path);
  page(0).pic[0].SetLeft(choice.left);
  page(0).pic[0].SetTop(choice.top);
  ShowLogoPicture(picture);
}

}  // namespace quillane
