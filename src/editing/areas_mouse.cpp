// The mouse on an area: double click, the two buttons, and a term that is dropped.
#include "editing/area_rules.h"
#include "model/focus.h"
#include "model/proposal.h"
#include "model/upcalls.h"
#include "platform/dates.h"
#include "platform/numbers.h"

namespace quillane {

namespace {

void TakeAsCurrent(Page& page, int area) {
  editing.CurrentPage = page.pageIndex;
  editing.CurrentArea = area;
}

void WriteDateInFull(Control& area) {
  if (!AcceptsTyping(area)) return;
  if (const auto date = ParseDate(area.Text())) area.SetText(LongDate(*date));
}

void AreaDoubleClicked(Page& page, Control& area) {
  TakeAsCurrent(page, area.Index());
  if (page.IsRow(area.Index())) ToggleColumns();
  if (page.window == 0 && area.Index() == 0) WriteDateInFull(area);
}

void OpenTextMenu(Page& page, Control& control) {
  if (control.Visible() && control.Enabled()) SetFocus(control);
  if (!editing.AreasSelected) RefreshAreaWarnings(page);
  editing.MouseDownArea = control.Index();
  TakeAsCurrent(page, control.Index());
  // What the menu's commands do to the focus is no new area to be announced.
  Scoped quiet(editing.SuppressAreaCaption, true);
  SetEditMenuState();
  upcalls().PopUpMenu(QStringLiteral("mnuEditTextBox"), control);
}

// A term as the list shows it: "Centerpieces[35.00]" carries its price.
struct Term {
  QString words, price;
};

Term SplitTerm(const QString& text) {
  const qsizetype open = text.indexOf(QLatin1Char('['));
  const qsizetype close = text.indexOf(QLatin1Char(']'), open + 1);
  if (open < 0 || close < 0) return {text, QString()};
  return {text.left(open), text.mid(open + 1, close - open - 1)};
}

bool TakesTerms(const Page& page, const Control& control) {
  return IsArea(control) && !IsNumericArea(control) && page.IsItemPage() && AcceptsTyping(control);
}

void PutPrice(Page& page, int row, const QString& price) {
  Control& amount = At(page.txt, row + page.AmountOffset());
  Control& target = page.HasColumns(row) ? At(page.txtAmt, row) : amount;
  if (AcceptsTyping(target)) target.SetText(price);
  SetFocus(amount);
}

void PutTerm(Page& page, Control& area, const Term& term) {
  area.SetText(area.Text().isEmpty() ? term.words : area.Text() + QLatin1Char(' ') + term.words);
  if (page.IsRow(area.Index()) && IsNumeric(term.price)) {
    PutPrice(page, area.Index(), term.price);
  } else {
    area.SetSelStart(static_cast<int>(area.Text().size()));
  }
}

}  // namespace

void DoubleClick(Control& control) {
  Page* page = PageOf(control);
  if (!page || !page->IsItemPage() || !IsArea(control)) return;
  GuardedOn(*page, [&] { AreaDoubleClicked(*page, control); });
}

void MouseDown(Control& control, bool rightButton) {
  Page* page = PageOf(control);
  if (!page || page->window == CopyOfPage6) return;
  GuardedOn(*page, [&] {
    if (IsArea(control) && page->IsItemPage()) ShowCaret(control);
    if (rightButton && (IsArea(control) || IsColumnBox(control))) OpenTextMenu(*page, control);
  });
}

void MouseUp(Control& control) {
  Page* page = PageOf(control);
  if (!page || page->window == CopyOfPage6 || !IsArea(control)) return;
  GuardedOn(*page, [&] {
    ShowCaretPlace(control);
    SetEditMenuState();
  });
}

bool DropTerm(Control& control, const QString& term) {
  Page* page = PageOf(control);
  if (!page || !TakesTerms(*page, control)) return false;
  return GuardedOn(*page, [&] { PutTerm(*page, control, SplitTerm(term)); });
}

}  // namespace quillane
