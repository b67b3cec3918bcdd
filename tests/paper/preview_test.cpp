#include "print/preview.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QProcess>
#include <algorithm>
#include <cmath>

#include "paper_desk.h"
#include "platform/files.h"
#include "print/draw.h"
#include "print/print.h"
#include "sheet/sheet_view.h"

using namespace quillane;
using namespace quillane::test;

namespace {

constexpr int Dpi = 150;
constexpr QSize SheetSize(1275, 1650);  // letter at that resolution

/// Where a picture has ink: 0 for white to 255, whatever the colour.
class Ink {
 public:
  explicit Ink(const QImage& picture) : image_(picture.convertToFormat(QImage::Format_RGB32)) {}

  int At(int x, int y) const {
    const QRgb pixel = image_.pixel(x, y);
    return 255 - std::min({qRed(pixel), qGreen(pixel), qBlue(pixel)});
  }
  int StrongestAround(int x, int y, int reach) const {
    int strongest = 0;
    for (int j = std::max(0, y - reach); j <= std::min(image_.height() - 1, y + reach); ++j)
      for (int i = std::max(0, x - reach); i <= std::min(image_.width() - 1, x + reach); ++i)
        strongest = std::max(strongest, At(i, j));
    return strongest;
  }
  QSize Size() const { return image_.size(); }

 private:
  QImage image_;
};

struct Strays {
  int ink = 0, strays = 0;
  QPoint first;
};

/// The clearly inked pixels of `one` near which `other` has none: two rasterisers soften edges differently,
/// but put every letter into the same pixels.
Strays InkOnlyIn(const Ink& one, const Ink& other) {
  constexpr int clear = 150, faint = 40;
  Strays found;
  for (int y = 0; y < one.Size().height(); ++y)
    for (int x = 0; x < one.Size().width(); ++x) {
      if (one.At(x, y) < clear) continue;
      ++found.ink;
      if (other.StrongestAround(x, y, 1) >= faint) continue;
      if (found.strays++ == 0) found.first = {x, y};
    }
  return found;
}

class PreviewOnPaper : public testing::Test {
 protected:
  FreshPages fresh;
  SheetView view;

  void SetUp() override {
    view.setAttribute(Qt::WA_DontShowOnScreen);
    view.SetZoom(Dpi / 96.0);
    view.resize(SheetSize);
    view.show();
    FillPages();
    AddLogo();
  }

  void AddLogo() const {
    const QString path = prefs.ProposalFolder + QStringLiteral("logo.png");
    QImage logo(200, 100, QImage::Format_RGB32);
    logo.fill(qRgb(20, 90, 60));
    ASSERT_TRUE(logo.save(path));
    page(0).pic[0].SetPicture({path, 3000, 1500});
    page(0).pic[0].SetShown(true);
  }

  QImage OnScreen(int window) {
    view.ShowPage(window);
    view.SetDrawMode(DrawMode::Printing);
    return view.grab().toImage();
  }

  QImage OnPaper(int window) {
    fresh.desk.documents.clear();
    FindPrinter();
    PrintTheForm(page(window));
    EXPECT_EQ(fresh.desk.documents.size(), 1);
    const QString picture = prefs.ProposalFolder + QStringLiteral("sheet");
    QProcess renderer;
    renderer.start(QStringLiteral("pdftoppm"),
                   {QStringLiteral("-r"), QString::number(Dpi), QStringLiteral("-png"),
                    QStringLiteral("-singlefile"), fresh.desk.documents.value(0), picture});
    EXPECT_TRUE(renderer.waitForFinished() && renderer.exitCode() == 0);
    return QImage(picture + QStringLiteral(".png"));
  }
};

TEST_F(PreviewOnPaper, IsTheSamePictureAsThePrint) {
  for (int window = 0; window < PageCount; ++window) {
    SCOPED_TRACE(window);
    const Ink screen(OnScreen(window)), paper(OnPaper(window));
    ASSERT_EQ(screen.Size(), SheetSize);
    ASSERT_EQ(paper.Size(), SheetSize);
    const Strays onScreen = InkOnlyIn(screen, paper), onPaper = InkOnlyIn(paper, screen);
    EXPECT_GT(onScreen.ink, 5000) << "a page of text has that much ink";
    EXPECT_EQ(onScreen.strays, 0) << "of " << onScreen.ink << ", the first at " << onScreen.first.x() << ' '
                                  << onScreen.first.y();
    EXPECT_EQ(onPaper.strays, 0) << "of " << onPaper.ink << ", the first at " << onPaper.first.x() << ' '
                                 << onPaper.first.y();
  }
}

TEST_F(PreviewOnPaper, WouldNoticeOneLetterElsewhere) {
  const Ink paper(OnPaper(1));
  {
    const Scoped building(editing.RebuildingPages, true);
    page(1).txt[7].SetLeft(page(1).txt[7].Left() + 30);  // three pixels
  }
  EXPECT_GT(InkOnlyIn(Ink(OnScreen(1)), paper).strays, 5);
}

TEST_F(PreviewOnPaper, KnowsNoOffsetsAndNoSelection) {
  ReplaceFile(prefs.ProposalFolder + QStringLiteral("PrinterOffsets.txt"),
              "Printer X Offset: .5\r\nPrinter Y Offset: .5\r\n");
  const QImage before = OnScreen(1);
  ReadPrinterOffsets();
  page(1).txt[3].SetBackColor(colors::Blue);
  page(1).txt[3].SetForeColor(colors::White);
  EXPECT_EQ(printing.PrinterXOffset, 720);
  EXPECT_EQ(OnScreen(1), before);
}

}  // namespace
