#include "platform/files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cerrno>

#include "cases.h"
#include "platform/runtime_error.h"

using namespace quillane;
using namespace quillane::test;

namespace {

class Files : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(temporary.isValid());
    folder = temporary.path() + u'/';
    SetDrivesFolder(folder + "drives");
  }
  void TearDown() override {
    MendDisk();
    SetDrivesFolder({});
  }
  void Put(const QString& name, const QByteArray& bytes) const { ReplaceFile(folder + name, bytes); }
  QByteArray Get(const QString& name) const { return ReadWholeFile(folder + name); }
  QStringList Everything() const {
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                                  QDir::Name);
  }

  QTemporaryDir temporary;
  QString folder;
};

template <class Body>
int ErrorOf(Body body) {
  try {
    body();
  } catch (const RuntimeError& error) {
    EXPECT_FALSE(error.Description().isEmpty());
    return error.Number();
  }
  return 0;
}

TEST_F(Files, AFailingStepLeavesTheOldFileAndNoOther) {
  const Cases<const char*, int, int> cases = {
      {"open", EACCES, errors::PermissionDenied}, {"open", ENOENT, errors::PathNotFound},
      {"write", ENOSPC, errors::DiskFull},        {"flush", EDQUOT, errors::DiskFull},
      {"sync", EIO, errors::PathFileAccess},      {"rename", EROFS, errors::PermissionDenied},
      {"syncdir", EIO, errors::PathFileAccess}};
  for (const auto& [step, error, number] : cases) {
    MendDisk();
    Put("Emily Carter.wwf", "the old proposal");
    BreakDisk(step, error);
    EXPECT_EQ(ErrorOf([&] { Put("Emily Carter.wwf", "new"); }), number) << step;
    EXPECT_EQ(ErrorOf([&] { Put("Another.wwf", "new"); }), number) << step;
    EXPECT_EQ(Get("Emily Carter.wwf"), "the old proposal") << step;
    EXPECT_EQ(Everything(), QStringList{"Emily Carter.wwf"}) << step;
  }
}

TEST_F(Files, AFileSystemThatCannotSyncAFolderIsNoFailure) {
  BreakDisk("syncdir", EINVAL);
  Put("a.txt", "one");
  Put("a.txt", "two");
  EXPECT_EQ(Get("a.txt"), "two");
  EXPECT_EQ(Everything(), QStringList{"a.txt"});
}

TEST_F(Files, AReplacementKeepsNameModeAndLink) {
  Put("Terms.fut", "old");
  ::chmod(QFile::encodeName(folder + "Terms.fut").constData(), 0444);
  Put("TERMS.FUT", "new");
  EXPECT_EQ(Everything(), QStringList{"Terms.fut"});
  EXPECT_EQ(Get("terms.fut"), "new");
  EXPECT_EQ(QFile(folder + "Terms.fut").permissions() & QFile::WriteOwner, QFile::WriteOwner);

  QFile::link(folder + "Terms.fut", folder + "shortcut.fut");
  Put("shortcut.fut", "through the link");
  EXPECT_TRUE(QFileInfo(folder + "shortcut.fut").isSymLink());
  EXPECT_EQ(Get("Terms.fut"), "through the link");
}

TEST_F(Files, AFolderThatBecameAnotherDriveIsAFailure) {
  if (QTemporaryDir other("/dev/shm/quillane-XXXXXX"); other.isValid()) {
    struct stat here {
    }, there{};
    ::stat(QFile::encodeName(folder).constData(), &here);
    ::stat(QFile::encodeName(other.path()).constData(), &there);
    if (here.st_dev == there.st_dev) GTEST_SKIP() << "there is one device only";
    QDir(folder).mkdir("home");
    QDir(folder).mkdir("drives");
    QFile::link(other.path(), folder + "drives/F");
    ReplaceFile("F:\\party.wwf", "whole");
    QFile::remove(folder + "drives/F");
    QFile::link(folder + "home", folder + "drives/F");
    EXPECT_EQ(ErrorOf([] { ReplaceFile("F:\\party.wwf", "lost"); }), errors::PathFileAccess);
    EXPECT_EQ(ErrorOf([] { WriteAt("F:\\party.wwf", 1, "lost"); }), errors::PathFileAccess);
    EXPECT_TRUE(QDir(folder + "home").isEmpty());
    QFile::remove(folder + "drives/F");
    QFile::link(other.path(), folder + "drives/F");
    ReplaceFile("F:\\party.wwf", "back again");
    EXPECT_EQ(ReadWholeFile("f:/party.wwf"), "back again");
  } else {
    GTEST_SKIP() << "no second device";
  }
}

TEST_F(Files, PathsTakeEitherSeparatorAnyCaseAndDriveLetters) {
  QDir(folder).mkpath("drives/f/Wedding Proposals/Backup");
  Put("drives/f/Wedding Proposals/Ana.wwf", "x");
  const QString root = folder + "drives/f";
  const Cases<QString, QString> cases = {
      {"F:\\Wedding Proposals\\Ana.wwf", root + "/Wedding Proposals/Ana.wwf"},
      {"f:/wedding proposals/ANA.WWF", root + "/Wedding Proposals/Ana.wwf"},
      {"F:", root},
      {"F:\\", root + "/"},
      {"F:\\wedding proposals\\New One.wwf", root + "/Wedding Proposals/New One.wwf"},
      {"F:\\Nowhere\\backup\\x", root + "/Nowhere/backup/x"},
      {folder + "DRIVES\\F\\Wedding Proposals\\", root + "/Wedding Proposals/"}};
  for (const auto& [stored, found] : cases) EXPECT_EQ(ResolvePath(stored), found);

  EXPECT_TRUE(FolderExists("F:", "WEDDING PROPOSALS"));
  EXPECT_FALSE(FolderExists("F:\\Wedding Proposals", "Ana.wwf"));
  EXPECT_TRUE(FileExists("F:\\Wedding Proposals\\", "ana.wwf"));
  EXPECT_FALSE(FileExists("F:\\Wedding Proposals\\", "Backup"));
  EXPECT_FALSE(FileExists("F:\\Wedding Proposals\\", ""));
  EXPECT_EQ(WithSeparator("F:\\x"), "F:\\x/");
  EXPECT_EQ(WithSeparator("F:\\"), "F:/");
  EXPECT_EQ(WithSeparator("/a/"), "/a/");
}

TEST_F(Files, AMissingDriveSaysHowToMakeIt) {
  try {
    ResolvePath("G:\\Wedding Proposals");
    FAIL();
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), errors::PathNotFound);
    EXPECT_TRUE(error.Description().contains("no drive G:")) << error.what();
    EXPECT_TRUE(error.Description().contains(folder + "drives/G")) << error.what();
  }
}

TEST_F(Files, ListsAreByNameWithoutRegardToCase) {
  for (const char* name : {"b.JPG", "A.jpg", "c.bmp", "d.txt", ".hidden.jpg"})
    Put(QString::fromLatin1(name), "x");
  QDir(folder).mkdir("Folder.jpg");
  EXPECT_EQ(ListFiles(folder, "*.jpg;*.bmp"), (QStringList{".hidden.jpg", "A.jpg", "b.JPG", "c.bmp"}));
  EXPECT_EQ(ListFolders(folder), QStringList{"Folder.jpg"});
  EXPECT_EQ(ErrorOf([&] { ListFiles(folder + "none", "*"); }), errors::PathNotFound);
  EXPECT_EQ(ErrorOf([&] { FolderExists(folder + "none", "x"); }), errors::PathNotFound);
}

TEST_F(Files, LinesComeWithoutTheirEnds) {
  const Cases<QByteArray, QList<QByteArray>> cases = {{"", {}},
                                                      {"one", {"one"}},
                                                      {"one\r\ntwo\r\n", {"one", "two"}},
                                                      {"one\ntwo", {"one", "two"}},
                                                      {"\r\n\r\n", {"", ""}},
                                                      {"a\rb\r\n", {"a\rb"}}};
  for (const auto& [bytes, lines] : cases) {
    Put("lines", bytes);
    EXPECT_EQ(ReadFileLines(folder + "lines"), lines) << bytes.constData();
  }
}

TEST_F(Files, WritingAtAPlaceKeepsTheRest) {
  WriteAt(folder + "log", 1, "0123456789");
  WriteAt(folder + "log", 3, "ab");
  EXPECT_EQ(Get("log"), "01ab456789");
  WriteAt(folder + "log", 13, "z");
  EXPECT_EQ(Get("log"), QByteArray("01ab456789\0\0z", 13));
  BreakDisk("write", ENOSPC);
  EXPECT_EQ(ErrorOf([&] { WriteAt(folder + "log", 1, "x"); }), errors::DiskFull);
}

TEST_F(Files, RemovingRenamingAndCopyingSayWhatIsInTheWay) {
  Put("a.wef", "one");
  Put("b.wwf", "two");
  EXPECT_EQ(ErrorOf([&] { RenameFile(folder + "a.wef", folder + "B.WWF"); }), errors::FileExists);
  EXPECT_EQ(ErrorOf([&] { RenameFile(folder + "none", folder + "x"); }), errors::FileNotFound);
  RenameFile(folder + "a.wef", folder + "A.WEF");
  EXPECT_EQ(Everything(), (QStringList{"A.WEF", "b.wwf"}));
  CopyFileOver(folder + "a.wef", folder + "b.wwf");
  EXPECT_EQ(Get("b.wwf"), "one");

  ::chmod(QFile::encodeName(folder + "b.wwf").constData(), 0444);
  RemoveFile(folder + "B.wwf");
  EXPECT_EQ(Everything(), QStringList{"A.WEF"});
  EXPECT_EQ(ErrorOf([&] { RemoveFile(folder + "b.wwf"); }), errors::FileNotFound);
  EXPECT_EQ(ErrorOf([&] { ReadWholeFile(folder + "b.wwf"); }), errors::FileNotFound);
  EXPECT_EQ(ErrorOf([&] { ReadWholeFile(folder + "none/b.wwf"); }), errors::PathNotFound);
  EXPECT_EQ(ErrorOf([&] { ReadWholeFile(folder); }), errors::PathFileAccess);
  EXPECT_EQ(ErrorOf([&] { Put("none/b.wwf", "x"); }), errors::PathNotFound);
  EXPECT_EQ(ErrorOf([&] { RemoveFile(folder); }), errors::PathFileAccess);

  const QString cut = folder + "b.wwf" + QChar::Null + ".txt";
  Put("b.wwf", "kept");
  EXPECT_EQ(ErrorOf([&] { RemoveFile(cut); }), errors::PathFileAccess);
  EXPECT_EQ(ErrorOf([&] { ReplaceFile(cut, "x"); }), errors::PathFileAccess);
  EXPECT_EQ(ErrorOf([&] { Put(QString(300, u'x'), "x"); }), errors::PathFileAccess);
  EXPECT_EQ(Get("b.wwf"), "kept");

  MakeFolder(folder + "Backup");
  EXPECT_EQ(ErrorOf([&] { MakeFolder(folder + "BACKUP"); }), errors::PathFileAccess);
  EXPECT_EQ(ErrorOf([&] { MakeFolder(folder + "none/x"); }), errors::PathNotFound);
  EXPECT_EQ(ErrorOf([&] { Put("Backup", "x"); }), errors::PathFileAccess);
  EXPECT_EQ(ErrorOf([&] { FileTime(folder + "none"); }), errors::FileNotFound);
  EXPECT_TRUE(FileTime(folder + "a.wef").isValid());
}

}  // namespace
