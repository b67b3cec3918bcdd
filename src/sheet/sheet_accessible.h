// What a screen reader finds on the sheet: a document whose children are the areas of the page in front.
#pragma once

class QWidget;

namespace quillane {

/// Once a process; later calls do nothing.
void InstallSheetAccessible();
/// To be called when the live editor has taken another area's text, before it tells its name.  A listener
/// takes one object for one place: it tells of the area and of what stands there only if the editor comes as
/// an object that it has not met, not even by a change of its text.
void LeaveArea(QWidget& editor);
/// The live editor stands over another area: for the toolkit the focus has not moved, for a listener it has.
void TellAreaFocused(QWidget& editor);
/// Another page is in front.
void TellPageShown(QWidget& view);

}  // namespace quillane
