// What happens while a person types on a page.  The bodies stand by theme: areas_focus, areas_keys,
// areas_walk, areas_text, areas_push, areas_columns, areas_mouse, areas_menu, areas_status, scrolling.
#pragma once
#include "model/page.h"

namespace quillane {

/// The keys that have a number here; the viewer translates.
namespace keys {
inline constexpr int Backspace = 8, Tab = 9, Enter = 13, PageUp = 33, PageDown = 34, End = 35, Home = 36,
                     Left = 37, Up = 38, Right = 39, Down = 40, Insert = 45, Delete = 46, F5 = 116, F6 = 117,
                     F8 = 119;
}

struct KeyEvent {
  int key = 0;  ///< one of keys::, or the upper-case character, or 0
  bool shift = false, ctrl = false, alt = false;
  QString text;  ///< what the key would type, if anything
};
enum class Handled { Yes, No };  ///< No: the editor does with the key what editors do

/// Connects the pages' change and focus handlers; once after CreatePages.
void InstallPageHandlers();

// The handlers, in the order in which the viewer calls them for one key: the page, the control, the
// character, and after the editor has done its part, the release.
Handled FormKeyDown(Page& page, const KeyEvent& event);
Handled KeyDown(Control& control, const KeyEvent& event);
Handled KeyPress(Control& control, const KeyEvent& event);
void KeyUp(Control& control);
void FormKeyUp(Page& page, const KeyEvent& event);

void GotFocus(Control& control);
void LostFocus(Control& control);
/// The text of any text box of a page has changed.
void TextChanged(Control& control);

void DoubleClick(Control& control);
void MouseDown(Control& control, bool rightButton);
void MouseUp(Control& control);
/// A frequent term dropped on an area, as the list shows it.  False when the area refuses it.
bool DropTerm(Control& control, const QString& term);
/// Whether a hand may write into the control now: not locked, not part of a selection.
bool AcceptsTyping(const Control& control);
/// What a paste of `text` into the control may insert; empty for nothing.
QString PasteInto(const Control& control, const QString& text);

/// Moves the pending word into the next area, see CheckPushNeeded.
void PushTheText(Page& page, int area);
void CheckPushNeeded();
/// Adds or removes the columns of editing.CurrentArea on the page in use.
void ToggleColumns();
void RefreshAreaWarnings(Page& page);
/// How wide a text of the area prints, in inches: upright and without a line under it, as paper has it.
float PrinterTextWidth(const Control& area, const QString& text);
/// Scrolls the sheet: keys::PageUp or keys::PageDown.
void SetDialPosition(int key);
/// Scrolls on until the control shows, see SetDialPosition.
void ScrollToShow(const Control& control, int key);
/// A page came to the front: its own last focused area takes the focus.
void FocusPage(Page& page);
/// Worked out from the page and area in use: the states of the text menu's entries.
void SetEditMenuState();

}  // namespace quillane
