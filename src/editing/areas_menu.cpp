// The states of the text menu's entries.
#include "editing/area_rules.h"
#include "model/frame.h"
#include "model/proposal.h"
#include "ui/desk.h"

namespace quillane {

namespace {

enum class State { BoxesSelected, OnlyTextSelected, NothingSelected, EnablePaste };

State WorkOutState(const Control& area) {
  if (editing.AreasSelected) return editing.SelectionMemoryFull ? State::EnablePaste : State::BoxesSelected;
  if (area.SelLength() == 0) return State::NothingSelected;
  editing.SelectedTextStart = area.SelStart();
  editing.SelectedTextLength = area.SelLength();
  return State::OnlyTextSelected;
}

// On the first page the rows of the menu are not those of the item lines; F8 and a double click know better.
bool MenuKnowsColumns(const Page& page, int area) {
  if (page.window == 0) return area >= 9 && area <= 19;
  return page.IsRow(area);
}

void SetColumnsEntry(const Page& page, int area, State state) {
  const bool on = state != State::BoxesSelected && MenuKnowsColumns(page, area) && !FixedByFormat(page, area);
  EnableMenu("mnuEditTextColumns", on);
  Control* entry = frame().Find(QStringLiteral("mnuEditTextColumns"));
  if (!on || !entry) return;
  entry->SetCaption(page.HasColumns(area) ? QStringLiteral("Remove Columns") : QStringLiteral("Add Columns"));
}

void SetCharacterEntries(bool charactersSelected) {
  for (const char* entry : {"mnuEditTextSelLCase", "mnuEditTextSelPCase", "mnuEditTextSelUCase"})
    EnableMenu(entry, charactersSelected);
  const bool termsOpen = charactersSelected && desk().WindowIsOpen(QStringLiteral("frmFUT"));
  for (const char* entry : {"mnuEditTextAddFUT", "mnuEditTextEditFUT", "mnuEditTextDeleteFUT"})
    EnableMenu(entry, termsOpen);
}

void SetBlockEntries(State state) {
  const bool boxes = state == State::BoxesSelected;
  for (const char* entry :
       {"mnuEditTextDelete", "mnuEditTextCopy", "mnuEditTextCut", "mnuEditTextMoveDown", "mnuEditTextMoveUp"})
    EnableMenu(entry, boxes);
  EnableMenu("mnuEditTextPaste", state == State::EnablePaste);
  EnableMenu("mnuEditTextDeselect", boxes || state == State::EnablePaste);
  EnableMenu("mnuEditTextUndo", editing.UndoAvailable);
}

void SetAreaEntries(const Control& area, bool oneArea) {
  const bool bold = area.GetFont().bold;
  EnableMenu("mnuEditTextBold", oneArea && !bold);
  EnableMenu("mnuEditTextNormal", oneArea && bold);
  const bool amount = oneArea && AreaKind(area) == QLatin1String("Amou");
  EnableMenu("mnuEditTextTaxExempt", amount);
  EnableMenu("mnuEditTextTaxable", amount);
}

}  // namespace

void SetEditMenuState() {
  const Page& current = page(editing.CurrentPage);
  if (editing.CurrentArea > current.LastText()) return;
  const Control& area = At(current.txt, editing.CurrentArea);
  const State state = WorkOutState(area);
  SetColumnsEntry(current, editing.CurrentArea, state);
  SetCharacterEntries(state == State::OnlyTextSelected);
  SetBlockEntries(state);
  const bool oneArea = state == State::NothingSelected || state == State::EnablePaste;
  SetAreaEntries(area, oneArea && !FixedByFormat(current, editing.CurrentArea));
}

}  // namespace quillane
