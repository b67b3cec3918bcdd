#include <gtest/gtest.h>

#include <QDir>
#include <QRegularExpression>
#include <cerrno>

#include "paper_desk.h"
#include "pdf_text.h"
#include "print/draw.h"
#include "print/print.h"

using namespace quillane;
using namespace quillane::test;

namespace {

class Paper : public testing::Test {
 protected:
  FreshPages fresh;

  void SetUp() override { FillPages(); }

  PdfPage Print(int window) {
    fresh.desk.documents.clear();
    FindPrinter();
    PrintTheForm(page(window));
    EXPECT_EQ(fresh.desk.documents.size(), 1);
    const std::vector<PdfPage> pages = ReadPdf(fresh.desk.documents.value(0));
    EXPECT_EQ(pages.size(), 1U);
    return pages.at(0);
  }
};

QString TextOf(const Control& control) {
  return control.GetKind() == Kind::TextBox ? control.Text() : control.Caption();
}

TEST_F(Paper, PutsEveryTextOfEveryPageAtItsPlaceAndPrintsNothingElse) {
  for (int window = 0; window < PageCount; ++window) {
    const PdfPage sheet = Print(window);
    EXPECT_NEAR(sheet.width, 12240, 1);
    EXPECT_NEAR(sheet.height, 15840, 1);
    qsizetype words = 0;
    for (const Control* control : page(window).Controls()) {
      const QString text = TextOf(*control);
      const bool printed = (control->GetKind() == Kind::TextBox || control->GetKind() == Kind::Label) &&
                           !control->Hidden() && !text.trimmed().isEmpty();
      if (!printed) continue;
      words += text.split(QLatin1Char(' '), Qt::SkipEmptyParts).size();
      const qsizetype blanks = text.size() - QString(text).replace(QRegularExpression("^ +"), "").size();
      float left = control->Left();
      if (control->GetKind() == Kind::TextBox)
        left = PrintedLeft(page(window), *control, TextWidth(control->GetFont(), text));
      left += TextWidth(control->GetFont(), text.left(blanks));
      EXPECT_TRUE(HasTextAt(sheet, text.trimmed(), left, control->Top()))
          << control->FullName().toStdString() << " \"" << text.toStdString() << "\" at " << left << ' '
          << control->Top() << ", found at "
          << (FindText(sheet, text).empty() ? -1 : FindText(sheet, text)[0].left) << ' '
          << (FindText(sheet, text).empty() ? -1 : FindText(sheet, text)[0].top);
    }
    EXPECT_EQ(static_cast<qsizetype>(sheet.words.size()), words) << "on window " << window;
  }
}

TEST_F(Paper, EndsAmountsAtTheRightEdgeOfTheirColumn) {
  for (const auto& [window, index, text, right] : Cases<int, int, QString, float>{
           {0, 28, "1.00", 11520}, {1, 35, "12,345.67", 11340}, {5, 2, "82.18", 4500}}) {
    Control& area = page(window).txt[index];
    PutText(area, text);
    EXPECT_TRUE(HasTextEndingAt(Print(window), text, right, area.Top())) << text.toStdString();
  }
}

TEST_F(Paper, IsAsWideAsTheStatusBarSays) {
  for (const auto& [index, text] :
       Cases<int, QString>{{0, "Garlands"}, {1, "Categories"}, {40, "1,250.75"}}) {
    Control& area = page(1).txt[index];
    {
      const Scoped building(editing.RebuildingPages, true);
      area.SetText(text);
      area.SetFontItalic(true);  // the user's own, which is the screen's only
      area.SetFontBold(index == 1);
    }
    const std::vector<PdfWord> found = FindText(Print(1), text);
    ASSERT_EQ(found.size(), 1U) << text.toStdString();
    EXPECT_NEAR(found[0].right - found[0].left, PrinterTextWidth(area, text) * 1440, 4) << text.toStdString();
  }
}

TEST_F(Paper, KeepsEveryCharacterOfTheCodePageAsText) {
  const QString text = QString::fromUtf8("Sofía Marín-Núñez – “€ 5” ½ Œuvre");
  PutText(page(0).txt[2], text);
  EXPECT_TRUE(HasTextAt(Print(0), text, page(0).txt[2].Left(), page(0).txt[2].Top()));
}

TEST_F(Paper, ReplacesTheFileOfTheLastPrintAndKeepsItWhenTheNextFails) {
  proposal.BaseName = QStringLiteral("Emily Carter");
  Print(1);
  const QString path = fresh.desk.documents.value(0);
  EXPECT_EQ(path, prefs.ProposalFolder + QStringLiteral("Emily Carter - Page 2.pdf"));
  PutText(page(1).txt[0], QStringLiteral("Later"));
  EXPECT_FALSE(FindText(Print(1), QStringLiteral("Later")).empty());
  BreakDisk("write", ENOSPC);
  PutText(page(1).txt[0], QStringLiteral("Lost"));
  EXPECT_FALSE(FindText(Print(1), QStringLiteral("Later")).empty());
  MendDisk();
  EXPECT_TRUE(fresh.desk.said.value(0).contains(QStringLiteral("PrintTheForm")));
  EXPECT_EQ(
      QDir(prefs.ProposalFolder).entryList({QStringLiteral("*.pdf")}, QDir::Files | QDir::Hidden).size(), 1);
}

}  // namespace
