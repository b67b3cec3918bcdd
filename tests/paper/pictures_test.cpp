#include "qt/pictures.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

#include "platform/files.h"
#include "platform/runtime_error.h"

using namespace quillane;

namespace {

QByteArray Contents(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
  return file.readAll();
}

/// Whether a picture comes on paper as dots and not as lines.
bool PrintsAsDots(const QString& picture, const QString& pdf) {
  {
    QPdfWriter writer(pdf);
    QPainter painter(&writer);
    DrawPicture(painter, picture, QRectF(100, 100, 2400, 2400));
  }
  return Contents(pdf).contains("/Subtype /Image");
}

TEST(Pictures, PrintTheInstalledLogoSharpAndAnyOtherAsItIs) {
  const QTemporaryDir folder;
  const QString logo = folder.filePath(QStringLiteral("events.jpg")),
                pdf = folder.filePath(QStringLiteral("a.pdf"));
  const QByteArray installed = Contents(QStringLiteral(":/events.jpg"));
  ReplaceFile(logo, installed);
  EXPECT_FALSE(PrintsAsDots(logo, pdf));
  EXPECT_EQ(ReadPicture(logo).width, 2400) << "its size is the file's";
  ReplaceFile(logo, installed + '\n');
  EXPECT_TRUE(PrintsAsDots(logo, pdf)) << "another file of the same name";
}

TEST(Pictures, RefuseWhatOnlyLooksLikeAPicture) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("logo.bmp"));
  // Bitmaps that are all header: of 100 by 100 pixels, and of 20,000 by 10,000.
  const QByteArray start = QByteArray::fromHex("424D00000000000000003600000028000000"),
                   end =
                       QByteArray::fromHex("0100180000000000000000000000000000000000") + QByteArray(8, '\0');
  const auto refusal = [&path](const QByteArray& bytes) {
    ReplaceFile(path, bytes);
    try {
      ReadPicture(path);
    } catch (const RuntimeError& error) {
      return error.Number();
    }
    return 0;
  };
  for (const char* size : {"6400000064000000", "204E000010270000"})
    EXPECT_EQ(refusal(start + QByteArray::fromHex(size) + end), errors::InvalidPicture) << size;
  for (const char* bytes : {"", "no picture"}) EXPECT_EQ(refusal(bytes), errors::InvalidPicture) << bytes;
  EXPECT_EQ(refusal(Contents(QStringLiteral(":/icons/no-tax.svg"))), 0);
}

}  // namespace
