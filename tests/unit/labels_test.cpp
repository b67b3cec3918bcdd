// Labels in a person's hands: marks, steps of a drag, what is stored, what a selection takes.
#include "pages/labels.h"

#include "editing/navigation.h"
#include "platform/runtime_error.h"
#include "unit/proposal_fixture.h"

using namespace quillane;
using namespace quillane::test;

namespace {

class Labels : public ProposalTest {
 protected:
  static Control& Label(int window, int index) { return page(window).lbl[index]; }
  static LabelMark& Stored(int p, int n) { return proposal.LabelMarks[p][n]; }

  /// Presses inside the label, moves the pointer there by there, as the viewer tells it, and lets go.
  static void Drag(Control& label, float dx, float dy) {
    const float x = label.Left() + 20 + dx, y = label.Top() + 30 + dy;
    lbl_MouseDown(label, MouseButton::Left, 20, 30);
    while (lbl_MouseMove(label, x - label.Left(), y - label.Top()) == DragStep::Moved) {
    }
    lbl_MouseUp(label);
  }
};

TEST_F(Labels, ADragGoesInWholeSteps) {
  struct Case {
    const char* what;
    float snap, dx, dy, movedX, movedY;
  };
  const Case cases[] = {
      {"less than a step", 180, 179, -179, 0, 0},
      {"one step each way", 180, 180, -180, 180, -180},
      {"a hand that went on between two steps", 360, -1000, 725, -720, 720},
      {"without a snap", 0, 37, -11, 37, -11},
      {"with a negative one", -180, 1, 500, 1, 500},
  };
  for (const Case& test : cases) {
    SCOPED_TRACE(test.what);
    Control& label = Label(1, 0);
    const float left = label.Left(), top = label.Top();
    layoutAids.SnapValue = test.snap;
    Drag(label, test.dx, test.dy);
    EXPECT_EQ(label.Left() - left, test.movedX);
    EXPECT_EQ(label.Top() - top, test.movedY);
  }
}

TEST_F(Labels, OneMoveOfThePointerIsOneStep) {
  Control& label = Label(0, 3);
  const float left = label.Left();
  EXPECT_EQ(lbl_MouseMove(label, 500, 0), DragStep::Rests) << "nothing holds it";
  lbl_MouseDown(label, MouseButton::Left, 0, 0);
  lbl_MouseMove(label, 1000, 0);
  EXPECT_EQ(label.Left(), left + 180);
  lbl_MouseUp(label);
  lbl_MouseDown(label, MouseButton::Right, 0, 0);
  EXPECT_EQ(lbl_MouseMove(label, 1000, 0), DragStep::Rests) << "the right button opens the menu";
}

TEST_F(Labels, OnlyALabelThatMovedIsStored) {
  Control& label = Label(0, 9);
  label.SetLeft(label.Left() + 5);  // its record knows another place; what counts is where it was pressed
  Drag(label, 100, 0);
  EXPECT_FALSE(Stored(0, 9).Changed);
  EXPECT_TRUE(label.ToolTip().startsWith("Left = "));

  label.SetLeft(7200);
  label.SetTop(900);
  label.SetFontUnderline(true);
  Drag(label, 360, 180);
  EXPECT_EQ(label.ToolTip(), "Left = 5.25, Top = 0.75");
  EXPECT_TRUE(Stored(0, 9).Changed && format.FormatLabelRec[0][9].Changed);
  EXPECT_TRUE(PropertyLinesOf(ReadPages()).join('\n').contains("frmP1.lbl(9).Left=7560"));
}

TEST_F(Labels, TheCopyFollowsPage6WhenTheLabelIsLetGo) {
  Control& label = Label(5, 20);
  Control& copy = Label(6, 20);
  label.SetFont({"Arial", 12, true, false, true});
  const float left = copy.Left();
  lbl_MouseDown(label, MouseButton::Left, 0, 0);
  lbl_MouseMove(label, 180, 0);
  EXPECT_EQ(copy.Left(), left);
  lbl_MouseUp(label);
  EXPECT_EQ(copy.Left(), left + 180);
  EXPECT_EQ(copy.GetFont(), (Font{"Arial", 12, true, true, false})) << "slant and underline stay";
  EXPECT_EQ(PointerOver(copy), MousePointer::Default) << "it is a view";
  EXPECT_EQ(PointerOver(label), MousePointer::Moves);
}

TEST_F(Labels, ADoubleClickMarksAndUnmarks) {
  Control& label = Label(2, 0);
  label.SetForeColor(colors::Red);
  lbl_DblClick(label);
  EXPECT_TRUE(IsMarked(label));
  EXPECT_EQ(proposal.LabelBackup[2][0], ValuesOf(label));
  label.SetForeColor(colors::Blue);
  lbl_DblClick(label);
  EXPECT_FALSE(IsMarked(label));
  EXPECT_EQ(label.ForeColor(), colors::Red);
  EXPECT_EQ(label.BackColor(), colors::ButtonFace);

  lbl_DblClick(label);
  StartNewFile();
  EXPECT_FALSE(IsMarked(label)) << "a mark belongs to the proposal that it was made on";
}

TEST_F(Labels, TheLinkLeadsToTheNextPage) {
  for (int window = 0; window < PageCount; ++window) {
    for (const Control& label : page(window).lbl) {
      SCOPED_TRACE(label.FullName().toStdString());
      UpdatePageButtons(0);
      lbl_Click(Label(window, label.Index()));
      const bool link = window >= 1 && window <= 4 && label.Index() == 37;
      ASSERT_EQ(editing.FrontWindow(), link ? window + 1 : 0);
      ASSERT_EQ(PointerOver(label) == MousePointer::Link, link);
    }
  }
}

TEST_F(Labels, SelectAllMarksAllButTheCurrencySigns) {
  for (const auto& [window, signs] : Cases<int, int>{{0, 8}, {1, 35}, {5, 6}}) {
    Page& front = page(window);
    editing.CurrentPage = window;
    SelectAllLabels();
    EXPECT_EQ(MarkedLabels(front), static_cast<int>(front.lbl.size()) - signs);
    for (const Control& label : front.lbl)
      EXPECT_NE(IsMarked(label), label.Caption() == prefs.CurrencySymbol) << label.FullName().toStdString();
    EXPECT_TRUE(labelEdit.MultipleLabelsSelected);
    EXPECT_EQ(desk_.shown, QStringList{"frmLabelProps"});
    desk_.shown.clear();
    DeselectAllLabels();
    EXPECT_EQ(MarkedLabels(front), 0);
  }
}

TEST_F(Labels, ASelectionShowsWhatItsLabelsHaveInCommon) {
  for (Control& label : page(0).lbl) label.SetFont({"Arial", 9, true, false, true});
  for (Control& label : page(0).lbl) label.SetForeColor(colors::Red);
  Label(0, 35).SetFontName("Courier");  // a currency sign is left out
  Label(0, 44).SetFontSize(20);
  SelectAllLabels();
  const LabelValues& common = labelEdit.CurrentLabelRec;
  EXPECT_EQ(common.FontName, "Arial");
  EXPECT_EQ(common.FontSize, 0);
  EXPECT_TRUE(common.FontBold && common.FontUnderline);
  EXPECT_EQ(common.ForeColor, colors::Red);
  desk_.shown.clear();
  Label(0, 44).SetForeColor(colors::Blue);
  SelectAllLabels();
  EXPECT_EQ(labelEdit.CurrentLabelRec.ForeColor, NoCommonColour) << "black is a colour";
}

TEST_F(Labels, ThePropertiesAreThoseOfTheLabelLastPressedOnThisPage) {
  editing.CurrentPage = 5;
  lbl_MouseDown(Label(5, 60), MouseButton::Right, 0, 0);
  Label(5, 60).SetCaption("Changed since");
  EditLabelProps();
  EXPECT_EQ(labelEdit.CurrentLabelRec.Caption, "Changed since");
  EXPECT_FALSE(labelEdit.MultipleLabelsSelected);
  EditLabelProps();
  EXPECT_EQ(desk_.shown.size(), 1) << "the window is there already";

  desk_.shown.clear();
  editing.CurrentPage = 1;  // which has no label 60
  EditLabelProps();
  EXPECT_EQ(labelEdit.CurrentLabel, 0);
  EXPECT_EQ(labelEdit.CurrentLabelRec.Caption, Label(1, 0).Caption());
}

TEST_F(Labels, AnIndexBeyondTheTablesIsRefused) {
  EXPECT_THROW(StoreLabel(page(5), 65), RuntimeError);
  EXPECT_THROW(StoreLabel(page(0), -1), RuntimeError);
  labelEdit.CurrentLabel = 46;
  EXPECT_THROW(LoadCurrentLabel(), RuntimeError);
}

TEST_F(Labels, TheLogoIsDraggedAsLabelsAre) {
  Control& logo = page(0).pic[0];
  logo.SetLeft(1000);
  logo.SetTop(500);
  pic_MouseDown(logo, MouseButton::Left, 50, 50);
  pic_MouseMove(logo, 50 + 200, 50 - 100);
  pic_MouseUp(logo);
  EXPECT_EQ(logo.Left(), 1180);
  EXPECT_EQ(logo.Top(), 500);
}

}  // namespace
