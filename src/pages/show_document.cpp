#include "pages/show_document.h"

#include "model/proposal.h"
#include "model/report.h"
#include "pages/defaults.h"
#include "pages/fonts.h"
#include "pages/labels.h"
#include "pages/rows.h"
#include "pages/titles.h"
#include "pages/totals.h"
#include "platform/files.h"
#include "ui/desk.h"

namespace quillane {

namespace {

// The currency sign stands before a figure; text that is none has kept it where a figure stood before.
bool SignShows(const TextAreaRecord& amount) {
  return AmountIn(amount.Text.trimmed()) || amount.AreaAmount != 0;
}

void ShowArea(Page& target, int area, const TextAreaRecord& record) {
  WriteArea(target, area, record);
  if (!target.IsAmount(area)) return;
  proposal.AreaAmount[target.pageIndex][area] = record.AreaAmount;
  target.CurrencyLabel(area).SetShown(SignShows(record));
}

void ShowLabel(Page& target, int label, const LabelRecord& record) {
  LabelMark& mark = proposal.LabelMarks[target.pageIndex][label];
  if (ReadLabel(target, label) != record) {
    mark.Changed = record.Changed;
    mark.Written = false;
    ApplyValues(target.lbl[label], record);
  } else if (!record.Changed) {
    return;  // the copy's own titles stand at places of their own
  }
  if (target.pageIndex == shape::Totals) ShowLabelOnCopy(label, record);
}

// Where the totals are hidden the deposit alone shows.
void ShowFigures(const FixedArray<TextAreaRecord, AreasPerPage>& figures) {
  for (int i = 0; i < AreaCount(shape::Totals); ++i) {
    if (editing.HideTotals && i != shape::Deposit) continue;
    WriteArea(page(shape::Totals), i, figures[i]);
    WriteArea(page(CopyOfPage6), i, figures[i]);
  }
}

void ShowTexts(const TextTable& areas) {
  const Scoped opening(editing.OpeningFile, true);
  for (int p = 0; p < ItemPages; ++p)
    for (int i = 0; i < AreaCount(p); ++i) ShowArea(page(p), i, areas[p][i]);
  ShowFigures(areas[shape::Totals]);
}

void ShowFont(const UserFont& font) {
  if (font == proposal.UDP) return;
  proposal.UDP = font;
  ApplyUserFont();
}

void ShowLogo(const LogoRecord& shown) {
  Control& logo = page(0).pic[0];
  if (shown.LogoPath != logo.GetPicture().source)
    Guarded("LoadLogo", [&] {
      ShowLogoPicture(shown.LogoPath.isEmpty() ? Picture{} : desk().LoadPicture(ResolvePath(shown.LogoPath)));
    });
  logo.SetLeft(shown.LogoLeft);
  logo.SetTop(shown.LogoTop);
}

}  // namespace

void ShowFollowingSums() {
  const Scoped opening(editing.OpeningFile, true);
  Guarded("CalculateMyTotals", CalculateAllPages);
  RecalculateTotals(0);
}

LogoRecord ReadLogo() {
  const Control& logo = page(0).pic[0];
  return {logo.GetPicture().source, logo.Left(), logo.Top()};
}

LabelRecord ReadLabel(const Page& page, int label) {
  return {ValuesOf(page.lbl[label]), proposal.LabelMarks[page.pageIndex][label].Changed};
}

Document ReadPages() {
  Document document;
  for (int p = 0; p < IndexedPages; ++p) {
    const Page& shown = page(p);
    for (int i = 0; i < AreaCount(p); ++i) document.TextRec[p][i] = ReadArea(shown, i);
    for (int n = 0; n < shape::LabelCount(p); ++n) document.LabelRec[p][n] = ReadLabel(shown, n);
  }
  document.UDP = proposal.UDP;
  document.Logo = ReadLogo();
  document.Title = proposal.Title;
  document.SubTitleText = proposal.SubTitleText;
  document.TitleByHand = proposal.TitleByHand;
  document.DepositReceived = proposal.DepositReceived;
  return document;
}

void PutOnPages(const Document& document) {
  const Scoped rebuilding(editing.RebuildingPages, true);
  ShowFont(document.UDP);
  proposal.DepositReceived = document.DepositReceived;
  for (int p = 0; p < IndexedPages; ++p)
    for (int n = 0; n < shape::LabelCount(p); ++n) ShowLabel(page(p), n, document.LabelRec[p][n]);
  ShowTexts(document.TextRec);  // the columns of a row repeat its currency sign
  ShowLogo(document.Logo);
  proposal.Title = document.Title;
  proposal.SubTitleText = document.SubTitleText;
  proposal.TitleByHand = document.TitleByHand;
}

void ShowDocument(const Document& document) {
  PutOnPages(document);
  UpdateEventNameLabels();
  // The figures of a blank proposal have never been worked out, and stay blank.
  if (!document.TextRec[shape::Totals][0].Text.isEmpty()) ShowFollowingSums();
}

QString PageText(int pageIndex, int area) {
  return StoredForm(page(pageIndex), area);
}

QString SavedText(int pageIndex, int area) {
  return StoredForm(proposal.Saved.TextRec[pageIndex][area]);
}

}  // namespace quillane
