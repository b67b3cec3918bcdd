// The few calls that go up the layers, filled in at start by the layer that owns them.
#pragma once
#include <QString>

namespace quillane {

class Control;

struct Upcalls {
  void (*BackupThisFile)() = [] {};  ///< files: the copy at the 20th key
  void (*ResumeEditing)() = [] {};   ///< print: leave the preview of the page in front
  /// windows: opens a sub-menu, "mnuEditTextBox" or "mnuEditLabel", at the pointer or at the control.
  void (*PopUpMenu)(const QString& menu, Control& at) = [](const QString&, Control&) {};
  void (*ShowAddresses)() = [] {};              ///< windows: frmAddress shows the address book's state anew
  void (*RedrawPage)(int window) = [](int) {};  ///< sheet: what lies under the controls has changed
};
Upcalls& upcalls();

}  // namespace quillane
