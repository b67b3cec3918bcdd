#include "editing/label_props.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "pages/labels.h"
#include "pages/titles.h"
#include "platform/numbers.h"

namespace quillane {

namespace {

Array<LabelValues> before;  // the labels of the page when the window opened
std::vector<int> centred;   // its title and its heading, where they stood in the middle of the sheet

Page& LabelPage() {
  return editing.CurrentForm();
}

Control& LabelOf(int index) {
  return LabelPage().lbl[index];
}

bool IsSelected(int index) {
  const Control& label = LabelOf(index);
  return IsMarked(label) && label.Caption() != prefs.CurrencySymbol && !IsCurrencySign(LabelPage(), index);
}

/// The labels that the dialog is about.
std::vector<int> Targets() {
  if (!labelEdit.MultipleLabelsSelected) return {labelEdit.CurrentLabel};
  std::vector<int> targets;
  for (int i = 0; i <= labelEdit.LabelCount; ++i)
    if (IsSelected(i)) targets.push_back(i);
  return targets;
}

/// A title that stood in the middle stays there when it grows.
void KeepCentred(int index) {
  Control& label = LabelOf(index);
  if (std::ranges::find(centred, index) != centred.end()) label.SetLeft(sheet::Centre - label.Width() / 2);
}

void FindCentred() {
  centred.clear();
  for (const int index : {0, LabelPage().LastLabel()}) {
    const Control& label = LabelOf(index);
    if (std::abs(label.Left() + label.Width() / 2 - sheet::Centre) <= 1) centred.push_back(index);
  }
}

template <class Change>
void ForEachTarget(bool& changedFlag, Change change) {
  changedFlag = true;
  for (const int index : Targets()) {
    change(LabelOf(index));
    KeepCentred(index);
  }
}

void ClearFlags() {
  labelEdit.SizeChanged = labelEdit.PropChanged = labelEdit.ColorChanged = labelEdit.ItalicChanged =
      labelEdit.UnderlineChanged = false;
}

bool AnyFlag() {
  return labelEdit.SizeChanged || labelEdit.PropChanged || labelEdit.ColorChanged ||
         labelEdit.ItalicChanged || labelEdit.UnderlineChanged;
}

/// The title at the foot of a page is the proposal's: a new caption goes to all pages, centred where the old
/// one was.
void TakeTitleFrom(Control& label, const QString& old) {
  const QString title = TitleWithoutCopy(label.Caption());
  label.SetCaption(old);
  KeepCentred(label.Index());
  SaveTitles({title, proposal.SubTitleText});
}

bool IsTitle(int index) {
  return index == LabelPage().LastLabel();
}

void StoreOne(int index) {
  Control& label = LabelOf(index);
  const LabelValues& old = before[index];
  if (IsTitle(index) && label.Caption() != old.Caption) TakeTitleFrom(label, old.Caption);
  StoreLabel(LabelPage(), index);
}

/// A window that was only looked at leaves no mark on the proposal.
void StoreChanges() {
  const bool single = !labelEdit.MultipleLabelsSelected;
  for (const int index : Targets())
    if (single ? ValuesOf(LabelOf(index)) != before[index] : AnyFlag()) StoreOne(index);
}

void PutBack() {
  for (Control& label : LabelPage().lbl) ApplyValues(label, before[label.Index()]);
}

}  // namespace

void LoadLabelProps() {
  const LabelValues& shown = labelEdit.CurrentLabelRec;
  labelEdit.LabelCaption = shown.Caption;
  labelEdit.LabelFontSize = shown.FontSize;
  labelEdit.LabelBold = shown.FontBold;
  labelEdit.LabelColor = shown.ForeColor;
  labelEdit.LabelColorMode = labelEdit.LabelDialogCancelled = false;
  ClearFlags();
  before.clear();
  for (const Control& label : LabelPage().lbl) before.push_back(ValuesOf(label));
  FindCentred();
}

void SetLabelBold(bool bold) {
  labelEdit.LabelBold = bold;
  ForEachTarget(labelEdit.PropChanged, [&](Control& label) { label.SetFontBold(bold); });
}

void SetLabelItalic(bool italic) {
  ForEachTarget(labelEdit.ItalicChanged, [&](Control& label) { label.SetFontItalic(italic); });
}

void SetLabelUnderline(bool underline) {
  ForEachTarget(labelEdit.UnderlineChanged, [&](Control& label) { label.SetFontUnderline(underline); });
}

void SetLabelFontName(const QString& name) {
  labelEdit.CurrentLabelRec.FontName = name;
  ForEachTarget(labelEdit.PropChanged, [&](Control& label) { label.SetFontName(name); });
}

void SetLabelFontSize(float points) {
  labelEdit.LabelFontSize = points;
  ForEachTarget(labelEdit.SizeChanged, [&](Control& label) { label.SetFontSize(points); });
}

void SetLabelColor(Color color) {
  labelEdit.LabelColor = color;
  ForEachTarget(labelEdit.ColorChanged, [&](Control& label) { label.SetForeColor(color); });
}

void SetLabelCaption(const QString& caption) {
  labelEdit.LabelCaption = caption;
  if (labelEdit.MultipleLabelsSelected) return;
  LabelOf(labelEdit.CurrentLabel).SetCaption(caption);
  KeepCentred(labelEdit.CurrentLabel);
}

CaptionWords WordsOfCaption() {
  if (labelEdit.MultipleLabelsSelected) return CaptionWords::OfEachLabel;
  const int index = labelEdit.CurrentLabel;
  if (IsTitle(index)) return CaptionWords::Title;
  if (LabelPage().window > 0 && index == 0) return CaptionWords::SubTitle;
  return index == shape::PageNumberLabel(LabelPage().pageIndex) ? CaptionWords::PageNumber
                                                                : CaptionWords::Own;
}

QString LabelFontLine() {
  return QStringLiteral("Font = ") + labelEdit.CurrentLabelRec.FontName;
}

QString LabelSizeLine() {
  const float size = labelEdit.LabelFontSize;
  return QStringLiteral("Label Font Size = ") + (size == 0 ? QString() : SingleText(size));
}

void UnloadLabelProps() {
  labelEdit.LabelColorMode = false;
  if (labelEdit.LabelDialogCancelled)
    PutBack();
  else
    StoreChanges();
  labelEdit.LabelDialogCancelled = false;
  ClearFlags();
  before.clear();
  DeselectAllLabels();
}

}  // namespace quillane
