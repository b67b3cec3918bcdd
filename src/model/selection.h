// Selected areas, the memory of copied rows, and the one-level undo of a delete.
#pragma once
#include <QString>

#include "platform/array.h"

namespace quillane {

/// A range of areas of a page; -1 means not set.
struct AreaRange {
  int first = -1, last = -1;
  bool IsSet() const { return first >= 0; }
  int Count() const { return IsSet() ? last - first + 1 : 0; }
};

/// What a copied description row holds.
struct ClipRow {
  QString ClipDescText;
  bool ClipDescBold = false;
  QString ClipQty;  ///< "Hide" when the row has no columns
  QString ClipAmt;
};
struct ClipAmount {
  QString ClipAmtText;
  bool ClipAmtBold = false, ClipAmtExempt = false;
};

/// One area of a page as it stood before a delete.
struct UndoArea {
  QString UndoText, UndoQty, UndoAmt;
  bool UndoExempt = false, UndoBold = false, UndoQtyBox = false;
};

struct SelectionState {
  // The blue runs on the page: SelDescFirst..SelDescLast and SelAmtFirst..SelAmtLast as the source of a copy,
  // and as the destination of the last paste.
  AreaRange SelDesc, SelAmt;
  AreaRange PasteDesc, PasteAmt;
  bool AmountsInClip = false;  ///< the selection takes in amount areas
  bool ClipboardFull = false;  ///< a copy or a cut has filled the memory for pasting
  int SelectedCount = 0;       ///< areas selected by rectangle
  bool MultiSelected = false;
  bool TopRowSelected = false, BottomRowSelected = false;
  int DescRowFirst = 0, DescRowLast = 34;
  Array<ClipRow> rows;
  Array<ClipAmount> amounts;
  Array<UndoArea> undo;  ///< of the whole page
  int UndoPage = 0;      ///< window index
};
inline SelectionState selection;

}  // namespace quillane
