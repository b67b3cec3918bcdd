// Printing pages.
#pragma once
#include <QString>

namespace quillane {

class Page;

inline const QString PdfPrinter = QStringLiteral("PDF File");

/// Prints the page on the current printer as a document of its own.  A failure is told.
void PrintTheForm(const Page& printed);
/// The commands: page 0 to 5, 6 for the copy.
void PrintPageCommand(int window);
void PrintAllCommand();
/// frmDialog's "Cancel Print".
void CancelPrint();
/// Reads the printer's fonts at start, and finds out whether there is a printer.
void LoadTheFonts();
/// Asks the system again which printers there are; sets printing.NoPrinter and printing.CurrentPrinter.
void FindPrinter();
/// From PrinterOffsets.txt; both are 0 where there is none.
void ReadPrinterOffsets();
/// Before sheets are drawn or leave the program: what is typed counts, the sums add up, and the pages in use
/// are counted and numbered.
void BringSheetsUpToDate();
/// What every drawing begins with: stale totals are recalculated, the printer's offsets are read.
void PrepareDrawing();
/// What frmDialog's lblMessage reads.
const QString& PrintMessage();

}  // namespace quillane
