// The default contents of the pages: captions, fonts and places, and what shows when a page comes to the
// front.
#pragma once
#include "model/page.h"
#include "pages/default_labels.h"

namespace quillane {

/// Once at start: fonts, tool tips, marks and rules of every page, in page order.  Tags come with the pages.
void SetUpPages();
/// Puts all captions, fonts and places of the seven pages back to their defaults.  The caller sets
/// RebuildingPages.
void ShowDefaultPages();
/// Shows the controls of a page that comes to the front.
void ShowPageControls(Page& page);
/// Puts a picture, or none, in the place of the logo, at its own size; it shows if the preferences say so,
/// and the menu says the same.
void ShowLogoPicture(const Picture& picture);
/// Makes the column controls of a page usable.  Reports "Error in loading columns on Page 2." and goes on
/// when it fails.
void LoadColumns(Page& page);
/// Shows or hides the four column controls of a row together with their Tags; `shown` also narrows txt(row).
void ShowRowColumns(Page& page, int row, bool shown);

}  // namespace quillane
