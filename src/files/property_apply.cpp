#include "files/property_apply.h"

#include "files/property_file.h"
#include "platform/runtime_error.h"

namespace quillane {

namespace {

void ShowRecord(Control& label, const LabelRecord& record) {
  label.SetFont({record.FontName, record.FontSize, record.FontBold, record.FontItalic, record.FontUnderline});
  label.SetForeColor(record.ForeColor);
  label.SetCaption(record.Caption);
  label.SetLeft(record.Left);
  label.SetTop(record.Top);
}

}  // namespace

Control& ControlOfLine(std::vector<Control>& array, int index) {
  if (index < 0 || index >= static_cast<int>(array.size()))
    Raise(errors::Subscript, QStringLiteral("a property line names number %1").arg(index));
  return array[static_cast<size_t>(index)];
}

LabelRecord RecordOfLabel(const Control& label) {
  LabelRecord record;
  record.Left = label.Left();
  record.Top = label.Top();
  record.Caption = label.Caption();
  record.FontName = label.GetFont().name;
  record.FontSize = label.GetFont().size;
  record.FontBold = label.GetFont().bold;
  record.ForeColor = label.ForeColor();
  record.FontItalic = label.GetFont().italic;
  record.FontUnderline = label.GetFont().underline;
  return record;
}

LabelRecord ApplyLabelLine(Page& target, const PropertyLine& line) {
  Control& label = ControlOfLine(target.lbl, line.index);
  LabelRecord record = RecordOfLabel(label);
  TakeLabelValues(line, record);
  ShowRecord(label, record);
  if (target.pageIndex == 5) ShowRecord(ControlOfLine(page(CopyOfPage6).lbl, line.index), record);
  return record;
}

void ApplyFontLine(const PropertyLine& line) {
  UserFont font;
  font.FontName = line.Text("FontName");
  font.FontSize = line.Single("FontSize");
  font.FontColor = line.Integer("FontColor");
  font.FontItalic = line.Flag("FontItalic");
  proposal.UDP = font;
  ApplyUserFont();
}

void ShowColumnPrompts(Page& target, int row) {
  Control& quantity = target.txtQty[static_cast<size_t>(row)];
  Control& each = target.txtAmt[static_cast<size_t>(row)];
  if (quantity.Text().isEmpty()) quantity.SetText(QStringLiteral("Qty."));
  if (each.Text().isEmpty()) each.SetText(QStringLiteral("Amt."));
}

}  // namespace quillane
