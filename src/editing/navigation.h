// Which page is in front, and how its sheet stands in the frame.
#pragma once

namespace quillane {

/// Brings page 0 to 6 to the front.
void UpdatePageButtons(int window);
/// Fits the sheet and VScroll1 to the frame.
void ReAdjustScrollBar(int window);
/// The frame has been resized to `clientHeight` twips.
void FrameResized(float clientHeight);
/// VScroll1 has a new value; false when the change is to be ignored once.
bool ScrollChanged(int value);

}  // namespace quillane
