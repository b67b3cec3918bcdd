#include "app/startup.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "app/commands.h"
#include "model/frame.h"
#include "model/proposal.h"
#include "model/upcalls.h"
#include "platform/files.h"
#include "unit/fake_desk.h"

using namespace quillane;

namespace {

void Put(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
  file.write(bytes);
}

class Startup : public ::testing::Test {
 protected:
  Startup() {
    prefs.ProgramFolder = WithSeparator(folder.path());
    ResetState();
    ConnectLayers();
    BuildMenus();
  }
  QTemporaryDir folder;
  test::FakeDesk desk;
};

TEST_F(Startup, ProgramFolderIsFilledOnceAndNeverOverwritten) {
  QTemporaryDir installed, home;
  const QString data = installed.path(), program = home.path() + "/quillane";
  QDir().mkpath(data + "/Wedding Proposals");
  QDir().mkpath(data + "/icons");
  QDir().mkpath(program);
  Put(data + "/UserPreferences.txt", "installed");
  Put(data + "/Wedding Proposals/Event Terms.fut", "terms");
  Put(data + "/icons/new.svg", "drawing");
  Put(program + "/events.jpg", "the user's");
  Put(data + "/events.jpg", "installed");
  QFile::setPermissions(data + "/UserPreferences.txt", QFileDevice::ReadOwner);

  FillProgramFolder(program, data);
  EXPECT_EQ(ReadWholeFile(program + "/UserPreferences.txt"), "installed");
  EXPECT_EQ(ReadWholeFile(program + "/Wedding Proposals/Event Terms.fut"), "terms");
  EXPECT_EQ(ReadWholeFile(program + "/events.jpg"), "the user's");
  EXPECT_FALSE(QFile::exists(program + "/icons"));
  EXPECT_TRUE(QFile::permissions(program + "/UserPreferences.txt") & QFileDevice::WriteOwner);

  QFile::remove(program + "/UserPreferences.txt");
  FillProgramFolder(program, data);
  EXPECT_FALSE(QFile::exists(program + "/UserPreferences.txt")) << "removed preferences must stay removed";
}

TEST_F(Startup, PageButtonsPageStateAndLabelEntriesFollowThePageInFront) {
  struct Case {
    int window, currentPage;
    const char *name, *picture;
    int lastText, lastLabel;
  };
  const Case cases[] = {
      {0, 0, "frmP1", ":/icons/page-1-front.svg", 35, 45},
      {4, 4, "frmP5", ":/icons/page-5-front.svg", 69, 38},
      {6, 4, "frmP6_1", ":/icons/page-copy-front.svg", 5,
       64},  // a view: commands stay with the page last edited
      {5, 5, "frmP6", ":/icons/page-totals-front.svg", 5, 64},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    UpdatePageButtons(c.window);
    EXPECT_EQ(editing.FrontWindow, c.window);
    EXPECT_EQ(editing.CurrentPage, c.currentPage);
    EXPECT_EQ(editing.CurrentForm, &page(c.currentPage));
    EXPECT_EQ(editing.CurrentFormName, c.name);
    EXPECT_EQ(editing.LastTextIndex, c.lastText);
    EXPECT_EQ(editing.LastLabelIndex, c.lastLabel);
    int inFront = 0;
    for (int k = 0; k < PageCount; ++k)
      inFront += frame()[QString("imgPage(%1)").arg(k)].GetPicture().source.endsWith("-front.svg");
    EXPECT_EQ(inFront, 1);
    EXPECT_EQ(frame()[QString("imgPage(%1)").arg(c.window)].GetPicture().source, c.picture);
  }
}

TEST_F(Startup, APageOutsideClearsTheButtonsOnly) {
  UpdatePageButtons(2);
  UpdatePageButtons(9);
  EXPECT_EQ(editing.FrontWindow, 2);
  EXPECT_EQ(frame()["imgPage(2)"].GetPicture().source, ":/icons/page-3.svg");
}

TEST_F(Startup, ScrollBarFitsTheFrameAndMovesTheSheet) {
  struct Case {
    float height;
    int max, large, small;
  };
  for (const Case& c :
       {Case{9000.7F, 6869, 9000, 4500}, Case{15870, 0, 15870, 7935}, Case{20000, 0, 20000, 10000}}) {
    FrameResized(c.height);
    EXPECT_EQ(frame().VScroll1.Max, c.max) << c.height;
    EXPECT_EQ(frame().VScroll1.LargeChange, c.large) << c.height;
    EXPECT_EQ(frame().VScroll1.SmallChange, c.small) << c.height;
  }
  FrameResized(9000);
  UpdatePageButtons(1);
  frame().VScroll1.Value = 3000;
  EXPECT_EQ(frame().sheetTop, -3000);
  editing.SkipScrollChange = true;
  frame().VScroll1.Value = 4000;
  EXPECT_EQ(frame().sheetTop, -3000) << "one change is skipped";
  frame().VScroll1.Value = 5000;
  EXPECT_EQ(frame().sheetTop, -5000);
  UpdatePageButtons(3);
  EXPECT_EQ(frame().VScroll1.Value, 0);
  EXPECT_EQ(frame().sheetTop, 0);
}

TEST_F(Startup, FontsOfTheSameMetricsCountAsInstalled) {
  struct Desk : test::FakeDesk {
    QStringList fonts;
    QStringList ScreenFonts() const override { return fonts; }
  } fontDesk;
  EXPECT_FALSE(FontInstalled("Arial"));
  fontDesk.fonts = {"liberation sans", "DejaVu Sans"};
  EXPECT_TRUE(FontInstalled("arial"));
  EXPECT_FALSE(FontInstalled("Times New Roman"));
  fontDesk.fonts = {"ARIAL"};
  EXPECT_TRUE(FontInstalled("Arial"));
}

TEST_F(Startup, QuittingClosesEverythingAndSurvivesAWindowThatFails) {
  struct Failing : test::FakeDesk {
    void CloseWindow(const QString&) override { throw std::runtime_error("stuck"); }
  } failing;
  QuitApplication();
  EXPECT_TRUE(editing.Quitting);
}

}  // namespace
