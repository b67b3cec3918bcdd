#include "files/logo.h"

#include <cerrno>

#include "proposal_fixture.h"

using namespace quillane;
using namespace quillane::test;

namespace {

class LogoTest : public ProposalTest {
 protected:
  void SetUp() override {
    ProposalTest::SetUp();
    frame().AddMenu("mnuEditLogoBorder", {});
    PutPreferences();
    before_ = Stored();
    prefs.LogoVisible = true;
    prefs.LogoLeft = 720;
    prefs.LogoTop = 540;
  }
  static QStringList Stored() {
    return QString::fromLatin1(ReadWholeFile(prefs.ProgramFolder + "UserPreferences.txt")).split("\r\n");
  }
  bool NothingStored() const { return Stored() == before_; }
  static Control& Pic() { return page(0).pic[0]; }
  static bool Checked(const char* entry) { return frame()[QString::fromLatin1(entry)].Checked(); }

  QStringList before_;
};

class BadPictureDesk : public test::FakeDesk {
  Picture LoadPicture(const QString& path) override { Raise(errors::InvalidPicture, path); }
};

TEST_F(LogoTest, ShowsAsTheSettingSaysThatCouldBeStored) {
  ToggleLogoVisible();
  ToggleLogoBorder();
  EXPECT_TRUE(NothingStored() && !Checked("mnuEditLogoBorder")) << "there is none";
  EXPECT_EQ(desk_.said.size(), 2);
  ChooseLogo("ours.jpg");
  EXPECT_TRUE(Pic().Visible() && Pic().Left() == 720);
  BreakDisk("rename", EACCES);
  ToggleLogoVisible();
  EXPECT_TRUE(Pic().Visible() && Checked("mnuEditLogoVisible"));
}

TEST_F(LogoTest, IsKeptAsDefaultWithItsPlace) {
  SaveLogoAsDefault();
  EXPECT_TRUE(NothingStored());
  ChooseLogo("ours.jpg");
  Pic().SetLeft(2880.5F);
  Pic().SetTop(0);
  ChooseLogo("ours.jpg");  // takes the place of the one that shows
  format.FormatIsOpen = true;
  format.LogoPath.clear();
  format.LogoChanged = false;
  SaveLogoAsDefault();
  for (const char* line : {"Logo File:ours.jpg", "Logo Left:2880.5", "Logo Top:0"})
    EXPECT_TRUE(Stored().contains(line)) << line;
  EXPECT_EQ(format.LogoPath, "ours.jpg");
  EXPECT_TRUE(format.LogoChanged);
  EXPECT_EQ(format.LogoLeft, 2880.5F);
  format.LogoPath = "theirs.jpg";
  format.LogoChanged = false;
  SaveLogoAsDefault();
  EXPECT_EQ(format.LogoPath, "theirs.jpg") << "a format keeps a logo of its own";
  EXPECT_FALSE(format.LogoChanged);
}

TEST_F(LogoTest, IsNotKeptUnderANameThatTheSettingsCannotHold) {
  const QString path = QString::fromUtf8("/home/\xC5\x81ucja/logo.jpg");
  ChooseLogo(path);
  EXPECT_TRUE(desk_.LastSaid().contains(path));
  EXPECT_FALSE(format.LogoChanged);
  desk_.said.clear();
  SaveLogoAsDefault();
  EXPECT_TRUE(desk_.LastSaid().contains(path));
  EXPECT_TRUE(NothingStored());
  EXPECT_EQ(Pic().GetPicture().source, path) << "this proposal has it";
}

TEST_F(LogoTest, SaysSoWhenTheOneThatWasChosenIsHidden) {
  prefs.LogoVisible = false;
  ChooseLogo("ours.jpg");
  EXPECT_FALSE(Pic().Visible());
  EXPECT_TRUE(desk_.LastSaid().contains("Show Logo"));
}

}  // namespace
