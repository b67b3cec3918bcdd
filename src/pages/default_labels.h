// The labels of a page as they come from the factory: places, captions and fonts.
#pragma once
#include <QStringList>

#include "model/page.h"

namespace quillane {

/// Gives every label of the page its default place, caption, font and colour; shown and Tag stay as they are.
/// A label that ends at the right edge of the amounts is placed by its width, so the fonts' measure must be
/// known.
void PlaceDefaultLabels(Page& page);
/// The captions of the contract lines lbl(13) to lbl(47) of frmP6, by line from 0.
QStringList DefaultContractLines();
/// Places the rules of frmP1, frmP6 and the copy.
void PlaceRules(Page& page);

/// Where the sheet's titles, page numbers and contract language stand in the label arrays.
namespace labels {
inline constexpr int ContractFirst = 13, ContractLast = 47;  ///< of frmP6
inline constexpr int Heading = 0;                            ///< of frmP2 to frmP6_1
}  // namespace labels

}  // namespace quillane
