#include <gtest/gtest.h>

#include <QDir>
#include <QRegularExpression>
#include <cerrno>

#include "paper_desk.h"
#include "pdf_text.h"
#include "platform/files.h"
#include "platform/runtime_error.h"
#include "print/draw.h"
#include "print/print.h"

using namespace quillane;
using namespace quillane::test;

namespace {

class Paper : public testing::Test {
 protected:
  FreshPages fresh;

  void SetUp() override {
    const Scoped building(editing.RebuildingPages, true);
    for (int window = 0; window < PageCount; ++window) Fill(page(window));
  }

  static void Fill(Page& filled) {
    for (Control& area : filled.txt) {
      const bool amount = IsNumericArea(area);
      area.SetText(amount ? QStringLiteral("1,2%1.50").arg(area.Index() + 10)
                          : QStringLiteral("Line%1 of garden roses").arg(area.Index()));
    }
    if (!filled.IsItemPage()) return;
    const int row = filled.FirstRow() + 3;
    ShowRowColumns(filled, row, true);
    filled.txtQty[row].SetText(QStringLiteral("12"));
    filled.txtAmt[row].SetText(QStringLiteral("104.50"));
    filled.txt[row + 1].SetFontBold(true);
  }

  PdfPage Print(int window) {
    editing.CurrentFormName = page(window).form.name;
    fresh.desk.documents.clear();
    FindPrinter();
    PrintTheForm();
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
  struct Case {
    int window;
    int area;
    const char* text;
    float right;
  };
  constexpr Case cases[] = {{0, 28, "1.00", 11520},
                            {1, 35, "12,345.67", 11340},
                            {4, 69, "-3.50", 11340},
                            {5, 2, "82.18", 4500},
                            {6, 5, "9,999.00", 11160}};
  for (const Case& given : cases) {
    PutText(page(given.window).txt[given.area], QString::fromLatin1(given.text));
    const PdfPage sheet = Print(given.window);
    EXPECT_TRUE(HasTextEndingAt(sheet, QString::fromLatin1(given.text), given.right,
                                page(given.window).txt[given.area].Top()))
        << given.text;
  }
}

TEST_F(Paper, IsAsWideAsTheStatusBarSays) {
  struct Case {
    int area;
    const char* text;
  };
  constexpr Case cases[] = {{0, "Garlands"}, {1, "Categories"}, {2, "Wisteria-and-smilax"}, {40, "1,250.75"}};
  for (const Case& given : cases) {
    const QString text = QString::fromLatin1(given.text);
    Control& area = page(1).txt[given.area];
    {
      const Scoped building(editing.RebuildingPages, true);
      area.SetText(text);
      area.SetFontItalic(true);  // the user's own, which is the screen's only
      area.SetFontBold(given.area == 1);
    }
    const std::vector<PdfWord> found = FindText(Print(1), text);
    ASSERT_EQ(found.size(), 1U) << given.text;
    EXPECT_NEAR(found[0].right - found[0].left, PrinterTextWidth(area, text) * 1440, 4) << given.text;
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
  SetFaultHook([](const char* step, const QString&) {
    return QLatin1String(step) == QLatin1String("write") ? ENOSPC : 0;
  });
  PutText(page(1).txt[0], QStringLiteral("Lost"));
  EXPECT_FALSE(FindText(Print(1), QStringLiteral("Later")).empty());
  SetFaultHook(nullptr);
  EXPECT_TRUE(fresh.desk.said.value(0).contains(QStringLiteral("PrintTheForm")));
  EXPECT_EQ(
      QDir(prefs.ProposalFolder).entryList({QStringLiteral("*.pdf")}, QDir::Files | QDir::Hidden).size(), 1);
}

TEST_F(Paper, RefusesAPictureThatIsTooLargeOrNone) {
  const auto refusal = [](const QString& source) {
    try {
      ReadPicture(source);
    } catch (const RuntimeError& error) {
      return error.Number();
    }
    return 0;
  };
  // A bitmap that is all header: it claims 20,000 by 20,000 pixels.
  QByteArray huge =
      QByteArray::fromHex("424d36000000000000003600000028000000204e0000204e00000100180000000000");
  huge.append(64, '\0');
  const QString path = prefs.ProposalFolder + QStringLiteral("huge.bmp");
  ReplaceFile(path, huge);
  ReplaceFile(prefs.ProposalFolder + QStringLiteral("words.jpg"), "no picture");
  EXPECT_EQ(refusal(path), errors::InvalidPicture);
  EXPECT_EQ(refusal(prefs.ProposalFolder + QStringLiteral("words.jpg")), errors::InvalidPicture);
  EXPECT_EQ(refusal(prefs.ProposalFolder + QStringLiteral("gone.jpg")), errors::FileNotFound);
  EXPECT_EQ(refusal(QStringLiteral(":/icons/no-tax.svg")), 0);
}

}  // namespace
