#include "editing/colours.h"

#include <gtest/gtest.h>

#include "cases.h"
#include "model/proposal.h"

using namespace quillane;
using namespace quillane::test;

namespace {

TEST(Colours, ShowTheTextsOfThreeBars) {
  const Cases<ColourBars, Color, const char*, const char*, const char*, const char*, const char*> cases = {
      {{0, 0, 0}, 0, "0", "00", "&H00&", "0", "#000000"},
      {{5, 0, 0}, 5, "5", "5", "&H5&", "5", "#50000"},
      {{10, 5, 0}, 0x00050A, "10", "A", "&H5A&", "1290", "#A500"},
      {{0, 128, 0}, 0x008000, "0", "00", "&H8000&", "32768", "#008000"},
      {{15, 0, 255}, 0xFF000F, "15", "F", "&HFF00F&", "16711695", "#F00FF"},
      {{0, 0, 1}, 0x010000, "0", "00", "&H10000&", "65536", "#00001"},
      {{256, 255, 256}, 0xFFFFFF, "255", "FF", "&HFFFFFF&", "16777215", "#FFFFFF"},
  };
  for (const auto& [bars, color, red, hexOfRed, hexValue, intValue, httpValue] : cases) {
    const MixedColour mixed = Mixed(bars);
    EXPECT_EQ(mixed.color, color);
    EXPECT_EQ(mixed.decimal[0], red);
    EXPECT_EQ(mixed.hex[0], hexOfRed);
    EXPECT_EQ(mixed.hexValue, hexValue);
    EXPECT_EQ(mixed.intValue, intValue);
    EXPECT_EQ(mixed.httpValue, httpValue);
    EXPECT_EQ(Mixed(BarsOf(color)).color, color);
  }
}

TEST(Colours, AreNamedAfterTheirButtons) {
  EXPECT_EQ(ColourName(0x0000FF), "Red");
  EXPECT_EQ(ColourName(0), "Black");
  EXPECT_EQ(ColourName(0x123456), "1193046");
}

TEST(Colours, GoToTheFontUnlessTheLabelsAskedForThem) {
  ResetState();
  ApplyMixedColour(0x00FF00);
  EXPECT_EQ(proposal.UDP.FontColor, 0x00FF00);
  EXPECT_EQ(ColourToMix(), 0x00FF00);
  labelEdit.LabelColorMode = true;
  labelEdit.LabelColor = 0x0000FF;
  EXPECT_EQ(ColourToMix(), 0x0000FF);
  ApplyMixedColour(0xFF0000);
  EXPECT_EQ(labelEdit.LabelColor, 0xFF0000);
  EXPECT_EQ(proposal.UDP.FontColor, 0x00FF00);
}

}  // namespace
