// The default contents of the pages: captions, fonts and places, and what shows when a page comes to the
// front.
#pragma once
#include "model/page.h"
#include "pages/default_labels.h"

namespace quillane {

/// Once at start: fonts, tool tips, marks and rules of every page, in page order.  Tags come with the pages.
void SetUpPages();
/// Puts all captions, fonts and places of the seven pages back to their defaults and stores the default
/// table. The caller sets RebuildingPages.
void ShowDefaultPages();
/// Copies every label's state into proposal.DefaultLabels.
void StoreDefaultLabels();
/// Shows the controls of a page that comes to the front.
void ShowPageControls(Page& page);
/// Makes the column controls of a page usable.  Reports "Error in loading columns on Page 2." and goes on
/// when it fails.
void LoadColumns(Page& page);
/// Shows or hides the four column controls of a row together with their Tags; `shown` also narrows txt(row).
void ShowRowColumns(Page& page, int row, bool shown);
/// Gives every text box its font from UDP: pages' areas and column boxes.
void SetMyFonts(Page& page);

}  // namespace quillane
