// Selected areas, the memory of copied rows, and the one-level undo of a delete.
#pragma once
#include <QString>
#include <array>

#include "model/document.h"
#include "platform/array.h"

namespace quillane {

/// A range of areas of a page; -1 means not set.
struct AreaRange {
  int first = -1, last = -1;
  bool IsSet() const { return first >= 0; }
  int Count() const { return IsSet() ? last - first + 1 : 0; }
};

/// The two places of a selection's ranges.
enum Side { Source = 0, Destination = 1 };

struct SelectionState {
  // The blue runs on the page: [Source] of a copy, and [Destination] of the last paste; -1 means not set.
  std::array<int, 2> SelDescFirst{-1, -1}, SelDescLast{-1, -1}, SelAmtFirst{-1, -1}, SelAmtLast{-1, -1};
  AreaRange Desc(Side side) const { return {SelDescFirst[side], SelDescLast[side]}; }
  AreaRange Amt(Side side) const { return {SelAmtFirst[side], SelAmtLast[side]}; }
  void SetDesc(Side side, AreaRange range) {
    SelDescFirst[side] = range.first;
    SelDescLast[side] = range.last;
  }
  void SetAmt(Side side, AreaRange range) {
    SelAmtFirst[side] = range.first;
    SelAmtLast[side] = range.last;
  }

  bool AmountsInClip = false;  ///< the selection takes in amount areas
  bool ClipboardFull = false;  ///< a copy or a cut has filled the memory for pasting
  int SelectedCount = 0;       ///< areas selected by rectangle
  bool MultiSelected = false;
  bool TopRowSelected = false, BottomRowSelected = false;
  int DescRowFirst = 0, DescRowLast = 34;

  // The memory of copied rows and amounts, and the whole page as it stood before a delete.
  Array<TextAreaRecord> rows, amounts, undo;
  int ClipDescCount() const { return rows.size() - 1; }  ///< the highest number, as with the other two
  int ClipAmtCount() const { return amounts.size() - 1; }
  int UndoCount() const { return undo.size() - 1; }
  QString UndoPageName;  ///< "frmP2"
};
inline SelectionState selection;

}  // namespace quillane
