#include "editing/colours.h"

#include <gtest/gtest.h>

#include "model/proposal.h"

using namespace quillane;

namespace {

TEST(Colours, ShowTheTextsOfThreeBars) {
  struct Case {
    ColourBars bars;
    Color color;
    const char *red, *hexOfRed, *hexValue, *intValue, *httpValue;
  };
  const Case cases[] = {
      {{0, 0, 0}, 0, "0", "00", "&H00&", "0", "#000000"},
      {{5, 0, 0}, 5, "5", "5", "&H5&", "5", "#50000"},
      {{10, 5, 0}, 0x00050A, "10", "A", "&H5A&", "1290", "#A500"},
      {{0, 128, 0}, 0x008000, "0", "00", "&H8000&", "32768", "#008000"},
      {{15, 0, 255}, 0xFF000F, "15", "F", "&HFF00F&", "16711695", "#F00FF"},
      {{0, 0, 1}, 0x010000, "0", "00", "&H10000&", "65536", "#00001"},
      {{256, 255, 256}, 0xFFFFFF, "255", "FF", "&HFFFFFF&", "16777215", "#FFFFFF"},
  };
  for (const Case& c : cases) {
    const MixedColour mixed = Mixed(c.bars);
    EXPECT_EQ(mixed.color, c.color);
    EXPECT_EQ(mixed.decimal[0], c.red);
    EXPECT_EQ(mixed.hex[0], c.hexOfRed);
    EXPECT_EQ(mixed.hexValue, c.hexValue);
    EXPECT_EQ(mixed.intValue, c.intValue);
    EXPECT_EQ(mixed.httpValue, c.httpValue);
    EXPECT_EQ(Mixed(BarsOf(c.color)).color, c.color);
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
