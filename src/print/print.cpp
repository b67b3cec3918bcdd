#include "print/print.h"

namespace quillane {
void PrintTheForm() {}
void PrintPageCommand(int) {}
void PrintAllCommand() {}
void CancelPrint() {}
void LoadTheFonts() {}
void FindPrinter() {}
void ReadPrinterOffsets() {}
float PrinterTextWidth(const Control&, const QString&) { return 0; }
const QString& PrintMessage() { static const QString none; return none; }
}  // namespace quillane
