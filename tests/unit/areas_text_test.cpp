// What typing does: warnings, words that run on, characters that pass, columns, the client's name.
#include <gtest/gtest.h>

#include "pages/defaults.h"
#include "pages/features.h"
#include "typist.h"

using namespace quillane;
using namespace quillane::test;

namespace {

// Ninety characters fill an item row, which is 9000 twips wide.
constexpr int Full = 90;

int Letters(const QString& text) {
  return static_cast<int>(text.size() - text.count(QLatin1Char(' ')));
}

class Typing : public testing::Test {
 protected:
  Typist typist;

  void Start(const char* area, const QString& text) {
    Control& control = At(area);
    control.SetText(text);
    SetFocus(control);
    control.SetSelStart(static_cast<int>(text.size()));
  }
};

struct Warning {
  const char* area;
  int length;
  Color colour;
};

TEST_F(Typing, WarnsAtTheWidthAndPastTheLimit) {
  // Dates hold 25 characters in 2520 twips, names 36 in 3600, amounts 12 in 1260.
  for (const Warning& c :
       {Warning{"frmP2.txt(0)", 89, colors::Cyan}, Warning{"frmP2.txt(0)", 90, colors::Red},
        Warning{"frmP1.txt(0)", 25, colors::Cyan}, Warning{"frmP1.txt(0)", 26, colors::Red},
        Warning{"frmP1.txt(2)", 35, colors::Cyan}, Warning{"frmP1.txt(2)", 36, colors::Red},
        Warning{"frmP2.txt(35)", 12, colors::Cyan}, Warning{"frmP2.txt(35)", 13, colors::Red}}) {
    Start(c.area, QString());
    typist.Type(QString(c.length, QLatin1Char('7')));
    EXPECT_EQ(At(c.area).BackColor(), c.colour) << c.area << " with " << c.length;
    if (IsNumericArea(At(c.area))) continue;  // leaving an amount writes it out, which makes it longer
    SetFocus(At("frmP2.txt(9)"));
    SetFocus(At(c.area));
    EXPECT_EQ(At(c.area).BackColor(), c.colour) << c.area << " entered again";
    At(c.area).SetText(QString());
    editing.DateWarningGiven = true;
  }
}

TEST_F(Typing, WarnsOfTheLimitWhereTheTextIsNarrow) {
  Control& area = At("frmP2.txt(0)");
  area.SetFontSize(2);
  for (const auto& [length, colour] : {std::pair{120, colors::Cyan}, std::pair{121, colors::Red}}) {
    Start("frmP2.txt(0)", QString(length, QLatin1Char('x')));
    SetFocus(At("frmP2.txt(1)"));
    SetFocus(area);
    EXPECT_EQ(area.BackColor(), colour) << length;
  }
}

TEST_F(Typing, InsideALineABlankPushesTheTailAndTheCaretStays) {
  At("frmP2.txt(1)").SetText(QStringLiteral("peonies"));
  Start("frmP2.txt(0)", Words(84) + QStringLiteral("rosey"));
  Control& line = At("frmP2.txt(0)");
  line.SetSelStart(2);
  typist.Type(QStringLiteral("x"));
  EXPECT_EQ(line.Text().size(), Full) << "a letter pushes nothing";
  EXPECT_EQ(line.BackColor(), colors::Red);
  typist.Type(QStringLiteral(" "));
  EXPECT_EQ(FocusName(), "frmP2.txt(0)");
  EXPECT_EQ(line.SelStart(), 4);
  EXPECT_EQ(editing.CursorLocation, 4);
  EXPECT_TRUE(line.Text().startsWith(QStringLiteral("wox rd word")));
  EXPECT_EQ(line.BackColor(), colors::Cyan);
  EXPECT_EQ(At("frmP2.txt(1)").Text(), QStringLiteral("wordrosey peonies")) << "words stay words";
}

TEST_F(Typing, ACascadeRunsIntoTheLastRowAndEndsThere) {
  for (int row = 31; row <= 34; ++row) page(1).txt[row].SetText(Words(Full - 1));
  Start("frmP2.txt(31)", Words(Full - 1));
  typist.Type(QStringLiteral(" "));
  EXPECT_EQ(FocusName(), "frmP2.txt(32)") << "the key that began it decides the caret";
  EXPECT_EQ(At("frmP2.txt(32)").SelStart(), 5);
  EXPECT_EQ(At("frmP2.txt(32)").Text().left(10), "word word ");
  EXPECT_LT(At("frmP2.txt(33)").Text().size(), Full);
  EXPECT_GE(At("frmP2.txt(34)").Text().size(), Full);
  EXPECT_EQ(At("frmP2.txt(34)").BackColor(), colors::Red);
  EXPECT_EQ(At("frmP2.txt(35)").Text(), QString());
  EXPECT_EQ(At("frmP3.txt(0)").Text(), QString());
  int letters = 0;
  for (int row = 31; row <= 34; ++row) letters += Letters(page(1).txt[row].Text());
  EXPECT_EQ(letters, 4 * Letters(Words(Full - 1)));
}

TEST_F(Typing, OnlyAPersonsCharactersPush) {
  Start("frmP2.txt(0)", QString());
  At("frmP2.txt(0)").SetText(Words(Full + 10));
  EXPECT_EQ(At("frmP2.txt(1)").Text(), QString()) << "written by a command";
  Start("frmP2.txt(0)", Words(80));
  KeyEvent announced;
  announced.text = QStringLiteral(" ");
  KeyDown(At("frmP2.txt(0)"), announced);
  At("frmP2.txt(0)").Typed(Words(80) + QStringLiteral("pasted words "), 93);
  EXPECT_EQ(At("frmP2.txt(1)").Text(), QString()) << "pasted";
  EXPECT_EQ(At("frmP2.txt(0)").BackColor(), colors::Red);
}

TEST_F(Typing, ACharacterCommittedWithoutAKeyPushesAsTypingDoes) {
  Start("frmP2.txt(0)", Words(Full - 1));
  KeyEvent announced;
  announced.text = QStringLiteral(" ");
  KeyDown(At("frmP2.txt(0)"), announced);
  At("frmP2.txt(0)").Typed(Words(Full - 1) + QStringLiteral(" "), Full);
  EXPECT_EQ(FocusName(), "frmP2.txt(1)");
}

TEST_F(Typing, KeepsTheTextsInBothLayersAndTheMirror) {
  Start("frmP2.txt(3)", QStringLiteral("  "));
  typist.Type(QStringLiteral("Lilies"));
  EXPECT_EQ(proposal.PageText[1][3], "Lilies");
  EXPECT_EQ(proposal.TextRec[1][3].Text, "  Lilies");
  EXPECT_EQ(format.FormatTextRec[1][3].Text, "  Lilies");
  EXPECT_EQ(editing.CurrentAreaType, "Push");
  EXPECT_EQ(editing.CurrentAreaLimit, "120");
  typist.Key(keys::F8);
  typist.Type(QStringLiteral("3"));
  EXPECT_TRUE(proposal.TextRec[1][3].QtyBox);
  EXPECT_EQ(format.FormatTextRec[1][3].QtyValue, "3");
  EXPECT_EQ(proposal.PageText[1][3], StoredForm(page(1), 3));
}

TEST_F(Typing, GuardsAndSelectionsKeepTheHandlersAway) {
  for (bool* guard : {&editing.RebuildingPages, &editing.OpeningFile, &editing.MovingContents,
                      &editing.ApplyingFonts, &editing.AreasSelected}) {
    Scoped scope(*guard, true);
    At("frmP2.txt(5)").SetText(QStringLiteral("guarded"));
    At("frmP2.txt(5)").SetText(QString());
    EXPECT_EQ(proposal.PageText[1][5], BlankSlot());
  }
  Scoped selected(editing.AreasSelected, true);
  Scoped refire(editing.RecalcPending, true);
  At("frmP2.txt(5)").SetText(QStringLiteral("refired"));
  EXPECT_EQ(proposal.PageText[1][5], "refired");
}

struct Filter {
  const char* area;
  const char* typed;
  const char* passes;
};

TEST_F(Typing, LetsOnlyFiguresIntoFigures) {
  ShowRowColumns(page(1), 0, true);
  At("frmP2.txtQty(0)").SetText(QStringLiteral("Qty."));
  At("frmP2.txtAmt(0)").SetText(QStringLiteral("Amt."));
  for (const Filter& c :
       {Filter{"frmP2.txt(36)", "-1a,2x.5$", "-1,2.5"}, Filter{"frmP1.txt(28)", "1 2", "12"},
        Filter{"frmP2.txtQty(0)", "x-3,", "3"}, Filter{"frmP2.txtAmt(0)", "$1.50", "1.50"},
        Filter{"frmP6.txt(4)", "-1,0.5b", "1,0.5"}}) {
    Start(c.area, At(c.area).Text());
    typist.Type(QString::fromLatin1(c.typed));
    EXPECT_EQ(At(c.area).Text(), QString::fromLatin1(c.passes)) << c.area;
  }
}

TEST_F(Typing, WhileAreasAreSelectedNoHandWrites) {
  Start("frmP2.txt(0)", QStringLiteral("Roses"));
  editing.AreasSelected = true;
  typist.Type(QStringLiteral("x"));
  typist.Key(keys::Backspace);
  typist.Key(keys::F8);
  DoubleClick(At("frmP2.txt(0)"));
  EXPECT_FALSE(DropTerm(At("frmP2.txt(0)"), QStringLiteral("Tulips")));
  EXPECT_EQ(PasteInto(At("frmP2.txt(0)"), QStringLiteral("x")), QString());
  EXPECT_EQ(At("frmP2.txt(0)").Text(), "Roses");
  EXPECT_FALSE(page(1).HasColumns(0));
}

TEST_F(Typing, AnAreaFixedByTheFormatTakesTheFocusAndNothingElse) {
  format.FormatIsOpen = true;
  editing.DoNotLockFormat = false;
  format.FormatTextRec[1][1].HasFormatText = true;
  At("frmP2.txt(1)").SetText(QStringLiteral("Fixed"));
  SetFocus(At("frmP2.txt(1)"));
  EXPECT_EQ(FocusName(), "frmP2.txt(1)");
  typist.Type(QStringLiteral("x"));
  typist.Key(keys::F8);
  EXPECT_FALSE(DropTerm(At("frmP2.txt(1)"), QStringLiteral("Tulips")));
  EXPECT_FALSE(AcceptsTyping(At("frmP2.txtQty(1)"))) << "its columns are fixed with it";
  Start("frmP2.txt(0)", Words(Full - 1));
  typist.Type(QStringLiteral(" "));
  EXPECT_EQ(At("frmP2.txt(1)").Text(), "Fixed") << "nothing is pushed into it";
  EXPECT_FALSE(page(1).HasColumns(1));
  editing.DoNotLockFormat = true;
  EXPECT_TRUE(AcceptsTyping(At("frmP2.txt(1)")));
}

TEST_F(Typing, AmountsTakeAPasteOnlyWhenItIsANumber) {
  Start("frmP2.txt(35)", QStringLiteral("99.00"));
  At("frmP2.txt(35)").SetSelection(0, 5);
  typist.desk.clipboard = QStringLiteral("twelve");
  typist.CtrlV();
  EXPECT_EQ(At("frmP2.txt(35)").Text(), "99.00");
  typist.desk.clipboard = QStringLiteral("1,250.50\r\n");
  At("frmP2.txt(35)").SetSelection(0, 5);
  typist.CtrlV();
  EXPECT_EQ(At("frmP2.txt(35)").Text(), "1,250.50");
  Start("frmP6.txt(4)", QString());
  typist.CtrlV();
  EXPECT_EQ(At("frmP6.txt(4)").Text(), "1,250.50");
}

TEST_F(Typing, AHugeClipboardIsRefusedWithAWord) {
  Start("frmP2.txt(0)", QStringLiteral("Roses"));
  EXPECT_EQ(PasteInto(At("frmP2.txt(0)"), QString(10'000'000, QLatin1Char('x'))), QString());
  EXPECT_EQ(typist.desk.said.size(), 1);
  EXPECT_EQ(PasteInto(At("frmP2.txt(35)"), QString(10'000'000, QLatin1Char('7'))), QString());
  EXPECT_EQ(PasteInto(At("frmP2.txt(0)"), QStringLiteral("one\r\ntwo\tthree\r\n")), "one two three");
}

TEST_F(Typing, TheClientsNameNamesAnUnnamedProposal) {
  Start("frmP1.txt(2)", QString());
  typist.Type(QStringLiteral("Emily Carter "));
  EXPECT_EQ(proposal.BaseName, "Emily Carter");
  EXPECT_EQ(proposal.EventFileName, "Emily Carter.wwf");
  EXPECT_EQ(proposal.TextFileName, "Emily Carter.txt");
  EXPECT_EQ(proposal.Title, "Proposal for Emily Carter");
  EXPECT_EQ(At("frmP2.lbl(38)").Caption(), "Proposal for Emily Carter");
  At("frmP1.txt(2)").SetText(QString());
  EXPECT_EQ(proposal.EventFileName, QString());
  EXPECT_EQ(At("frmP2.lbl(38)").Caption(), "Proposal for (Client's Name)");
  proposal.TitleByHand = true;
  proposal.Title = QStringLiteral("Garden Party");
  typist.Type(QStringLiteral("Al"));
  EXPECT_EQ(proposal.Title, "Garden Party");
  EXPECT_EQ(proposal.EventFileName, "Al.wwf");
  proposal.FileIsNamed = true;
  typist.Type(QStringLiteral("ma"));
  EXPECT_EQ(proposal.EventFileName, "Al.wwf");
}

TEST_F(Typing, EveryTwentiethKeyTakesABackup) {
  static int copies;
  copies = 0;
  upcalls().BackupThisFile = [] { ++copies; };
  Start("frmP2.txt(0)", QString());
  typist.Type(Words(19));
  EXPECT_EQ(copies, 0);
  typist.Key(keys::Enter);
  EXPECT_EQ(copies, 1);
  EXPECT_EQ(editing.KeysSinceBackup, 0);
  Start("frmP1.txt(2)", QString());
  typist.Type(Words(20));
  EXPECT_EQ(copies, 1) << "not while the name is half typed";
  proposal.FileIsNamed = true;
  typist.Type(Words(20));
  EXPECT_EQ(copies, 2);
  proposal.OpenedFromBackup = true;
  typist.Type(Words(20));
  EXPECT_EQ(copies, 2) << "never over the copy that is open";
}

}  // namespace
