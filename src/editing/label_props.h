// The rules of frmLabelProps: what it does to one label or to a selection acts on the page at once, is stored
// when the window ends, and is put back when it was cancelled.
#pragma once
#include <QString>
#include <array>

#include "model/proposal.h"

namespace quillane {

/// The captions of cmdSize(0) and on, in points.
inline constexpr std::array<int, 10> LabelSizes = {8, 9, 10, 11, 12, 14, 16, 18, 20, 24};

/// Begins the dialog with labelEdit.CurrentLabelRec, on the page in use.
void LoadLabelProps();

// The controls.  In a selection they reach every marked label but the currency signs.
void SetLabelBold(bool bold);
void SetLabelItalic(bool italic);
void SetLabelUnderline(bool underline);
void SetLabelFontName(const QString& name);
void SetLabelFontSize(float points);
void SetLabelColor(Color color);
/// Has no effect on a selection: several labels with one caption are nobody's wish.
void SetLabelCaption(const QString& caption);

/// Whose words the caption is made of.  The program writes page numbers and what stands before them anew
/// whenever pages come or go, so that a caption typed there would be lost.
enum class CaptionWords { Own, OfEachLabel, Title, SubTitle, PageNumber };
CaptionWords WordsOfCaption();

/// "Font = Arial" and "Label Font Size = 10"; what a selection does not have in common is left out.
QString LabelFontLine();
QString LabelSizeLine();

/// Ends the dialog: stores what was changed in both label tables, or, after LabelDialogCancelled, gives every
/// label back what it had.  Clears the marks and the flags.
void UnloadLabelProps();

}  // namespace quillane
