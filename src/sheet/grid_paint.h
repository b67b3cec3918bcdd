// The grid and the centre lines on the sheet's view.
#pragma once
#include "model/page.h"

class QPainter;
class QRect;
class QTransform;

namespace quillane {

/// Paints what DrawGrid drew on the page, within `stale` (pixels of the view).  `toPixels` leads from twips
/// to the view.  Lines and points lie on whole dots of the screen, so that they are sharp at every zoom.
void PaintGrid(QPainter& painter, const Page& page, const QTransform& toPixels, const QRect& stale);

}  // namespace quillane
