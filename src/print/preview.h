// The preview: the page in front as it will print.
#pragma once

namespace quillane {

/// Shows the page in front as it will print, or ends that.  The sheet view draws what the printer would get,
/// less the offsets, which belong to the printer; the page's controls are left alone.
void PrintPreview();
/// What ends with the preview, once cmdPreview says that it has ended: the commands that write into pages
/// work again.
void ResumeEditing();

}  // namespace quillane
