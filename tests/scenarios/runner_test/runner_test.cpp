// What a script means before any window stands: its words, its boxes, its values.
#include <gtest/gtest.h>

#include "boxes.h"
#include "keys.h"
#include "script.h"
#include "ui/font.h"
#include "values.h"

namespace quillane::scenario {
namespace {

QStringList Texts(const Words& words) {
  QStringList texts;
  for (const Word& word : words) texts.append((word.quoted ? "'" : "") + word.text);
  return texts;
}

Words WordsIn(const QByteArray& line) {
  const std::vector<Statement> statements = ParseScript(line);
  return statements.empty() ? Words() : statements.front().words;
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
  for (const auto& one : cases) EXPECT_EQ(Texts(WordsIn(one.line)), one.words) << one.line;
}

TEST(Script, FitsStatementsToTheirPatterns) {
  const char* const message = "message \"text\"... [title \"text\"]";
  const struct {
    const char *pattern, *line, *arguments;  ///< those of one placeholder joined by "+", "-" for no fit
  } cases[] = {
      {"click C [ROW]", "CLICK a.b", "a.b|"},
      {"click C [ROW]", "click a.b \"row\"", "a.b|'row"},
      {"click C [ROW]", "click", "-"},
      {"click C [ROW]", "click a b c", "-"},
      {"key KEY [N]", "key Up 3", "Up|3"},
      {"key KEY [N]", "key Up thrice", "-"},
      {"put NAME line N TEXT", "put x line \"3\" \"a\"", "-"},
      {"put NAME line TEXT...", "put x line \"3\" \"a\"", "x|'3+'a"},
      {"disk full|ok", "disk Full", "Full"},
      {"disk full|ok", "disk \"full\"", "-"},
      {"expect page SHEET TEXT [at X Y]", "expect page 1.2 \"a\" at 7 0x10", "1.2|'a|7|0x10"},
      {"expect page SHEET TEXT [at X Y]", "expect page 1 \"a\" at 7", "-"},
      {message, "message \"a\" \"b\" title \"c\"", "'a+'b|'c"},
      {message, "message \"a\" title", "-"},
  };
  for (const auto& one : cases) {
    QString found = "-";
    if (const auto arguments = Fit(one.pattern, WordsIn(one.line))) {
      const QString wanted = one.arguments;
      QStringList texts;
      for (int at = 0; at <= wanted.count('|'); ++at)
        texts.append(Texts(arguments->All(static_cast<size_t>(at))).join('+'));
      found = texts.join('|');
    }
    EXPECT_EQ(found, one.arguments) << one.line;
  }
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
      EXPECT_EQ(boxes.Foresee("File was saved as x.wwf"), "");
    }
    boxes.Ask("Replace?", "T", Buttons::YesNo);
    boxes.Ask("File was saved as x.wwf", "Quillane", Buttons::Ok);
    if (!before) {
      EXPECT_EQ(boxes.Foresee("File was saved as x.wwf", QString("Quillane")), "");
    }
    EXPECT_TRUE(boxes.Faults().empty());
    EXPECT_EQ(boxes.Unforeseen(), "");
  }
}

// A box, then a message line about it: what the line finds instead.
TEST(BoxesTest, AMessageLineComparesTheNextBox) {
  const struct {
    const char *box, *message, *title;
    Match match;
    bool fits;
  } cases[] = {
      {"File not saved.", "File was saved.", nullptr, Match::Exact, false},
      {"File not saved.", "File not saved.", "Other", Match::Exact, false},
      {"File not saved.", "File not saved.", "Quillane", Match::Exact, true},
      {"any of \r\nthe following", "any of\nthe following", nullptr, Match::Exact,
       true},  // blanks that nobody sees
      {"In X.\nNot found: /a (1)", "In Y.*", nullptr, Match::Like, false},
      {"In X.\nNot found: /a (1)", "*X.\nNot*(1)", nullptr, Match::Like, true},
  };
  for (const auto& one : cases) {
    Boxes boxes;
    boxes.Ask(one.box, "Quillane", Buttons::Ok);
    EXPECT_NE(boxes.Unforeseen(), "");
    const auto title = one.title ? std::optional(QString(one.title)) : std::nullopt;
    EXPECT_EQ(boxes.Foresee(one.message, title, one.match) == "", one.fits) << one.message;
  }
}

TEST(BoxesTest, BoxesAndMessagesAreOneToOne) {
  Boxes never;
  never.SetLine(7);
  EXPECT_EQ(never.Foresee("One\ntwo"), "");
  ASSERT_EQ(never.Faults().size(), 1u);
  EXPECT_EQ(never.Faults()[0].line, 7);
  EXPECT_EQ(never.Faults()[0].expected, "the box \"One\\ntwo\"");

  Boxes early;
  early.Foresee("B");
  early.Ask("A", "", Buttons::Ok);
  early.Ask("B", "", Buttons::Ok);
  EXPECT_EQ(early.Faults().size(), 1u) << "the box before the foreseen one came unasked";

  Boxes twice;
  twice.Ask("Saved", "", Buttons::Ok);
  EXPECT_EQ(twice.Foresee("Saved"), "");
  EXPECT_EQ(twice.Foresee("Saved"), "");
  EXPECT_EQ(twice.Faults().size(), 1u);

  Boxes excused;
  excused.Excuse("Welcome");
  excused.Ask("Welcome", "", Buttons::Ok);
  EXPECT_EQ(excused.Unforeseen(), "");
  EXPECT_EQ(excused.Foresee("Welcome"), "");
  EXPECT_TRUE(excused.Faults().empty());
}

TEST(Values, CompareByKind) {
  using enum ValueKind;
  const struct {
    Value actual;
    const char* expected;
    bool equal;
  } cases[] = {
      {{Text, "285.00"}, "285.00", true},
      {{Text, "285.00"}, "285", false},
      {{Text, "Emily "}, "Emily", false},
      {{Text, "A && B"}, "A & B", false},
      {{Caption, "&Save Fi&le && all"}, "Save File & all", true},
      {{Caption, "&Save"}, "&Save", true},
      {{Caption, "Flowers & Co"}, "Flowers & Co", true},
      {{Caption, "Save"}, "save", false},
      {{Number, 10}, "10.0", true},
      {{Number, 10}, "11", false},
      {{Number, 10}, "ten", false},
      {{Twips, 4859.6}, "4860", true},
      {{Twips, 4861}, "4860", false},
      {{Colour, colors::Cyan}, "0xFFFF00", true},
      {{Colour, colors::Cyan}, "&HFFFF00&", true},
      {{Colour, colors::Cyan}, "16776960", true},
      {{Colour, colors::Cyan}, "0x00FFFF", false},
      {{Colour, colors::ButtonFace}, "0x8000000F", true},
      {{Colour, colors::ButtonFace}, "-2147483633", true},
      {{Boolean, true}, "True", true},
      {{Boolean, true}, "-1", true},
      {{Boolean, true}, "false", false},
      {{Boolean, false}, "0", true},
      {{Boolean, false}, "sometimes", false},
      {{Name, "Times New Roman"}, "times new roman", true},
  };
  for (const auto& one : cases) EXPECT_EQ(Equal(one.actual, one.expected), one.equal) << one.expected;
}

TEST(Keys, AreReadByTheirNames) {
  const struct {
    const char* name;
    int key;
    Qt::KeyboardModifiers modifiers;
    const char* text;
  } cases[] = {
      {"Enter", Qt::Key_Return, {}, "\r"},
      {"Shift+Tab", Qt::Key_Backtab, Qt::ShiftModifier, "\t"},
      {"Ctrl+PageDown", Qt::Key_PageDown, Qt::ControlModifier, ""},
      {"ctrl+shift+Home", Qt::Key_Home, Qt::ControlModifier | Qt::ShiftModifier, ""},
      {"Ctrl+S", Qt::Key_S, Qt::ControlModifier, "\x13"},
      {"Shift+a", Qt::Key_A, Qt::ShiftModifier, "A"},
      {"a", Qt::Key_A, {}, "a"},
      {"Space", Qt::Key_Space, {}, " "},
      {"F12", Qt::Key_F12, {}, ""},
      {"Insert", Qt::Key_Insert, {}, ""},
      {"Shift+Del", Qt::Key_Delete, Qt::ShiftModifier, "\x7f"},
      {"Escape", Qt::Key_Escape, {}, "\x1b"},
      {"Backspace", Qt::Key_Backspace, {}, "\b"},
      {"Menu", Qt::Key_Menu, {}, ""},
      {"Alt+F4", Qt::Key_F4, Qt::AltModifier, ""},
      {"Shift", Qt::Key_Shift, {}, ""},
      {"NoSuchKey", 0, {}, ""},
  };
  for (const auto& one : cases) {
    const KeyPress press = ReadKey(one.name).value_or(KeyPress{Qt::Key(0), {}, {}});
    EXPECT_EQ(press.key, one.key) << one.name;
    EXPECT_EQ(press.modifiers, one.modifiers) << one.name;
    EXPECT_EQ(press.text, one.text) << one.name;
  }
}

}  // namespace
}  // namespace quillane::scenario
