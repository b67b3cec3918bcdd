#include "print/printer_choice.h"

#include "model/proposal.h"
#include "platform/runtime_error.h"
#include "print/print.h"
#include "settings/preferences.h"
#include "ui/desk.h"

namespace quillane {

namespace {

/// The printers of this moment; none, after a word, where the system does not answer.
QStringList NamesNow() {
  try {
    return desk().PrinterNames();
  } catch (const RuntimeError&) {
    Tell(QStringLiteral("Printers not found"));
    return {};
  }
}

}  // namespace

void ChangePrinterCommand() {
  FindPrinter();
  if (printing.NoPrinter != 0) Tell(QStringLiteral("Printer Error 482. No printers found."));
  desk().ShowWindow(QStringLiteral("frmPrinters"), Modality::Modal);
}

PrinterList AvailablePrinters() {
  PrinterList list;
  list.names = NamesNow();
  list.selected = static_cast<int>(list.names.indexOf(prefs.DefaultPrinter));
  if (prefs.DefaultPrinter.isEmpty()) list.prompt = QStringLiteral("No Default Printer Found");
  return list;
}

bool MakeDefaultPrinter(const QString& name) {
  if (name.isEmpty()) return false;
  const QStringList names = NamesNow();
  if (!names.contains(name)) {
    if (!names.isEmpty()) Tell(QStringLiteral("Printers not found"));
    return false;
  }
  printing.CurrentPrinter = name;
  Tell(printing.CurrentPrinter);
  const bool stored = StorePreference(QStringLiteral("Default Printer:"), name);
  FindPrinter();
  return stored;
}

}  // namespace quillane
