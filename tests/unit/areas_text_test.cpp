// What typing does: warnings, words that run on, characters that pass, columns, the client's name.
#include <gtest/gtest.h>

#include "pages/defaults.h"
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

TEST_F(Typing, WarnsAtTheWidthAndPastTheLimit) {
  // Dates hold 25 characters in 2520 twips, names 36 in 3600, amounts 12 in 1260.
  for (const auto& [area, most] : Cases<const char*, int>{
           {"frmP2.txt(0)", 89}, {"frmP1.txt(0)", 25}, {"frmP1.txt(2)", 35}, {"frmP2.txt(35)", 12}})
    for (const int length : {most, most + 1}) {
      const Color colour = length == most ? colors::Cyan : colors::Red;
      Start(area, QString());
      typist.Type(QString(length, QLatin1Char('7')));
      EXPECT_EQ(At(area).BackColor(), colour) << area << " with " << length;
      if (IsNumericArea(At(area))) continue;  // leaving an amount writes it out, which makes it longer
      SetFocus(At("frmP2.txt(9)"));
      SetFocus(At(area));
      EXPECT_EQ(At(area).BackColor(), colour) << area << " entered again";
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

TEST_F(Typing, GuardsAndSelectionsKeepTheHandlersAway) {
  for (bool* guard : {&editing.RebuildingPages, &editing.OpeningFile, &editing.MovingContents,
                      &editing.ApplyingFonts, &editing.AreasSelected}) {
    Scoped scope(*guard, true);
    At("frmP2.txt(5)").SetText(QStringLiteral("guarded"));
    At("frmP2.txt(5)").SetText(QString());
    EXPECT_EQ(editing.CurrentText, "");
  }
  Scoped selected(editing.AreasSelected, true);
  Scoped refire(editing.RecalcPending, true);
  At("frmP2.txt(5)").SetText(QStringLiteral("refired"));
  EXPECT_EQ(editing.CurrentText, "refired");
}

TEST_F(Typing, LetsOnlyFiguresIntoFigures) {
  ShowRowColumns(page(1), 0, true);
  At("frmP2.txtQty(0)").SetText(QStringLiteral("Qty."));
  At("frmP2.txtAmt(0)").SetText(QStringLiteral("Amt."));
  for (const auto& [area, typed, passes] :
       Cases<const char*, QString, QString>{{"frmP2.txt(36)", "-1a,2x.5$", "-1,2.5"},
                                            {"frmP1.txt(28)", "1 2", "12"},
                                            {"frmP2.txtQty(0)", "x-3,", "3"},
                                            {"frmP2.txtAmt(0)", "$1.50", "1.50"},
                                            {"frmP6.txt(4)", "-1,0.5b", "1,0.5"}}) {
    Start(area, At(area).Text());
    typist.Type(typed);
    EXPECT_EQ(At(area).Text(), passes) << area;
  }
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

TEST_F(Typing, TheCaretStaysBehindACharacterThatBecomesThree) {
  Start("frmP2.txt(0)", QString());
  At("frmP2.txt(0)").Typed(QString::fromUtf8("⅓ rose"), 1);
  EXPECT_EQ(At("frmP2.txt(0)").Text(), "1/3 rose");
  EXPECT_EQ(At("frmP2.txt(0)").SelStart(), 3);
}

TEST_F(Typing, AClipboardThatIsTooLargeIsRefusedAndTold) {
  Start("frmP2.txt(0)", QStringLiteral("Roses"));
  EXPECT_EQ(PasteInto(At("frmP2.txt(0)"), QString(10'000'000, QLatin1Char('x'))), QString());
  EXPECT_EQ(typist.desk.said.size(), 1);
  EXPECT_EQ(PasteInto(At("frmP2.txt(35)"), QString(10'000'000, QLatin1Char('7'))), QString());
  EXPECT_EQ(PasteInto(At("frmP2.txt(0)"), QStringLiteral("one\r\ntwo\tthree\r\n")), "one two three");
}

TEST_F(Typing, TheClientsNameNamesAnUnnamedProposal) {
  Start("frmP1.txt(2)", QString());
  typist.Type(QStringLiteral("Emily Carter "));
  EXPECT_EQ(proposal.BaseName + u'|' + proposal.EventFileName + u'|' + proposal.TextFileName + u'|' +
                At("frmP2.lbl(38)").Caption(),
            "Emily Carter|Emily Carter.wwf|Emily Carter.txt|Proposal for Emily Carter");
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
}

TEST_F(Typing, SettlingTakesTheAmountAndLeavesColourAndFocus) {
  SetFocus(At("frmP1.txt(28)"));
  typist.Type(QStringLiteral("80"));
  SettleFocus();
  EXPECT_EQ(proposal.SubTotal, 80);
  EXPECT_EQ(FocusName(), "frmP1.txt(28)");
  EXPECT_EQ(At("frmP1.txt(28)").BackColor(), colors::Cyan);
}

TEST_F(Typing, ARowWhoseStoredFormOutgrowsItsFieldTurnsRed) {
  SetFocus(At("frmP2.txt(0)"));
  typist.Key(keys::F8);
  Control& row = At("frmP2.txt(0)");
  row.SetFontSize(5);  // fifty twips a character: the words alone fit
  row.SetText(
      QString(109, QLatin1Char('x')));  // with two prompts and three separators just what a file holds
  SetFocus(At("frmP2.txtQty(0)"));
  EXPECT_EQ(row.BackColor(), colors::Grey);
  typist.Type(QStringLiteral("12345"));
  EXPECT_EQ(row.BackColor(), colors::Red);
  typist.Key(keys::Backspace);
  EXPECT_EQ(row.BackColor(), colors::Grey);
}

}  // namespace
