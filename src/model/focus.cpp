#include "model/focus.h"

#include "model/page.h"
#include "model/proposal.h"
#include "platform/runtime_error.h"

namespace quillane {

FocusHandlers& focusHandlers() {
  static FocusHandlers handlers;
  return handlers;
}

void SetFocus(Control& control) {
  const FocusHandlers& handlers = focusHandlers();
  if (editing.Focus == &control) {
    if (handlers.moved) handlers.moved(&control);
    return;
  }
  if (!control.Visible() || !control.Enabled()) Raise(errors::InvalidProcedureCall, control.FullName());
  Control* old = editing.Focus;
  editing.Focus = nullptr;
  if (old && handlers.lostFocus) handlers.lostFocus(*old);
  // Leaving may itself move the focus; the one that was asked for still wins, as it is the later one.
  editing.Focus = &control;
  if (Page* owner = PageOf(control); owner && control.Array() == QLatin1String("txt"))
    owner->lastFocused = control.Index();
  if (handlers.gotFocus) handlers.gotFocus(control);
  if (editing.Focus == &control && handlers.moved) handlers.moved(&control);
}

void SettleFocus() {
  if (editing.Focus && focusHandlers().settle) focusHandlers().settle(*editing.Focus);
}

}  // namespace quillane
