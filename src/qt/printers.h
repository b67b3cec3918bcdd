// Printers as the desktop knows them, and the PDF file that stands beside them.
#pragma once
#include <QString>
#include <QStringList>
#include <memory>

#include "ui/surface.h"

namespace quillane::printers {

/// The installed printers in the system's order, and "PDF File" as the last.
QStringList PrinterNames();
/// The system's own default; where it names none, its first printer; empty where there is no printer.
QString DefaultPrinterName();
/// A document of one letter page without margins.  For "PDF File" the file at `pdfPath` is replaced when the
/// document ends.  Throws 482 when the printer cannot be used.
std::unique_ptr<Surface> BeginDocument(const QString& printer, const QString& title, const QString& pdfPath);

}  // namespace quillane::printers
