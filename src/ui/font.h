// A font as the pages know it, and the one measure of text that the whole system uses.
#pragma once
#include <QString>
#include <functional>

namespace quillane {

struct Font {
  QString name = QStringLiteral("Arial");
  float size = 10;  ///< points
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool operator==(const Font&) const = default;
};

/// Colours are blue-green-red long integers: 0x0000FF is red.
using Color = int;
namespace colors {
inline constexpr Color Grey = 0xC0C0C0;       ///< a txt at rest
inline constexpr Color LightGrey = 0xE0E0E0;  ///< a txtQty or txtAmt at rest
inline constexpr Color Cyan = 0xFFFF00;       ///< the area that has the focus
inline constexpr Color Red = 0x0000FF;        ///< too long, too wide, or stale
inline constexpr Color Blue = 0xFF0000;       ///< selected
inline constexpr Color White = 0xFFFFFF;
inline constexpr Color Black = 0;
inline constexpr Color ButtonFace = static_cast<int>(0x8000000FU);
}  // namespace colors

struct FontMetrics {
  float ascent = 0;  ///< twips from the top of a line to its baseline
  float height = 0;  ///< twips from the top of a line to its bottom
};

/// The width of `text` in twips, at a fixed reference that does not depend on screen, zoom or printer.
float TextWidth(const Font& font, const QString& text);
FontMetrics MetricsOf(const Font& font);

/// Who measures: the windows install the fonts' own measure, tests without a display a simple one.
struct TextMeasure {
  std::function<float(const Font&, const QString&)> width;
  std::function<FontMetrics(const Font&)> metrics;
};
void SetTextMeasure(TextMeasure measure);

}  // namespace quillane
