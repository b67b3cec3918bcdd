#include "files/changes.h"

#include <algorithm>

#include "model/proposal.h"
#include "pages/show_document.h"

namespace quillane {

namespace {

/// A deposit counts by its value: "1,500.00" and "1500" are the same, and so are 0 and nothing.
float DepositIn(const Document& document) {
  return AmountIn(document.TextRec[shape::Totals][shape::Deposit].Text.trimmed()).value_or(0.0F);
}

bool SameText(const TextAreaRecord& left, const TextAreaRecord& right) {
  return StoredForm(left).trimmed() == StoredForm(right).trimmed();
}

bool HoldsPageNumber(int p, int label) {
  return label == shape::PageNumberLabel(p) || (p > 0 && label == 0);
}

// The program writes page numbers anew whenever pages come or go, and that is no change of a label.
bool SameLabel(int p, int n, LabelRecord left, LabelRecord right) {
  if (HoldsPageNumber(p, n))
    for (QString* caption : {&left.Caption, &right.Caption})
      if (const qsizetype number = caption->lastIndexOf(QLatin1String("Page ")); number >= 0)
        caption->truncate(number);
  return left == right;
}

// What the property file tells of the two is the same.
bool SameLook(const Document& left, const Document& right) {
  for (int p = 0; p < ItemPages; ++p)
    for (int i = 0; i < AreaCount(p); ++i) {
      const TextAreaRecord &one = left.TextRec[p][i], &other = right.TextRec[p][i];
      if (one.FontBold != other.FontBold || one.QtyBox != other.QtyBox) return false;
    }
  for (int p = 0; p < IndexedPages; ++p)
    for (int n = 0; n < shape::LabelCount(p); ++n) {
      const LabelRecord &one = left.LabelRec[p][n], &other = right.LabelRec[p][n];
      if ((one.Changed || other.Changed) && !SameLabel(p, n, one, other)) return false;
    }
  return left.UDP == right.UDP;
}

bool AnyAreaMarked() {
  for (int p = 0; p < ItemPages; ++p)
    for (const AreaMark& mark : proposal.AreaMarks[p])
      if (mark.PropChanged || mark.QtyWritten) return true;
  return false;
}

bool AnyLabelMarked() {
  return std::ranges::any_of(proposal.LabelMarks, [](const auto& labels) {
    return std::ranges::any_of(labels, [](const LabelMark& mark) { return mark.Changed && !mark.Written; });
  });
}

bool TextDiffers(const Document& now) {
  for (int p = 0; p < ItemPages; ++p)
    if (!std::ranges::equal(now.TextRec[p], proposal.Saved.TextRec[p], SameText)) return true;
  return DepositIn(now) != DepositIn(proposal.Saved);
}

bool PropertiesDiffer(const Document& now) {
  return AnyAreaMarked() || AnyLabelMarked() || !SameLook(now, proposal.Saved);
}

}  // namespace

bool TextHasChanged() {
  return TextDiffers(ReadPages());
}

bool PropertiesHaveChanged() {
  return PropertiesDiffer(ReadPages());
}

bool ProposalHasChanged() {
  const Document now = ReadPages();
  return TextDiffers(now) || PropertiesDiffer(now);
}

}  // namespace quillane
