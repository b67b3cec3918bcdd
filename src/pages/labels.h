// The labels of a page: marking, dragging, the label menu, what is stored of them.
#pragma once
#include "model/page.h"
#include "model/proposal.h"

namespace quillane {

enum class MouseButton { Left = 1, Right = 2 };
/// Whether a move of the pointer moved what it holds.
enum class DragStep { Rests, Moved };
/// What the pointer over a control looks like.
enum class MousePointer {
  Default = 0,
  Moves = 1,  ///< over what can be dragged
  Link,       ///< over a label that leads to another page
};

// The handlers of the labels of frmP1 to frmP6; frmP6_1 is a view and none of them does anything there.  x
// and y are twips inside the label as it stands.
void lbl_Click(Control& label);
void lbl_DblClick(Control& label);
void lbl_MouseDown(Control& label, MouseButton button, float x, float y);
/// Moves a label that is held by at most one SnapValue each way; the viewer calls it again until it rests.
DragStep lbl_MouseMove(Control& label, float x, float y);
/// Stores the label if it stands elsewhere than at the press.
void lbl_MouseUp(Control& label);

// The logo of frmP1 is dragged as labels are.
void pic_MouseDown(Control& logo, MouseButton button, float x, float y);
DragStep pic_MouseMove(Control& logo, float x, float y);
void pic_MouseUp(Control& logo);

/// True for the label that has left the place where it was pressed: letting it go is no click.
bool WasDragged(const Control& control);
/// "Continued on Page 3" of frmP2 and its fellows up to frmP5.
bool IsLinkLabel(const Control& label);
MousePointer PointerOver(const Control& control);

/// True for a label that belongs to a selection.
bool IsMarked(const Control& label);
void Mark(Control& label);
void Unmark(Control& label);
int MarkedLabels(const Page& page);
/// The currency signs are known by their index; no change of a selection touches them.
bool IsCurrencySign(const Page& page, int label);

/// In place of the ForeColor of labels that differ in it, since 0 is black.
inline constexpr Color NoCommonColour = -1;

/// The nine values of a label, and the way back.
LabelValues ValuesOf(const Control& label);
void ApplyValues(Control& label, const LabelValues& values);

/// What a caption of frmP6 reads on the client's copy: the two sheets say whose they are.
QString CaptionForCopy(QString caption);

/// Gives a label of frmP6_1 the values of its fellow on frmP6; the caption says whose sheet it is.
void ShowLabelOnCopy(int index, const LabelValues& values);

/// Fills labelEdit.CurrentLabelRec from CurrentLabel of the page in use, marked or not.  Throws 9 for an
/// index that the page does not have.
void LoadCurrentLabel();
/// A label that was changed by hand belongs to the proposal and to the format from now on, as it stands; on
/// frmP6 the copy page follows.  Throws 9 for an index that the page does not have.
void StoreLabel(const Page& page, int index);

// The entries of mnuEditLabel; they work on the page in front.

/// Opens frmLabelProps for CurrentLabel, or for the marked labels where there are several.
void EditLabelProps();
/// Marks every label but the currency signs and opens frmLabelProps with what they have in common.
void SelectAllLabels();
void DeselectAllLabels();

}  // namespace quillane
