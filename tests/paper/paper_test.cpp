#include <gtest/gtest.h>

#include <QDir>
#include <QRegularExpression>

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
    filled.txtQty[static_cast<size_t>(row)].SetText(QStringLiteral("12"));
    filled.txtAmt[static_cast<size_t>(row)].SetText(QStringLiteral("104.50"));
    filled.txt[static_cast<size_t>(row + 1)].SetFontBold(true);
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

}  // namespace
