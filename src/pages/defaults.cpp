#include "pages/defaults.h"

#include <algorithm>

#include "model/frame.h"
#include "model/proposal.h"
#include "platform/files.h"
#include "platform/runtime_error.h"
#include "ui/desk.h"

namespace quillane {

namespace {

/// The quantity's and the price's prompts; frmP1's boxes begin empty.
void ClearColumnTexts(Page& page) {
  const bool prompts = page.window != 0;
  for (Control& box : page.txtQty) box.SetText(prompts ? QStringLiteral("Qty.") : QString());
  for (Control& box : page.txtAmt) box.SetText(prompts ? QStringLiteral("Amt.") : QString());
}

void HideColumns(Page& page) {
  for (auto* array : {&page.txtQty, &page.txtAmt, &page.lblAt, &page.lblEach})
    for (Control& control : *array) control.SetShown(false);
}

void PlaceRowWithoutColumns(Control& row) {
  row.SetLeft(sheet::PlainLeft);
  row.SetWidth(sheet::PlainWidth);
}

void ShowDefaultPage(Page& page) {
  for (Control& area : page.txt) area.SetFontBold(false);
  if (page.IsItemPage()) {
    for (int row = page.FirstRow(); row <= page.LastRow(); ++row) PlaceRowWithoutColumns(page.txt[row]);
    if (page.columnsLoaded) {
      ClearColumnTexts(page);
      HideColumns(page);
    }
  }
  PlaceDefaultLabels(page);
  ShowPageControls(page);
}

/// An alternative first page is asked for by a file's presence; once seen it holds for the run.
void LookForAlternativePages() {
  if (FileExists(prefs.ProposalFolder, QStringLiteral("SNF Settings.txt"))) prefs.SnfSettings = true;
}

void GiveMarksTheirDrawing(Page& page) {
  for (Control& mark : page.imgNoTax)
    mark.SetPicture({QStringLiteral(":/icons/no-tax.svg"), mark.Width(), mark.Height()});
}

LabelDefault DefaultOf(const Control& label) {
  const Font& font = label.GetFont();
  return {label.Left(), label.Top(),       label.Caption(), font.name,     font.size,
          font.bold,    label.ForeColor(), font.italic,     font.underline};
}

void ShowLogo(Page& first) {
  const bool shown = prefs.LogoVisible && !first.pic[0].GetPicture().source.isEmpty();
  first.pic[0].SetShown(shown);
  if (Control* entry = frame().Find(QStringLiteral("mnuEditLogoVisible"))) entry->SetChecked(shown);
}

void ShowFirstPageRules(Page& first) {
  constexpr int Shown[] = {0, 5, 10, 15, 2, 7, 12, 17};
  for (Control& line : first.lne) line.SetShown(std::ranges::find(Shown, line.Index()) != std::end(Shown));
}

void TakeFormatBold(Page& page) {
  const auto& records = format.FormatTextRec[page.pageIndex];
  for (Control& area : page.txt)
    if (records[area.Index()].FontBold) area.SetFontBold(true);
}

}  // namespace

void SetUpPages() {
  for (int window = 0; window < PageCount; ++window) {
    Page& current = page(window);
    SetMyFonts(current);
    GiveMarksTheirDrawing(current);
    PlaceRules(current);
    ShowPageControls(current);
  }
  page(0).txt[0].SetToolTip(QStringLiteral(
      "Double-Click to change format to Long Date Format; i.e., 1/23/08 becomes January 23, 2008."));
}

void ShowDefaultPages() {
  const Scoped newFile(editing.NewFile, true);
  LookForAlternativePages();
  for (int window = 0; window < PageCount; ++window) ShowDefaultPage(page(window));
  StoreDefaultLabels();
}

void StoreDefaultLabels() {
  for (int window = 0; window < IndexedPages; ++window) {
    auto& defaults = proposal.DefaultLabels[window];
    defaults.clear();
    for (const Control& label : page(window).lbl) defaults.push_back(DefaultOf(label));
  }
}

void ShowPageControls(Page& page) {
  for (Control& area : page.txt) area.SetVisible(true);
  if (page.IsTotalsPage()) {
    for (Control& label : page.lbl) label.SetVisible(true);
    for (Control& line : page.lne) line.SetShown(true);
    return;
  }
  if (format.FormatIsOpen) TakeFormatBold(page);
  for (Control& label : page.lbl) label.SetVisible(!label.Hidden());
  if (page.window != 0) return;
  ShowLogo(page);
  ShowFirstPageRules(page);
}

void LoadColumns(Page& page) {
  if (page.columnsLoaded || !page.IsItemPage()) return;
  const Scoped rebuilding(editing.RebuildingPages, true);
  try {
    for (int row = page.FirstRow(); row <= page.LastRow(); ++row) {
      page.txtQty[row].SetText(QStringLiteral("Qty."));
      page.txtAmt[row].SetText(QStringLiteral("Amt."));
    }
    page.columnsLoaded = true;
  } catch (const RuntimeError&) {
    Tell(QStringLiteral("Error in loading columns on Page %1.").arg(page.window + 1));
  }
}

void ShowRowColumns(Page& page, int row, bool shown) {
  if (!page.IsRow(row)) return;
  Control& area = page.txt[row];
  if (shown) {
    area.SetLeft(sheet::ColumnsLeft);
    area.SetWidth(sheet::ColumnsWidth);
    // One row speaks one currency: a symbol chosen since waits for the next proposal.
    page.lblAt[row].SetCaption(QStringLiteral("@ ") +
                               page.CurrencyLabel(row + page.AmountOffset()).Caption());
    page.lblEach[row].SetCaption(QStringLiteral("ea."));
  } else {
    PlaceRowWithoutColumns(area);
  }
  for (Control* control : {&page.txtQty[row], &page.txtAmt[row], &page.lblAt[row], &page.lblEach[row]}) {
    control->SetTop(area.Top());
    control->SetShown(shown);
  }
}

void SetMyFonts(Page& page) {
  const UserFont& user = proposal.UDP;
  for (auto* array : {&page.txt, &page.txtQty, &page.txtAmt})
    for (Control& area : *array) {
      area.SetFont(
          {user.FontName, user.FontSize, area.GetFont().bold, user.FontItalic, area.GetFont().underline});
      // A selected area stays white on blue, and takes the colour when it is deselected.
      if (area.BackColor() != colors::Blue) area.SetForeColor(user.FontColor);
    }
  for (auto* array : {&page.lblAt, &page.lblEach})
    for (Control& label : *array) label.SetFontName(QStringLiteral("Arial"));
}

}  // namespace quillane
