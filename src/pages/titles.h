// Titles and page numbers, and how many pages are in use.
#pragma once

namespace quillane {

/// Works out proposal.HighestPage from the texts; keeps it when no page has any.
void FindHighestPage();
enum class Titles { Keep, Reset };  ///< Reset also copies each touched label into its LabelRec entry
void UpdatePageNumbers(Titles titles = Titles::Keep);
/// Writes the title into all pages and the frame, and the frame's caption.
void UpdateEventNameLabels();

}  // namespace quillane
