// Between the pages and the document that they show.
#pragma once
#include "model/document.h"
#include "model/page.h"

namespace quillane {

/// The document that the pages show.
Document ReadPages();
/// Puts a document on the pages, whatever they showed: areas, columns, marks, bold, amounts, labels, fonts,
/// logo and titles; the sums are worked out anew.  Change handlers keep still.  A label that comes to differ
/// counts as not yet written.  A logo that cannot be loaded is reported and costs the logo alone.
void ShowDocument(const Document& document);
/// The same for a reader of files, which has more to say before sums and titles can follow.
void PutOnPages(const Document& document);
/// The sums of what stands on the pages; figures that cannot be held are reported and cost the totals only.
void ShowFollowingSums();

/// The stored form of an area now, and when the proposal was last written or read.
QString PageText(int pageIndex, int area);
QString SavedText(int pageIndex, int area);

LogoRecord ReadLogo();
/// A label as the document keeps it.
LabelRecord ReadLabel(const Page& page, int label);

}  // namespace quillane
