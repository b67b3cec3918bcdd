#include "app/startup.h"

#include <QFile>

#include "connected_program.h"
#include "editing/navigation.h"

using namespace quillane;
using namespace quillane::test;

namespace {

using Startup = ConnectedProgram;

TEST_F(Startup, ProgramFolderIsFilledOnceAndNeverOverwritten) {
  for (const char* made : {"data/Wedding Proposals", "data/Help", "data/icons", "home"})
    QDir(Path("")).mkpath(made);
  Put("data/UserPreferences.txt", "installed");
  Put("data/Wedding Proposals/Event Terms.fut", "terms");
  Put("data/Help/index.htm", "help");
  Put("data/icons/new.svg", "drawing");
  Put("data/events.jpg", "installed");
  Put("home/events.jpg", "the user's");
  QFile::setPermissions(Path("data/UserPreferences.txt"), QFileDevice::ReadOwner);

  FillProgramFolder(Path("home"), Path("data"));
  EXPECT_EQ(Get("home/UserPreferences.txt"), "installed");
  EXPECT_EQ(Get("home/Wedding Proposals/Event Terms.fut"), "terms");
  EXPECT_EQ(Get("home/events.jpg"), "the user's");
  EXPECT_FALSE(QFile::exists(Path("home/icons")));
  EXPECT_TRUE(QFile::permissions(Path("home/UserPreferences.txt")) & QFileDevice::WriteOwner);

  QFile::remove(Path("home/UserPreferences.txt"));
  FillProgramFolder(Path("home"), Path("data"));
  EXPECT_FALSE(QFile::exists(Path("home/UserPreferences.txt"))) << "removed preferences must stay removed";

  Put("data/Help/index.htm", "newer help");
  FillProgramFolder(Path("home"), Path("data"));
  EXPECT_EQ(Get("home/Help/index.htm"), "help") << "the same version looks at one file only";
  Put("home/.filled", "0.0.1");
  FillProgramFolder(Path("home"), Path("data"));
  EXPECT_EQ(Get("home/Help/index.htm"), "newer help");
  EXPECT_EQ(Get("home/events.jpg"), "the user's");
  EXPECT_FALSE(QFile::exists(Path("home/UserPreferences.txt")));
}

TEST_F(Startup, APageOutsideClearsTheButtonsOnly) {
  UpdatePageButtons(2);
  UpdatePageButtons(9);
  EXPECT_EQ(editing.FrontWindow(), 2);
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
  struct Desk : FakeDesk {
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
  struct Failing : FakeDesk {
    void CloseWindow(const QString&) override { throw std::runtime_error("stuck"); }
  } failing;
  QuitApplication();
  EXPECT_TRUE(editing.Quitting);
}

}  // namespace
