// What helps to lay a page out: the snap, the grid and the centre lines.  All of it is on the screen only.
#pragma once
#include <QString>
#include <QStringList>
#include <array>

#include "model/page.h"

namespace quillane {

/// The grid's finest step in twips, a pixel of the screen: points that stand closer would be one grey field,
/// and millions of them.
inline constexpr float FinestGrid = 15;

/// Draws the points of the grid on a page, one SnapValue apart, and keeps them in layoutAids.GridPoints.  A
/// step below FinestGrid, or none, draws no point.
void DrawGrid(const Page& page);
/// Seven lines each way, at the eighths of a length in twips.
std::array<float, 7> CentreLines(float length);
/// Takes lines and points off a page.
void ClearGrid(const Page& page);

// The entries of mnuTools; they work on the window in front.
void DrawGridCommand();
void ClearGridCommand();
/// Moves the sheet of frmP1 to a whole number of snaps.
void AlignFormToSnap();

// frmSnap.
inline const QStringList QuickSnaps = {QStringLiteral("0.25"), QStringLiteral("0.1875"),
                                       QStringLiteral("0.125"), QStringLiteral("0.0625")};  ///< inches
/// The snap in use, in inches.
QString SnapText();
/// Takes a new snap in inches.  False, with the box that says why, when the text is no number.  Throws 6.
bool TakeSnap(const QString& inches);
/// "360 Twips"
QString SnapToolTip(const QString& inches);

}  // namespace quillane
