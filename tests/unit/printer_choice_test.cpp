#include "print/printer_choice.h"

#include <gtest/gtest.h>

#include "fake_desk.h"
#include "model/proposal.h"
#include "model/upcalls.h"
#include "platform/runtime_error.h"
#include "print/print.h"

using namespace quillane;
using namespace quillane::test;

namespace {

class ChoiceDesk : public FakeDesk {
 public:
  bool unreachable = false;
  QStringList PrinterNames() const override {
    if (unreachable) Raise(errors::Printer);
    return printers;
  }
  QString DefaultPrinterName() const override { return QStringLiteral("Office Laser"); }
};

class PrinterChoice : public testing::Test {
 protected:
  void SetUp() override {
    ResetState();
    desk.printers = QStringList{"Office Laser", "Hall Inkjet", "PDF File"};
  }
  ChoiceDesk desk;
};

TEST_F(PrinterChoice, IsNoneWhileTheSystemDoesNotAnswer) {
  desk.unreachable = true;
  EXPECT_FALSE(MakeDefaultPrinter("Office Laser"));
  EXPECT_EQ(desk.said.size(), 1) << "one word, though no printer is left to choose";
  EXPECT_TRUE(AvailablePrinters().names.isEmpty());
  EXPECT_EQ(desk.LastSaid(), QStringLiteral("Printers not found"));
}

TEST_F(PrinterChoice, KeepsTheOldOneWhenTheChoiceCannotBeStored) {
  prefs.PrefLines = QStringList{"App First Instance:False"};
  prefs.ProgramFolder = "/nowhere/";
  EXPECT_FALSE(MakeDefaultPrinter("Hall Inkjet"));
  prefs.ProgramFolder.clear();
  EXPECT_EQ(printing.CurrentPrinter, QStringLiteral("Office Laser"));
}

}  // namespace
