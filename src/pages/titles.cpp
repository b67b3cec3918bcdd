#include "pages/titles.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "model/frame.h"
#include "model/proposal.h"
#include "pages/labels.h"
#include "platform/codepage.h"
#include "settings/preferences.h"

namespace quillane {

namespace {

const QString OurCopy = QStringLiteral(" - Our Copy");

bool StandsCentred(const Control& label) {
  return std::abs(label.Left() + label.Width() / 2 - sheet::Centre) <= 1;
}

bool CountsAsChanged(const Page& page, const Control& label) {
  return proposal.LabelMarks[page.pageIndex][label.Index()].Changed ||
         format.FormatLabelRec[page.pageIndex][label.Index()].Changed;
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

QString TitleOn(const Page& page) {
  if (page.window == CopyOfPage6) return proposal.Title + QStringLiteral(" - Client's Copy");
  return page.window == 5 ? proposal.Title + OurCopy : proposal.Title;
}

/// A title made by hand is a changed label of frmP1; one that changes with the title must be written anew.
void WriteTitle(const Page& page, Control& label) {
  const LabelValues before = ValuesOf(label);
  CaptionCentred(page, label, TitleOn(page));
  if (page.window == CopyOfPage6) return;
  LabelMark& mark = proposal.LabelMarks[page.pageIndex][label.Index()];
  const bool first = proposal.TitleByHand && page.window == 0 && !std::exchange(mark.Changed, true);
  if (first || (mark.Changed && ValuesOf(label) != before)) mark.Written = false;
}

QString FrameCaption() {
  const QString file = QStringLiteral("File Name = ") + proposal.EventFileName;
  if (!format.FormatIsOpen) return QStringLiteral("Quillane: ") + file;
  return QStringLiteral("Quillane: Format File = ") + format.FormatName + QStringLiteral(" / ") + file;
}

}  // namespace

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

void UpdatePageNumbers() {
  const int highest = proposal.HighestPage;
  for (int window = 0; window < PageCount; ++window) {
    Page& current = page(window);
    const int number = current.IsTotalsPage() ? highest : window + 1;
    const QString name = QStringLiteral("Page %1").arg(number);
    Control& footer = current.lbl[shape::PageNumberLabel(current.pageIndex)];
    footer.SetCaption(name + QStringLiteral(" of %1").arg(highest));
    if (window == 0) continue;
    Control& heading = current.lbl[0];
    CaptionCentred(current, heading, proposal.SubTitleText + name);
  }
  frame()["lblHighestPage"].SetCaption(QStringLiteral("Utilizing %1 of 6 Available Pages").arg(highest));
}

void UpdateEventNameLabels() {
  if (proposal.Title.isEmpty()) proposal.Title = TitleWithoutName;
  for (int window = 0; window < PageCount; ++window) {
    Page& current = page(window);
    WriteTitle(current, current.lbl.back());
  }
  // Hidden and shown again, so that the frame's window looks at the caption too when the title is the same.
  Control& event = frame()["lblEvent"];
  event.SetVisible(false);
  event.SetCaption(QStringLiteral("Title: ") + proposal.Title);
  event.SetVisible(true);
  frame().form.caption = FrameCaption();
}

ProposalTitles TitlesToEdit() {
  return {page(0).lbl.back().Caption(), proposal.SubTitleText};
}

void SaveTitles(const ProposalTitles& titles) {
  const QString title = FoldToCodePage(titles.title);
  const bool follows =
      title.trimmed().isEmpty() || title == TitleFor(proposal.BaseName) || title == TitleWithoutName;
  proposal.SubTitleText = FoldToCodePage(titles.subTitle);
  proposal.TitleByHand = !follows;
  proposal.Title = follows ? TitleFor(proposal.BaseName) : title;
  UpdateEventNameLabels();
  FindHighestPage();
  UpdatePageNumbers();
}

bool MakeSubTitleDefault(const QString& subTitle) {
  return StorePreference(QStringLiteral("Page Titles:"), subTitle);
}

}  // namespace quillane
