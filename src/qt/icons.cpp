#include "qt/icons.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace quillane {

namespace {

constexpr double DisabledOpacity = 0.38;

/// The drawings are made for a light ground.  On a dark one their grey lines become light ones, and the
/// sheets are left unfilled, since a light figure on white could not be read.
QByteArray DrawingFor(const QString& source) {
  QFile file(source);
  if (!file.open(QIODevice::ReadOnly)) return {};
  QByteArray svg = file.readAll();
  if (GroundIsDark()) {
    svg.replace("fill=\"#ffffff\"", "fill=\"none\"");
    svg.replace("#737f90", "#c3cbd6");
  }
  return svg;
}

/// Stands in for a drawing that is missing, so that its button can still be found.
void PaintFallback(QPainter& painter, const QRectF& place) {
  painter.setPen(QPen(QColor(0x73, 0x7f, 0x90), place.width() / 14));
  painter.drawRoundedRect(place.adjusted(3, 3, -3, -3), 3, 3);
}

class DrawingEngine : public QIconEngine {
 public:
  explicit DrawingEngine(QString source) : source_(std::move(source)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (mode == QIcon::Disabled) painter->setOpacity(painter->opacity() * DisabledOpacity);
    QSvgRenderer drawing(DrawingFor(source_));
    if (drawing.isValid())
      drawing.render(painter, QRectF(rect));
    else
      PaintFallback(*painter, QRectF(rect));
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    return scaledPixmap(size, mode, state, 1);
  }

  QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal) override {
    const QString key = QStringLiteral("%1 %2x%3 %4 %5")
                            .arg(source_)
                            .arg(size.width())
                            .arg(size.height())
                            .arg(mode == QIcon::Disabled)
                            .arg(GroundIsDark());
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap)) return pixmap;
    pixmap = QPixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(), size), mode, state);
    painter.end();
    QPixmapCache::insert(key, pixmap);
    return pixmap;
  }

  QIconEngine* clone() const override { return new DrawingEngine(*this); }

 private:
  QString source_;
};

}  // namespace

bool GroundIsDark() {
  return QApplication::palette().color(QPalette::Window).lightness() < 128;
}

QIcon IconOf(const QString& source) {
  return QIcon(new DrawingEngine(source));
}

}  // namespace quillane
