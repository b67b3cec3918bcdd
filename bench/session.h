// One run of the program for measuring: a program folder of its own, a desk that answers by itself.
#pragma once
#include <QTemporaryDir>
#include <functional>
#include <memory>

#include "qt/qt_desk.h"
#include "windows/program.h"

namespace quillane::bench {

/// Says Yes to every question and tells what it was asked, since nothing that is measured should ask.  That a
/// file was saved is no surprise.
class BenchDesk : public QtDesk {
 public:
  Answer MessageBox(const QString& text, const QString& title, Buttons buttons) override;
  QString InputBox(const QString& prompt, const QString& title, const QString& preset) override;
};

/// A program folder as a planner's is after the first day: settings read once, a tax rate, a few proposals.
/// It lies beside the bench and not among the temporary files, which are often kept in memory: a save must
/// meet a disk.
class Home {
 public:
  Home();
  QString Path() const { return folder_.path(); }

 private:
  QTemporaryDir folder_;
};

/// Clicks the splash away as soon as it shows, and calls `painted` once the blank proposal has been painted.
void StartAndClickAway(Program& program, QtDesk& desk, const std::function<void()>& painted);

/// Serves the event loop until nothing is left to paint.
void Settle();

/// Serves the event loop until a window has the keyboard.
void Activate(QWidget& window);

/// Opens a proposal of the proposal folder as a person does through the file dialog.
void OpenProposal(const QString& fileName);

}  // namespace quillane::bench
