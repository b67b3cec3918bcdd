// Prints through the system's print server, where it is installed.
#include "print_queue.h"

#include <gtest/gtest.h>

#include "model/upcalls.h"
#include "paper_desk.h"
#include "pdf_text.h"
#include "print/print.h"

using namespace quillane;
using namespace quillane::test;

namespace {

std::unique_ptr<PrintServer> server;

/// The desk of the other paper tests, but with the system's printers.
class QueueDesk : public PaperDesk {
 public:
  QStringList PrinterNames() const override { return printers::PrinterNames(); }
  QString DefaultPrinterName() const override { return printers::DefaultPrinterName(); }
};

class PrintQueue : public testing::Test {
 protected:
  static void SetUpTestSuite() { server = std::make_unique<PrintServer>(); }
  static void TearDownTestSuite() { server.reset(); }

  FreshPages fresh;
  std::unique_ptr<QueueDesk> desk;

  void SetUp() override {
    if (!server->Trouble().isEmpty())
      GTEST_SKIP() << "THE PRINT QUEUE WAS NOT TESTED: " << server->Trouble().toStdString();
    desk = std::make_unique<QueueDesk>();
    prefs.DefaultPrinter.clear();
    proposal.BaseName = QStringLiteral("Sofía Núñez");
    server->ForgetJobs();
    const Scoped building(editing.RebuildingPages, true);
    page(1).txt[4].SetText(QStringLiteral("Crème roses"));
    page(1).txt[39].SetText(QStringLiteral("1,250.00"));
  }
  void TearDown() override { upcalls() = Upcalls(); }
};

TEST_F(PrintQueue, IsFoundBesideThePdfFile) {
  EXPECT_EQ(desk->PrinterNames(), (QStringList{"Closed", "Office", "PDF File"}));
  FindPrinter();
  EXPECT_EQ(printing.CurrentPrinter, QStringLiteral("Office"));
  EXPECT_EQ(printing.NoPrinter, 0);
}

TEST_F(PrintQueue, TakesEveryPageAsAJobOfItsOwnLastPageFirst) {
  PrintAllCommand();
  const QStringList jobs = server->Jobs(4);
  ASSERT_EQ(jobs.size(), 4);
  const char* const footers[] = {"Page 3 of 3", "Page 3 of 3", "Page 2 of 3", "Page 1 of 3"};
  for (qsizetype i = 0; i < jobs.size(); ++i) {
    const std::vector<PdfPage> sheets = ReadPdf(jobs[i]);
    ASSERT_EQ(sheets.size(), 1U);
    EXPECT_NEAR(sheets[0].width, 12240, 1);
    EXPECT_NEAR(sheets[0].height, 15840, 1);
    EXPECT_FALSE(FindText(sheets[0], QString::fromLatin1(footers[i])).empty()) << i;
  }
  EXPECT_TRUE(desk->said.isEmpty());
}

TEST_F(PrintQueue, GetsTextsAtTheirPlacesOnTheWholeSheet) {
  PrintPageCommand(1);
  const QStringList jobs = server->Jobs(1);
  ASSERT_EQ(jobs.size(), 1);
  const PdfPage sheet = ReadPdf(jobs[0]).at(0);
  const Page& second = page(1);
  EXPECT_TRUE(HasTextAt(sheet, second.txt[4].Text(), second.txt[4].Left(), second.txt[4].Top()));
  EXPECT_TRUE(HasTextEndingAt(sheet, QStringLiteral("1,250.00"), 11340, second.txt[39].Top()));
  const Control& footer = second.lbl[second.lbl.size() - 3];
  EXPECT_TRUE(HasTextAt(sheet, footer.Caption(), footer.Left(), footer.Top()));
}

TEST_F(PrintQueue, SendsNothingWhenThePrintIsCancelled) {
  desk->onServe = [] {
    if (!printing.PrintCancelled) CancelPrint();
  };
  PrintPageCommand(1);
  PrintPageCommand(0);
  const QStringList jobs = server->Jobs(1);
  ASSERT_EQ(jobs.size(), 1);
  EXPECT_FALSE(FindText(ReadPdf(jobs[0]).at(0), QStringLiteral("Page 1 of 3")).empty());
  EXPECT_TRUE(desk->said.isEmpty());
}

TEST_F(PrintQueue, TellsThatAQueueRefusesAndGoesOn) {
  prefs.DefaultPrinter = QStringLiteral("Closed");
  PrintPageCommand(1);
  EXPECT_EQ(desk->said,
            QStringList{QStringLiteral("An error occurred trying to access the system default printer.")});
  prefs.DefaultPrinter.clear();
  PrintPageCommand(1);
  EXPECT_EQ(server->Jobs(1).size(), 1);
  EXPECT_EQ(desk->said.size(), 1);
}

TEST_F(PrintQueue, FindsAnotherPrinterWhenTheChosenOneHasGone) {
  server->AddQueue(QStringLiteral("Hall"));
  prefs.DefaultPrinter = QStringLiteral("Hall");
  FindPrinter();
  EXPECT_EQ(printing.CurrentPrinter, QStringLiteral("Hall"));
  server->RemoveQueue(QStringLiteral("Hall"));
  PrintPageCommand(1);
  EXPECT_EQ(printing.CurrentPrinter, QStringLiteral("Office"));
  EXPECT_EQ(server->Jobs(1).size(), 1);
  EXPECT_TRUE(desk->said.isEmpty());
}

TEST_F(PrintQueue, TellsThatAPrinterVanishedWhileThePageWasOnItsWay) {
  server->AddQueue(QStringLiteral("Hall"));
  prefs.DefaultPrinter = QStringLiteral("Hall");
  desk->onServe = [] { server->RemoveQueue(QStringLiteral("Hall")); };
  PrintPageCommand(1);
  desk->onServe = nullptr;
  EXPECT_EQ(desk->said,
            QStringList{QStringLiteral("An error occurred trying to access the system default printer.")});
  PrintPageCommand(1);
  EXPECT_EQ(server->Jobs(1).size(), 1);
}

}  // namespace
