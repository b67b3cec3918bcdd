// Everything that one scenario has: its folder, its desk, the program's run, and what acts on them.
#pragma once
#include <QTemporaryDir>

#include "file_bench.h"
#include "hands.h"
#include "paper.h"
#include "stage.h"
#include "test_desk.h"

namespace quillane::scenario {

/// Where a build keeps what scenarios need and leave.
struct Places {
  QString data;   ///< what is installed beside the program
  QString shots;  ///< pictures
};

class World {
 public:
  World(const QString& scriptFolder, QString scriptName, Places places);

 private:
  QTemporaryDir folder_;  ///< first of all: the others live in it

 public:
  TestDesk desk;
  Stage stage;
  Hands hands;
  FileBench files;
  Paper paper;

  /// Fills the program's folder as its first start does, so that a script can change what it will find.
  void FillFolder() const;
  /// Starts the program; `Splash::Skip` clicks the splash away, so that the main window stands.
  void Start(Program::Splash splash);
  /// Leaves through the menu, as a person does.
  void Exit();
  /// Leaves, answering with the script's `answer` lines, and starts anew; without such a line the run ends
  /// unasked.
  void Restart();
  /// Ends the run where the user has left; otherwise nothing.
  void EndIfLeft();
  /// Ends the run in any case, without questions.
  void End();

  /// Pulls a menu entry.  Throws Failure when it is hidden, disabled, or not in the menu of the window in
  /// front.
  void PullMenu(const QString& name) const;
  void PullPopUp(const QString& name) const;
  void Shot(const QString& name) const;
  /// keep "name": a file of the program's folder stays with the test's output.
  void Keep(const QString& name) const;

 private:
  QString OutputFolder() const;

  QString scriptName_;
  Places places_;
};

}  // namespace quillane::scenario
