// Pictures as the pages name them: a file, or one of the program's own drawings.
#pragma once
#include <QString>

#include "ui/surface.h"

class QPainter;
class QRectF;

namespace quillane {

/// The picture in a file or drawing with its natural size (a pixel is 15 twips).  It is read once in small,
/// so that a damaged one is found out here.  Throws 53 when there is none, 481 when it cannot be read or has
/// more than thirty million pixels.
Picture ReadPicture(const QString& source);
/// Paints it into a rectangle of the painter's own units.  On a screen it is scaled once for each size; on
/// paper drawings stay drawings.  Throws as ReadPicture does.
void DrawPicture(QPainter& painter, const QString& source, const QRectF& target);

}  // namespace quillane
