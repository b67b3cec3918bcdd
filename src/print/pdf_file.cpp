#include "print/pdf_file.h"

#include <vector>

#include "editing/totals_commands.h"
#include "files/event_file.h"
#include "model/report.h"
#include "pages/titles.h"
#include "print/draw.h"
#include "print/print.h"
#include "ui/desk.h"

namespace quillane {

namespace {

constexpr int TotalsPage = 5;

/// Page 1 first, the totals behind the last page of items, the client's copy as the last.
std::vector<int> SheetsInReadingOrder() {
  std::vector<int> sheets;
  for (int window = 0; window < proposal.HighestPage - 1; ++window) sheets.push_back(window);
  sheets.push_back(TotalsPage);
  sheets.push_back(CopyOfPage6);
  return sheets;
}

void WriteSheets(const QString& path) {
  const std::unique_ptr<Surface> document = desk().BeginDocument(PdfPrinter, proposal.Title, path);
  if (!document) Raise(errors::Printer, path);
  const std::vector<int> sheets = SheetsInReadingOrder();
  for (size_t i = 0; i < sheets.size(); ++i) {
    if (i > 0) document->NewPage();
    DrawPage(*document, page(sheets[i]), DrawMode::Printing);
  }
  document->EndDoc();
}

bool NameIsFit() {
  if (proposal.BaseName.trimmed().isEmpty())
    Tell(QStringLiteral("Please enter the client's name in the appropriate area and save again."));
  else if (!IllegalFileName(proposal.BaseName))
    return true;
  ShowClientName();
  return false;
}

}  // namespace

void SaveAsPdfCommand() {
  Guarded("SaveAsPdf", [] {
    CheckTheTotals();
    FindHighestPage();
    UpdatePageNumbers();
    if (!NameIsFit()) return;
    TakeCurrentFolder();
    const QString name = proposal.BaseName + QStringLiteral(".pdf");
    if (!MayReplace(name)) return;
    WriteSheets(proposal.CurrentFolder + name);
    Tell(QStringLiteral("File was saved as ") + name);
  });
}

}  // namespace quillane
