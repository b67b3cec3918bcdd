#include "qt/pictures.h"

#include <QBuffer>
#include <QCache>
#include <QImageReader>
#include <QPaintEngine>
#include <QPainter>
#include <QSvgRenderer>
#include <map>
#include <memory>

#include "platform/files.h"
#include "platform/runtime_error.h"

namespace quillane {

namespace {

constexpr qint64 MostPixels = 100'000'000;  // a damaged or hostile header must not take all the memory
constexpr float TwipsPerPixel = 15;
constexpr qsizetype CacheKilobytes = 16 * 1024;

constexpr size_t KeptFiles = 4;

/// The program's own drawings; a picture of the user's is always a file.
bool IsDrawing(const QString& source) {
  return source.startsWith(QLatin1Char(':'));
}

/// The files of the pictures in use as they were when they were loaded: a share that goes away takes no logo
/// along, and painting never waits for it.
std::map<QString, QByteArray>& Files() {
  static std::map<QString, QByteArray> files;
  return files;
}

QCache<QString, QImage>& ScaledImages() {
  static QCache<QString, QImage> images(CacheKilobytes);
  return images;
}

const QByteArray& LoadFile(const QString& source) {
  if (Files().size() >= KeptFiles) Files().clear();
  ScaledImages().clear();
  return Files()[source] = ReadWholeFile(source);
}

const QByteArray& FileOf(const QString& source) {
  const auto known = Files().find(source);
  return known != Files().end() ? known->second : LoadFile(source);
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

/// Reads from memory; `file` must outlive the reader.
struct MemoryReader {
  explicit MemoryReader(const QByteArray& file) {
    buffer.setData(file);
    buffer.open(QIODevice::ReadOnly);
    reader.setDevice(&buffer);
    reader.setAutoTransform(true);
  }
  QBuffer buffer;
  QImageReader reader;
};

QImage ReadImage(const QString& source) {
  MemoryReader memory(FileOf(source));
  CheckSize(memory.reader.size(), source);
  QImage image = memory.reader.read();
  if (image.isNull()) Raise(errors::InvalidPicture, source);
  return image;
}

QImage Rendered(const QString& source, QSize pixels) {
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
  const QString key = QStringLiteral("%1|%2x%3").arg(source).arg(pixels.width()).arg(pixels.height());
  if (const QImage* known = ScaledImages().object(key)) return *known;
  QImage image = Rendered(source, pixels);
  ScaledImages().insert(key, new QImage(image), image.sizeInBytes() / 1024 + 1);  // the cache owns it
  return image;
}

}  // namespace

Picture ReadPicture(const QString& source) {
  QSize size;
  if (IsDrawing(source)) {
    size = Drawing(source).defaultSize();
  } else {
    MemoryReader memory(LoadFile(source));
    size = SizeOnDisplay(memory.reader);
  }
  CheckSize(size, source);
  return {source, static_cast<float>(size.width()) * TwipsPerPixel,
          static_cast<float>(size.height()) * TwipsPerPixel};
}

void DrawPicture(QPainter& painter, const QString& source, const QRectF& target) {
  if (painter.paintEngine()->type() == QPaintEngine::Raster) {
    const QRectF device = painter.deviceTransform().mapRect(target);
    const QSize pixels = device.size().toSize().expandedTo(QSize(1, 1));
    CheckSize(pixels, source);
    painter.drawImage(target, Scaled(source, pixels));
  } else if (IsDrawing(source)) {
    Drawing(source).render(&painter, target);
  } else {
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, ReadImage(source));
  }
}

}  // namespace quillane
