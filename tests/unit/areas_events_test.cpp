// Focus, mouse, columns, status labels and the text menu.
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "item_pages.h"
#include "model/focus.h"
#include "pages/defaults.h"
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
  EXPECT_EQ(&editing.CurrentForm(), &page(1));
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

TEST_F(Areas, ColumnsComeAndGoOnItemRowsOnly) {
  for (const auto& [name, toggles] : Cases<const char*, bool>{{"frmP1.txt(19)", false},
                                                              {"frmP1.txt(20)", true},
                                                              {"frmP1.txt(27)", true},
                                                              {"frmP1.txt(28)", false},
                                                              {"frmP5.txt(0)", true},
                                                              {"frmP5.txt(34)", true},
                                                              {"frmP5.txt(35)", false},
                                                              {"frmP6.txt(0)", false}}) {
    Control& area = At(name);
    const float plain = area.Width();
    SetFocus(area);
    typist.Key(keys::F8);
    EXPECT_EQ(area.Width() != plain, toggles) << name;
    DoubleClick(area);
    EXPECT_EQ(area.Width(), plain) << name;
    EXPECT_EQ(FocusName(), area.FullName());
  }
}

TEST_F(Areas, ADroppedTermBringsItsPrice) {
  ShowRowColumns(page(1), 2, true);
  const char *refused = "Tall", *stays = "frmP3.txt(0)", *none = "frmP2.txt(69)";
  for (const auto& [area, term, words, priced, focus] :
       Cases<const char*, QString, QString, const char*, QString>{
           {"frmP2.txt(0)", "Roses[35.00]", "Tall Roses", "frmP2.txt(35)", "frmP2.txt(35)"},
           {"frmP2.txt(1)", "Vases", "Tall Vases", none, stays},
           {"frmP2.txt(2)", "Tent[35.00]", "Tall Tent", "frmP2.txtAmt(2)", "frmP2.txt(37)"},
           {"frmP2.txt(3)", "Tent[abc]", "Tall Tent", none, stays},
           {"frmP2.txt(4)", "Tent[500", "Tall Tent[500", none, stays},
           {"frmP1.txt(20)", "Tent[35.00]", "Tall Tent", "frmP1.txt(28)", "frmP1.txt(28)"},
           {"frmP1.txt(3)", "Tent[35.00]", "Tall Tent", none, stays},
           {"frmP2.txt(40)", "Tent", refused, none, stays},
           {"frmP2.txtQty(2)", "Tent", refused, none, stays},
           {"frmP6.txt(4)", "Tent", refused, none, stays}}) {
    At(area).SetText("Tall");
    SetFocus(At(stays));
    EXPECT_EQ(DropTerm(At(area), term), words != refused) << area;
    EXPECT_EQ(At(area).Text(), words) << area;
    EXPECT_EQ(At(priced).Text(), priced == none ? "" : "35.00") << area;
    EXPECT_EQ(FocusName(), focus) << area;
  }
  EXPECT_EQ(At("frmP2.txt(38)").Text() + At("frmP2.txt(39)").Text() + At("frmP1.txt(11)").Text(), "");
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

}  // namespace
