// Letter case and weight of the area that has the focus.
#include "editing/area_rules.h"
#include "editing/selection.h"
#include "model/focus.h"
#include "model/proposal.h"
#include "model/selection.h"
#include "pages/rows.h"

namespace quillane {

namespace {

QString ProperCase(const QString& text) {
  QString result = text.toLower();
  bool start = true;
  for (QChar& c : result) {
    if (start) c = c.toUpper();
    start = c.isSpace();
  }
  return result;
}

QString InCase(const QString& text, LetterCase to) {
  switch (to) {
    case LetterCase::Lower:
      return text.toLower();
    case LetterCase::Upper:
      return text.toUpper();
    case LetterCase::Proper:
      break;
  }
  return ProperCase(text);
}

void SetWeight(bool bold) {
  Page& page = editing.CurrentForm();
  if (FixedByFormat(page, editing.CurrentArea)) return;
  Control& area = page.txt[editing.CurrentArea];
  if (area.GetFont().bold != bold) proposal.AreaMarks[page.pageIndex][area.Index()].PropChanged = true;
  area.SetFontBold(bold);
  if (page.window == 5) quillane::page(CopyOfPage6).txt[area.Index()].SetFontBold(bold);
  SetEditMenuState();
}

}  // namespace

void ChangeCase(LetterCase to) {
  Control& area = editing.CurrentForm().txt[editing.CurrentArea];
  if (!AcceptsTyping(area)) return;
  area.SetSelection(editing.SelectedTextStart, editing.SelectedTextLength);
  SetFocus(area);
  area.ReplaceSelection(InCase(area.SelText(), to));
}

void MakeBold() {
  SetWeight(true);
}
void MakeNormal() {
  SetWeight(false);
}

}  // namespace quillane
