// Copy, cut, paste, delete and the one-level undo of a delete, on rows as blocks.
#include "editing/area_rules.h"
#include "editing/selection.h"
#include "model/focus.h"
#include "model/frame.h"
#include "model/proposal.h"
#include "model/report.h"
#include "model/selection.h"
#include "pages/rows.h"
#include "pages/totals.h"
#include "ui/desk.h"

namespace quillane {

namespace {

bool HasBlueArea(Page& page) {
  for (const Control& area : page.txt)
    if (IsBlue(area)) return true;
  return false;
}

/// A command on rows needs a blue row on the page in front; memory, ranges and flags stay when there is none.
bool RefusedWithoutRows(Page& page) {
  if (HasBlueRow(page)) return false;
  if (HasBlueArea(page)) {
    ScanSelection(page);  // only amounts are selected, which it tells and clears
  } else {
    Tell(QStringLiteral("Nothing Selected"));
  }
  return true;
}

void ShowMemoryFull() {
  selection.ClipboardFull = editing.SelectionMemoryFull = true;
  SetEditMenuState();
}

void RememberPage(const Page& page) {
  selection.UndoPageName = page.form.name;
  selection.undo.clear();
  for (int area = 0; area <= page.LastText(); ++area) selection.undo.push_back(ReadArea(page, area));
}

// A row that the open format fixes stays as it is; it only loses the selection.
void EmptyArea(Page& page, int area) {
  if (FixedByFormat(page, area)) return PaintArea(page, area, Look::Rest);
  WriteArea(page, area, {});
  PaintArea(page, area, Look::Rest);
}

// A row that was plain before the delete stays as it is found, so that columns can only reappear.
void PutBack(Page& page, int area, TextAreaRecord kept) {
  const TextAreaRecord found = ReadArea(page, area);
  if (found.QtyBox && !kept.QtyBox) {
    kept.QtyBox = true;
    kept.QtyValue = found.QtyValue;
    kept.AmtValue = found.AmtValue;
  }
  WriteArea(page, area, kept);
  PaintArea(page, area, Look::Rest);
}

bool RowIsTaken(const TextAreaRecord& there) {
  if (!there.Text.isEmpty()) return true;
  return there.QtyBox && ((!there.QtyValue.isEmpty() && there.QtyValue != QuantityPrompt) ||
                          (!there.AmtValue.isEmpty() && there.AmtValue != EachPrompt));
}

bool DestinationIsTaken(Page& page) {
  const AreaRange rows = selection.Desc(Destination), amounts = selection.Amt(Destination);
  for (int row = rows.first; row <= rows.last; ++row)
    if (RowIsTaken(ReadArea(page, row))) return true;
  for (int area = amounts.first; amounts.IsSet() && area <= amounts.last; ++area)
    if (!Area(page, area).Text().isEmpty()) return true;
  return false;
}

bool DestinationIsFixed(const Page& page) {
  for (const AreaRange& range : {selection.Desc(Destination), selection.Amt(Destination)})
    for (int area = range.first; range.IsSet() && area <= range.last; ++area)
      if (FixedByFormat(page, area)) return true;
  return false;
}

/// The rows that the memory would take from the caret on.  False, after telling, when they are not there.
bool FindDestination(Page& page) {
  if (!page.IsItemPage() || (page.window == 0 && !page.IsRow(editing.CurrentArea))) {
    Tell(QStringLiteral("Cannot paste here."));
    return false;
  }
  if (selection.rows.empty()) {
    Tell(QStringLiteral("Nothing Selected"));
    return false;
  }
  const int first = editing.CurrentArea;
  const AreaRange rows{first, first + selection.ClipDescCount()};
  AreaRange amounts;
  if (selection.AmountsInClip) {
    amounts.first = first + page.AmountOffset();
    amounts.last = amounts.first + selection.ClipAmtCount();
  }
  if (rows.last > page.LastRow() || amounts.last > page.LastText()) {
    Tell(QStringLiteral("Cannot paste here. Out of space."));
    return false;
  }
  selection.SetDesc(Destination, rows);
  selection.SetAmt(Destination, amounts);
  if (!DestinationIsFixed(page)) return true;
  Tell(QStringLiteral("Cannot paste here."));
  return false;
}

bool MayOverwrite(Page& page) {
  if (!DestinationIsTaken(page)) return true;
  if (AskYesNo(
          QStringLiteral("Text is present in destination areas. Over-write this text with that in memory?"),
          QStringLiteral("Text areas are not all empty.")))
    return true;
  Tell(QStringLiteral("Action Cancelled."));
  return false;
}

void WriteMemory(Page& page) {
  for (int j = 0; j <= selection.ClipDescCount(); ++j)
    WriteArea(page, selection.SelDescFirst[Destination] + j, selection.rows[j]);
  if (!selection.AmountsInClip) return;
  for (int j = 0; j <= selection.ClipAmtCount(); ++j)
    WriteArea(page, selection.SelAmtFirst[Destination] + j, selection.amounts[j]);
}

void RefireControl(Control& control) {
  static const QString Other = QStringLiteral("Test");
  const QString text = control.Text();
  if (text == Other) {
    if (control.Owner().textChanged) control.Owner().textChanged(control);
    return;
  }
  const int start = control.SelStart(), length = control.SelLength();
  control.SetText(Other);
  control.SetText(text);
  if (control.SelStart() != start || control.SelLength() != length) control.SetSelection(start, length);
}

void RefireRow(Page& page, int row) {
  RefireControl(page.txtQty[row]);
  RefireControl(page.txtAmt[row]);
  RefireControl(page.txt[row]);
}

}  // namespace

void CopyCommand() {
  Page& page = editing.CurrentForm();
  if (RefusedWithoutRows(page) || ScanSelection(page) == Scan::Nothing) return;
  CopySelectionToMemory(page);
  ShowMemoryFull();
}

void CutTextContents(Page& page) {
  if (RefusedWithoutRows(page)) return;
  try {
    if (ScanSelection(page) == Scan::Nothing) return;
    CopySelectionToMemory(page);
    {
      Scoped pending(editing.RecalcPending, true);
      const AreaRange rows = selection.Desc(Source), amounts = selection.Amt(Source);
      for (int row = rows.first; row <= rows.last; ++row) EmptyArea(page, row);
      for (int area = amounts.first; amounts.IsSet() && area <= amounts.last; ++area) EmptyArea(page, area);
    }
    ShowMemoryFull();
    CalculateMyTotals(page);
    RecalculateTotals(0);
  } catch (const RuntimeError&) {
    Tell(QStringLiteral("An error occurred while cutting text."));
  }
}

void PasteTextContents(Page& page) {
  if (!FindDestination(page) || !MayOverwrite(page)) return;
  {
    Scoped pending(editing.RecalcPending, true);
    WriteMemory(page);
  }
  RefireChanges(page, Refire::Pasted);
  RecalculateTotals(0);
  SetEditMenuState();
}

void DeleteTextContents(Page& page) {
  if (RefusedWithoutRows(page)) return;
  Guarded("DeleteTextContents", [&page] {
    {
      Scoped pending(editing.RecalcPending, true);
      RememberPage(page);
      for (int area = 0; area <= page.LastText(); ++area)
        if (IsBlue(Area(page, area))) EmptyArea(page, area);
    }
    editing.UndoAvailable = true;
    ClearSelection();
    CalculateMyTotals(page);
    RecalculateTotals(0);
    SetEditMenuState();
  });
}

void UndoDelete() {
  if (!editing.UndoAvailable) return;
  Page& target = *PageNamed(selection.UndoPageName);
  // Rows that were moved on the page in front keep the change handlers still; those of another page would
  // never catch up.
  if (&target != &editing.CurrentForm()) FinishMove(editing.CurrentForm());
  {
    Scoped pending(editing.RecalcPending, true);
    for (int i = 0; i <= selection.UndoCount(); ++i) PutBack(target, i, selection.undo[i]);
  }
  selection.undo.clear();
  editing.UndoAvailable = false;
  editing.RecalcPending = false;
  CalculateMyTotals(target);
  RecalculateTotals(0);
  SetEditMenuState();
}

void RefireChanges(Page& page, Refire what) {
  Scoped pending(editing.RecalcPending, true);
  const bool all = what == Refire::AllRows;
  const AreaRange rows = all ? AreaRange{page.FirstRow(), page.LastRow()} : selection.Desc(Destination);
  const AreaRange amounts =
      all ? AreaRange{page.FirstRow() + page.AmountOffset(), page.LastText()} : selection.Amt(Destination);
  for (int row = rows.first; rows.IsSet() && row <= rows.last; ++row) RefireRow(page, row);
  for (int area = amounts.first; amounts.IsSet() && area <= amounts.last; ++area)
    RefireControl(Area(page, area));
}

}  // namespace quillane
