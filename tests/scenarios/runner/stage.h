// What stands on the screen: the run of the program, its windows, and how their controls are found by name.
#pragma once
#include <QWidget>
#include <memory>

#include "script.h"
#include "test_desk.h"
#include "windows/program.h"

class QAction;
class QMenu;

namespace quillane {
class Control;
class Page;
class SheetView;
}  // namespace quillane

namespace quillane::scenario {

struct Stage {
  TestDesk& desk;
  std::unique_ptr<Program> program;

  bool Running() const { return program != nullptr; }
  /// The main window.  Throws Failure while there is none.
  FrameWindow& Frame() const;
  SheetView& Sheet() const;
  /// The open window of that name, in any case; null for none.
  QWidget* Window(const QString& name) const;
  /// Gives the keyboard back to the window in front where a menu or a window that has closed took it along: a
  /// desktop's window manager does that, and the platform without a screen has none.
  void KeepActive() const;
  /// The window in front: the one that takes keys and clicks.
  QWidget* Front() const;
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

/// Throws Failure when there is no control of that name, or its window is not open.
Target Find(const Stage& stage, const ControlName& name);
/// The same, with the name as scripts write it.
Target Find(const Stage& stage, const QString& name);
/// An action of a window's menu bar or of its own menus; null for none.
QAction* FindAction(QWidget* window, const QString& name);
/// The menu that holds an action; null for one that no menu holds.
QMenu* MenuOf(QWidget* window, QAction* action);
/// The page of "frmP2", in any case; null for none.
Page* FindPage(const QString& form);

}  // namespace quillane::scenario
