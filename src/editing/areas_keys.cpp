// The keyboard on a page: which key does what, and which characters pass.
#include <algorithm>
#include <utility>

#include "editing/area_rules.h"
#include "editing/selection.h"
#include "model/focus.h"
#include "model/proposal.h"
#include "model/upcalls.h"
#include "pages/totals.h"
#include "ui/desk.h"

namespace quillane {

namespace {

constexpr int KeysPerBackup = 20;

void CountKey() {
  if (++editing.KeysSinceBackup < KeysPerBackup) return;
  editing.KeysSinceBackup = 0;
  upcalls().BackupThisFile();
}

void Toggle(Page& page, int row) {
  editing.CurrentPage = page.pageIndex;
  editing.CurrentArea = row;
  ToggleColumns();
}

void TellLimits() {
  Tell(QStringLiteral("Limits reached. Cannot move further."));
}

// A control that is not there or cannot take the focus is the end of the way.
void MoveTo(Page& page, Control* target, int scrollKey) {
  if (!target) {
    TellLimits();
    return;
  }
  try {
    GoTo(page, *target, scrollKey);
  } catch (const RuntimeError& error) {
    if (error.Number() != errors::InvalidProcedureCall) throw;
    TellLimits();
  }
}

void Walk(Page& page, const Control& from, const KeyEvent& event) {
  if (event.shift && event.key == keys::Tab) {
    MoveTo(page, PreviousControl(page, from), keys::PageUp);
  } else {
    MoveTo(page, NextControl(page, from), keys::PageDown);
  }
}

// The two columns of an item page stand side by side: the end of one leads to the top of the other.
void MoveDown(Page& page, const Control& from) {
  const bool toNextColumn = page.window > 0 && from.Index() == page.LastRow();
  if (toNextColumn) SetDialPosition(keys::PageUp);
  MoveTo(page, ControlBelow(page, from), toNextColumn ? keys::PageUp : keys::PageDown);
}

void MoveUp(Page& page, const Control& from) {
  if (from.Index() == 0) {
    SetDialPosition(keys::PageUp);
    ScrollToShow(from, keys::PageUp);
    return;
  }
  const bool toFirstColumn = page.window > 0 && from.Index() == page.LastRow() + 1;
  if (toFirstColumn) SetDialPosition(keys::PageDown);
  MoveTo(page, ControlAbove(page, from), toFirstColumn ? keys::PageDown : keys::PageUp);
}

Handled PasteByKey(Control& control) {
  const QString text = PasteInto(control, desk().ClipboardText());
  if (text.isEmpty()) return Handled::Yes;
  if (IsColumnBox(control) && ShowsPrompt(control)) control.SetText(QString());
  control.ReplaceSelection(text);
  return Handled::Yes;
}

Handled OtherKey(Control& area, const KeyEvent& event) {
  ShowCaret(area);
  editing.LastKey = event.text.right(1);
  if (Writes(event) && !AcceptsTyping(area)) return Handled::Yes;
  editing.Typing = IsPrintable(event);
  if (IsNumericArea(area) && IsPaste(event)) return PasteByKey(area);
  return Handled::No;
}

Handled AreaKeyDown(Page& page, Control& area, const KeyEvent& event) {
  if (event.key == keys::F8 && page.IsRow(area.Index())) {
    Toggle(page, area.Index());
    return Handled::Yes;
  }
  if (editing.AutoCompleting && area.SelLength() == 0) editing.AutoCompleting = false;
  if (IsWalk(event) && !editing.AutoCompleting) {
    Walk(page, area, event);
  } else if (event.key == keys::Down) {
    MoveDown(page, area);
  } else if (event.key == keys::Up) {
    MoveUp(page, area);
  } else {
    return OtherKey(area, event);
  }
  return Handled::Yes;
}

// A prompt goes as a whole when a figure is typed; a piece of it would be printed.
bool NibblesAtPrompt(const Control& box, const KeyEvent& event) {
  const bool cuts = event.ctrl && !event.alt && event.key == 'X';
  return ShowsPrompt(box) && (cuts || event.key == keys::Delete || event.key == keys::Backspace);
}

void MoveInColumn(Page& page, Control* target, int scrollKey) {
  if (target) MoveTo(page, target, scrollKey);
}

Handled ColumnBoxKeyDown(Page& page, Control& box, const KeyEvent& event) {
  if (event.key == keys::F8) {
    Toggle(page, box.Index());
  } else if (IsWalk(event)) {
    Walk(page, box, event);
    if (IsQuantity(box) && editing.Focus == &At(page.txt, box.Index()))
      At(page.txt, box.Index()).SetSelStart(0);
  } else if (event.key == keys::Down) {
    MoveInColumn(page, ControlBelow(page, box), keys::PageDown);
  } else if (event.key == keys::Up) {
    MoveInColumn(page, ControlAbove(page, box), keys::PageUp);
  } else if (NibblesAtPrompt(box, event) || (Writes(event) && !AcceptsTyping(box))) {
    return Handled::Yes;
  } else {
    return IsPaste(event) ? PasteByKey(box) : Handled::No;
  }
  return Handled::Yes;
}

Handled TotalsKeyDown(Page& page, Control& area, const KeyEvent& event) {
  if (IsWalk(event)) {
    if (page.window != CopyOfPage6 && area.Index() == shape::Deposit) RewriteDeposit();
    if (event.key == keys::Tab) Walk(page, area, event);
    return Handled::Yes;
  }
  if (event.key == keys::Up || event.key == keys::Down) return Handled::Yes;
  if (Writes(event) && !AcceptsTyping(area)) return Handled::Yes;
  return IsPaste(event) ? PasteByKey(area) : Handled::No;
}

bool HasSelection(const Page& page) {
  return std::any_of(page.txt.begin(), page.txt.end(),
                     [](const Control& area) { return area.BackColor() == colors::Blue; });
}

void MoveBlock(Page& page, bool down) {
  editing.MoveRow = -1;
  MoveContents(page, down ? Direction::Down : Direction::Up);
  if (editing.MoveRow >= 0) ScrollToShow(At(page.txt, editing.MoveRow), down ? keys::PageDown : keys::PageUp);
}

Handled ItemPageKeyDown(Page& page, const KeyEvent& event) {
  editing.CurrentPage = page.pageIndex;
  const bool arrow = event.key == keys::Up || event.key == keys::Down;
  if (arrow && event.shift && HasSelection(page)) {
    MoveBlock(page, event.key == keys::Down);
    return Handled::Yes;
  }
  return Handled::No;
}

Handled FormKey(Page& page, const KeyEvent& event) {
  if (event.key == keys::PageUp || event.key == keys::PageDown) {
    SetDialPosition(event.key);
    return Handled::Yes;
  }
  return page.IsItemPage() ? ItemPageKeyDown(page, event) : Handled::No;
}

void ItemAreaKeyUp(Page& page, Control& area) {
  ShowCaret(area);
  if (editing.Focus == &area) RefreshWarning(page, area);
  SetEditMenuState();
}

}  // namespace

Handled FormKeyDown(Page& page, const KeyEvent& event) {
  return Answered(page, [&] { return FormKey(page, event); });
}

Handled KeyDown(Control& control, const KeyEvent& event) {
  Page* page = PageOf(control);
  if (!page) return Handled::No;
  editing.Typing = false;
  return Answered(*page, [&] {
    if (page->window != CopyOfPage6) CountKey();
    if (page->IsTotalsPage()) return TotalsKeyDown(*page, control, event);
    return IsColumnBox(control) ? ColumnBoxKeyDown(*page, control, event)
                                : AreaKeyDown(*page, control, event);
  });
}

void KeyUp(Control& control) {
  Page* page = PageOf(control);
  if (!page || page->window == CopyOfPage6 || editing.AreasSelected || !IsArea(control)) return;
  GuardedOn(*page, [&] {
    if (page->IsItemPage()) {
      ItemAreaKeyUp(*page, control);
    } else {
      ShowCaretPlace(control);
      SetEditMenuState();
    }
  });
}

void FormKeyUp(Page& page, const KeyEvent& event) {
  if (!editing.MovingContents || event.shift || page.IsTotalsPage()) return;
  GuardedOn(page, [&] { FinishMove(page); });
}

}  // namespace quillane
