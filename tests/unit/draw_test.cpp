#include "print/draw.h"

#include <gtest/gtest.h>

#include "cases.h"
#include "model/frame.h"
#include "model/proposal.h"
#include "recording_surface.h"

using namespace quillane;
using namespace quillane::test;

namespace {

Printout DrawnOf(const Control& control, DrawMode mode, const Page& owner) {
  Printout document;
  RecordingSurface surface(document);
  DrawControl(surface, owner, control, mode);
  return document;
}

TEST(Draw, StandsAmountsAtTheRightEdgeOnPaperAndLeftOnTheScreen) {
  ResetState();
  const Cases<const char*, bool> cases = {
      {"frmP1.txt(0)", false},    {"frmP1.txt(1)", true},  {"frmP1.txt(27)", false},
      {"frmP1.txt(28)", true},    {"frmP1.txt(35)", true}, {"frmP2.txt(34)", false},
      {"frmP2.txt(35)", true},    {"frmP5.txt(69)", true}, {"frmP2.txtAmt(3)", false},
      {"frmP2.txtQty(3)", false}, {"frmP6.txt(0)", true},  {"frmP6_1.txt(5)", true}};
  for (const auto& [name, right] : cases) {
    Control& box = *FindPageControl(name);
    box.SetShown(true);
    box.SetText(QStringLiteral("12.00"));
    const Printout paper = DrawnOf(box, DrawMode::Printing, *PageOf(box));
    const Printout screen = DrawnOf(box, DrawMode::Editing, *PageOf(box));
    ASSERT_EQ(paper.drawn.size(), 1U);
    EXPECT_EQ(paper.drawn[0].top, box.Top());
    EXPECT_FLOAT_EQ(right ? paper.drawn[0].right : paper.drawn[0].left,
                    right ? box.Left() + box.Width() : box.Left())
        << name;
    ASSERT_TRUE(screen.Find(QStringLiteral("12.00")));
    EXPECT_EQ(screen.Find(QStringLiteral("12.00"))->left, box.Left());
    EXPECT_EQ(screen.Find(QStringLiteral("fill"))->color, box.BackColor());
  }
}

TEST(Draw, PrintsWhatIsMerelyInvisibleAndNothingThatIsHidden) {
  ResetState();
  Control& label = page(1).lbl[0];
  label.SetCaption(QStringLiteral("Heading"));
  label.SetVisible(false);
  EXPECT_TRUE(DrawnOf(label, DrawMode::Printing, page(1)).Find(QStringLiteral("Heading")));
  EXPECT_TRUE(DrawnOf(label, DrawMode::Editing, page(1)).drawn.empty());
  label.SetTag(QStringLiteral("Hide"));
  label.SetVisible(true);
  EXPECT_TRUE(DrawnOf(label, DrawMode::Printing, page(1)).drawn.empty());
}

TEST(Draw, GivesPaperTheRestingLook) {
  ResetState();
  proposal.UDP.FontColor = 0x804020;
  Control& area = page(1).txt[3];
  area.SetText(QStringLiteral("Lilies"));
  area.SetFont({QStringLiteral("Arial"), 10, true, true, true});
  area.SetBackColor(colors::Blue);
  area.SetForeColor(colors::White);
  const Printout paper = DrawnOf(area, DrawMode::Printing, page(1));
  ASSERT_EQ(paper.drawn.size(), 1U);
  EXPECT_EQ(paper.drawn[0].color, 0x804020);
  EXPECT_EQ(paper.drawn[0].font, (Font{QStringLiteral("Arial"), 10, true, false, false}));
  EXPECT_TRUE(DrawnOf(area, DrawMode::Editing, page(1)).Find(QStringLiteral("Lilies"))->font.italic);
  area.SetBackColor(colors::Cyan);
  area.SetForeColor(0x123456);
  EXPECT_EQ(DrawnOf(area, DrawMode::Printing, page(1)).drawn[0].color, 0x123456);
}

TEST(Draw, UnderlinesMainCategoriesOnly) {
  const Cases<bool, bool, float, bool> cases = {{true, true, 9000, true},
                                                {false, true, 9000, false},
                                                {true, false, 9000, false},
                                                {true, true, 6630, false}};
  ResetState();
  Control& area = page(1).txt[3];
  area.SetText(QStringLiteral("CEREMONY"));
  for (const auto& [option, bold, width, underlined] : cases) {
    editing.UnderlineMainCategories = option;
    area.SetFontBold(bold);
    area.SetWidth(width);
    const Printout paper = DrawnOf(area, DrawMode::Printing, page(1));
    const Drawn* line = paper.Find(QStringLiteral("line"));
    ASSERT_EQ(line != nullptr, underlined);
    if (!line) continue;
    EXPECT_EQ(line->left, 720);
    EXPECT_EQ(line->right, 11520);
    EXPECT_EQ(line->top, area.Top() + area.Height());
    EXPECT_FALSE(DrawnOf(area, DrawMode::Editing, page(1)).Find(QStringLiteral("line")));
  }
}

TEST(Draw, LeavesTheLogoWhereItStandsWhateverTheOffsets) {
  ResetState();
  Control& logo = page(0).pic[0];
  logo.SetShown(true);
  logo.SetLeft(720);
  logo.SetTop(540);
  logo.SetPicture({QStringLiteral("logo.jpg"), 3000, 1500});
  Printout document;
  RecordingSurface surface(document);
  surface.SetOrigin(360, -180);
  DrawControl(surface, page(0), logo, DrawMode::Printing);
  ASSERT_EQ(document.drawn.size(), 1U);
  EXPECT_EQ(document.drawn[0].left, 720);
  EXPECT_EQ(document.drawn[0].top, 540);
  EXPECT_EQ(document.drawn[0].right, 3720);
  frame().AddMenu("mnuEditLogoBorder", {}).SetChecked(true);
  EXPECT_GT(DrawnOf(logo, DrawMode::Editing, page(0)).drawn.size(), 1U) << "the border of the screen";
  EXPECT_EQ(DrawnOf(logo, DrawMode::Printing, page(0)).drawn.size(), 1U);
  CheckMenu("mnuEditLogoBorder", false);
  EXPECT_EQ(DrawnOf(logo, DrawMode::Editing, page(0)).drawn.size(), 1U);
}

}  // namespace
