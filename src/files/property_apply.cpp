#include "files/property_apply.h"

#include "files/property_file.h"
#include "pages/labels.h"
#include "platform/runtime_error.h"

namespace quillane {

Control& ControlOfLine(Array<Control>& array, int index) {
  if (index < 0 || index >= static_cast<int>(array.size()))
    Raise(errors::Subscript, QStringLiteral("a property line names number %1").arg(index));
  return array[index];
}

LabelRecord ApplyLabelLine(Page& target, const PropertyLine& line) {
  Control& label = ControlOfLine(target.lbl, line.index);
  LabelRecord record = ValuesOf(label);
  TakeLabelValues(line, record);
  ApplyValues(label, record);
  if (target.pageIndex == 5) {
    LabelRecord copy = record;
    copy.Caption = CaptionForCopy(record.Caption);
    ApplyValues(ControlOfLine(page(CopyOfPage6).lbl, line.index), copy);
  }
  return record;
}

void ApplyFontLine(const PropertyLine& line) {
  UserFont font;
  font.FontName = line.Text("FontName");
  font.FontSize = line.FontSize();
  font.FontColor = line.Integer("FontColor");
  font.FontItalic = line.Flag("FontItalic");
  proposal.UDP = font;
  ApplyUserFont();
}

void ShowColumnPrompts(Page& target, int row) {
  Control& quantity = target.txtQty[row];
  Control& each = target.txtAmt[row];
  if (quantity.Text().isEmpty()) quantity.SetText(QStringLiteral("Qty."));
  if (each.Text().isEmpty()) each.SetText(QStringLiteral("Amt."));
}

}  // namespace quillane
