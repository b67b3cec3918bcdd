#include "qt/painter_surface.h"

#include <QGuiApplication>
#include <QPalette>

#include "qt/pictures.h"
#include "qt/text_measure.h"

namespace quillane {

QColor ToQColor(Color color) {
  if (color == colors::ButtonFace) return QGuiApplication::palette().color(QPalette::Button);
  return QColor(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF);
}

void PainterSurface::SetOrigin(float scaleLeft, float scaleTop) {
  scaleLeft_ = scaleLeft;
  scaleTop_ = scaleTop;
}

void PainterSurface::SetFont(const Font& font) {
  font_ = font;
}

void PainterSurface::Print(float x, float y, const QString& text) {
  painter_.setFont(MakeFont(font_));
  painter_.setPen(ToQColor(color_));
  painter_.drawText(Place(x, y) + QPointF(0, double{MetricsOf(font_).ascent}), text);
}

void PainterSurface::Line(float x1, float y1, float x2, float y2, Color color, float width) {
  painter_.setPen(QPen(ToQColor(color), double{width}, Qt::SolidLine, Qt::FlatCap));
  painter_.drawLine(Place(x1, y1), Place(x2, y2));
}

void PainterSurface::FillRect(float x, float y, float width, float height, Color color) {
  painter_.fillRect(QRectF(Place(x, y), QSizeF(double{width}, double{height})), ToQColor(color));
}

void PainterSurface::PaintPicture(const Picture& picture, float x, float y, float width, float height) {
  DrawPicture(painter_, picture.source, QRectF(Place(x, y), QSizeF(double{width}, double{height})));
}

}  // namespace quillane
