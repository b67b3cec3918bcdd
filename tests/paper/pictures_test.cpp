#include "qt/pictures.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

#include "platform/files.h"

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

}  // namespace
