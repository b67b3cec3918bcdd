#include "pages/labels.h"

#include <algorithm>
#include <utility>

#include "platform/runtime_error.h"
#include "ui/desk.h"

namespace quillane {

namespace {

const QString PropsWindow = QStringLiteral("frmLabelProps");
const QString OurCopy = QStringLiteral("Our Copy"), ClientsCopy = QStringLiteral("Client's Copy");

bool Between(int value, int first, int last) {
  return value >= first && value <= last;
}

Control& CurrentLabelOf(Page& page) {
  if (!Between(labelEdit.CurrentLabel, 0, page.LastLabel()))
    Raise(errors::Subscript, QStringLiteral("label %1").arg(labelEdit.CurrentLabel));
  return page.lbl[labelEdit.CurrentLabel];
}

/// Slant and underline are the copy's own.
void CarryToCopy(int index, LabelValues values) {
  const Font& font = page(CopyOfPage6).lbl[index].GetFont();
  values.FontItalic = font.italic;
  values.FontUnderline = font.underline;
  ShowLabelOnCopy(index, values);
}

/// What the menu is asked for without a press on this page is its first label.
void TakeLabelOfPage(const Page& page) {
  if (std::exchange(labelEdit.pressedOn, page.pageIndex) != page.pageIndex) labelEdit.CurrentLabel = 0;
}

void OpenProps(const Page& page) {
  labelEdit.LabelCount = page.LastLabel();
  labelEdit.MultipleLabelsSelected = MarkedLabels(page) > 1;
  desk().ShowWindow(PropsWindow, Modality::Modal);
}

/// A value that another label does not share is left empty.
template <class T>
void KeepCommon(T& common, const T& value, const T& none = {}) {
  if (common != value) common = none;
}

LabelValues CommonValues(const Page& page) {
  const auto first = std::ranges::find_if(page.lbl, IsMarked);
  if (first == page.lbl.end()) return {};
  LabelValues common = ValuesOf(*first);
  common.Caption.clear();
  for (const Control& label : page.lbl) {
    if (!IsMarked(label)) continue;
    const LabelValues values = ValuesOf(label);
    KeepCommon(common.FontName, values.FontName);
    KeepCommon(common.FontSize, values.FontSize);
    KeepCommon(common.FontBold, values.FontBold);
    KeepCommon(common.ForeColor, values.ForeColor, NoCommonColour);
    KeepCommon(common.FontItalic, values.FontItalic);
    KeepCommon(common.FontUnderline, values.FontUnderline);
  }
  return common;
}

}  // namespace

bool IsMarked(const Control& label) {
  return label.BackStyle() == Backing::Opaque && label.BackColor() == colors::Cyan;
}

void Mark(Control& label) {
  label.SetBackStyle(Backing::Opaque);
  label.SetBackColor(colors::Cyan);
}

void Unmark(Control& label) {
  label.SetBackColor(colors::ButtonFace);
  label.SetBackStyle(Backing::Transparent);
}

int MarkedLabels(const Page& page) {
  return static_cast<int>(std::ranges::count_if(page.lbl, IsMarked));
}

bool IsCurrencySign(const Page& page, int label) {
  if (page.window == 0) return Between(label, 35, 42);
  if (page.IsItemPage()) return Between(label, 1, 35);
  return Between(label, 4, 6) || Between(label, 10, 12);
}

LabelValues ValuesOf(const Control& label) {
  const Font& font = label.GetFont();
  LabelValues values;
  values.Left = label.Left();
  values.Top = label.Top();
  values.Caption = label.Caption();
  values.FontName = font.name;
  values.FontSize = font.size;
  values.FontBold = font.bold;
  values.ForeColor = label.ForeColor();
  values.FontItalic = font.italic;
  values.FontUnderline = font.underline;
  return values;
}

void ApplyValues(Control& label, const LabelValues& values) {
  label.SetFont({values.FontName, values.FontSize, values.FontBold, values.FontItalic, values.FontUnderline});
  label.SetForeColor(values.ForeColor);
  label.SetCaption(values.Caption);
  label.SetLeft(values.Left);
  label.SetTop(values.Top);
}

QString CaptionForCopy(QString caption) {
  if (!caption.endsWith(OurCopy)) return caption;
  caption.chop(OurCopy.size());
  return caption + ClientsCopy;
}

void LoadCurrentLabel() {
  labelEdit.CurrentLabelRec = ValuesOf(CurrentLabelOf(editing.CurrentForm()));
}

void ShowLabelOnCopy(int index, const LabelValues& values) {
  LabelValues onCopy = values;
  onCopy.Caption = CaptionForCopy(values.Caption);
  ApplyValues(page(CopyOfPage6).lbl[index], onCopy);
}

void StoreLabel(const Page& page, int index) {
  if (!Between(index, 0, page.LastLabel())) Raise(errors::Subscript, QStringLiteral("label %1").arg(index));
  format.FormatLabelRec[page.pageIndex][index].Changed = true;
  proposal.LabelMarks[page.pageIndex][index] = {true, false};
  if (page.pageIndex == shape::Totals) CarryToCopy(index, ValuesOf(page.lbl[index]));
}

void EditLabelProps() {
  if (desk().WindowIsOpen(PropsWindow)) return;
  const Page& front = editing.CurrentForm();
  TakeLabelOfPage(front);
  LoadCurrentLabel();
  OpenProps(front);
}

void SelectAllLabels() {
  if (desk().WindowIsOpen(PropsWindow)) return;
  Page& front = editing.CurrentForm();
  TakeLabelOfPage(front);
  for (Control& label : front.lbl)
    if (!IsCurrencySign(front, label.Index())) Mark(label);
  labelEdit.CurrentLabelRec = CommonValues(front);
  OpenProps(front);
}

void DeselectAllLabels() {
  for (Control& label : editing.CurrentForm().lbl) Unmark(label);
}

}  // namespace quillane
