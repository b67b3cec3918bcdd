// The command table behind menus, tool bar and pop-up menu.
#pragma once
#include <QString>
#include <vector>

#include "app/command.h"

namespace quillane {

/// The menu bar of frmMain.
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
