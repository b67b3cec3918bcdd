// What a script means before any window stands: its words, its boxes, its values.
#include <gtest/gtest.h>

#include "boxes.h"
#include "script.h"
#include "values.h"

namespace quillane::scenario {
namespace {

QStringList Texts(const QByteArray& line) {
  QStringList texts;
  for (const Statement& statement : ParseScript(line))
    for (const Word& word : statement.words) texts.append((word.quoted ? "'" : "") + word.text);
  return texts;
}

TEST(Script, TakesLinesApart) {
  const struct {
    const char* line;
    QStringList words;
  } cases[] = {
      {"start", {"start"}},
      {"  # only a comment", {}},
      {"key Shift+Down 3   # thrice", {"key", "Shift+Down", "3"}},
      {"type \"a # b\"", {"type", "'a # b"}},
      {R"(message "one\ntwo \"three\" \\ \tfour" title "T")",
       {"message", "'one\ntwo \"three\" \\ \tfour", "title", "'T"}},
      {"set frmP2.txt( 35 ) \"\"", {"set", "frmP2.txt(35)", "'"}},
      {"type\"x\"\r", {"type", "'x"}},
      {"\xEF\xBB\xBFtype \"S\xC3\xB3\"", {"type", QString::fromUtf8("'S\xC3\xB3")}},
  };
  for (const auto& one : cases) EXPECT_EQ(Texts(one.line), one.words) << one.line;
}

TEST(Script, CountsLinesAndNamesABadOne) {
  const auto statements = ParseScript("\n# c\nstart\r\n\nexit\n");
  ASSERT_EQ(statements.size(), 2u);
  EXPECT_EQ(statements[0].line, 3);
  EXPECT_EQ(statements[1].line, 5);
  try {
    ParseScript("start\ntype \"open");
    FAIL() << "a string without an end was taken";
  } catch (const ScriptError& error) {
    EXPECT_EQ(error.line, 2);
  }
}

TEST(Script, ReadsControlNames) {
  const struct {
    const char* text;
    Property property;
    const char *form, *control, *name;
    int index;
  } cases[] = {
      {"frmP2.txt(35)", Property::None, "frmP2", "txt(35)", "", -1},
      {"frmP2.txt(35).Text", Property::Expected, "frmP2", "txt(35)", "Text", -1},
      {"frmP2.lbl(0).Font.Bold", Property::Expected, "frmP2", "lbl(0)", "FontBold", -1},
      {"frmMain.Caption", Property::Expected, "frmMain", "Caption", "", -1},
      {"mnuFileDelete.Enabled", Property::Expected, "", "mnuFileDelete", "Enabled", -1},
      {"frmFile.FileList1.List(2)", Property::Expected, "frmFile", "FileList1", "List", 2},
      {"frmTax", Property::None, "frmTax", "", "", -1},
  };
  for (const auto& one : cases) {
    const ControlName name = ParseControl(one.text, one.property);
    EXPECT_EQ(name.form, one.form) << one.text;
    EXPECT_EQ(name.control, one.control) << one.text;
    EXPECT_EQ(name.property, one.name) << one.text;
    EXPECT_EQ(name.propertyIndex, one.index) << one.text;
  }
}

TEST(BoxesTest, AnswersWaitForTheirOwnKindOfBox) {
  Boxes boxes;
  boxes.QueueAnswer(Answer::Yes);
  EXPECT_EQ(boxes.Ask("Saved.", "", Buttons::Ok), Answer::Ok);
  EXPECT_EQ(boxes.Ask("Save?", "", Buttons::YesNoCancel), Answer::Yes);
  EXPECT_EQ(boxes.Ask("Save?", "", Buttons::YesNoCancel), Answer::Cancel);
  EXPECT_EQ(boxes.Ask("Replace?", "", Buttons::YesNo), Answer::No);
  EXPECT_EQ(boxes.Faults().size(), 3u) << "all but the answered one came unasked";

  Boxes typed;
  typed.QueueAnswer(Answer::Ok);
  typed.QueueText("Emily");
  typed.QueueAnswer(Answer::Cancel);
  EXPECT_EQ(typed.Input("Name?", "", "old"), "Emily");
  EXPECT_EQ(typed.Input("Name?", "", "old"), "old");
  EXPECT_EQ(typed.Input("Name?", "", "old"), "");
  EXPECT_EQ(typed.Input("Name?", "", "old"), "");
  EXPECT_EQ(typed.Faults().size(), 1u);
}

TEST(BoxesTest, MessageMayStandBeforeOrAfter) {
  for (const bool before : {true, false}) {
    Boxes boxes;
    boxes.QueueAnswer(Answer::No);
    if (before) {
      EXPECT_EQ(boxes.Foresee(1, "File was saved as x.wwf", std::nullopt), "");
    }
    boxes.Ask("Replace?", "T", Buttons::YesNo);
    boxes.Ask("File was saved as x.wwf", "Quillane", Buttons::Ok);
    if (!before) {
      EXPECT_EQ(boxes.Foresee(1, "File was saved as x.wwf", QString("Quillane")), "");
    }
    EXPECT_TRUE(boxes.Faults().empty());
    EXPECT_EQ(boxes.Unforeseen(), "");
  }
}

TEST(BoxesTest, AnotherTextOrTitleOrNoBoxFails) {
  Boxes other;
  other.Ask("File not saved.", "Quillane", Buttons::Ok);
  EXPECT_NE(other.Unforeseen(), "");
  EXPECT_EQ(other.Foresee(4, "File was saved.", std::nullopt), "\"File not saved.\" title \"Quillane\"");

  Boxes title;
  title.Ask("File not saved.", "Quillane", Buttons::Ok);
  EXPECT_NE(title.Foresee(4, "File not saved.", QString("Other")), "");

  Boxes never;
  EXPECT_EQ(never.Foresee(7, "One\ntwo", std::nullopt), "");
  ASSERT_EQ(never.Faults().size(), 1u);
  EXPECT_EQ(never.Faults()[0].line, 7);
  EXPECT_EQ(never.Faults()[0].expected, "the box \"One\\ntwo\"");

  Boxes early;
  early.Foresee(1, "B", std::nullopt);
  early.Ask("A", "", Buttons::Ok);
  early.Ask("B", "", Buttons::Ok);
  EXPECT_EQ(early.Faults().size(), 1u) << "the box before the foreseen one came unasked";
}

TEST(BoxesTest, BlanksAtALinesEndDoNotCount) {
  Boxes boxes;
  boxes.Ask("any of \r\nthe following", "T", Buttons::Ok);
  EXPECT_EQ(boxes.Foresee(1, "any of\nthe following", std::nullopt), "");
}

TEST(BoxesTest, AMessageLikeAPatternLeavesOutWhatVaries) {
  Boxes boxes;
  boxes.Ask("An error occurred in X.\nFile not found: /a/b (1)", "T", Buttons::Ok);
  EXPECT_NE(boxes.Foresee(1, "An error occurred in Y.*", std::nullopt, Match::Like), "");
  boxes.Ask("An error occurred in X.\nFile not found: /a/b (1)", "T", Buttons::Ok);
  EXPECT_EQ(boxes.Foresee(2, "*in X.\nFile*(1)", std::nullopt, Match::Like), "");
}

TEST(BoxesTest, OneBoxSatisfiesOneMessage) {
  Boxes boxes;
  boxes.Ask("Saved", "", Buttons::Ok);
  EXPECT_EQ(boxes.Foresee(1, "Saved", std::nullopt), "");
  EXPECT_EQ(boxes.Foresee(2, "Saved", std::nullopt), "");
  EXPECT_EQ(boxes.Faults().size(), 1u);
}

TEST(BoxesTest, AnExcusedBoxMayComeAndMayBeAskedFor) {
  Boxes boxes;
  boxes.Excuse("Welcome");
  boxes.Ask("Welcome", "", Buttons::Ok);
  EXPECT_EQ(boxes.Unforeseen(), "");
  EXPECT_EQ(boxes.Foresee(1, "Welcome", std::nullopt), "");
  EXPECT_TRUE(boxes.Faults().empty());
}

TEST(Values, CompareByKind) {
  const struct {
    Value actual;
    const char* expected;
    bool equal;
  } cases[] = {
      {TextValue("285.00"), "285.00", true},
      {TextValue("285.00"), "285", false},
      {TextValue("Emily "), "Emily", false},
      {CaptionValue("&Save Proposal Fi&le"), "Save Proposal File", true},
      {CaptionValue("&Save Proposal Fi&le"), "&Save Proposal Fi&le", true},
      {CaptionValue("Flowers & Co"), "Flowers & Co", true},
      {CaptionValue("Save"), "save", false},
      {NumberValue(10), "10.0", true},
      {NumberValue(10), "11", false},
      {NumberValue(10), "ten", false},
      {TwipsValue(4859.6), "4860", true},
      {TwipsValue(4861), "4860", false},
      {ColourValue(colors::Cyan), "0xFFFF00", true},
      {ColourValue(colors::Cyan), "16776960", true},
      {ColourValue(colors::Cyan), "&HFFFF00&", true},
      {ColourValue(colors::Cyan), "0x00FFFF", false},
      {ColourValue(colors::ButtonFace), "0x8000000F", true},
      {ColourValue(colors::ButtonFace), "-2147483633", true},
      {BooleanValue(true), "True", true},
      {BooleanValue(true), "-1", true},
      {BooleanValue(true), "1", true},
      {BooleanValue(true), "false", false},
      {BooleanValue(false), "0", true},
      {{ValueKind::Name, "Times New Roman"}, "times new roman", true},
  };
  for (const auto& one : cases) EXPECT_EQ(Equal(one.actual, one.expected), one.equal) << one.expected;
}

}  // namespace
}  // namespace quillane::scenario
