#include "editing/label_props.h"

#include "pages/labels.h"
#include "proposal_fixture.h"

using namespace quillane;
using namespace quillane::test;

namespace {

constexpr Color Red = 0x0000FF;

class LabelProps : public test::ProposalTest {
 protected:
  /// The dialog on one label, or on all that are marked.
  static void Begin(int window, int label) {
    editing.CurrentPage = page(window).pageIndex;
    labelEdit.CurrentLabel = label;
    labelEdit.LabelCount = page(window).LastLabel();
    labelEdit.MultipleLabelsSelected = MarkedLabels(page(window)) > 1;
    LoadCurrentLabel();
    LoadLabelProps();
  }
  static void ChangeEverything() {
    SetLabelCaption("Vows");
    SetLabelBold(true);
    SetLabelItalic(true);
    SetLabelUnderline(true);
    SetLabelFontName("Courier");
    SetLabelFontSize(16);
    SetLabelColor(Red);
  }
  static std::vector<LabelValues> LabelsOf(int window) {
    std::vector<LabelValues> values;
    for (const Control& label : page(window).lbl) values.push_back(ValuesOf(label));
    return values;
  }
  static LabelMark Stored(int page, int label) { return proposal.LabelMarks[page][label]; }
  static FormatLabelRecord InFormat(int page, int label) { return format.FormatLabelRec[page][label]; }
};

TEST_F(LabelProps, ActOnTheLabelAtOnceAndAreStoredAtTheEnd) {
  Control& label = At("frmP1.lbl(11)");
  Mark(label);
  Begin(0, 11);
  EXPECT_EQ(LabelSizeLine(), "Label Font Size = 9.75");
  ChangeEverything();
  EXPECT_EQ(label.Caption(), "Vows");
  EXPECT_EQ(label.GetFont(), (Font{"Courier", 16, true, true, true}));
  EXPECT_EQ(label.ForeColor(), Red);
  EXPECT_EQ(LabelFontLine(), "Font = Courier");
  EXPECT_EQ(LabelSizeLine(), "Label Font Size = 16");
  EXPECT_FALSE(Stored(0, 11).Changed);
  UnloadLabelProps();
  EXPECT_TRUE(Stored(0, 11).Changed && InFormat(0, 11).Changed);
  EXPECT_TRUE(PropertiesHaveChanged());
  EXPECT_FALSE(IsMarked(label) || labelEdit.SizeChanged || labelEdit.LabelColorMode);
}

TEST_F(LabelProps, GiveEverythingBackWhenCancelled) {
  for (const bool several : {false, true}) {
    for (const char* name : {"frmP6.lbl(20)", "frmP6.lbl(21)"})
      if (several) Mark(At(name));
    const auto before = LabelsOf(5), copy = LabelsOf(CopyOfPage6);
    Begin(5, 20);
    ChangeEverything();
    EXPECT_FALSE(LabelsOf(5) == before);
    labelEdit.LabelDialogCancelled = true;
    UnloadLabelProps();
    EXPECT_TRUE(LabelsOf(5) == before) << several;
    EXPECT_TRUE(LabelsOf(CopyOfPage6) == copy) << several;
    EXPECT_FALSE(Stored(5, 20).Changed || InFormat(5, 20).Changed || PropertiesHaveChanged());
    EXPECT_FALSE(labelEdit.LabelDialogCancelled || labelEdit.PropChanged);
    EXPECT_EQ(MarkedLabels(page(5)), 0);
  }
}

TEST_F(LabelProps, ReachASelectionButForItsCurrencySignsAndCaptions) {
  for (const char* name : {"frmP2.lbl(0)", "frmP2.lbl(3)", "frmP2.lbl(37)"}) Mark(At(name));
  const QString heading = At("frmP2.lbl(0)").Caption();
  Begin(1, 0);
  ChangeEverything();
  EXPECT_TRUE(At("frmP2.lbl(37)").GetFont().bold);
  EXPECT_EQ(At("frmP2.lbl(37)").ForeColor(), Red);
  EXPECT_EQ(At("frmP2.lbl(3)").ForeColor(), 0) << "a currency sign";
  EXPECT_EQ(At("frmP2.lbl(0)").Caption(), heading);
  UnloadLabelProps();
  EXPECT_TRUE(Stored(1, 0).Changed && Stored(1, 37).Changed && InFormat(1, 37).Changed);
  EXPECT_FALSE(Stored(1, 3).Changed || Stored(1, 36).Changed);
}

TEST_F(LabelProps, StoreNothingThatWasOnlyLookedAt) {
  Begin(0, 11);
  UnloadLabelProps();
  Mark(At("frmP1.lbl(11)"));
  Mark(At("frmP1.lbl(12)"));
  Begin(0, 11);
  UnloadLabelProps();
  EXPECT_FALSE(PropertiesHaveChanged());
}

TEST_F(LabelProps, MakeATitleOfAnyPagesTitle) {
  for (const auto& [window, label, caption] :
       Cases<int, int, QString>{{0, 45, "Carter and Okafor"}, {5, 64, "The Carter Wedding - Our Copy"}}) {
    Begin(window, label);
    SetLabelCaption(caption);
    SetLabelFontSize(20);
    UnloadLabelProps();
    const QString title = QString(caption).remove(" - Our Copy");
    EXPECT_EQ(At("frmP1.lbl(45)").Caption(), title);
    EXPECT_EQ(At("frmP6_1.lbl(64)").Caption(), title + " - Client's Copy");
    const Control& changed = page(window).lbl[label];
    EXPECT_EQ(changed.Caption(), caption);
    EXPECT_NEAR(changed.Left() + changed.Width() / 2, sheet::Centre, 1);
    EXPECT_TRUE(Stored(window, label).Changed);
    EXPECT_TRUE(proposal.TitleByHand);
  }
}

TEST_F(LabelProps, KnowTheCaptionsThatTheProgramWrites) {
  struct Case {
    int window, label;
    CaptionWords words;
  };
  for (const Case& c : {Case{0, 0, CaptionWords::Own}, Case{0, 43, CaptionWords::PageNumber},
                        Case{2, 0, CaptionWords::SubTitle}, Case{2, 36, CaptionWords::PageNumber},
                        Case{2, 37, CaptionWords::Own}, Case{5, 0, CaptionWords::SubTitle},
                        Case{5, 62, CaptionWords::Own}, Case{5, 63, CaptionWords::PageNumber}}) {
    Begin(c.window, c.label);
    EXPECT_EQ(WordsOfCaption(), c.words) << c.window << " " << c.label;
  }
}

}  // namespace
