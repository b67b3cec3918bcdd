#include "qt/printers.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>

#include "model/proposal.h"
#include "platform/files.h"
#include "platform/runtime_error.h"
#include "print/print.h"
#include "qt/painter_surface.h"
#include "qt/pdf_info.h"

namespace quillane::printers {

namespace {

constexpr int TwipsPerInch = 1440;

QPageLayout WholeLetter() {
  return QPageLayout(QPageSize(QPageSize::Letter), QPageLayout::Portrait, QMarginsF(0, 0, 0, 0));
}

// The devices stand in bases of their own, so that they are there before the surface that draws on them.
struct PdfDevice {
  QBuffer buffer;
  QPdfWriter writer{&buffer};
  QPainter painter;
};

/// Kept in memory until its end, so that the old file is there until the new one is whole.
class PdfDocument : private PdfDevice, public PainterSurface {
 public:
  PdfDocument(const QString& title, QString path) : PainterSurface(painter), path_(std::move(path)) {
    buffer.open(QIODevice::WriteOnly);
    writer.setResolution(TwipsPerInch);
    writer.setPageLayout(WholeLetter());
    writer.setTitle(title);
    writer.setCreator(QStringLiteral("Quillane"));
    if (!painter.begin(&writer)) Raise(errors::Printer, path_);
  }
  void NewPage() override {
    if (!writer.newPage()) Raise(errors::Printer, path_);
  }
  void EndDoc() override {
    if (!painter.end()) Raise(errors::Printer, path_);
    ReplaceFile(path_, WithAuthor(buffer.data(), prefs.CompanyName));
  }
  void KillDoc() override { painter.end(); }

 private:
  QString path_;
};

struct PaperDevice {
  QPrinter printer{QPrinter::HighResolution};
  QPainter painter;
};

class PaperDocument : private PaperDevice, public PainterSurface {
 public:
  PaperDocument(const QString& name, const QString& title) : PainterSurface(painter) {
    printer.setPrinterName(name);
    if (!printer.isValid()) Raise(errors::Printer, name);
    printer.setPageLayout(WholeLetter());
    printer.setFullPage(true);
    printer.setDocName(title);
    printer.setCreator(QStringLiteral("Quillane"));
    if (!painter.begin(&printer)) Raise(errors::Printer, name);
    painter.scale(printer.logicalDpiX() / double{TwipsPerInch}, printer.logicalDpiY() / double{TwipsPerInch});
  }
  ~PaperDocument() override {
    if (painter.isActive()) PaperDocument::KillDoc();
  }
  void EndDoc() override {
    if (!painter.end() || printer.printerState() == QPrinter::Error)
      Raise(errors::Printer, printer.printerName());
  }
  void KillDoc() override {
    printer.abort();
    painter.end();
  }
};

}  // namespace

QStringList PrinterNames() {
  return QPrinterInfo::availablePrinterNames() << PdfPrinter;
}

QString DefaultPrinterName() {
  const QString chosen = QPrinterInfo::defaultPrinterName();
  return chosen.isEmpty() ? QPrinterInfo::availablePrinterNames().value(0) : chosen;
}

std::unique_ptr<Surface> BeginDocument(const QString& printer, const QString& title, const QString& pdfPath) {
  if (printer == PdfPrinter) return std::make_unique<PdfDocument>(title, pdfPath);
  return std::make_unique<PaperDocument>(printer, title);
}

}  // namespace quillane::printers
