#include "qt/text_measure.h"

#include <QFontMetricsF>
#include <QHash>
#include <array>
#include <cmath>
#include <memory>
#include <vector>

namespace quillane {

namespace {

constexpr float TwipsPerPoint = 20;

QFont BuildFont(const Font& font) {
  QFont built(font.name);
  built.setPixelSize(std::max(1, static_cast<int>(std::lround(font.size * TwipsPerPoint))));
  built.setBold(font.bold);
  built.setItalic(font.italic);
  built.setUnderline(font.underline);
  built.setKerning(false);
  // A page holds characters of one code page, which its fonts have; looking for others costs a font search
  // each.
  built.setStyleStrategy(QFont::NoFontMerging);
  built.setHintingPreference(QFont::PreferNoHinting);
  return built;
}

/// A font once it has been asked for, and the advances of its characters as they come.
struct MeasuredFont {
  explicit MeasuredFont(const Font& font)
      : key(font),
        built(BuildFont(font)),
        measure(built),
        metrics{static_cast<float>(measure.ascent()), static_cast<float>(measure.height())} {
    latin.fill(Unknown);
  }

  float Advance(QChar character) const { return static_cast<float>(measure.horizontalAdvance(character)); }

  float AdvanceOf(QChar character) {
    const char16_t code = character.unicode();
    if (code < latin.size()) {
      if (latin[code] == Unknown) latin[code] = Advance(character);
      return latin[code];
    }
    auto found = others.find(code);
    if (found == others.end()) found = others.insert(code, Advance(character));
    return *found;
  }

  static constexpr float Unknown = -1;
  Font key;
  QFont built;
  QFontMetricsF measure;
  FontMetrics metrics;
  std::array<float, 256> latin;
  QHash<char16_t, float> others;
};

// A proposal uses a handful of fonts, so the newest in front of a short list is found faster than in any
// table.
MeasuredFont& Measured(const Font& font) {
  static std::vector<std::unique_ptr<MeasuredFont>> fonts;
  for (size_t i = 0; i < fonts.size(); ++i) {
    if (fonts[i]->key != font) continue;
    if (i > 0) std::swap(fonts[i], fonts[i / 2]);
    return *fonts[i > 0 ? i / 2 : 0];
  }
  fonts.push_back(std::make_unique<MeasuredFont>(font));
  return *fonts.back();
}

float MeasureWidth(const Font& font, const QString& text) {
  MeasuredFont& measured = Measured(font);
  float width = 0;
  for (const QChar character : text) width += measured.AdvanceOf(character);
  return width;
}

}  // namespace

void InstallTextMeasure() {
  SetTextMeasure({MeasureWidth, [](const Font& font) { return Measured(font).metrics; }});
}

QFont MakeFont(const Font& font) {
  return Measured(font).built;
}

}  // namespace quillane
