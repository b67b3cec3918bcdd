// Titles and page numbers, and how many pages are in use.
#pragma once
#include <QString>

#include "model/page.h"

namespace quillane {

/// Works out proposal.HighestPage from the texts; keeps it when no page has any.
void FindHighestPage();
/// Writes the page numbers and headings by proposal.HighestPage, and the frame's label of the pages in use.
void UpdatePageNumbers();
/// Writes the title into all pages and the frame, and the frame's caption.  A title made by hand is marked as
/// a changed label of frmP1, so that the property file keeps it; a title that only follows the client's name
/// marks nothing.
void UpdateEventNameLabels();

/// The title on frmP6 without the words that say whose copy that sheet is.
QString TitleWithoutCopy(const QString& caption);

/// The boxes of frmTitle.
struct ProposalTitles {
  QString title, subTitle;
};
ProposalTitles TitlesToEdit();
/// Writes both on all pages.  An empty title, or the one that follows the client's name, follows it again;
/// any other is made by hand and stays until New or Open.
void SaveTitles(const ProposalTitles& titles);
/// New proposals begin with this subtitle.  False when the preferences could not be written, which has been
/// told.
bool MakeSubTitleDefault(const QString& subTitle);

}  // namespace quillane
