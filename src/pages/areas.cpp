#include "pages/areas.h"

namespace quillane {
void InstallPageHandlers() {}
Handled FormKeyDown(Page&, const KeyEvent&) { return Handled::No; }
Handled KeyDown(Control&, const KeyEvent&) { return Handled::No; }
Handled KeyPress(Control&, const KeyEvent&) { return Handled::No; }
void KeyUp(Control&, const KeyEvent&) {}
void FormKeyUp(Page&, const KeyEvent&) {}
void GotFocus(Control&) {}
void LostFocus(Control&) {}
void TextChanged(Control&) {}
void DoubleClick(Control&) {}
void MouseDown(Control&, bool) {}
void MouseUp(Control&) {}
bool DropTerm(Control&, const QString&) { return false; }
bool AcceptsTyping(const Control&) { return true; }
QString PasteInto(const Control&, const QString& text) { return text; }
void PushTheText(Page&, int) {}
void CheckPushNeeded() {}
void ToggleColumns() {}
void RefreshAreaWarnings(Page&) {}
void SetDialPosition(int) {}
void ScrollToShow(const Control&, int) {}
void FocusPage(Page&) {}
void SetEditMenuState() {}
}  // namespace quillane
