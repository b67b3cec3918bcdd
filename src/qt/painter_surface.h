// The drawing surface of the pages on a painter: the screen's, a printer's or that of a PDF file.
#pragma once
#include <QColor>
#include <QPainter>

#include "ui/surface.h"

namespace quillane {

/// A blue-green-red long as the toolkit's colour; the system's button face is the palette's.
QColor ToQColor(Color color);

/// Draws on a painter whose unit is the twip.  The painter must outlive it.
class PainterSurface : public Surface {
 public:
  explicit PainterSurface(QPainter& painter) : painter_(painter) {}

  void SetOrigin(float scaleLeft, float scaleTop) override;
  float ScaleLeft() const override { return scaleLeft_; }
  float ScaleTop() const override { return scaleTop_; }
  void SetFont(const Font& font) override;
  void SetColor(Color color) override { color_ = color; }
  void Print(float x, float y, const QString& text) override;
  float Width(const QString& text) const override { return TextWidth(font_, text); }
  void Line(float x1, float y1, float x2, float y2, Color color, float width) override;
  void FillRect(float x, float y, float width, float height, Color color) override;
  void PaintPicture(const Picture& picture, float x, float y, float width, float height) override;

 private:
  QPointF Place(float x, float y) const {
    return {double{x} - double{scaleLeft_}, double{y} - double{scaleTop_}};
  }

  QPainter& painter_;
  Font font_;
  Color color_ = colors::Black;
  float scaleLeft_ = 0, scaleTop_ = 0;
};

}  // namespace quillane
