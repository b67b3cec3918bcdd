#include "pages/defaults.h"

#include <algorithm>

#include "model/frame.h"
#include "model/proposal.h"
#include "pages/fonts.h"
#include "platform/files.h"
#include "platform/runtime_error.h"
#include "ui/desk.h"

namespace quillane {

namespace {

/// The quantity's and the price's prompts; frmP1's boxes begin empty.
void ClearColumnTexts(Page& page) {
  const bool prompts = page.window != 0;
  for (Control& box : page.txtQty) box.SetText(prompts ? QuantityPrompt : QString());
  for (Control& box : page.txtAmt) box.SetText(prompts ? EachPrompt : QString());
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
    if (page.ColumnsLoaded) {
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

void ShowFirstPageRules(Page& first) {
  constexpr int Shown[] = {0, 5, 10, 15, 2, 7, 12, 17};
  for (Control& line : first.lne) line.SetShown(std::ranges::find(Shown, line.Index()) != std::end(Shown));
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
}

void ShowPageControls(Page& page) {
  for (Control& area : page.txt) area.SetVisible(true);
  if (page.IsTotalsPage()) {
    for (Control& label : page.lbl) label.SetVisible(true);
    for (Control& line : page.lne) line.SetShown(true);
    return;
  }
  for (Control& label : page.lbl) label.SetVisible(!label.Hidden());
  if (page.window != 0) return;
  ShowLogoPicture(page.pic[0].GetPicture());
  ShowFirstPageRules(page);
}

void ShowLogoPicture(const Picture& picture) {
  Control& pic = page(0).pic[0];
  pic.SetPicture(picture);
  if (!picture.source.isEmpty()) {
    pic.SetWidth(picture.width);
    pic.SetHeight(picture.height);
  }
  const bool shown = !picture.source.isEmpty() && prefs.LogoVisible;
  pic.SetShown(shown);
  CheckMenu("mnuEditLogoVisible", shown);
}

void LoadColumns(Page& page) {
  if (page.ColumnsLoaded || !page.IsItemPage()) return;
  const Scoped rebuilding(editing.RebuildingPages, true);
  try {
    for (int row = page.FirstRow(); row <= page.LastRow(); ++row) {
      page.txtQty[row].SetText(QuantityPrompt);
      page.txtAmt[row].SetText(EachPrompt);
    }
    page.ColumnsLoaded = true;
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

}  // namespace quillane
