// Drawing a page: the one procedure behind the screen, the preview and the paper.
#pragma once
#include "model/page.h"
#include "ui/surface.h"

namespace quillane {

enum class DrawMode {
  Editing,   ///< amounts stand left, areas have their colours, the user's italic shows
  Printing,  ///< as on paper: what carries "Hide" is skipped, amounts stand right, no colours of the screen
};

/// A rectangle in twips.
struct Box {
  float left = 0, top = 0, width = 0, height = 0;
};

/// By how much an area's coloured rectangle begins before its text, so that the text does not touch the
/// colour's edge. It is less than the gap between txtQty and its row's description.
inline constexpr float EditingInset = 30;

/// Draws one control.
void DrawControl(Surface& surface, const Page& page, const Control& control, DrawMode mode);
/// Draws all controls of a page in its order.
void DrawPage(Surface& surface, const Page& page, DrawMode mode);
/// Where the text of a text box begins on paper: its left edge, or so that it ends at the right edge.
float PrintedLeft(const Page& page, const Control& box, float textWidth);
/// All that a control can cover on the screen while it is edited: its colour, its text, its border.
Box EditingBox(const Control& control);

}  // namespace quillane
