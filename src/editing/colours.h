// The colours that have a button of their own, and any other that frmRGB mixes of three bars.
#pragma once
#include <QString>
#include <array>

#include "ui/font.h"

namespace quillane {

struct NamedColour {
  const char* name;
  Color color;
};
/// cmdColor(0) to cmdColor(7).
inline constexpr std::array<NamedColour, 8> ButtonColours = {{
    {"Red", 0x0000FF},
    {"Orange", 0x0080FF},
    {"Yellow", 0x00FFFF},
    {"Blue", 0xFF0000},
    {"Green", 0x008000},
    {"Cyan", 0xFFFF00},
    {"Magenta", 0xFF00FF},
    {"Black", 0x000000},
}};
/// The name of the button that has this colour, otherwise the colour as a decimal number.
QString ColourName(Color color);

/// Where the three bars stand, 0 to 256.  The last two steps give the same colour.
struct ColourBars {
  int red = 0, green = 0, blue = 0;
};
inline constexpr int TopOfBar = 256;
inline constexpr int NormalStep = 16, SmallStep = 1;  ///< a bar's large change

/// All that frmRGB shows of a place of its bars.
struct MixedColour {
  Color color = 0;
  std::array<QString, 3> decimal, hex;  ///< red, green, blue
  QString hexValue, intValue, httpValue;
};
/// The hexadecimal texts are as short as they come: 5 is "5", and only nothing at all is "00".
MixedColour Mixed(const ColourBars& bars);
ColourBars BarsOf(Color color);

/// The colour that frmRGB changes: the labels' while it was called from their dialog, else the user's font's.
Color ColourToMix();
/// cmdOK of frmRGB.
void ApplyMixedColour(Color color);

}  // namespace quillane
