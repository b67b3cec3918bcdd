// What the files behind areas.h share: tests on areas, their colours, the walk between them, the status
// labels.
#pragma once
#include "editing/areas.h"
#include "model/document.h"
#include "model/report.h"

namespace quillane {

// Kinds of controls that take text.
inline bool IsArea(const Control& control) {
  return control.Array() == QLatin1String("txt");
}
inline bool IsQuantity(const Control& control) {
  return control.Array() == QLatin1String("txtQty");
}
inline bool IsEachPrice(const Control& control) {
  return control.Array() == QLatin1String("txtAmt");
}
inline bool IsColumnBox(const Control& control) {
  return IsQuantity(control) || IsEachPrice(control);
}

inline Control& At(Array<Control>& controls, int index) {
  return controls[index];
}
inline const Control& At(const Array<Control>& controls, int index) {
  return controls[index];
}

inline bool ShowsPrompt(const Control& box) {
  return box.Text() == QuantityPrompt || box.Text() == EachPrompt;
}

/// The open format fixes this area's text and the option that frees it is off.
bool FixedByFormat(const Page& page, int area);
/// The text has reached the control's width, or passes the limit of its Tag or, in a row with columns, of the
/// file.
bool IsTooLong(const Page& page, const Control& control);
/// Red when too long, else the colour of rest, or cyan where the focus is.  A selected control stays as it
/// is.
void RefreshWarning(const Page& page, Control& control);

/// The control that Enter or Tab leads to, and Shift+Tab leads back to; null at the ends of the proposal.
Control* NextControl(Page& page, const Control& from);
Control* PreviousControl(Page& page, const Control& from);
/// The control that an arrow leads to; null where there is none.
Control* ControlBelow(Page& page, const Control& from);
Control* ControlAbove(Page& page, const Control& from);
/// Brings the target's page to the front, gives the target the focus and scrolls until it shows.
void GoTo(Page& from, Control& target, int scrollKey);

/// lblCurPos and lblTextPos for the caret of an area; editing.CursorLocation becomes the caret's place.
void ShowCaret(Control& area);
void ShowCaretPlace(const Control& area);

/// Enter and Tab, which lead on.
inline bool IsWalk(const KeyEvent& event) {
  return event.key == keys::Enter || event.key == keys::Tab;
}
bool IsPaste(const KeyEvent& event);
/// The key types at least one character.
bool IsPrintable(const KeyEvent& event);
/// The key would change the text if an editor took it.
bool Writes(const KeyEvent& event);

/// "Page 2": how a page is called in captions and reports.
inline QString PageName(const Page& page) {
  return QStringLiteral("Page %1").arg(page.pageIndex + 1);
}

/// The one error route of what a page's handlers do.
template <class Body>
bool GuardedOn(const Page& page, Body&& body) {
  return Guarded((PageName(page) + QStringLiteral(" Keydown")).toLatin1().constData(),
                 std::forward<Body>(body));
}

/// The same for a key: one whose work has failed does nothing else.
template <class Body>
Handled Answered(const Page& page, Body&& body) {
  Handled handled = Handled::Yes;
  GuardedOn(page, [&] { handled = body(); });
  return handled;
}

}  // namespace quillane
