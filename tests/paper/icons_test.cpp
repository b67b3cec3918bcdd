#include "qt/icons.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPalette>

using namespace quillane;

namespace {

/// The greys of a drawing, as lightness from 0 to 255, between its darkest and its lightest.
std::pair<int, int> GreysOf(const QString& drawing, const QColor& ground) {
  const QPalette before = QApplication::palette();
  QApplication::setPalette(QPalette(ground));
  const QImage image = IconOf(drawing).pixmap(96, 96).toImage().convertToFormat(QImage::Format_ARGB32);
  QApplication::setPalette(before);
  std::pair<int, int> greys(255, 0);
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (const QColor pixel = image.pixelColor(x, y); pixel.alpha() == 255 && pixel.hslSaturation() < 60)
        greys = {qMin(greys.first, pixel.lightness()), qMax(greys.second, pixel.lightness())};
  return greys;
}

TEST(Icons, AreDarkLinesOnALightGroundAndLightLinesOnADarkOne) {
  QStringList drawings = QDir(QStringLiteral(":/icons")).entryList({QStringLiteral("*.svg")});
  // The program's mark and the page in front have a ground of their own; the tax mark is drawn on paper only.
  drawings.removeIf([](const QString& name) {
    return name == QLatin1String("quillane.svg") || name == QLatin1String("no-tax.svg") ||
           name.endsWith(QLatin1String("-front.svg"));
  });
  ASSERT_FALSE(drawings.isEmpty());
  for (const QString& name : drawings) {
    const QString drawing = QStringLiteral(":/icons/") + name;
    EXPECT_LT(GreysOf(drawing, QColor(0xef, 0xef, 0xef)).first, 150) << qPrintable(name);
    EXPECT_GT(GreysOf(drawing, QColor(0x31, 0x36, 0x3b)).first, 170) << qPrintable(name);
  }
}

}  // namespace
