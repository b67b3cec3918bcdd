#include "print/preview.h"

#include "connected_program.h"
#include "editing/navigation.h"
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
