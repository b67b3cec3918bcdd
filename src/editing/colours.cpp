#include "editing/colours.h"

#include <algorithm>

#include "editing/label_props.h"
#include "model/proposal.h"
#include "pages/labels.h"

namespace quillane {

namespace {

constexpr int MostOfAColour = 255;

QString HexText(int part) {
  return part == 0 ? QStringLiteral("00") : QString::number(part, 16).toUpper();
}

/// "&H", blue, green and red, "&".  A blue of 0 is left out, and with it a green of 0.
QString HexValue(int red, int green, int blue) {
  QString digits = HexText(red);
  if (blue != 0 || green != 0) digits.prepend(HexText(green));
  if (blue != 0) digits.prepend(HexText(blue));
  return QStringLiteral("&H%1&").arg(digits);
}

}  // namespace

QString ColourName(Color color) {
  const auto found = std::ranges::find(ButtonColours, color, &NamedColour::color);
  return found == ButtonColours.end() ? QString::number(color) : QString::fromLatin1(found->name);
}

MixedColour Mixed(const ColourBars& bars) {
  const std::array parts = {std::min(bars.red, MostOfAColour), std::min(bars.green, MostOfAColour),
                            std::min(bars.blue, MostOfAColour)};
  MixedColour mixed;
  mixed.color = parts[0] | parts[1] << 8 | parts[2] << 16;
  for (size_t i = 0; i < parts.size(); ++i) {
    mixed.decimal[i] = QString::number(parts[i]);
    mixed.hex[i] = HexText(parts[i]);
  }
  mixed.hexValue = HexValue(parts[0], parts[1], parts[2]);
  mixed.intValue = QString::number(mixed.color);
  mixed.httpValue = QLatin1Char('#') + mixed.hex[0] + mixed.hex[1] + mixed.hex[2];
  return mixed;
}

ColourBars BarsOf(Color color) {
  return {color & MostOfAColour, color >> 8 & MostOfAColour, color >> 16 & MostOfAColour};
}

Color ColourToMix() {
  if (!labelEdit.LabelColorMode) return proposal.UDP.FontColor;
  return labelEdit.LabelColor == NoCommonColour ? colors::Black : labelEdit.LabelColor;
}

void ApplyMixedColour(Color color) {
  labelEdit.LabelColor = color;
  if (labelEdit.LabelColorMode)
    SetLabelColor(color);
  else
    proposal.UDP.FontColor = color;
}

}  // namespace quillane
