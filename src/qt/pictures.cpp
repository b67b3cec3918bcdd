#include "qt/pictures.h"

#include <QCache>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QPaintEngine>
#include <QPainter>
#include <QSvgRenderer>
#include <map>
#include <memory>

#include "platform/runtime_error.h"

namespace quillane {

namespace {

// A damaged or hostile header must not take all the memory; what passes can be decoded within the toolkit's
// own limit of 128 MB a picture.
constexpr qint64 MostPixels = 30'000'000;
constexpr float TwipsPerPixel = 15;
constexpr qsizetype CacheKilobytes = 16 * 1024;

bool IsDrawing(const QString& source) {
  return source.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive);
}

/// A file that was replaced by another of the same name is another picture.
QString Stamp(const QString& source) {
  if (source.startsWith(QLatin1Char(':'))) return source;
  const QFileInfo file(source);
  return QStringLiteral("%1|%2|%3").arg(source).arg(file.lastModified().toMSecsSinceEpoch()).arg(file.size());
}

void CheckSize(QSize size, const QString& source) {
  if (size.isEmpty() || qint64{size.width()} * size.height() > MostPixels)
    Raise(errors::InvalidPicture, source);
}

QSvgRenderer& Drawing(const QString& source) {
  static std::map<QString, std::unique_ptr<QSvgRenderer>> drawings;
  std::unique_ptr<QSvgRenderer>& drawing = drawings[source];
  if (!drawing) drawing = std::make_unique<QSvgRenderer>(source);
  if (!drawing->isValid()) Raise(errors::InvalidPicture, source);
  return *drawing;
}

QSize SizeOnDisplay(const QImageReader& reader) {
  const QSize size = reader.size();
  return reader.transformation().testFlag(QImageIOHandler::TransformationRotate90) ? size.transposed() : size;
}

/// The picture, in at most `most` pixels each way; some formats are then much quicker to read.
QImage ReadImage(const QString& source, QSize most = {}) {
  if (!QFileInfo::exists(source)) Raise(errors::FileNotFound, source);
  QImageReader reader(source);
  reader.setAutoTransform(true);
  reader.setDecideFormatFromContent(true);
  CheckSize(reader.size(), source);
  if (!most.isEmpty()) reader.setScaledSize(reader.size().boundedTo(most));
  QImage image = reader.read();
  if (image.isNull()) Raise(errors::InvalidPicture, source);
  return image;
}

constexpr QSize LogoSize(160, 160);  // pixels of the installed logo

/// The installed logo is a JPEG file because a logo must be one, with too few pixels for paper.  Where the
/// file is still that one, byte for byte, the drawing that it was made from stands in for it.
QString DrawingBehind(const QString& source) {
  static const QByteArray installed = [] {
    QFile logo(QStringLiteral(":/events.jpg"));
    return logo.open(QIODevice::ReadOnly) ? logo.readAll() : QByteArray();
  }();
  QFile file(source);
  if (file.size() != installed.size() || !file.open(QIODevice::ReadOnly) || file.readAll() != installed)
    return source;
  return QStringLiteral(":/events.svg");
}

QImage Rendered(const QString& given, QSize pixels) {
  const QString source = DrawingBehind(given);
  if (!IsDrawing(source))
    return ReadImage(source).scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  Drawing(source).render(&painter);
  return image;
}

/// A picture at the size in which it shows, made once.
QImage Scaled(const QString& source, QSize pixels) {
  static QCache<QString, QImage> cache(CacheKilobytes);
  const QString key = QStringLiteral("%1|%2x%3").arg(Stamp(source)).arg(pixels.width()).arg(pixels.height());
  if (const QImage* known = cache.object(key)) return *known;
  QImage image = Rendered(source, pixels);
  cache.insert(key, new QImage(image), image.sizeInBytes() / 1024 + 1);  // the cache owns it
  return image;
}

/// In pixels, once it is sure that the picture can be shown.
QSize SizeOf(const QString& source) {
  if (IsDrawing(source)) {
    const QSize size = Drawing(source).defaultSize();
    CheckSize(size, source);
    return size;
  }
  // Every start meets the installed logo, and needs no decoder for it.
  if (DrawingBehind(source) != source) return LogoSize;
  QImageReader reader(source);
  reader.setAutoTransform(true);
  reader.setDecideFormatFromContent(true);
  const QSize size = SizeOnDisplay(reader);
  CheckSize(size, source);
  // A header says nothing about the rest of the file.
  constexpr int probe = 64;
  ReadImage(source, {probe, probe});
  return size;
}

}  // namespace

Picture ReadPicture(const QString& source) {
  if (!QFileInfo::exists(source)) Raise(errors::FileNotFound, source);
  const QSize size = SizeOf(source);
  return {source, static_cast<float>(size.width()) * TwipsPerPixel,
          static_cast<float>(size.height()) * TwipsPerPixel};
}

void DrawPicture(QPainter& painter, const QString& source, const QRectF& target) {
  if (painter.paintEngine()->type() == QPaintEngine::Raster) {
    const QRectF device = painter.deviceTransform().mapRect(target);
    const QSize pixels = device.size().toSize().expandedTo(QSize(1, 1));
    CheckSize(pixels, source);
    painter.drawImage(target, Scaled(source, pixels));
  } else if (const QString drawing = DrawingBehind(source); IsDrawing(drawing)) {
    Drawing(drawing).render(&painter, target);
  } else {
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, ReadImage(source));
  }
}

}  // namespace quillane
