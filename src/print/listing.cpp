#include "print/listing.h"

#include <algorithm>
#include <memory>

#include "model/page.h"
#include "model/proposal.h"
#include "platform/files.h"
#include "print/print.h"
#include "ui/desk.h"
#include "ui/text_wrap.h"

namespace quillane {

namespace {

constexpr float BottomMargin = 1440;
constexpr float NumberTop = sheet::Height - 900;  // of the page number

/// Draws line after line and begins a sheet when one is full.
class Writer {
 public:
  Writer(Surface& surface, const Listing& listing)
      : surface_(surface),
        listing_(listing),
        step_(listing.lineHeight > 0 ? listing.lineHeight : MetricsOf(listing.font).height),
        y_(listing.top) {
    surface_.SetFont(listing.font);
  }

  void Write(const ListingLine& line) {
    std::vector<QStringList> columns;
    qsizetype rows = 1;
    for (size_t i = 0; i < line.size(); ++i) {
      columns.push_back(Wrapped(line, i));
      rows = std::max(rows, columns.back().size());
    }
    for (qsizetype row = 0; row < rows; ++row) WriteRow(line, columns, row);
  }

  void NumberSheet() {
    const QString number = QStringLiteral("Page %1").arg(sheet_);
    surface_.Print(sheet::Centre - surface_.Width(number) / 2, NumberTop, number);
  }

 private:
  QStringList Wrapped(const ListingLine& line, size_t i) const {
    if (line[i].edge == ListingEdge::Right) return {line[i].text};
    float right = ListingRight;
    if (i + 1 < line.size() && line[i + 1].edge == ListingEdge::Left) right = line[i + 1].x;
    return WrapText(listing_.font, line[i].text, right - line[i].x);
  }

  void WriteRow(const ListingLine& line, const std::vector<QStringList>& columns, qsizetype row) {
    if (y_ + step_ > sheet::Height - BottomMargin) TurnSheet();
    for (size_t i = 0; i < line.size(); ++i) {
      if (row >= columns[i].size()) continue;
      const QString& text = columns[i][row];
      const float left = line[i].edge == ListingEdge::Left ? line[i].x : line[i].x - surface_.Width(text);
      surface_.Print(left, y_, text);
    }
    y_ += step_;
  }

  void TurnSheet() {
    NumberSheet();
    surface_.NewPage();
    ++sheet_;
    y_ = listing_.top;
  }

  Surface& surface_;
  const Listing& listing_;
  float step_, y_;
  int sheet_ = 1;
};

QString PdfPath(QString title) {
  title.replace(u'/', u'-');
  return WithSeparator(prefs.ProposalFolder) + title + QStringLiteral(".pdf");
}

}  // namespace

bool PrintListing(const Listing& listing) {
  FindPrinter();
  if (printing.NoPrinter != 0) {
    Tell(QStringLiteral("Could not find Printer."));
    return false;
  }
  ReadPrinterOffsets();
  const std::unique_ptr<Surface> document =
      desk().BeginDocument(printing.CurrentPrinter, listing.title, PdfPath(listing.title));
  if (!document) Raise(errors::Printer, printing.CurrentPrinter);
  document->SetOrigin(printing.PrinterXOffset, printing.PrinterYOffset);
  document->SetColor(colors::Black);
  Writer writer(*document, listing);
  for (const ListingLine& line : listing.lines) writer.Write(line);
  writer.NumberSheet();
  document->EndDoc();
  return true;
}

}  // namespace quillane
