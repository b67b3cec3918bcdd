#include "pages/titles.h"

#include <algorithm>
#include <cmath>

#include "model/frame.h"
#include "model/proposal.h"
#include "platform/codepage.h"
#include "settings/preferences.h"

namespace quillane {

namespace {

const QString OurCopy = QStringLiteral(" - Our Copy");
const QString TitleWithoutName = QStringLiteral("Proposal for (Client's Name)");

LabelRecord& RecordOf(const Page& page, const Control& label) {
  return proposal.LabelRec[page.pageIndex][label.Index()];
}

/// Takes all but the caption from the label, and leaves the marks as they are.
void CopyLook(const Control& label, LabelRecord& record) {
  const Font& font = label.GetFont();
  record.Left = label.Left();
  record.Top = label.Top();
  record.FontName = font.name;
  record.FontSize = font.size;
  record.FontBold = font.bold;
  record.FontItalic = font.italic;
  record.FontUnderline = font.underline;
  record.ForeColor = label.ForeColor();
}

bool StandsCentred(const Control& label) {
  return std::abs(label.Left() + label.Width() / 2 - sheet::Centre) <= 1;
}

bool CountsAsChanged(const Page& page, const Control& label) {
  return RecordOf(page, label).Changed || format.FormatLabelRec[page.pageIndex][label.Index()].Changed;
}

/// A label that a person has moved off the centre line stays where it was put; any other is centred again.
void CaptionCentred(const Page& page, Control& label, const QString& caption) {
  const bool movedByHand = CountsAsChanged(page, label) && !StandsCentred(label);
  label.SetCaption(caption);
  if (!movedByHand) label.SetLeft(sheet::Centre - label.Width() / 2);
}

bool HasText(const Page& page) {
  return std::ranges::any_of(page.txt, [](const Control& area) { return !area.Text().trimmed().isEmpty(); });
}

void CopyToRecord(const Page& page, const Control& label) {
  if (page.window == CopyOfPage6) return;
  LabelRecord& record = RecordOf(page, label);
  CopyLook(label, record);
  record.Caption = label.Caption();
}

QString TitleOn(const Page& page) {
  if (page.window == CopyOfPage6) return proposal.Title + QStringLiteral(" - Client's Copy");
  return page.window == 5 ? proposal.Title + OurCopy : proposal.Title;
}

/// The record follows its label.  The caption enters it only where the label counts as changed: a stored
/// caption on frmP1 is a title made by hand when the proposal is opened again.
void RecordTitle(const Page& page, const Control& label) {
  LabelRecord& record = RecordOf(page, label);
  const LabelRecord before = record;
  if (proposal.TitleByHand && page.window == 0) record.Changed = true;
  CopyLook(label, record);
  if (record.Changed) record.Caption = label.Caption();
  if (record.Changed && record != before) record.Written = false;
}

QString FrameCaption() {
  const QString file = QStringLiteral("File Name = ") + proposal.EventFileName;
  if (!format.FormatIsOpen) return QStringLiteral("Quillane: ") + file;
  return QStringLiteral("Quillane: Format File = ") + format.FormatName + QStringLiteral(" / ") + file;
}

/// Empty without a name; then the labels say that one is to come.
QString TitleByName() {
  return proposal.BaseName.isEmpty() ? QString() : QStringLiteral("Proposal for ") + proposal.BaseName;
}

}  // namespace

int PageNumberLabel(const Page& page) {
  return page.LastLabel() - (page.IsTotalsPage() ? 1 : 2);
}

QString TitleWithoutCopy(const QString& caption) {
  return caption.endsWith(OurCopy) ? caption.chopped(OurCopy.size()) : caption;
}

void FindHighestPage() {
  for (int window = ItemPages - 1; window >= 0; --window) {
    if (!HasText(page(window))) continue;
    // The totals follow the last page with text, and pages are counted from 1.
    proposal.HighestPage = window + 2;
    return;
  }
}

void UpdatePageNumbers(Titles titles) {
  const int highest = proposal.HighestPage;
  for (int window = 0; window < PageCount; ++window) {
    Page& current = page(window);
    const int number = current.IsTotalsPage() ? highest : window + 1;
    const QString name = QStringLiteral("Page %1").arg(number);
    Control& footer = current.lbl[PageNumberLabel(current)];
    footer.SetCaption(name + QStringLiteral(" of %1").arg(highest));
    if (titles == Titles::Reset) CopyToRecord(current, footer);
    if (window == 0) continue;
    Control& heading = current.lbl[0];
    CaptionCentred(current, heading, proposal.SubTitle + name);
    if (titles == Titles::Reset) CopyToRecord(current, heading);
  }
  frame()["lblHighestPage"].SetCaption(QStringLiteral("Utilizing %1 of 6 Available Pages").arg(highest));
}

void UpdateEventNameLabels() {
  if (proposal.Title.isEmpty()) proposal.Title = TitleWithoutName;
  for (int window = 0; window < PageCount; ++window) {
    Page& current = page(window);
    Control& label = current.lbl.back();
    CaptionCentred(current, label, TitleOn(current));
    if (window != CopyOfPage6) RecordTitle(current, label);
  }
  // Hidden and shown again, so that the frame's window looks at the caption too when the title is the same.
  Control& event = frame()["lblEvent"];
  event.SetVisible(false);
  event.SetCaption(QStringLiteral("Title: ") + proposal.Title);
  event.SetVisible(true);
  frame().form.caption = FrameCaption();
}

ProposalTitles TitlesToEdit() {
  return {page(0).lbl.back().Caption(), proposal.SubTitle};
}

void SaveTitles(const ProposalTitles& titles) {
  const QString title = FoldToCodePage(titles.title);
  const bool follows = title.trimmed().isEmpty() || title == TitleByName() || title == TitleWithoutName;
  proposal.SubTitle = FoldToCodePage(titles.subTitle);
  proposal.TitleByHand = !follows;
  proposal.Title = follows ? TitleByName() : title;
  UpdateEventNameLabels();
  FindHighestPage();
  UpdatePageNumbers(Titles::Reset);
}

bool MakeSubTitleDefault(const QString& subTitle) {
  return StorePreference(QStringLiteral("Page Titles:"), subTitle);
}

}  // namespace quillane
