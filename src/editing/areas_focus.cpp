// The area that has the focus: its colours, and what entering and leaving does.
#include "editing/area_rules.h"
#include "model/focus.h"
#include "model/frame.h"
#include "model/proposal.h"
#include "pages/defaults.h"
#include "pages/rows.h"
#include "pages/totals.h"
#include "platform/dates.h"
#include "platform/numbers.h"
#include "ui/desk.h"

namespace quillane {

namespace {

constexpr int StoredFieldLength = 120;  // a row's field in the file, columns and separators included

bool IsSelected(const Control& control) {
  return control.BackColor() == colors::Blue;
}

Color RestColour(const Control& control) {
  return IsColumnBox(control) ? colors::LightGrey : colors::Grey;
}

// Commands act on the page that was edited last, so the client's copy never becomes the page in use.
void TakeAsCurrent(Page& page, int area) {
  if (page.window == CopyOfPage6) return;
  editing.CurrentPage = page.pageIndex;
  editing.CurrentArea = area;
}

void ShowAreaCaption(const Page& page, int area) {
  if (!editing.SuppressAreaCaption)
    frame()["lblTextNum"].SetCaption(PageName(page) + QStringLiteral(", Text Area %1").arg(area));
  editing.SuppressAreaCaption = false;
}

void AreaGotFocus(Page& page, Control& area) {
  if (page.IsItemPage() && !page.ColumnsLoaded) LoadColumns(page);
  if (!editing.MovingContents) {
    editing.CurrentAreaLimit = area.Tag().right(3);
    editing.CurrentAreaWidth = area.Width();
    RefreshWarning(page, area);
  }
  TakeAsCurrent(page, area.Index());
  SetEditMenuState();
  ShowAreaCaption(page, area.Index());
}

void ColumnBoxGotFocus(Page& page, Control& box) {
  const bool busy = IsQuantity(box) ? editing.MovingContents : editing.RebuildingPages || editing.OpeningFile;
  if (!editing.AreasSelected && !busy) box.SetBackColor(colors::Cyan);
  TakeAsCurrent(page, box.Index());
  SetEditMenuState();
}

// A date that cannot be read later never reaches the calendar of events, so the planner is told once.
void WarnOfUnreadableDate(const Control& area) {
  if (editing.DateWarningGiven || area.Text().trimmed().isEmpty() || IsDate(area.Text())) return;
  editing.DateWarningGiven = true;
  Tell(QStringLiteral(
           "Text cannot be recognized as a date and will become useless for managing you events.\n\n"
           "Proper date format examples follow:\n"
           "January 15, 2008.\n"
           "Jan 15, 2008\n"
           "1/15/2008\n"
           "1/15/08\n"
           "1-15-08\n"
           "Do not include date extentions such as \"1rst\", \"2nd\", etc."),
       QStringLiteral("Date Format not Recognized"));
}

void TakeColumnBox(Page& page, Control& box) {
  if (editing.AreasSelected) return;
  if (IsEachPrice(box) && IsNumeric(box.Text()) && AcceptsTyping(box))
    box.SetText(FormatText(box.Text(), patterns::Amount));
  MultiplyRow(page, box.Index(), Product::FromLeaving);
}

// What leaving a control does to the figures.
void TakeFigure(Page& page, Control& control) {
  if (page.window == CopyOfPage6 || editing.AreasSelected) return;
  if (IsColumnBox(control)) {
    TakeColumnBox(page, control);
  } else if (page.IsTotalsPage()) {
    TotalsAreaLeft();
  } else if (AreaKind(control) == QLatin1String("Amou")) {
    AmountLeft(page, control);
  }
}

bool IsDateField(const Page& page, const Control& control) {
  return page.window == 0 && IsArea(control) && control.Index() == 0;
}

void Settle(Control& control) {
  Page* page = PageOf(control);
  if (page) GuardedOn(*page, [&] { TakeFigure(*page, control); });
}

}  // namespace

bool FixedByFormat(const Page& page, int area) {
  const auto& record = format.FormatTextRec[page.pageIndex][area];
  return format.FormatIsOpen && !editing.DoNotLockFormat && record.HasFormatText;
}

bool IsTooLong(const Page& page, const Control& control) {
  const QString& text = control.Text();
  if (IsColumnBox(control))
    return !ShowsPrompt(control) && TextWidth(control.GetFont(), text) >= control.Width();
  if (text.size() > AreaLimit(control) || TextWidth(control.GetFont(), text) >= control.Width()) return true;
  return page.HasColumns(control.Index()) && StoredForm(page, control.Index()).size() > StoredFieldLength;
}

void RefreshWarning(const Page& page, Control& control) {
  if (IsSelected(control)) return;
  if (IsTooLong(page, control)) {
    control.SetBackColor(colors::Red);
  } else {
    control.SetBackColor(editing.Focus == &control ? colors::Cyan : RestColour(control));
  }
}

void RefreshAreaWarnings(Page& page) {
  for (Control& area : page.txt) RefreshWarning(page, area);
  for (int row = page.FirstRow(); page.IsRow(row); ++row) {
    RefreshWarning(page, At(page.txtQty, row));
    RefreshWarning(page, At(page.txtAmt, row));
  }
}

void GotFocus(Control& control) {
  Page* page = PageOf(control);
  if (!page || page->window == CopyOfPage6) return;
  editing.Typing = false;
  GuardedOn(*page, [&] {
    if (IsArea(control)) AreaGotFocus(*page, control);
    if (IsColumnBox(control)) ColumnBoxGotFocus(*page, control);
  });
}

void LostFocus(Control& control) {
  Page* page = PageOf(control);
  if (!page || page->window == CopyOfPage6) return;
  GuardedOn(*page, [&] {
    if (!(editing.AreasSelected && IsSelected(control))) control.SetBackColor(RestColour(control));
    TakeFigure(*page, control);
    if (IsDateField(*page, control)) WarnOfUnreadableDate(control);
  });
}

void FocusPage(Page& page) {
  Control& area = At(page.txt, page.lastFocused);
  if (area.Visible() && area.Enabled()) SetFocus(area);
}

void InstallPageHandlers() {
  for (int window = 0; window < PageCount; ++window) page(window).form.textChanged = TextChanged;
  FocusHandlers& handlers = focusHandlers();
  handlers.gotFocus = GotFocus;
  handlers.lostFocus = LostFocus;
  handlers.settle = Settle;
}

}  // namespace quillane
