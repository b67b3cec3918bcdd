// Small files beside the proposals: the sales tax rate and texts for the desktop's viewer.
#pragma once
#include <QString>

namespace quillane {

bool SalesTaxFileExists();
void GetTaxRate();
/// Writes the rate in use and announces it.  Throws what a file can, and then has announced nothing.
void SaveTaxRate();
/// Opens the text file picked in the dialog in the desktop's viewer.
void ReadTextFile(const QString& path);
/// "Tax Rate: 7.5%" on the frame's button.
void ShowTaxRate();

}  // namespace quillane
