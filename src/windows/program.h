// One run of the program inside the process: from a folder to an editable blank proposal, and its end.
#pragma once
#include <QString>
#include <memory>

#include "qt/qt_desk.h"

namespace quillane {

class FrameWindow;

/// A run begins with fresh state and ends with its object, so that another can begin in the same process.
class Program {
 public:
  /// How the run begins: with the splash, which waits for a click, or at once with the main window.
  enum class Splash { Show, Skip };

  /// `programFolder` is filled from `dataFolder` where files are missing.  The desk outlives the program.
  Program(QtDesk& desk, const QString& programFolder, const QString& dataFolder);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  /// Asks the first questions and shows the splash or the main window.  False when the user chose to leave.
  bool Start(Splash splash);
  /// The main window; null while only the splash shows.
  FrameWindow* Window() const { return window_.get(); }
  /// The user has left: QuitApplication has run.
  bool Ended() const;

 private:
  void ShowFrame();
  void CloseFrame();

  QtDesk& desk_;
  std::unique_ptr<FrameWindow> window_;
};

}  // namespace quillane
