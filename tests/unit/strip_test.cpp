// The strip above the sheet: the latest notice is in front, and what it hides comes back.
#include "model/strip.h"

#include <gtest/gtest.h>

#include "model/frame.h"
#include "model/proposal.h"

using namespace quillane;

namespace {

QString Shown() {
  QString shown = frame()["lblStrip"].Visible() ? frame()["lblStrip"].Caption() : QStringLiteral("-");
  for (int k = 0; k < 3; ++k) {
    const Control& button = frame()[QStringLiteral("cmdStrip(%1)").arg(k)];
    if (button.Visible()) shown += u'|' + button.Caption();
  }
  return shown;
}

TEST(Strip, ShowsTheLatestMatterAndThenTheOnesBehindIt) {
  ResetState();
  EXPECT_EQ(Shown(), "-");
  int pressed = 0;
  ShowNotice({"file", "Read half.", {{"Replace It", [&] { pressed += 1; }}}, Matter::OfProposal});
  ShowNotice({"crash", "Bring it back?", {{"Yes", {}}, {"No", [&] { pressed += 10; }}}, Matter::OfProgram});
  EXPECT_EQ(Shown(), "Bring it back?|Yes|No");
  ShowNotice({"file", "Read less.", {{"Replace It", [&] { pressed += 100; }}}, Matter::OfProposal});
  EXPECT_EQ(Shown(), "Read less.|Replace It");
  PressStripButton(2);
  EXPECT_EQ(Shown(), "Read less.|Replace It") << "it has no third button";
  PressStripButton(0);
  EXPECT_EQ(pressed, 100);
  EXPECT_EQ(Shown(), "Bring it back?|Yes|No");
  ShowNotice({"file", "Read half.", {}, Matter::OfProposal});
  EndProposalNotices();
  EXPECT_EQ(Shown(), "Bring it back?|Yes|No") << "the program's own matters outlive a proposal";
  EXPECT_FALSE(NoticeStands("file"));
  EndNotice("crash");
  EXPECT_EQ(Shown(), "-");
}

}  // namespace
