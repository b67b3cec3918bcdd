// Which control has the focus.  This is the program's own focus: menus, boxes and other windows are no
// leaving.
#pragma once
#include "ui/control.h"

namespace quillane {

/// Gives the focus to a control of a page or to a button of the frame: the old one's lost-focus handler runs,
/// then the new one's got-focus handler.  Throws 5 when the control cannot take it (hidden or disabled).
void SetFocus(Control& control);
/// Runs the lost-focus handler of the area that has the focus without moving it, as if it had been left and
/// entered again; nothing when no area has the focus.
void SettleFocus();

/// Filled in at start by pages/: what happens when a control gets or loses the focus.
struct FocusHandlers {
  void (*gotFocus)(Control&) = nullptr;
  void (*lostFocus)(Control&) = nullptr;
  void (*settle)(Control&) = nullptr;  ///< takes an amount as if it had been left; changes no colour
  void (*moved)(Control*) = nullptr;   ///< the viewer: bring the editor to this control (null for none)
};
FocusHandlers& focusHandlers();

}  // namespace quillane
