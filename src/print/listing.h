// Plain lists on paper: addresses, deposits, events, notes.
#pragma once
#include <QString>
#include <vector>

#include "ui/font.h"

namespace quillane {

enum class ListingEdge { Left, Right };
/// One text of a line.  `x`, in twips from the sheet's left edge, is where it begins, or where it ends.
struct ListingText {
  float x = 0;
  QString text;
  ListingEdge edge = ListingEdge::Left;
};
/// A line of the list; without texts it is a blank one.
using ListingLine = std::vector<ListingText>;

struct Listing {
  QString title;  ///< of the document; also its file's name where it is printed to "PDF File"
  std::vector<ListingLine> lines;
  Font font;             ///< 10 point
  float top = 1440;      ///< twips from the sheet's top edge to the first line
  float lineHeight = 0;  ///< twips; 0 is the font's own
};

/// The left and the right margin of a list's sheet, twips.
inline constexpr float ListingLeft = 1440, ListingRight = 10800;

/// Prints a list on letter sheets with an inch of margin and the page number below, as one document.  A text
/// that begins at the left and is wider than the room up to the next one is wrapped at its words.  False,
/// after saying so, when there is no printer.  Throws 482 when the printer fails.
bool PrintListing(const Listing& listing);

}  // namespace quillane
