// Titles, page numbers and the count of pages in use.
#include "pages/titles.h"

#include <gtest/gtest.h>

#include "fake_desk.h"
#include "model/frame.h"
#include "model/page.h"
#include "model/proposal.h"
#include "pages/defaults.h"

using namespace quillane;

namespace {

class TitlesOfPages : public testing::Test {
 protected:
  void SetUp() override {
    ResetState();
    proposal.SubTitleText = "Alder Events - ";
    ShowDefaultPages();
  }
  static float CentreOf(const Control& label) { return label.Left() + label.Width() / 2; }
  test::FakeDesk desk_;
};

TEST_F(TitlesOfPages, CountThePagesInUse) {
  struct Case {
    int window, area, highest;
  };
  FindHighestPage();
  EXPECT_EQ(proposal.HighestPage, 6) << "no text: the count stays";
  for (const Case& c : {Case{0, 2, 2}, Case{1, 0, 3}, Case{2, 69, 4}, Case{3, 34, 5}, Case{4, 12, 6}}) {
    page(c.window).txt[c.area].SetText("x");
    FindHighestPage();
    EXPECT_EQ(proposal.HighestPage, c.highest);
  }
  page(4).txt[12].SetText("  ");
  FindHighestPage();
  EXPECT_EQ(proposal.HighestPage, 5) << "blanks are no text";
}

TEST_F(TitlesOfPages, NumberThePagesByThoseInUse) {
  for (int highest = 2; highest <= 6; ++highest) {
    proposal.HighestPage = highest;
    UpdatePageNumbers();
    const QString of = QString(" of %1").arg(highest), last = QString("Page %1").arg(highest);
    for (int window = 0; window < PageCount; ++window) {
      const QString number = window < 5 ? QString("Page %1").arg(window + 1) : last;
      EXPECT_EQ(page(window).lbl[shape::PageNumberLabel(page(window).pageIndex)].Caption(), number + of);
      if (window == 0) continue;
      EXPECT_EQ(page(window).lbl[0].Caption(), "Alder Events - " + number);
      EXPECT_FLOAT_EQ(CentreOf(page(window).lbl[0]), 6120);
    }
    EXPECT_EQ(frame()["lblHighestPage"].Caption(), QString("Utilizing %1 of 6 Available Pages").arg(highest));
  }
  EXPECT_FALSE(proposal.LabelMarks[1][0].Changed);
}

TEST_F(TitlesOfPages, WriteTheTitleEverywhere) {
  proposal.Title = "Proposal for Emily Carter";
  proposal.EventFileName = "Emily Carter.wwf";
  UpdateEventNameLabels();
  for (int window = 0; window < PageCount; ++window) {
    const Control& label = page(window).lbl.back();
    const char* copy = window == 5 ? " - Our Copy" : window == 6 ? " - Client's Copy" : "";
    EXPECT_EQ(label.Caption(), proposal.Title + copy);
    EXPECT_FLOAT_EQ(CentreOf(label), 6120);
  }
  EXPECT_EQ(frame()["lblEvent"].Caption(), "Title: Proposal for Emily Carter");
  EXPECT_EQ(frame().form.caption, "Quillane: File Name = Emily Carter.wwf");
  EXPECT_FALSE(proposal.LabelMarks[0][45].Changed);
  format.FormatIsOpen = true;
  format.FormatName = "Spring.wft";
  UpdateEventNameLabels();
  EXPECT_EQ(frame().form.caption, "Quillane: Format File = Spring.wft / File Name = Emily Carter.wwf");
}

TEST_F(TitlesOfPages, StoreATitleMadeByHandOnce) {
  proposal.Title = "The Carter Wedding";
  proposal.TitleByHand = true;
  UpdateEventNameLabels();
  LabelMark& record = proposal.LabelMarks[0][45];
  EXPECT_TRUE(record.Changed);
  EXPECT_FALSE(record.Written);
  record.Written = true;
  UpdateEventNameLabels();
  EXPECT_TRUE(record.Written) << "refreshing it is no change";
  proposal.Title = "Carter and Okafor";
  UpdateEventNameLabels();
  EXPECT_FALSE(record.Written);
}

TEST_F(TitlesOfPages, LeaveALabelThatWasMovedWhereItIs) {
  UpdateEventNameLabels();
  Control& moved = page(2).lbl[38];
  moved.SetLeft(700);
  proposal.LabelMarks[2][38].Changed = true;
  proposal.Title = "Proposal for Emily Carter";
  UpdateEventNameLabels();
  EXPECT_EQ(moved.Left(), 700);
  EXPECT_EQ(moved.Caption(), "Proposal for Emily Carter");
}

TEST_F(TitlesOfPages, AreMadeByHandOrFollowTheName) {
  const QString noName = "Proposal for (Client's Name)";
  struct Case {
    QString name, typed, title;
    bool byHand;
  };
  const Case cases[] = {
      {"", noName, noName, false},
      {"", "", noName, false},
      {"Emily Carter", "", "Proposal for Emily Carter", false},
      {"Emily Carter", "  ", "Proposal for Emily Carter", false},
      {"Emily Carter", "Proposal for Emily Carter", "Proposal for Emily Carter", false},
      {"Emily Carter", QString::fromUtf8("The \u0141\u00F3d\u017A Wedding"),
       QString::fromUtf8("The L\u00F3dz Wedding"), true},
      {"", "The Carter Wedding", "The Carter Wedding", true},
  };
  for (const Case& c : cases) {
    proposal.BaseName = c.name;
    SaveTitles({c.typed, "Alder - "});
    EXPECT_EQ(TitlesToEdit().title, c.title);
    EXPECT_EQ(proposal.TitleByHand, c.byHand) << qPrintable(c.typed);
    EXPECT_EQ(page(2).lbl[0].Caption(), "Alder - Page 3");
  }
}

}  // namespace
