#include "windows/program.h"

#include <QApplication>

#include "app/commands.h"
#include "app/startup.h"
#include "model/proposal.h"
#include "model/report.h"
#include "platform/files.h"
#include "qt/text_measure.h"
#include "windows/frame_window.h"

namespace quillane {

Program::Program(QtDesk& desk, const QString& programFolder, const QString& dataFolder) : desk_(desk) {
  SetDesk(&desk_);
  prefs.ProgramFolder = WithSeparator(programFolder);
  InstallTextMeasure();
  ResetState();
  SetDrivesFolder(prefs.ProgramFolder + QStringLiteral("drives"));
  Guarded("Main", [&] { FillProgramFolder(prefs.ProgramFolder, dataFolder); });
  ConnectLayers();
  BuildMenus();
  desk_.showFrame = [this] { ShowFrame(); };
  desk_.closeFrame = [this] { CloseFrame(); };
}

Program::~Program() {
  desk_.CloseAllWindows();
  desk_.showFrame = nullptr;
  desk_.closeFrame = nullptr;
  desk_.frameWindow = nullptr;
}

bool Program::Start(Splash splash) {
  if (!Main()) return false;
  if (splash == Splash::Show)
    desk_.ShowWindow(QStringLiteral("frmSplash"), Modality::Modeless);
  else
    ShowFrame();
  return !Ended();
}

bool Program::Ended() const {
  return editing.Quitting;
}

void Program::ShowFrame() {
  if (window_) return;
  window_ = std::make_unique<FrameWindow>();
  desk_.frameWindow = window_.get();
  LoadMainFrame();
  window_->ShowAsBefore();
}

void Program::CloseFrame() {
  if (window_) window_->close();
  QApplication::quit();
}

}  // namespace quillane
