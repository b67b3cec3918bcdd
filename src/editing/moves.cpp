// Moving a selected block of rows up or down by one, with everything that its rows have.
#include "editing/area_rules.h"
#include "editing/selection.h"
#include "model/focus.h"
#include "model/proposal.h"
#include "model/selection.h"
#include "pages/rows.h"
#include "ui/desk.h"

namespace quillane {

namespace {

// The area that the block's edge would move onto.
int Beyond(const AreaRange& range, Direction direction) {
  return direction == Direction::Down ? range.last + 1 : range.first - 1;
}
int LeftBehind(const AreaRange& range, Direction direction) {
  return direction == Direction::Down ? range.first : range.last;
}

bool AnyIsFixed(const Page& page, const AreaRange& range) {
  for (int area = range.first; range.IsSet() && area <= range.last; ++area)
    if (FixedByFormat(page, area)) return true;
  return false;
}

/// Why the block cannot move; empty when it can.
QString Refusal(Page& page, Direction direction) {
  const bool down = direction == Direction::Down;
  if (down && selection.BottomRowSelected) return QStringLiteral("Cannot move contents down. Out of space.");
  if (!down && selection.TopRowSelected) return QStringLiteral("Cannot move contents up any higher.");
  if (AnyIsFixed(page, selection.Desc(Source)) ||
      (selection.AmountsInClip && AnyIsFixed(page, selection.Amt(Source))))
    return QStringLiteral("Cannot move contents. The open format fixes this text.");
  const auto taken = [&](const AreaRange& range) {
    const int area = Beyond(range, direction);
    return range.IsSet() && area >= 0 && area <= page.LastText() &&
           (!Area(page, area).Text().isEmpty() || FixedByFormat(page, area));
  };
  if (taken(selection.Desc(Source)) || (selection.AmountsInClip && taken(selection.Amt(Source))))
    return down ? QStringLiteral("Cannot move contents down. Text exists in destination.")
                : QStringLiteral("Cannot move contents up. Text exists in destination.");
  if (selection.AmountsInClip && selection.Desc(Source).Count() != selection.Amt(Source).Count())
    return QStringLiteral(
        "Cannot move text. The number of right-hand boxes\n"
        "must match the number of left-hand boxes.");
  const int amountBeyond = Beyond(selection.Amt(Source), direction);
  if (selection.AmountsInClip && !page.IsAmount(amountBeyond))
    return down ? QStringLiteral("Cannot move contents down. Out of space.")
                : QStringLiteral("Cannot move contents up any higher.");
  return {};
}

AreaRange Shifted(const AreaRange& range, int step) {
  return range.IsSet() ? AreaRange{range.first + step, range.last + step} : range;
}

void MoveRows(Page& page, int step, int leftBehind) {
  for (int j = 0; j <= selection.ClipDescCount(); ++j) {
    const int target = selection.SelDescFirst[Source] + j + step;
    WriteArea(page, target, selection.rows[j]);
    PaintArea(page, target, Look::Selected);
  }
  WriteArea(page, leftBehind, {});
  PaintArea(page, leftBehind, Look::Rest);
}

void MoveAmounts(Page& page, int step, int leftBehind) {
  WriteArea(page, leftBehind, {});
  PaintArea(page, leftBehind, Look::Rest);
  for (int j = 0; j <= selection.ClipAmtCount(); ++j) {
    const int target = selection.SelAmtFirst[Source] + j + step;
    WriteArea(page, target, selection.amounts[j]);
    PaintArea(page, target, Look::Selected);
  }
}

void MoveBlock(Page& page, Direction direction) {
  const int step = direction == Direction::Down ? 1 : -1;
  CopySelectionToMemory(page);
  MoveRows(page, step, LeftBehind(selection.Desc(Source), direction));
  if (selection.AmountsInClip) MoveAmounts(page, step, LeftBehind(selection.Amt(Source), direction));
  selection.SetDesc(Source, Shifted(selection.Desc(Source), step));
  selection.SetAmt(Source, Shifted(selection.Amt(Source), step));
  editing.MoveRow =
      direction == Direction::Down ? selection.SelDescLast[Source] : selection.SelDescFirst[Source];
}

// The key whose release ends a move may have written into a field of the first page, which is no row.
void TakeFieldInUse(Page& page) {
  Control* focus = editing.Focus;
  if (!focus || &focus->Owner() != &page.form || focus->Array() != QLatin1String("txt")) return;
  if (page.IsRow(focus->Index()) || page.IsAmount(focus->Index())) return;
  if (page.form.textChanged) page.form.textChanged(*focus);
}

}  // namespace

void MoveContents(Page& page, Direction direction) {
  if (!HasBlueRow(page)) {
    Tell(QStringLiteral("Nothing Selected"));
    return;
  }
  if (ScanSelection(page) == Scan::Nothing) return;
  if (const QString refusal = Refusal(page, direction); !refusal.isEmpty()) {
    Tell(refusal);
    return;
  }
  editing.MovingContents = true;
  MoveBlock(page, direction);
}

void MoveCommand(Direction direction) {
  Page& page = editing.CurrentForm();
  MoveContents(page, direction);
  // A refused move has changed nothing, and nothing is to follow it.
  if (!editing.MovingContents) return;
  // The change handlers stand still until a key is released on the page, so this pass reaches none of them;
  // the rows that a planner moves several times in a row are then taken up once.
  RefireChanges(page, Refire::AllRows);
}

void FinishMove(Page& page) {
  if (!editing.MovingContents) return;
  editing.MovingContents = false;
  RefireChanges(page, Refire::AllRows);
  TakeFieldInUse(page);
}

}  // namespace quillane
