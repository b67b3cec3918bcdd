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

QStringList stored;
bool storing = true;

class PrinterChoice : public testing::Test {
 protected:
  void SetUp() override {
    ResetState();
    stored.clear();
    storing = true;
    desk.printers = QStringList{"Office Laser", "Hall Inkjet", "PDF File"};
    upcalls() = Upcalls();
    upcalls().StorePreference = [](const QString& key, const QString& value) {
      if (!storing) return false;
      stored.append(key + value);
      prefs.DefaultPrinter = value;
      return true;
    };
  }
  void TearDown() override { upcalls() = Upcalls(); }
  ChoiceDesk desk;
};

TEST_F(PrinterChoice, ListsThemAndSelectsTheStoredOne) {
  struct Case {
    const char* chosen;
    int selected;
    const char* prompt;
  };
  constexpr Case cases[] = {
      {"", -1, "No Default Printer Found"}, {"Hall Inkjet", 1, ""}, {"PDF File", 2, ""}, {"Gone", -1, ""}};
  for (const Case& given : cases) {
    prefs.DefaultPrinter = QString::fromLatin1(given.chosen);
    const PrinterList list = AvailablePrinters();
    EXPECT_EQ(list.names, desk.printers);
    EXPECT_EQ(list.selected, given.selected) << given.chosen;
    EXPECT_EQ(list.prompt, QString::fromLatin1(given.prompt)) << given.chosen;
  }
}

TEST_F(PrinterChoice, RefusesOneThatHasGoneAndNone) {
  EXPECT_FALSE(MakeDefaultPrinter(""));
  EXPECT_TRUE(desk.said.isEmpty());
  desk.printers.removeAll("Hall Inkjet");
  EXPECT_FALSE(MakeDefaultPrinter("Hall Inkjet"));
  EXPECT_EQ(desk.LastSaid(), QStringLiteral("Printers not found"));
  desk.unreachable = true;
  desk.said.clear();
  EXPECT_FALSE(MakeDefaultPrinter("Office Laser"));
  EXPECT_EQ(desk.said.size(), 1);
  EXPECT_TRUE(AvailablePrinters().names.isEmpty());
  EXPECT_EQ(desk.LastSaid(), QStringLiteral("Printers not found"));
  EXPECT_TRUE(stored.isEmpty());
}

TEST_F(PrinterChoice, KeepsTheOldOneWhenTheChoiceCannotBeStored) {
  storing = false;
  EXPECT_FALSE(MakeDefaultPrinter("Hall Inkjet"));
  EXPECT_EQ(printing.CurrentPrinter, QStringLiteral("Office Laser"));
}

}  // namespace
