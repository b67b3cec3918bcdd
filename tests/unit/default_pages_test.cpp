// The factory state of the pages, as a person would check it against a printed specimen.
#include <gtest/gtest.h>

#include <algorithm>

#include "cases.h"
#include "fake_desk.h"
#include "model/frame.h"
#include "model/page.h"
#include "model/proposal.h"
#include "pages/defaults.h"
#include "pages/fonts.h"
#include "platform/runtime_error.h"

using namespace quillane;
using namespace quillane::test;

namespace {

class DefaultPages : public testing::Test {
 protected:
  void SetUp() override {
    ResetState();
    prefs.CompanyName = "Alder Events";
    prefs.CompanyAddress1 = "12 Alder Street";
    prefs.CompanyCity = "Bend, OR 97701";
    prefs.CompanyPhone = "(541) 555-0100";
    prefs.CompanyFax = "(541) 555-0101";
    prefs.PageTitle = "Event Proposal";
    prefs.CurrencySymbol = "$";
    proposal.SubTitleText = "Alder Events - Event Proposal - ";
    SetUpPages();
    Show();
  }
  static void Show() {
    const Scoped rebuilding(editing.RebuildingPages, true);
    ShowDefaultPages();
  }
  test::FakeDesk desk_;
};

/// "left,top size b|caption" of a label in the letterhead's face; b when it is bold.
QString LabelAt(const char* name) {
  const Control& label = *FindPageControl(name);
  const Font& font = label.GetFont();
  EXPECT_EQ(font, (Font{"Times New Roman", font.size, font.bold, true, false})) << name;
  EXPECT_TRUE(label.Visible()) << name;
  return QString("%1,%2 %3%4|").arg(label.Left()).arg(label.Top()).arg(font.size).arg(font.bold ? " b" : "") +
         label.Caption();
}

void ExpectLabels(const Cases<const char*, QString>& cases) {
  for (const auto& [name, expected] : cases) EXPECT_EQ(LabelAt(name), expected) << name;
}

TEST_F(DefaultPages, PutTellingLabelsWhereTheyBelong) {
  ExpectLabels(
      {{"frmP1.lbl(0)", "3420,720 12 b|Alder Events"},
       {"frmP1.lbl(2)", "3420,1260 9.75|"},
       {"frmP1.lbl(11)", "720,3060 9.75 b|Wedding Date"},
       {"frmP1.lbl(26)", "6300,7560 9.75|Email Address:"},
       {"frmP1.lbl(42)", "10080,14175 9.75 b|$"},
       {"frmP1.lbl(45)", "4860,15030 9.75 b|Proposal for (Client's Name)"},
       {"frmP3.lbl(0)", "3130,540 14|Alder Events - Event Proposal - Page 3"},
       {"frmP3.lbl(35)", "9900,14040 9.75 b|$"},
       {"frmP6.lbl(8)", "7560,1800 9.75 b|Deposit Received"},
       {"frmP6.lbl(47)",
        "720,12060 9.75| Contract Language Line 35 - Edit this Label by right-clicking or by opening the "
        "Contract Language Editor under Manage."},
       {"frmP6.lbl(51)", "720,14130 9.75|Representative for Alder Events"},
       {"frmP6.lbl(60)", "8010,13590 9.75|Bend, OR 97701"},
       {"frmP6_1.lbl(64)", "5310,15030 9.75 b|Proposal for (Client's Name) - Client's Copy"}});
}

TEST_F(DefaultPages, EndTheContinuationAtTheAmountsRightEdge) {
  for (int window = 0; window < 5; ++window) {
    Page& p = page(window);
    const Control& label = p.lbl[p.lbl.size() - 2];
    EXPECT_EQ(label.Caption(), QString("Continued on Page %1").arg(window + 2));
    EXPECT_FLOAT_EQ(label.Left() + label.Width(), p.txt.back().Left() + p.txt.back().Width());
    EXPECT_FLOAT_EQ(label.Top(), 15030);
  }
}

TEST_F(DefaultPages, MakeRoomForASecondAddressLine) {
  prefs.CompanyAddress2 = "Suite 4";
  Show();
  ExpectLabels({{"frmP1.lbl(2)", "3420,1260 9.75|Suite 4"},
                {"frmP6_1.lbl(60)", "8010,13860 9.75|Bend, OR 97701"},
                {"frmP6.lbl(62)", "8010,14400 9.75|(541) 555-0101"}});
}

TEST_F(DefaultPages, ChangeToTheAlternativeLayout) {
  prefs.SnfSettings = true;
  Show();
  ExpectLabels({{"frmP1.lbl(0)", "1080,1080 9.75 b|"},
                {"frmP6.lbl(13)",
                 "720,2880 9.75|All creative ideas in this proposal are the sole property of Alder Events"},
                {"frmP6.lbl(43)", "720,10980 9.75|"}});
  EXPECT_EQ(DefaultContractLines().size(), 35);
}

TEST_F(DefaultPages, ShowOnlyWhatIsNotHidden) {
  Page& first = page(0);
  first.lbl[40].SetShown(false);
  first.lbl[41].SetVisible(false);
  first.txt[7].SetVisible(false);
  prefs.LogoVisible = true;
  ShowPageControls(first);
  EXPECT_FALSE(first.lbl[40].Visible());
  EXPECT_TRUE(first.lbl[41].Visible());
  EXPECT_TRUE(first.txt[7].Visible());
  EXPECT_FALSE(first.pic[0].Visible()) << "there is no picture yet";
  first.pic[0].SetPicture({"events.jpg", 900, 600});
  ShowPageControls(first);
  EXPECT_TRUE(first.pic[0].Visible());
  prefs.LogoVisible = false;
  ShowPageControls(first);
  EXPECT_TRUE(first.pic[0].Hidden());
  page(5).lbl[4].SetVisible(false);
  ShowPageControls(page(5));
  EXPECT_TRUE(page(5).lbl[4].Visible());
}

TEST_F(DefaultPages, RuleBlocksFiguresAndContract) {
  Page& first = page(0);
  QList<int> shown;
  for (const Control& line : first.lne)
    if (line.Visible() && !line.Hidden()) shown.append(line.Index());
  EXPECT_EQ(shown, (QList<int>{0, 2, 5, 7, 10, 12, 15, 17}));
  // A block's two rules stand between its heading and its fields, and between its fields and the next
  // heading.
  constexpr int Blocks[][4] = {{13, 2, 4, 20}, {20, 8, 10, 27}, {27, 14, 14, 30}, {30, 16, 18, 35}};
  for (int block = 0; block < 4; ++block) {
    const auto at = [](const Array<Control>& array, int i) { return array[i]; };
    const float under = at(first.lne, block * 5).Top(), closing = at(first.lne, block * 5 + 2).Top();
    const auto& [heading, firstField, lastField, next] = Blocks[block];
    EXPECT_GT(under, at(first.lbl, heading).Top() + at(first.lbl, heading).Height());
    EXPECT_LT(under, at(first.txt, firstField).Top());
    EXPECT_GT(closing, at(first.txt, lastField).Top() + 255);
    EXPECT_LT(closing, at(first.lbl, next).Top());
  }
  // No rule of the totals page runs through a label or a figure.
  for (int window : {5, 6})
    for (const Control& line : page(window).lne) {
      SCOPED_TRACE(line.FullName().toStdString());
      EXPECT_TRUE(line.Visible());
      EXPECT_GT(line.Width() + line.Height(), 0);
      for (const Control* control : page(window).Controls()) {
        if (control->Array() != "lbl" && control->Array() != "txt") continue;
        if (line.Width() == 0) continue;
        const bool across =
            line.Left() < control->Left() + control->Width() && control->Left() < line.Left() + line.Width();
        const bool through = line.Top() > control->Top() && line.Top() < control->Top() + control->Height();
        EXPECT_FALSE(across && through) << control->FullName().toStdString();
      }
    }
}

TEST_F(DefaultPages, ReportColumnsThatFail) {
  page(3).form.textChanged = [](Control&) { Raise(errors::Subscript); };
  LoadColumns(page(3));
  EXPECT_EQ(desk_.LastSaid(), "Error in loading columns on Page 4.");
  EXPECT_FALSE(page(3).ColumnsLoaded);
  EXPECT_FALSE(editing.RebuildingPages);
}

}  // namespace
