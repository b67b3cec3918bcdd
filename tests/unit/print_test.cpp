// Sheets on their way to a printer, the printer that is chosen, and lists on paper.
#include "print/print.h"

#include <functional>
#include <list>

#include "connected_program.h"
#include "editing/navigation.h"
#include "pages/defaults.h"
#include "platform/runtime_error.h"
#include "print/listing.h"
#include "print/preview.h"
#include "print/printer_choice.h"
#include "recording_surface.h"
#include "ui/text_wrap.h"

using namespace quillane;
using namespace quillane::test;

namespace {

/// A desk with printers: every document is kept.
class PrintDesk : public FakeDesk {
 public:
  std::list<Printout> documents;
  QString systemPrinter = QStringLiteral("Office Laser");
  int failure = 0;  ///< the error with which a document, or a question for the printers, fails
  std::function<void()> onServe;
  QStringList messages;

  QStringList PrinterNames() const override {
    if (failure != 0) Raise(failure);
    return printers;
  }
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

class Print : public ConnectedProgram {
 protected:
  void SetUp() override {
    ConnectedProgram::SetUp();
    prefs.ProposalFolder = prefs.ProgramFolder;
    desk.printers = QStringList{"Office Laser", "Hall Inkjet", "PDF File"};
    const Scoped building(editing.RebuildingPages, true);
    SetUpPages();
    ShowDefaultPages();
  }
  static void Write(int window, const QString& text) {
    const Scoped building(editing.RebuildingPages, true);
    page(window).txt[page(window).FirstRow()].SetText(text);
  }

  PrintDesk desk;
};

TEST_F(Print, PagesInUseComeLastPageFirst) {
  for (const auto& [lastPage, order] :
       Cases<int, QString>{{0, "6 Copy|6|1"}, {1, "6 Copy|6|2|1"}, {4, "6 Copy|6|5|4|3|2|1"}}) {
    desk.documents.clear();
    desk.messages.clear();
    Write(lastPage, "Lilies");
    PrintAllCommand();
    QStringList printed;
    for (const Printout& document : desk.documents) {
      EXPECT_TRUE(document.ended && document.title.startsWith("Proposal - Page "));
      printed << document.title.mid(16);
    }
    EXPECT_EQ(printed.join(u'|'), order);
    const QString last = QString("Page %1 of %1").arg(lastPage + 2);
    EXPECT_TRUE(desk.documents.front().Find(last)) << last.toStdString();
    EXPECT_EQ(desk.messages.mid(0, 2), (QStringList{"Printing " + last + " Copy", "Printing " + last}));
    EXPECT_EQ(desk.messages.last(), QString("Printing Page 1 of %1").arg(lastPage + 2));
  }
  EXPECT_TRUE(desk.shown.isEmpty());
}

TEST_F(Print, TakesThePrinterThatWasChosenElseTheSystems) {
  for (const auto& [chosen, system, used] :
       Cases<QString, QString, QString>{{"", "Office Laser", "Office Laser"},
                                        {"PDF File", "Office Laser", "PDF File"},
                                        {"Gone", "Office Laser", "Office Laser"},
                                        {"", "", ""},
                                        {"", "PDF File", ""},
                                        {"PDF File", "", "PDF File"}}) {
    prefs.DefaultPrinter = chosen;
    desk.systemPrinter = system;
    FindPrinter();
    EXPECT_EQ(printing.CurrentPrinter, used);
    EXPECT_EQ(printing.NoPrinter == 0, !used.isEmpty());
  }
}

TEST_F(Print, ACancelledDocumentIsDroppedAndEndsThePrintOfAll) {
  desk.onServe = [&] {
    if (!printing.PrintCancelled) CancelPrint();
  };
  PrintPageCommand(0);
  ASSERT_EQ(desk.documents.size(), 1U);
  EXPECT_TRUE(desk.documents.back().killed && !desk.documents.back().ended);
  EXPECT_TRUE(desk.documents.back().drawn.empty());
  PrintAllCommand();
  EXPECT_EQ(desk.documents.size(), 1U);
  PrintPageCommand(0);
  EXPECT_TRUE(desk.documents.size() == 2U && desk.documents.back().ended);
}

TEST_F(Print, AFailureIsReported) {
  for (const auto& [error, said] : Cases<int, QString>{
           {errors::Printer, "An error occurred trying to access the system default printer."},
           {errors::DiskFull, "in PrintTheForm."}}) {
    desk.failure = error;
    prefs.DefaultPrinter.clear();
    PrintPageCommand(0);
    EXPECT_TRUE(desk.LastSaid().contains(said)) << desk.LastSaid().toStdString();
    EXPECT_FALSE(editing.RebuildingPages);
  }
}

TEST_F(Print, ThePageIsShiftedByTheOffsetsOfTheFile) {
  for (const auto& [file, x, y] :
       Cases<QByteArray, float, float>{{"Printer X Offset: .25\r\nPrinter Y Offset:-.125\r\n", 360, -180},
                                       {"Printer X Offset: .5\r\nPrinter Y Offset: 1", 720, 1440},
                                       {"Printer X Offset: .5", 720, 0},
                                       {"Printer X Offset:\r\nPrinter Y Offset: 1\r\n", 0, 1440},
                                       {"Printer Y Offset: 1\r\n", 0, 0},
                                       {"", 0, 0}}) {
    Put("PrinterOffsets.txt", file);
    PrintPageCommand(1);
    const Drawn* mark = desk.documents.back().Find("Page 2 of 6");
    ASSERT_TRUE(mark);
    EXPECT_EQ(mark->left, 720 - x) << file.data();
    EXPECT_EQ(mark->top, 15030 - y) << file.data();
    printing.PrinterXOffset = -1;
    PrintPreview();  // which reads them anew as well
    EXPECT_EQ(printing.PrinterXOffset, x);
    PrintPreview();
  }
  EXPECT_TRUE(desk.said.isEmpty());
}

TEST_F(Print, DocumentsAndFilesAreNamedByTheProposal) {
  for (const auto& [name, folder, window, path] : Cases<QString, QString, int, QString>{
           {"Emily Carter", "", CopyOfPage6, Path("Emily Carter - Page 6 Copy.pdf")},
           {"Ann/Bob", "/elsewhere/", 1, "/elsewhere/Ann-Bob - Page 2.pdf"}}) {
    proposal.BaseName = name;
    proposal.CurrentFolder = folder;
    PrintPageCommand(window);
    EXPECT_EQ(desk.documents.back().path, path);
  }
}

TEST_F(Print, TheFontsAreReadOnceThoughTheSplashIsClicked) {
  desk.systemPrinter.clear();
  int served = 0;
  desk.onServe = [&] {
    ++served;
    LoadTheFonts();  // as a click on the splash would
  };
  LoadTheFonts();
  EXPECT_EQ(desk.said.size(), 1);
  EXPECT_TRUE(desk.LastSaid().startsWith("Default Printer could not be found. Loading screen fonts\n"));
  EXPECT_EQ(printing.PrinterFontNames, desk.ScreenFonts());
  EXPECT_EQ(served, desk.ScreenFonts().size());
  EXPECT_TRUE(printing.FontsLoaded);
  EXPECT_NE(printing.NoPrinter, 0);
}

TEST_F(Print, PreviewKeepsWhatWasDisabledBefore) {
  UpdatePageButtons(1);
  frame()["mnuManage"].SetEnabled(false);
  PrintPreview();
  EXPECT_FALSE(frame()["mnuEdit"].Enabled());
  PrintPreview();
  EXPECT_FALSE(frame()["mnuManage"].Enabled());
  EXPECT_TRUE(frame()["mnuEdit"].Enabled());
}

TEST_F(Print, NoPrinterIsChosenThatIsNotThereOrCannotBeStored) {
  prefs.PrefLines = QStringList{"App First Instance:False"};
  prefs.ProgramFolder = "/nowhere/";
  EXPECT_FALSE(MakeDefaultPrinter("Hall Inkjet"));
  prefs.ProgramFolder = temporary.path() + u'/';
  EXPECT_EQ(printing.CurrentPrinter, "Office Laser");

  desk.said.clear();
  desk.failure = errors::Printer;
  EXPECT_FALSE(MakeDefaultPrinter("Office Laser"));
  EXPECT_EQ(desk.said.size(), 1) << "one word, though no printer is left to choose";
  EXPECT_TRUE(AvailablePrinters().names.isEmpty());
  EXPECT_EQ(desk.LastSaid(), "Printers not found");
}

// Without a display a letter is a hundred twips wide.
TEST(TextWrap, KeepsWordsWholeAndDropsTheBlankAtALinesEnd) {
  for (const auto& [text, lines] : Cases<QString, QString>{{"", ""},
                                                           {"one two", "one two"},
                                                           {"one two three", "one two|three"},
                                                           {"one two   three", "one two|three"},
                                                           {"onetwothreefour x", "onetwothre|efour x"},
                                                           {"a onetwothreefour", "a|onetwothre|efour"},
                                                           {"ten  blank ", "ten  blank"},
                                                           {"  in", "  in"}})
    EXPECT_EQ(WrapText(Font(), text, 1000).join(u'|'), lines);
}

TEST_F(Print, AListFillsSheetAfterSheet) {
  Listing list{"Deposits / May", {}, {}, 1440, 300};
  for (int i = 0; i < 44; ++i)
    list.lines.push_back(
        {{1440, QString(60, u'w') + u' ' + QString::number(i)}, {9000, "12.00", ListingEdge::Right}});
  ASSERT_TRUE(PrintListing(list));
  EXPECT_TRUE(desk.documents.back().ended);
  const auto& drawn = desk.documents.back().drawn;
  ASSERT_EQ(drawn.size(), 90U);
  EXPECT_EQ(drawn[1].right, 9000);
  EXPECT_EQ(drawn[85].top, 1440 + 42 * 300) << "the last line above the margin";
  EXPECT_EQ(drawn[86].what, "Page 1");
  EXPECT_EQ(drawn[87].top, 1440);
  EXPECT_EQ(drawn[89].what, "Page 2");
  list.lines = {{{1440, "Notes for the hall"}, {2440, "x"}}};
  ASSERT_TRUE(PrintListing(list));
  EXPECT_EQ(desk.documents.back().drawn[2].what, "the hall") << "wrapped in front of the next text";
  EXPECT_EQ(desk.documents.back().drawn[2].top, 1740);
  desk.systemPrinter.clear();
  EXPECT_FALSE(PrintListing({}));
  EXPECT_EQ(desk.LastSaid(), "Could not find Printer.");
}

}  // namespace
