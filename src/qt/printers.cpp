#include "qt/printers.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinterInfo>
#include <QProcess>

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

// The device stands in a base of its own, so that it is there before the surface that draws on it.
struct PdfDevice {
  QBuffer buffer;
  QPdfWriter writer{&buffer};
  QPainter painter;
};

/// Kept in memory until its end, so that a document that is dropped or fails leaves nothing anywhere.
class Document : private PdfDevice, public PainterSurface {
 public:
  explicit Document(const QString& title) : PainterSurface(painter) {
    buffer.open(QIODevice::WriteOnly);
    writer.setResolution(TwipsPerInch);
    writer.setPageLayout(WholeLetter());
    writer.setTitle(title);
    writer.setCreator(QStringLiteral("Quillane"));
    if (!painter.begin(&writer)) Raise(errors::Printer, title);
  }
  void NewPage() override {
    if (!writer.newPage()) Raise(errors::Printer, writer.title());
  }
  void EndDoc() override {
    if (!painter.end()) Raise(errors::Printer, writer.title());
    Deliver(buffer.data());
  }
  void KillDoc() override { painter.end(); }

 protected:
  QString Title() const { return writer.title(); }
  virtual void Deliver(const QByteArray& pdf) = 0;
};

/// The old file is there until the new one is whole.
class PdfDocument : public Document {
 public:
  PdfDocument(const QString& title, QString path) : Document(title), path_(std::move(path)) {}

 private:
  void Deliver(const QByteArray& pdf) override { ReplaceFile(path_, WithAuthor(pdf, prefs.CompanyName)); }
  QString path_;
};

/// What goes to a printer is the same file, handed to the print system by its own command: unlike the toolkit
/// it says when a queue refuses a job or has gone, and it is asked for nothing before the document is whole.
class PaperDocument : public Document {
 public:
  PaperDocument(const QString& title, QString printer) : Document(title), printer_(std::move(printer)) {}

 private:
  void Deliver(const QByteArray& pdf) override {
    constexpr int patience = 30'000;  // milliseconds; a print server may be far away
    QProcess sender;
    // On the sheet that the page is made for, and as large as it is.
    sender.start(QStringLiteral("lp"), {QStringLiteral("-d"), printer_, QStringLiteral("-t"), Title(),
                                        QStringLiteral("-o"), QStringLiteral("media=Letter"),
                                        QStringLiteral("-o"), QStringLiteral("print-scaling=none")});
    sender.write(pdf);
    sender.closeWriteChannel();
    const bool ended = sender.waitForFinished(patience);
    if (ended && sender.exitStatus() == QProcess::NormalExit && sender.exitCode() == 0) return;
    Raise(errors::Printer, QString::fromLocal8Bit(sender.readAllStandardError()).trimmed());
  }
  QString printer_;
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
  return std::make_unique<PaperDocument>(title, printer);
}

}  // namespace quillane::printers
