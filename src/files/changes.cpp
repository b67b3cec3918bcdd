#include "files/changes.h"

#include <algorithm>

#include "files/property_file.h"
#include "model/proposal.h"
#include "platform/numbers.h"

namespace quillane {

namespace {

constexpr int Deposit = 4;

/// A deposit counts by its value: "1,500.00" and "1500" are the same, and so are 0 and nothing.
float DepositIn(const PageTexts& texts) {
  const QString text = texts[5][Deposit].trimmed();
  return IsNumeric(text) ? ToSingle(text) : 0.0F;
}

bool SameText(const QString& left, const QString& right) {
  return QStringView(left).trimmed() == QStringView(right).trimmed();
}

bool AnyAreaMarked() {
  return std::any_of(proposal.TextRec.begin(), proposal.TextRec.begin() + ItemPages, [](const auto& areas) {
    return std::ranges::any_of(
        areas, [](const TextAreaRecord& record) { return record.PropChanged || record.QtyWritten; });
  });
}

bool AnyLabelMarked() {
  return std::ranges::any_of(proposal.LabelRec, [](const auto& labels) {
    return std::ranges::any_of(labels,
                               [](const LabelRecord& record) { return record.Changed && !record.Written; });
  });
}

}  // namespace

bool TextHasChanged() {
  for (int p = 0; p < ItemPages; ++p)
    if (!std::ranges::equal(proposal.PageText[p], proposal.SavedText[p], SameText)) return true;
  return DepositIn(proposal.PageText) != DepositIn(proposal.SavedText);
}

bool PropertiesHaveChanged() {
  return AnyAreaMarked() || AnyLabelMarked() || PropertyLinesNow() != proposal.SavedPropertyLines;
}

}  // namespace quillane
