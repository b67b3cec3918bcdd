// Which printer is this program's: what frmPrinters lists and stores.
#pragma once
#include <QString>
#include <QStringList>

namespace quillane {

/// mnuOptPrinter: opens frmPrinters, after a word where there is no printer.
void ChangePrinterCommand();

struct PrinterList {
  QStringList names;  ///< in the system's order, "PDF File" last
  int selected = -1;  ///< the stored one; -1 where it is not installed
  QString prompt;     ///< what the box shows while nothing is selected
};
PrinterList AvailablePrinters();

/// cmdPrinter: makes a printer the program's own from now on; the system's default stays what it is.  False,
/// after a word, when it is gone or the choice could not be stored; silently for an empty name.
bool MakeDefaultPrinter(const QString& name);

}  // namespace quillane
