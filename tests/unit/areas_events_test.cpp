// Focus, mouse, columns, status labels and the text menu.
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "item_pages.h"
#include "model/focus.h"
#include "pages/defaults.h"
#include "pages/features.h"
#include "platform/runtime_error.h"
#include "typist.h"

using namespace quillane;
using namespace quillane::test;

namespace {

class Areas : public testing::Test {
 protected:
  Typist typist;
};

TEST_F(Areas, TheFocusIsCyanAndRestIsGrey) {
  ShowRowColumns(page(1), 0, true);
  SetFocus(At("frmP2.txt(0)"));
  EXPECT_EQ(At("frmP2.txt(0)").BackColor(), colors::Cyan);
  SetFocus(At("frmP2.txtAmt(0)"));
  EXPECT_EQ(At("frmP2.txt(0)").BackColor(), colors::Grey);
  EXPECT_EQ(At("frmP2.txtAmt(0)").BackColor(), colors::Cyan);
  SetFocus(At("frmP6.txt(4)"));
  EXPECT_EQ(At("frmP2.txtAmt(0)").BackColor(), colors::LightGrey);
  EXPECT_EQ(At("frmP6.txt(4)").BackColor(), colors::Cyan);
}

TEST_F(Areas, ASelectedAreaStaysBlueThroughTheFocus) {
  editing.AreasSelected = true;
  At("frmP2.txt(1)").SetBackColor(colors::Blue);
  SetFocus(At("frmP2.txt(1)"));
  EXPECT_EQ(At("frmP2.txt(1)").BackColor(), colors::Blue);
  SetFocus(At("frmP2.txt(2)"));
  EXPECT_EQ(At("frmP2.txt(1)").BackColor(), colors::Blue);
  SetFocus(At("frmP2.txt(1)"));
  EXPECT_EQ(At("frmP2.txt(2)").BackColor(), colors::Grey);
}

TEST_F(Areas, TheClientsCopyTakesNoInputAndIsNeverThePageInUse) {
  SetFocus(At("frmP2.txt(3)"));
  FocusPage(page(CopyOfPage6));
  EXPECT_EQ(FocusName(), "frmP6_1.txt(0)");
  typist.Type(QStringLiteral("5"));
  typist.desk.clipboard = QStringLiteral("5");
  typist.CtrlV();
  EXPECT_EQ(At("frmP6_1.txt(0)").Text(), QString());
  EXPECT_EQ(editing.CurrentForm, &page(1));
  EXPECT_EQ(editing.CurrentArea, 3);
  frame().clientHeight = 5000;
  typist.Key(keys::PageDown);
  EXPECT_EQ(frame().VScroll1.Value, 2500);
}

TEST_F(Areas, APageTakesTheFocusWhereItWasLast) {
  FocusPage(page(2));
  EXPECT_EQ(FocusName(), "frmP3.txt(0)");
  SetFocus(At("frmP3.txt(12)"));
  SetFocus(At("frmP2.txt(4)"));
  FocusPage(page(2));
  EXPECT_EQ(FocusName(), "frmP3.txt(12)");
}

TEST_F(Areas, WarnsOnceOfADateThatCannotBeRead) {
  Control& date = At("frmP1.txt(0)");
  for (const char* good : {"", "June 14, 2027", "6/14/27"}) {
    SetFocus(date);
    date.SetText(QString::fromLatin1(good));
    SetFocus(At("frmP1.txt(1)"));
    EXPECT_TRUE(typist.desk.said.isEmpty()) << good;
  }
  SetFocus(date);
  date.SetText(QStringLiteral("June 1rst"));
  SetFocus(At("frmP1.txt(1)"));
  ASSERT_EQ(typist.desk.said.size(), 1);
  EXPECT_EQ(typist.desk.said[0].title, "Date Format not Recognized");
  EXPECT_EQ(
      typist.desk.said[0].text,
      "Text cannot be recognized as a date and will become useless for managing you events.\n\n"
      "Proper date format examples follow:\nJanuary 15, 2008.\nJan 15, 2008\n1/15/2008\n1/15/08\n1-15-08\n"
      "Do not include date extentions such as \"1rst\", \"2nd\", etc.");
  EXPECT_EQ(FocusName(), "frmP1.txt(1)");
  SetFocus(date);
  SetFocus(At("frmP1.txt(1)"));
  EXPECT_EQ(typist.desk.said.size(), 1);
}

struct Row {
  const char* area;
  bool toggles;
};

TEST_F(Areas, ColumnsComeAndGoOnItemRowsOnly) {
  for (const Row& c : {Row{"frmP1.txt(19)", false}, Row{"frmP1.txt(20)", true}, Row{"frmP1.txt(27)", true},
                       Row{"frmP1.txt(28)", false}, Row{"frmP5.txt(0)", true}, Row{"frmP5.txt(34)", true},
                       Row{"frmP5.txt(35)", false}, Row{"frmP6.txt(0)", false}}) {
    Control& area = At(c.area);
    const float plain = area.Width();
    SetFocus(area);
    typist.Key(keys::F8);
    EXPECT_EQ(area.Width() != plain, c.toggles) << c.area;
    DoubleClick(area);
    EXPECT_EQ(area.Width(), plain) << c.area;
    EXPECT_EQ(FocusName(), area.FullName());
  }
}

struct Drop {
  const char* area;
  const char* before;
  const char* term;
  bool taken;
  const char* after;
  const char* priced;  ///< the area that holds the price afterwards
  const char* price;
  const char* focus;
};

TEST_F(Areas, ADroppedTermBringsItsPrice) {
  ShowRowColumns(page(1), 2, true);
  for (const Drop& c :
       {Drop{"frmP2.txt(0)", "", "Centerpieces[35.00]", true, "Centerpieces", "frmP2.txt(35)", "35.00",
             "frmP2.txt(35)"},
        Drop{"frmP2.txt(1)", "Tall", "Vases", true, "Tall Vases", "frmP2.txt(36)", "", "frmP3.txt(0)"},
        Drop{"frmP2.txt(2)", "", "Tent[500]", true, "Tent", "frmP2.txtAmt(2)", "500", "frmP2.txt(37)"},
        Drop{"frmP2.txt(3)", "", "Tent[abc]", true, "Tent", "frmP2.txt(38)", "", "frmP3.txt(0)"},
        Drop{"frmP2.txt(4)", "", "Tent[500", true, "Tent[500", "frmP2.txt(39)", "", "frmP3.txt(0)"},
        Drop{"frmP1.txt(20)", "", "Tent[500]", true, "Tent", "frmP1.txt(28)", "500", "frmP1.txt(28)"},
        Drop{"frmP1.txt(3)", "", "Tent[500]", true, "Tent", "frmP1.txt(11)", "", "frmP3.txt(0)"},
        Drop{"frmP2.txt(40)", "", "Tent", false, "", "frmP2.txt(40)", "", "frmP3.txt(0)"},
        Drop{"frmP2.txtQty(2)", "Qty.", "Tent", false, "Qty.", "frmP2.txt(41)", "", "frmP3.txt(0)"},
        Drop{"frmP6.txt(4)", "", "Tent", false, "", "frmP2.txt(42)", "", "frmP3.txt(0)"}}) {
    At("frmP2.txtQty(2)").SetText(QStringLiteral("Qty."));
    At(c.area).SetText(QString::fromLatin1(c.before));
    SetFocus(At("frmP3.txt(0)"));
    EXPECT_EQ(DropTerm(At(c.area), QString::fromLatin1(c.term)), c.taken) << c.area;
    EXPECT_EQ(At(c.area).Text(), QString::fromLatin1(c.after)) << c.area;
    EXPECT_EQ(At(c.priced).Text(), QString::fromLatin1(c.price)) << c.area;
    EXPECT_EQ(FocusName(), QString::fromLatin1(c.focus)) << c.area;
  }
}

TEST_F(Areas, TheRightButtonRefreshesWarningsAndOpensTheMenuOfItsArea) {
  static QString opened;
  opened.clear();
  upcalls().PopUpMenu = [](const QString& menu, Control& area) { opened = menu + u' ' + area.FullName(); };
  At("frmP2.txt(5)").SetText(Words(95));
  At("frmP2.txt(5)").SetBackColor(colors::Grey);
  At("frmP2.txt(6)").SetBackColor(colors::Red);
  MouseDown(At("frmP2.txt(9)"), true);
  EXPECT_EQ(opened, "mnuEditTextBox frmP2.txt(9)");
  EXPECT_EQ(At("frmP2.txt(5)").BackColor(), colors::Red);
  EXPECT_EQ(At("frmP2.txt(6)").BackColor(), colors::Grey);
  EXPECT_EQ(At("frmP2.txt(9)").BackColor(), colors::Cyan);
  EXPECT_EQ(editing.CurrentArea, 9);
  EXPECT_EQ(editing.MouseDownArea, 9);
  ShowRowColumns(page(2), 8, true);
  MouseDown(At("frmP3.txtAmt(8)"), true);
  EXPECT_EQ(editing.CurrentPage, 2);
  EXPECT_EQ(editing.CurrentArea, 8);
}

TEST_F(Areas, TheStatusFollowsTheCaret) {
  SetFocus(At("frmP2.txt(0)"));
  typist.Type(QStringLiteral("Roses"));
  EXPECT_EQ(frame()["lblCurPos"].Caption(), "Cursor Location = 5");
  At("frmP2.txt(0)").SetSelStart(3);
  printing.NoPrinter = errors::Printer;
  MouseDown(At("frmP2.txt(0)"), false);
  EXPECT_FALSE(frame()["lblTextPos"].Visible()) << "no printer";
  printing.NoPrinter = 0;
  MouseDown(At("frmP2.txt(0)"), false);
  EXPECT_TRUE(frame()["lblTextPos"].Visible());
  EXPECT_EQ(frame()["lblTextPos"].Caption(), "Printer Text Position = .21");
  MouseUp(At("frmP2.txt(0)"));
  EXPECT_EQ(editing.CursorLocation, 3);
}

TEST_F(Areas, ShiftAndAnArrowOverASelectionIsTheMoveAndNothingElse) {
  SetFocus(At("frmP2.txt(5)"));
  typist.Key(keys::Down, true);
  EXPECT_EQ(FocusName(), "frmP2.txt(6)") << "nothing is selected";
  At("frmP2.txt(9)").SetText(QStringLiteral("Tent"));
  At("frmP2.txt(9)").SetBackColor(colors::Blue);
  editing.AreasSelected = true;
  typist.Key(keys::Down, true);
  EXPECT_EQ(At("frmP2.txt(10)").Text(), "Tent");
  EXPECT_EQ(At("frmP2.txt(9)").Text(), "");
}

TEST_F(Areas, ReleasingShiftEndsARunOfMoves) {
  editing.MovingContents = true;
  At("frmP2.txt(40)").SetText(QStringLiteral("12.00"));
  FormKeyUp(page(1), {keys::Down, true, false, false, QString()});
  EXPECT_TRUE(editing.MovingContents);
  EXPECT_EQ(proposal.AreaAmount[1][40], 0.0F);
  FormKeyUp(page(1), {keys::Down, false, false, false, QString()});
  EXPECT_FALSE(editing.MovingContents);
  EXPECT_EQ(proposal.AreaAmount[1][40], 12.0F);
}

struct MenuCase {
  const char* what;
  const char* area;
  bool boxes, memory, characters;
  const char* on;  ///< one letter an entry, in the order above: '1' on, '.' off
};

TEST_F(Areas, TheTextMenuKnowsWhatCanBeDone) {
  MakeTextMenu();
  At("frmP2.txt(3)").SetFontBold(true);
  At("frmP2.txt(4)").SetText(QStringLiteral("some words"));
  for (const MenuCase& c :
       {MenuCase{"a row", "frmP2.txt(0)", false, false, false, "11................."},
        MenuCase{"a bold row", "frmP2.txt(3)", false, false, false, "1.1................"},
        MenuCase{"an amount", "frmP2.txt(35)", false, false, false, ".1..............11."},
        MenuCase{"a first-page row", "frmP1.txt(20)", false, false, false, ".1................."},
        MenuCase{"a field", "frmP1.txt(9)", false, false, false, "11................."},
        MenuCase{"a first-page amount", "frmP1.txt(28)", false, false, false, ".1..............11."},
        MenuCase{"a total", "frmP6.txt(4)", false, false, false, ".1................."},
        MenuCase{"words", "frmP2.txt(4)", false, false, true, "1..111............."},
        MenuCase{"boxes", "frmP2.txt(0)", true, false, false, ".........1.11.11..1"},
        MenuCase{"boxes copied", "frmP2.txt(0)", true, true, false, "11...........1....1"},
        MenuCase{"amount, copied", "frmP2.txt(36)", true, true, false, ".1...........1..111"}}) {
    editing.AreasSelected = c.boxes;
    editing.SelectionMemoryFull = c.memory;
    SetFocus(At(c.area));
    if (c.characters) At(c.area).SetSelection(1, 3);
    SetEditMenuState();
    QString on;
    for (const QString& entry : TextMenu()) on += QLatin1Char(frame()[entry].Enabled() ? '1' : '.');
    EXPECT_EQ(on, QString::fromLatin1(c.on)) << c.what;
    if (c.characters) {
      EXPECT_EQ(editing.SelectedTextStart, 1);
      EXPECT_EQ(editing.SelectedTextLength, 3);
    }
    editing.AreasSelected = false;
  }
  SetFocus(At("frmP2.txt(7)"));
  EXPECT_EQ(frame()["mnuEditTextColumns"].Caption(), "Add Columns");
  ShowRowColumns(page(1), 7, true);
  editing.UndoAvailable = true;
  SetEditMenuState();
  EXPECT_EQ(frame()["mnuEditTextColumns"].Caption(), "Remove Columns");
  EXPECT_TRUE(frame()["mnuEditTextUndo"].Enabled());
}

TEST_F(Areas, ADoubleClickWritesTheDateInFull) {
  for (const auto& [typed, shown] : {std::pair{"1/23/08", "January 23, 2008"}, std::pair{"soon", "soon"}}) {
    At("frmP1.txt(0)").SetText(QString::fromLatin1(typed));
    DoubleClick(At("frmP1.txt(0)"));
    EXPECT_EQ(At("frmP1.txt(0)").Text(), QString::fromLatin1(shown));
  }
  At("frmP1.txt(1)").SetText(QStringLiteral("1/23/08"));
  DoubleClick(At("frmP1.txt(1)"));
  EXPECT_EQ(At("frmP1.txt(1)").Text(), "1/23/08");
}

}  // namespace
