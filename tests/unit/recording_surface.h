// A surface that keeps what is drawn on it.
#pragma once
#include <QStringList>
#include <vector>

#include "ui/surface.h"

namespace quillane::test {

struct Drawn {
  QString what;  ///< the text, or "line", "fill", or a picture's source
  float left = 0, top = 0, right = 0, bottom = 0;
  Font font;
  Color color = 0;
};

/// What became of a document; it outlives the surface.
struct Printout {
  QString printer, title, path;
  std::vector<Drawn> drawn;
  bool ended = false, killed = false;

  const Drawn* Find(const QString& what) const {
    for (const Drawn& item : drawn)
      if (item.what == what) return &item;
    return nullptr;
  }
};

class RecordingSurface : public Surface {
 public:
  explicit RecordingSurface(Printout& document) : document_(document) {}

  void SetOrigin(float left, float top) override { left_ = left, top_ = top; }
  float ScaleLeft() const override { return left_; }
  float ScaleTop() const override { return top_; }
  void SetFont(const Font& font) override { font_ = font; }
  void SetColor(Color color) override { color_ = color; }
  float Width(const QString& text) const override { return TextWidth(font_, text); }
  void Print(float x, float y, const QString& text) override { Keep(text, x, y, x + Width(text), y, color_); }
  void Line(float x1, float y1, float x2, float y2, Color color, float) override {
    Keep(QStringLiteral("line"), x1, y1, x2, y2, color);
  }
  void FillRect(float x, float y, float width, float height, Color color) override {
    Keep(QStringLiteral("fill"), x, y, x + width, y + height, color);
  }
  void PaintPicture(const Picture& picture, float x, float y, float width, float height) override {
    Keep(picture.source, x, y, x + width, y + height, 0);
  }
  void EndDoc() override { document_.ended = true; }
  void KillDoc() override { document_.killed = true; }

 private:
  void Keep(const QString& what, float left, float top, float right, float bottom, Color color) {
    document_.drawn.push_back({what, left - left_, top - top_, right - left_, bottom - top_, font_, color});
  }

  Printout& document_;
  Font font_;
  Color color_ = 0;
  float left_ = 0, top_ = 0;
};

}  // namespace quillane::test
