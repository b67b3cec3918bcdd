// One scenario: its folder, its desk, the run of the program, and the script that acts on them, one statement
// after the other, also inside the windows that a statement opens.
#pragma once
#include <QObject>
#include <QTemporaryDir>
#include <QTextStream>
#include <memory>
#include <vector>

#include "paper.h"
#include "program_files.h"
#include "script.h"
#include "test_desk.h"
#include "windows/program.h"

class QAction;

namespace quillane {
class Control;
class SheetView;
}  // namespace quillane

namespace quillane::scenario {

/// Where a build keeps what scenarios need and leave.
struct Places {
  QString data;   ///< what is installed beside the program
  QString shots;  ///< pictures
};

/// What a name means: a control of a page, a control of the main window with the widget that shows it, a
/// widget of another window, a menu entry, or a window itself.
struct Target {
  QString name;
  Page* page = nullptr;        ///< of a page's control, or the page itself
  Control* control = nullptr;  ///< of a page or of the main window
  QWidget* widget = nullptr;   ///< what shows it; null for a page's control and for what has no widget
  QAction* action = nullptr;   ///< of a menu entry
  bool isWindow = false;
};

class Player {
 public:
  Player(const QString& path, std::vector<Statement> statements, Places places, QTextStream& out);

  /// Runs the application until the script has ended.  True when nothing failed.
  bool Play();

 private:
  QTemporaryDir folder_;  ///< first of all: the others live in it

 public:
  TestDesk desk;
  std::unique_ptr<Program> program;
  ProgramFiles files;
  Paper paper;
  Qt::KeyboardModifiers held;  ///< by `press`, until `release`

  // What stands on the screen.
  /// The main window.  Throws Failure while there is none.
  FrameWindow& Frame() const;
  SheetView& Sheet() const;
  /// The open window of that name, in any case; null for none.
  QWidget* Window(const QString& name) const;
  /// The same.  Throws Failure for none.
  QWidget& OpenWindow(const QString& name) const;
  /// The window in front: the one that takes keys and clicks.
  QWidget* Front() const;
  /// Throws Failure when there is no control of that name, or its window is not open.
  Target Find(const ControlName& name) const;
  Target Find(const QString& name) const { return Find(ParseControl(name, Property::None)); }

  // The run.
  /// Fills the program's folder as its first start does, so that a script can change what it will find.
  void FillFolder() const;
  /// Starts the program; `Splash::Skip` goes to the main window at once.
  void Start(Program::Splash splash);
  /// Leaves, answering with the script's `answer` lines, and starts anew; without such a line the run ends
  /// unasked.  A window that must be closed first is closed, and what opened it ends before the new start.
  void Restart();
  /// The folder of the script's pictures and kept files.
  QString OutputFolder() const;

 private:
  /// What stood in front when a statement began: what comes later belongs to it, and the script goes on
  /// inside.
  struct Running {
    QWidget* modal;
    QWidget* popup;
  };

  void Schedule();
  void Tick();
  bool MayGoOn() const;
  void Run(const Statement& statement);
  void Settle();
  bool CloseInFront();
  void EndIfLeft();
  void Finish();
  void Report(const Statement& statement, const QString& expected, const QString& actual);
  void ReportBoxes();

  QString path_, name_;
  std::vector<Statement> statements_;
  Places places_;
  QTextStream& out_;
  QObject clock_;  ///< the owner of the timers that drive the script
  std::vector<Running> running_;
  QStringList windows_;  ///< that were open when the last statement ended
  size_t next_ = 0;
  bool stopped_ = false;  ///< an action failed: what follows makes no sense
  bool finished_ = false;
  bool restarting_ = false;  ///< as soon as every statement that opened a window has ended
  int failures_ = 0;
};

/// The page of "frmP2", in any case; null for none.
Page* FindPage(const QString& form);
/// An action of a window's own menus, not of a window that it has opened; null for none.
QAction* FindAction(const QWidget& window, const QString& name);

}  // namespace quillane::scenario
