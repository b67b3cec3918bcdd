#include "print/preview.h"

#include "connected_program.h"
#include "pages/defaults.h"

using namespace quillane;
using namespace quillane::test;

namespace {

class PreviewTest : public ConnectedProgram {
 protected:
  void SetUp() override {
    ConnectedProgram::SetUp();
    prefs.ProposalFolder = prefs.ProgramFolder;
    const Scoped building(editing.RebuildingPages, true);
    SetUpPages();
    ShowDefaultPages();
    UpdatePageButtons(1);
  }
};

struct States {
  bool preview, resume, edit, text, clear;
  bool operator==(const States&) const = default;
};
States StatesNow() {
  const auto awake = [](const char* name) { return frame()[QString::fromLatin1(name)].Enabled(); };
  return {awake("mnuFilePrintPreview"), awake("mnuFileResume"), awake("mnuEdit"), awake("mnuEditCtrl"),
          awake("cmdClearMem")};
}

TEST_F(PreviewTest, BeginsAndEndsByEntryAndByButton) {
  const States before = StatesNow();
  ASSERT_TRUE(before.preview && !before.resume);
  struct Way {
    void (*begin)();
    void (*end)();
  };
  const Way ways[] = {
      {[] { RunCommand("mnuFilePrintPreview"); }, [] { RunCommand("mnuFileResume"); }},
      {[] { FrameClicked("cmdPreview"); }, [] { FrameClicked("cmdPreview"); }},
      {[] { RunCommand("mnuFilePrintPreview"); }, [] { FrameClicked("cmdPreview"); }},
      {[] { FrameClicked("cmdPreview"); }, [] { UpdatePageButtons(1); }},
  };
  for (const Way& way : ways) {
    way.begin();
    EXPECT_TRUE(InPreview());
    EXPECT_EQ(frame()["cmdPreview"].Caption(), QStringLiteral("Resume Editing"));
    EXPECT_EQ(StatesNow(), (States{false, true, false, false, false}));
    way.end();
    EXPECT_FALSE(InPreview());
    EXPECT_EQ(frame()["cmdPreview"].Caption(), QStringLiteral("Print Preview"));
    EXPECT_EQ(StatesNow(), before);
    EXPECT_EQ(editing.Focus, &page(1).txt[0]) << "the page has the keys again";
  }
}

TEST_F(PreviewTest, ReadsTheOffsetsAnewAndReportsThem) {
  ReplaceFile(prefs.ProposalFolder + "PrinterOffsets.txt",
              "Printer X Offset: .5\r\nPrinter Y Offset:-.25\r\n");
  PrintPreview();
  EXPECT_EQ(printing.PrinterXOffset, 720);
  EXPECT_EQ(printing.PrinterYOffset, -360);
}

TEST_F(PreviewTest, KeepsAsleepWhatSleptBefore) {
  frame()["mnuManage"].SetEnabled(false);
  PrintPreview();
  PrintPreview();
  EXPECT_FALSE(frame()["mnuManage"].Enabled());
  EXPECT_TRUE(frame()["mnuEdit"].Enabled());
}

}  // namespace
