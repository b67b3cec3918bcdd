#include "qt/openers.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "platform/files.h"
#include "unit/cases.h"

using namespace quillane;
using namespace quillane::test;

namespace {

/// A desktop that has a program for texts and for nothing else.
class Openers : public testing::Test {
 protected:
  QTemporaryDir folder;
  const QByteArray path = qgetenv("PATH");

  QString Path(const char* name) const { return folder.filePath(QString::fromLatin1(name)); }
  void SetUp() override {
    ReplaceFile(Path("xdg-mime"), "#!/bin/sh\n[ \"$3\" = text/plain ] && echo editor.desktop\nexit 0\n");
    QFile::setPermissions(Path("xdg-mime"), QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    qputenv("PATH", QFile::encodeName(folder.path()));
  }
  void TearDown() override { qputenv("PATH", path); }
};

TEST_F(Openers, KnowWhatTheDesktopCannotOpen) {
  const Cases<const char*, const char*, bool> cases = {{"report.txt", "words", true},
                                                       {"page.html", "<html></html>", true},  // a text too
                                                       {"report.odt", "PK", false},
                                                       {"sheet.pdf", "%PDF-1.4", false}};
  for (const auto& [file, bytes, opens] : cases) {
    ReplaceFile(Path(file), bytes);
    EXPECT_EQ(DesktopOpens(Path(file)), opens) << file;
  }
  QFile::remove(Path("xdg-mime"));
  EXPECT_TRUE(DesktopOpens(Path("report.odt"))) << "nobody to ask";
}

}  // namespace
