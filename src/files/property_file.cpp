#include "files/property_file.h"

#include <functional>

#include "files/event_file.h"
#include "files/property_lines.h"
#include "model/frame.h"
#include "model/report.h"
#include "pages/defaults.h"
#include "pages/titles.h"
#include "platform/codepage.h"
#include "platform/files.h"

namespace quillane {

namespace {

constexpr QLatin1String TitleLine("frmP1.lbl(45)");

LabelRecord& LabelRecOf(int p, int n) {
  return proposal.LabelRec[static_cast<size_t>(p)][static_cast<size_t>(n)];
}
TextAreaRecord& TextRecOf(int p, int n) {
  return proposal.TextRec[static_cast<size_t>(p)][static_cast<size_t>(n)];
}

using AreaTest = std::function<bool(int page, int area)>;

QStringList BuildLines(const AreaTest& isBold, const AreaTest& hasColumns) {
  QStringList lines;
  for (int p = 0; p < ItemPages; ++p)
    for (int i = 0; i < AreaCount(p); ++i)
      if (isBold(p, i)) lines << BoldLine(p, i);
  for (int p = 0; p < ItemPages; ++p)
    for (int i = 0; i < AreaCount(p); ++i)
      if (hasColumns(p, i)) lines << ColumnsLine(p, i);
  for (int p = 0; p < IndexedPages; ++p)
    for (int n = 0; n < LabelsPerPage; ++n)
      if (LabelRecOf(p, n).Changed) lines << LabelLine(p, n, LabelRecOf(p, n));
  const UserFont& font = proposal.UDP;
  if (!font.FontName.isEmpty() && font.FontSize != 0) lines << UserFontLine(font);
  return lines;
}

Control& ControlAt(std::vector<Control>& array, int index) {
  if (index < 0 || index >= static_cast<int>(array.size()))
    Raise(errors::Subscript, QStringLiteral("a property line names number %1").arg(index));
  return array[static_cast<size_t>(index)];
}

void ApplyText(Page& target, const PropertyLine& line) {
  Control& area = ControlAt(target.txt, line.index);
  area.SetFontBold(line.Flag("FontBold"));
  TextAreaRecord& record = TextRecOf(target.pageIndex, line.index);
  record.FontBold = line.Flag("FontBold");
  record.PropChanged = false;
}

// The field file owns a row's columns: its text says whether the row has them, and the property file repeats
// it.  A stored text that lost a sign to the field's width is plain text, and columns around it would lose
// the rest.
bool RowFollowsLine(int pageIndex, int row, bool columns) {
  if (format.FormatTextRec[static_cast<size_t>(pageIndex)][static_cast<size_t>(row)].HasFormatText)
    return true;
  const QString& stored = proposal.PageText[static_cast<size_t>(pageIndex)][static_cast<size_t>(row)];
  return columns ? !HasStrayMark(stored) : !SplitColumns(stored);
}

void ShowPrompts(Page& target, int row) {
  Control& quantity = target.txtQty[static_cast<size_t>(row)];
  Control& each = target.txtAmt[static_cast<size_t>(row)];
  if (quantity.Text().isEmpty()) quantity.SetText(QStringLiteral("Qty."));
  if (each.Text().isEmpty()) each.SetText(QStringLiteral("Amt."));
}

void ApplyColumns(Page& target, const PropertyLine& line) {
  ControlAt(target.txtQty, line.index);
  const bool columns = line.Flag("QtyBox");
  if (!target.IsRow(line.index) || !RowFollowsLine(target.pageIndex, line.index, columns)) return;
  LoadColumns(target);
  if (columns && !target.HasColumns(line.index)) ShowPrompts(target, line.index);
  ShowRowColumns(target, line.index, columns);
  TextAreaRecord& record = TextRecOf(target.pageIndex, line.index);
  record.QtyBox = columns;
  record.PropChanged = false;
}

LabelRecord RecordOf(const Control& label) {
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

void ShowRecord(Control& label, const LabelRecord& record) {
  label.SetFont({record.FontName, record.FontSize, record.FontBold, record.FontItalic, record.FontUnderline});
  label.SetForeColor(record.ForeColor);
  label.SetCaption(record.Caption);
  label.SetLeft(record.Left);
  label.SetTop(record.Top);
}

void ApplyLabel(Page& target, const PropertyLine& line) {
  Control& label = ControlAt(target.lbl, line.index);
  LabelRecord record = RecordOf(label);  // what an older, shorter line leaves out stays as the page has it
  TakeLabelValues(line, record);
  ShowRecord(label, record);
  if (target.pageIndex == 5) ShowRecord(ControlAt(page(CopyOfPage6).lbl, line.index), record);
  proposal.LabelBackup[static_cast<size_t>(target.pageIndex)][static_cast<size_t>(line.index)] = record;
  record.Changed = record.Written = true;
  LabelRecOf(target.pageIndex, line.index) = record;
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

void ApplyLine(Page& target, const PropertyLine& line) {
  switch (line.word) {
    case LineWord::Text:
      return ApplyText(target, line);
    case LineWord::Columns:
      return ApplyColumns(target, line);
    case LineWord::Label:
      return ApplyLabel(target, line);
    case LineWord::UserFont:
      return ApplyFontLine(line);
    case LineWord::Logo:  // a proposal has no logo of its own; the line belongs to formats
    case LineWord::None:
      return;
  }
}

// The title goes to all pages before the lines place its labels, since writing it centres them.
void TakeTitle(const QString& caption) {
  if (caption.isEmpty()) return;
  proposal.TitleByHand = caption != QStringLiteral("Proposal for ") + proposal.BaseName;
  proposal.Title = caption;
  UpdateEventNameLabels();
}

void FindTitle(const QStringList& lines) {
  try {
    for (const QString& text : lines) {
      if (text.isEmpty()) return;
      if (text.startsWith(TitleLine)) TakeTitle(ParseLine(text).Text("Caption"));
    }
  } catch (const RuntimeError&) {
    // The same line stops the parse, and is reported, at its place.
  }
}

void ApplyLines(const QStringList& lines) {
  int current = 0;
  for (const QString& text : lines) {
    if (text.isEmpty()) return;  // what stands behind an empty line is not read
    const PropertyLine line = ParseLine(text);
    if (line.page >= 0) current = line.page;
    ApplyLine(page(current), line);
  }
}

QByteArray FileBytes(const QStringList& lines) {
  QByteArray bytes;
  for (const QString& line : lines) bytes += ToCodePage(line) + "\r\n";
  return bytes;
}

}  // namespace

void AssignPropChanges() {
  proposal.PropertyLines = BuildLines([](int p, int i) { return TextRecOf(p, i).FontBold; },
                                      [](int p, int i) { return TextRecOf(p, i).QtyBox; });
  for (int p = 0; p < ItemPages; ++p)
    for (int i = 0; i < AreasPerPage; ++i) TextRecOf(p, i).QtyWritten = TextRecOf(p, i).PropChanged = false;
  for (int p = 0; p < IndexedPages; ++p)
    for (int n = 0; n < LabelsPerPage; ++n)
      if (LabelRecOf(p, n).Changed) LabelRecOf(p, n).Written = true;
}

QStringList PropertyLinesNow() {
  return BuildLines(
      [](int p, int i) { return page(p).txt[static_cast<size_t>(i)].GetFont().bold; },
      [](int p, int i) { return page(p).columnsLoaded && page(p).IsRow(i) && page(p).HasColumns(i); });
}

QString PropertyFolder() {
  return proposal.OpenedFromBackup || proposal.CurrentFolder.isEmpty() ? prefs.ProposalFolder
                                                                       : proposal.CurrentFolder;
}

void SavePropertyFile(const QString& baseName) {
  ReplaceFile(PropertyFolder() + baseName + QStringLiteral(".wpf"), FileBytes(proposal.PropertyLines));
  proposal.SavedPropertyLines = proposal.PropertyLines;
  for (auto& labels : proposal.LabelBackup)
    for (LabelRecord& label : labels) label.Changed = false;
}

void ReadFileProperties() {
  Guarded("ReadFileProperties", [] {
    proposal.PropertyLines.clear();
    const QString name = proposal.BaseName + QStringLiteral(".wpf");
    if (!FileExists(PropertyFolder(), name)) return;
    for (const QByteArray& line : ReadFileLines(PropertyFolder() + name))
      proposal.PropertyLines << FromCodePage(line);
    if (proposal.PropertyLines.isEmpty()) return;
    ParsePropertyFile();
    CopyLabelsToRecords();
  });
}

void ParsePropertyFile() {
  Guarded("ParsePropertyFile", [] {
    const Scoped parsing(editing.Parsing, true);
    const Scoped rebuilding(editing.RebuildingPages, true);
    FindTitle(proposal.PropertyLines);
    ApplyLines(proposal.PropertyLines);
  });
  if (!proposal.Title.isEmpty()) frame()["lblEvent"].SetCaption(QStringLiteral("Title: ") + proposal.Title);
}

void CopyLabelsToRecords() {
  for (int p = 0; p < IndexedPages; ++p) {
    for (Control& label : page(p).lbl) {
      LabelRecord& stored = LabelRecOf(p, label.Index());
      LabelRecord shown = RecordOf(label);
      shown.Changed = stored.Changed;
      shown.Written = stored.Written;
      stored = shown;
    }
  }
}

}  // namespace quillane
