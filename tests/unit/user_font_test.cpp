#include "editing/user_font.h"

#include "proposal_fixture.h"

using namespace quillane;

namespace {

class UserFontTest : public test::ProposalTest {};

TEST_F(UserFontTest, ReachesEveryAreaAndLeavesBoldAndBlueAlone) {
  At("frmP2.txt(3)").SetFontBold(true);
  At("frmP3.txt(4)").SetBackColor(colors::Blue);
  At("frmP3.txt(4)").SetForeColor(colors::White);
  proposal.UDP = {"No Such Font", 8, 0x0000FF, true};
  ApplyUserFont();
  for (const char* name : {"frmP1.txt(0)", "frmP5.txt(69)", "frmP2.txtQty(3)", "frmP1.txtAmt(27)",
                           "frmP4.lblAt(0)", "frmP5.lblEach(34)"}) {
    EXPECT_EQ(At(name).GetFont(), (Font{"No Such Font", 8, false, true, false})) << name;
    EXPECT_EQ(At(name).ForeColor(), 0x0000FF) << name;
  }
  EXPECT_TRUE(At("frmP2.txt(3)").GetFont().bold);
  EXPECT_EQ(At("frmP3.txt(4)").ForeColor(), colors::White);
  EXPECT_FALSE(editing.ApplyingFonts);
  EXPECT_TRUE(PropertiesHaveChanged()) << "the font belongs to the property file";
  EXPECT_TRUE(PropertyLinesOf(ReadPages())
                  .contains("UDP.FontName=No Such Font .FontSize=8 .FontColor=255 .FontItalic=True"));
}

TEST_F(UserFontTest, ShowsAtOnceWhatHasBecomeTooWide) {
  Control& area = At("frmP4.txt(3)");
  area.SetText(QString(100, 'm'));
  for (const auto& [size, colour] : {std::pair{6.0F, colors::Grey}, std::pair{24.0F, colors::Red}}) {
    proposal.UDP.FontSize = size;
    GiveUserFontToPages();
    EXPECT_EQ(area.BackColor(), colour) << size;
  }
}

}  // namespace
