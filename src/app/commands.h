// The command table behind menus, tool bar and pop-up menu.
#pragma once
#include <QString>
#include <vector>

namespace quillane {

/// One entry of the menu bar.  An entry without a `run` opens a sub-menu, or its command is not part of the
/// program yet and the entry stays disabled.
struct Command {
  const char* name;     ///< "mnuFileSaveEvent"
  const char* caption;  ///< with '&' before the access key
  const char* key;      ///< "Ctrl+S", or empty
  const char* parent;   ///< the sub-menu that holds it; empty for the menu bar
  bool visible, enabled;
  bool checkable, checked;
  bool isMenu;  ///< opens a sub-menu
  void (*run)();
};
const std::vector<Command>& Commands();
/// Puts every entry into the frame with its caption and start state.
void BuildMenus();
/// True for an entry whose command is part of the program.
bool CommandExists(const QString& name);
/// Runs an entry's procedure, if it is enabled.  Errors are caught here, once for each command.
void RunCommand(const QString& name);
/// A click on a tool bar image or button of the frame.
void FrameClicked(const QString& control);

}  // namespace quillane
