// The text of an area has changed: what the page's tables and figures learn from it.
#include <utility>

#include "editing/area_rules.h"
#include "model/proposal.h"
#include "pages/titles.h"
#include "pages/totals.h"
#include "platform/codepage.h"

namespace quillane {

namespace {

// A selection does not count as typing, unless a command on it has said that the figures must follow.
bool ChangesAreIgnored() {
  return editing.RebuildingPages || editing.OpeningFile || editing.MovingContents || editing.ApplyingFonts ||
         (editing.AreasSelected && !editing.RecalcPending);
}

// What is on the screen is what a file will hold: a character that the code page lacks becomes its closest
// equivalent at once. True when the text had to be rewritten; the change handler has then run on the new
// text.
bool RewrittenInCodePage(Control& control) {
  const QString& text = control.Text();
  const QString folded = FoldToCodePage(text);
  if (folded == text) return false;
  const auto caret = static_cast<int>(FoldToCodePage(text.left(control.SelStart())).size());
  control.SetText(folded);
  control.SetSelStart(caret);
  return true;
}

void NameAfterClient(const QString& client) {
  NameProposal(client);
  if (!proposal.TitleByHand) proposal.Title = TitleFor(client);
  UpdateEventNameLabels();
}

void TakeContext(const Control& area) {
  editing.CurrentText = area.Text();
  editing.CurrentAreaType = AreaKind(area);
  editing.CurrentAreaLimit = area.Tag().right(3);
  editing.CurrentAreaWidth = area.Width();
}

// Only what a person types makes words run on, and the words that such a push has moved.
void PushOverflow(Page& page, Control& area, bool typed) {
  editing.TextOverflowing = TextWidth(area.GetFont(), editing.CurrentText) >= area.Width();
  if (!editing.TextOverflowing || !(typed || editing.Cascading)) return;
  if (editing.CurrentAreaType != QLatin1String("Push")) return;
  CheckPushNeeded();
  if (editing.PushPending) PushTheText(page, area.Index());
}

// One character has come in at the caret.  A paste brings more, and makes no words run on.
bool WasTyped(const Control& area) {
  return editing.Focus == &area && std::exchange(editing.Typing, false) &&
         area.SelStart() == editing.CursorLocation + 1;
}

void AreaChanged(Page& page, Control& area) {
  const bool typed = WasTyped(area);
  TakeContext(area);
  if (IsNumericArea(area)) AmountTextChanged(page, area);
  PushOverflow(page, area, typed);
  if (editing.AreasSelected) return;
  if (IsTooLong(page, area)) area.SetBackColor(colors::Red);
  if (page.window == 0 && area.Index() == shape::ClientName && !proposal.FileIsNamed)
    NameAfterClient(area.Text().trimmed());
}

void ColumnBoxChanged(Page& page, Control& box) {
  const int row = box.Index();
  if (!editing.AreasSelected) RefreshWarning(page, At(page.txt, row));
  // Under a command that rewrites rows the amount comes with the row; it is not worked out anew.
  if (!editing.RecalcPending) MultiplyRow(page, row, Product::FromTyping);
}

}  // namespace

void TextChanged(Control& control) {
  Page* page = PageOf(control);
  if (!page || page->window == CopyOfPage6) return;
  GuardedOn(*page, [&] {
    if (page->IsTotalsPage()) {
      TotalsTextChanged(*page, control);
      return;
    }
    if (ChangesAreIgnored() || RewrittenInCodePage(control)) return;
    if (IsArea(control)) AreaChanged(*page, control);
    if (IsColumnBox(control)) ColumnBoxChanged(*page, control);
  });
}

}  // namespace quillane
