#include "ui/font.h"

namespace quillane {

namespace {
// Without a display every character is half its size wide, which is enough to test what follows from a width.
float SimpleWidth(const Font& font, const QString& text) {
  return static_cast<float>(text.size()) * font.size * 10.0F;
}
FontMetrics SimpleMetrics(const Font& font) {
  return {font.size * 18.0F, font.size * 23.0F};
}

TextMeasure& Measure() {
  static TextMeasure measure{SimpleWidth, SimpleMetrics};
  return measure;
}
}  // namespace

float TextWidth(const Font& font, const QString& text) {
  return Measure().width(font, text);
}
FontMetrics MetricsOf(const Font& font) {
  return Measure().metrics(font);
}
void SetTextMeasure(TextMeasure measure) {
  Measure() = std::move(measure);
}

}  // namespace quillane
