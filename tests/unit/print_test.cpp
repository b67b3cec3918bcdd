#include "print/print.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <functional>
#include <list>

#include "fake_desk.h"
#include "model/frame.h"
#include "model/proposal.h"
#include "model/upcalls.h"
#include "pages/defaults.h"
#include "platform/files.h"
#include "platform/runtime_error.h"
#include "recording_surface.h"

using namespace quillane;
using namespace quillane::test;

namespace {

/// A desk with printers: every document is kept.
class PrintDesk : public FakeDesk {
 public:
  std::list<Document> documents;
  QString systemPrinter;
  int failure = 0;  ///< the error with which a document fails
  std::function<void()> onServe;
  QStringList closed, messages;

  QString DefaultPrinterName() const override { return systemPrinter; }
  std::unique_ptr<Surface> BeginDocument(const QString& printer, const QString& title,
                                         const QString& path) override {
    if (failure != 0) Raise(failure);
    documents.push_back({printer, title, path, {}});
    return std::make_unique<RecordingSurface>(documents.back());
  }
  void ShowWindow(const QString& name, Modality modality) override {
    FakeDesk::ShowWindow(name, modality);
    messages.append(PrintMessage());
  }
  void ServeEvents() override {
    if (onServe) onServe();
  }
};

class Print : public testing::Test {
 protected:
  PrintDesk desk;
  QTemporaryDir folder;

  void SetUp() override {
    ResetState();
    upcalls() = Upcalls();
    prefs.DefaultPrinter.clear();
    prefs.ProposalFolder = folder.path() + QLatin1Char('/');
    prefs.ProgramFolder = prefs.ProposalFolder;
    desk.printers = QStringList{QStringLiteral("Office Laser"), QStringLiteral("PDF File")};
    desk.systemPrinter = QStringLiteral("Office Laser");
    const Scoped building(editing.RebuildingPages, true);
    SetUpPages();
    ShowDefaultPages();
  }
  void TearDown() override { upcalls() = Upcalls(); }

  static void Write(int window, const char* text) {
    const Scoped building(editing.RebuildingPages, true);
    page(window).txt[page(window).FirstRow()].SetText(QString::fromLatin1(text));
  }
  QStringList Titles() const {
    QStringList titles;
    for (const Document& document : desk.documents) titles.append(document.title);
    return titles;
  }
};

TEST_F(Print, PrintsThePagesInUseLastPageFirst) {
  struct Case {
    int lastPage;  ///< the item page with text
    QStringList order;
  };
  const QStringList back{QStringLiteral("6 Copy"), QStringLiteral("6")};
  const Case cases[] = {{0, back + QStringList{"1"}},
                        {1, back + QStringList{"2", "1"}},
                        {3, back + QStringList{"4", "3", "2", "1"}},
                        {4, back + QStringList{"5", "4", "3", "2", "1"}}};
  for (const Case& given : cases) {
    SetUp();
    desk.documents.clear();
    Write(given.lastPage, "Lilies");
    PrintAllCommand();
    QStringList expected;
    for (const QString& number : given.order) expected.append(QStringLiteral("Proposal - Page ") + number);
    EXPECT_EQ(Titles(), expected) << given.lastPage;
    for (const Document& document : desk.documents) EXPECT_TRUE(document.ended);
    const QString last = QStringLiteral("Page %1 of %1").arg(given.lastPage + 2);
    EXPECT_TRUE(desk.documents.front().Find(last)) << last.toStdString();
  }
  EXPECT_TRUE(desk.shown.isEmpty());
}

TEST_F(Print, SaysWhichPageIsOnItsWay) {
  Write(2, "Lilies");
  PrintAllCommand();
  EXPECT_EQ(desk.messages,
            (QStringList{"Printing Page 4 of 4 Copy", "Printing Page 4 of 4", "Printing Page 3 of 4",
                         "Printing Page 2 of 4", "Printing Page 1 of 4"}));
}

TEST_F(Print, FindsThePrinterThatWasChosenElseTheSystems) {
  struct Case {
    const char *chosen, *system, *used;
  };
  constexpr Case cases[] = {{"", "Office Laser", "Office Laser"},
                            {"PDF File", "Office Laser", "PDF File"},
                            {"Gone", "Office Laser", "Office Laser"},
                            {"", "", ""},
                            {"", "PDF File", ""},
                            {"PDF File", "", "PDF File"}};
  for (const Case& given : cases) {
    prefs.DefaultPrinter = QString::fromLatin1(given.chosen);
    desk.systemPrinter = QString::fromLatin1(given.system);
    FindPrinter();
    EXPECT_EQ(printing.CurrentPrinter.toStdString(), given.used);
    EXPECT_EQ(printing.NoPrinter == 0, *given.used != '\0');
  }
}

TEST_F(Print, DropsTheDocumentThatIsCancelledAndPrintsAllNoMore) {
  desk.onServe = [&] {
    if (!printing.PrintCancelled) CancelPrint();
  };
  PrintPageCommand(0);
  ASSERT_EQ(desk.documents.size(), 1U);
  EXPECT_TRUE(desk.documents.back().killed);
  EXPECT_FALSE(desk.documents.back().ended);
  EXPECT_TRUE(desk.documents.back().drawn.empty());
  Write(0, "Lilies");
  PrintAllCommand();
  EXPECT_EQ(desk.documents.size(), 1U);
  PrintPageCommand(0);
  EXPECT_EQ(desk.documents.size(), 2U);
  EXPECT_TRUE(desk.documents.back().ended);
}

TEST_F(Print, ReportsFailuresAndGoesOn) {
  desk.failure = errors::Printer;
  PrintPageCommand(0);
  EXPECT_EQ(desk.LastSaid(),
            QStringLiteral("An error occurred trying to access the system default printer."));
  EXPECT_FALSE(editing.RebuildingPages);
  desk.failure = errors::DiskFull;
  PrintPageCommand(0);
  EXPECT_TRUE(desk.LastSaid().contains(QStringLiteral("PrintTheForm"))) << desk.LastSaid().toStdString();
  EXPECT_FALSE(editing.RebuildingPages);
}

TEST_F(Print, ShiftsThePageByTheOffsetsOfTheFile) {
  struct Case {
    const char* file;
    float x, y;
  };
  constexpr Case cases[] = {{"Printer X Offset: .25\r\nPrinter Y Offset:-.125\r\n", 360, -180},
                            {"Printer X Offset: .5\r\nPrinter Y Offset: 1", 720, 1440},
                            {"Printer X Offset: .5\r\n", 720, 0},
                            {"Printer X Offset: .5", 720, 0},
                            {"Printer X Offset:\r\nPrinter Y Offset: 1\r\n", 0, 1440},
                            {"Printer Y Offset: 1\r\n", 0, 0},
                            {"", 0, 0}};
  const QString heading = page(1).lbl[0].Caption();
  for (const Case& given : cases) {
    ReplaceFile(prefs.ProposalFolder + QStringLiteral("PrinterOffsets.txt"), given.file);
    PrintPageCommand(1);
    EXPECT_EQ(printing.PrinterXOffset, given.x) << given.file;
    EXPECT_EQ(printing.PrinterYOffset, given.y) << given.file;
    const Drawn* mark = desk.documents.back().Find(QStringLiteral("Page 2 of 6"));
    ASSERT_TRUE(mark);
    EXPECT_EQ(mark->left, 720 - given.x);
    EXPECT_EQ(mark->top, 15030 - given.y);
  }
  EXPECT_TRUE(desk.said.isEmpty());
}

TEST_F(Print, NamesDocumentsAndFilesByTheProposal) {
  proposal.BaseName = QStringLiteral("Emily Carter");
  PrintPageCommand(CopyOfPage6);
  EXPECT_EQ(desk.documents.back().path,
            prefs.ProposalFolder + QStringLiteral("Emily Carter - Page 6 Copy.pdf"));
  proposal.CurrentFolder = QStringLiteral("/elsewhere/");
  proposal.BaseName = QStringLiteral("Ann/Bob");
  PrintPageCommand(1);
  EXPECT_EQ(desk.documents.back().path, QStringLiteral("/elsewhere/Ann-Bob - Page 2.pdf"));
}

TEST_F(Print, TellsAtTheStartThatThereIsNoPrinter) {
  desk.systemPrinter.clear();
  int served = 0;
  desk.onServe = [&] {
    ++served;
    LoadTheFonts();  // as a click on the splash would
  };
  LoadTheFonts();
  EXPECT_EQ(desk.said.size(), 1);
  EXPECT_EQ(desk.LastSaid(), QStringLiteral("Default Printer could not be found. Loading screen fonts\n"
                                            "instead. This could take 1 to 2 minutes... please wait."));
  EXPECT_EQ(printing.PrinterFontNames, desk.ScreenFonts());
  EXPECT_EQ(served, desk.ScreenFonts().size());
  EXPECT_TRUE(printing.FontsLoaded);
  EXPECT_NE(printing.NoPrinter, 0);
}

}  // namespace
