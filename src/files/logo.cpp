// The logo of the first page: where it comes from, where it stands, and whether it shows.
#include "files/new_proposal.h"
#include "model/frame.h"
#include "model/proposal.h"
#include "platform/files.h"
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
  if (!format.LogoPath.isEmpty()) {
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
  // The installed logo lies in the program's folder; any other bare name is looked up where the program was
  // started.
  if (prefs.LogoFile == QLatin1String("events.jpg"))
    return PreferredLogo(prefs.ProgramFolder + prefs.LogoFile);
  return PreferredLogo(ResolvePath(prefs.LogoFile));
}

void ShowPicture(const Picture& picture) {
  Control& pic = page(0).pic[0];
  pic.SetPicture(picture);
  if (!picture.source.isEmpty()) {
    pic.SetWidth(picture.width);
    pic.SetHeight(picture.height);
  }
  const bool shown = !picture.source.isEmpty() && prefs.LogoVisible;
  pic.SetShown(shown);
  CheckMenu("mnuEditLogoVisible", shown);
}

}  // namespace

void LoadLogo() {
  ShowPicture({});
  proposal.LogoPath.clear();
  const LogoChoice choice = format.FormatIsOpen ? LogoUnderFormat() : LogoWithoutFormat();
  if (choice.path.isEmpty()) return;
  const Picture picture = desk().LoadPicture(choice.path);
  page(0).pic[0].SetLeft(choice.left);
  page(0).pic[0].SetTop(choice.top);
  proposal.LogoPath = choice.path;
  proposal.LogoLeft = choice.left;
  proposal.LogoTop = choice.top;
  ShowPicture(picture);
}

}  // namespace quillane
