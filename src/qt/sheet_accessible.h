// What a screen reader finds on the sheet: a document whose children are the areas of the page in front.
#pragma once

class QWidget;

namespace quillane {

/// Once a process; later calls do nothing.
void InstallSheetAccessible();
/// The live editor stands over another area: for the toolkit the focus has not moved, for a listener it has.
void TellAreaFocused(QWidget& editor);

}  // namespace quillane
