#include "print/print.h"

#include <memory>

#include "editing/grid.h"
#include "editing/totals_commands.h"
#include "model/frame.h"
#include "model/proposal.h"
#include "model/report.h"
#include "pages/titles.h"
#include "platform/files.h"
#include "print/draw.h"
#include "ui/desk.h"

namespace quillane {

namespace {

constexpr int TotalsPage = 5;

/// What is being drawn; gone once "Cancel Print" has dropped it.
std::unique_ptr<Surface>& PrintJob() {
  static std::unique_ptr<Surface> job;
  return job;
}

QString& Message() {
  static QString message;
  return message;
}

QString DocumentName(const Page& printed) {
  QString name = proposal.BaseName.isEmpty() ? QStringLiteral("Proposal") : proposal.BaseName;
  name.replace(QLatin1Char('/'), QLatin1Char('-'));  // a client's name may have what a file's may not
  name += QStringLiteral(" - Page %1").arg(printed.pageIndex + 1);
  return printed.window == CopyOfPage6 ? name + QStringLiteral(" Copy") : name;
}

QString PdfPath(const Page& printed) {
  const QString& folder = proposal.CurrentFolder.isEmpty() ? prefs.ProposalFolder : proposal.CurrentFolder;
  return WithSeparator(folder) + DocumentName(printed) + QStringLiteral(".pdf");
}

void DrawDocument(const Page& printed) {
  PrintJob() = desk().BeginDocument(printing.CurrentPrinter, DocumentName(printed), PdfPath(printed));
  if (!PrintJob()) Raise(errors::Printer, printing.CurrentPrinter);
  if (printing.PrinterXOffset != 0 || printing.PrinterYOffset != 0)
    PrintJob()->SetOrigin(printing.PrinterXOffset, printing.PrinterYOffset);
  desk().ServeEvents();
  if (!PrintJob()) return;
  DrawPage(*PrintJob(), printed, DrawMode::Printing);
  editing.ButtonPressed = false;
  PrintJob()->EndDoc();
}

void ReportPrintError(const RuntimeError& error) {
  if (error.Number() == errors::Printer)
    Tell(QStringLiteral("An error occurred trying to access the system default printer."));
  else
    ReportProgramError(QStringLiteral("PrintTheForm"), error);
}

QString MessageFor(const Page& printed) {
  const int number = printed.pageIndex == TotalsPage ? proposal.HighestPage : printed.pageIndex + 1;
  const QString text = QStringLiteral("Printing Page %1 of %2").arg(number).arg(proposal.HighestPage);
  return printed.window == CopyOfPage6 ? text + QStringLiteral(" Copy") : text;
}

void PrintOne(int window) {
  const Page& printed = page(window);
  Message() = MessageFor(printed);
  desk().ShowWindow(QStringLiteral("frmDialog"), Modality::Modeless);
  PrintTheForm(printed);
  desk().CloseWindow(QStringLiteral("frmDialog"));
}

}  // namespace

void BringSheetsUpToDate() {
  // An amount that still has the focus counts, and so does what a move left behind.
  TakeFocusedAmount();
  const auto sums = proposal.PageSubTotal, taxable = proposal.PageTaxable;
  CalculateAllPages();
  if (sums != proposal.PageSubTotal || taxable != proposal.PageTaxable) RecalculateTotals(0);
  FindHighestPage();
  UpdatePageNumbers();
}

void PrepareDrawing() {
  if (TotalsAreStale()) RecalculateTotals(0);
  ReadPrinterOffsets();
  ClearGrid(page(editing.FrontWindow()));
}

void PrintTheForm(const Page& printed) {
  PrepareDrawing();
  const Scoped rebuilding(editing.RebuildingPages, true);
  try {
    DrawDocument(printed);
  } catch (const RuntimeError& error) {
    ReportPrintError(error);
  }
  PrintJob().reset();
}

void PrintPageCommand(int window) {
  FindPrinter();
  if (printing.NoPrinter != 0) return;
  BringSheetsUpToDate();
  PrintOne(window);
}

void PrintAllCommand() {
  FindPrinter();
  if (printing.NoPrinter != 0) return Tell(QStringLiteral("Printer Error 482. Printer not found."));
  if (printing.PrintCancelled) return;
  BringSheetsUpToDate();
  const int highest = proposal.HighestPage;
  if (highest < 2 || highest > 6) return;
  // Last page first, so that a stack that lies face up comes out in order.
  PrintOne(CopyOfPage6);
  PrintOne(TotalsPage);
  for (int window = highest - 2; window >= 0; --window) PrintOne(window);
}

void CancelPrint() {
  printing.PrintCancelled = true;
  if (PrintJob()) PrintJob()->KillDoc();
  PrintJob().reset();
  desk().CloseWindow(QStringLiteral("frmDialog"));
}

void FindPrinter() {
  if (!prefs.DefaultPrinter.isEmpty() && desk().HasPrinter(prefs.DefaultPrinter)) {
    printing.CurrentPrinter = prefs.DefaultPrinter;
  } else {
    // The PDF file is a printer only for those who chose it.
    const QString system = desk().DefaultPrinterName();
    printing.CurrentPrinter = system == PdfPrinter ? QString() : system;
  }
  printing.NoPrinter = printing.CurrentPrinter.isEmpty() ? errors::Printer : 0;
}

void LoadTheFonts() {
  // The splash serves events meanwhile, and a click on it may ask again.
  static bool reading = false;
  if (reading) return;
  const Scoped now(reading, true);
  Guarded("LoadTheFonts", [] {
    FindPrinter();
    if (printing.NoPrinter != 0)
      Tell(
          QStringLiteral("Default Printer could not be found. Loading screen fonts\n"
                         "instead. This could take 1 to 2 minutes... please wait."));
    // A printer here prints every font that the screen has.
    printing.PrinterFontNames.clear();
    for (const QString& name : desk().ScreenFonts()) {
      desk().ServeEvents();
      printing.PrinterFontNames.append(name);
    }
    printing.FontsLoaded = true;
  });
}

const QString& PrintMessage() {
  return Message();
}

}  // namespace quillane
