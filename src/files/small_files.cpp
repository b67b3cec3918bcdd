#include "files/small_files.h"

namespace quillane {
bool SalesTaxFileExists() { return false; }
void GetTaxRate() {}
void SaveTaxRate() {}
void ReadTextFile(const QString&) {}
void ShowTaxRate() {}
}  // namespace quillane
