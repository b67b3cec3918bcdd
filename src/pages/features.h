// What rows carry, brought from the live pages into the tables.
#pragma once
#include "model/page.h"

namespace quillane {

/// Brings TextRec, FormatTextRec and PageText up to date from the pages before any save.
void SaveTextBoxFeatures();
/// QtyBox of both layers from the Tag of each txtQty, on pages whose columns are loaded.
void SyncQtyFlags();
/// The stored form of an area as the page shows it: trimmed text, or the three-part form of a row with
/// columns.
QString StoredForm(const Page& page, int area);

}  // namespace quillane
