#include "files/property_file.h"

#include <functional>

#include "files/event_file.h"
#include "files/property_apply.h"
#include "model/frame.h"
#include "model/report.h"
#include "pages/defaults.h"
#include "pages/labels.h"
#include "pages/titles.h"
#include "platform/files.h"

namespace quillane {

namespace {

constexpr QLatin1String TitleLine("frmP1.lbl(45)");

LabelRecord& LabelRecOf(int p, int n) {
  return proposal.LabelRec[p][n];
}
TextAreaRecord& TextRecOf(int p, int n) {
  return proposal.TextRec[p][n];
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

void ApplyText(Page& target, const PropertyLine& line) {
  Control& area = ControlOfLine(target.txt, line.index);
  area.SetFontBold(line.Flag("FontBold"));
  TextAreaRecord& record = TextRecOf(target.pageIndex, line.index);
  record.FontBold = line.Flag("FontBold");
  record.PropChanged = false;
}

// The field file owns a row's columns: its text says whether the row has them, and the property file repeats
// it.  A stored text that lost a sign to the field's width is plain text, and columns around it would lose
// the rest.
bool RowFollowsLine(int pageIndex, int row, bool columns) {
  if (format.FormatTextRec[pageIndex][row].HasFormatText) return true;
  const QString& stored = proposal.PageText[pageIndex][row];
  return columns ? !HasStrayMark(stored) : !SplitColumns(stored);
}

void ApplyColumns(Page& target, const PropertyLine& line) {
  ControlOfLine(target.txtQty, line.index);
  const bool columns = line.Flag("QtyBox");
  if (!target.IsRow(line.index) || !RowFollowsLine(target.pageIndex, line.index, columns)) return;
  LoadColumns(target);
  if (columns && !target.HasColumns(line.index)) ShowColumnPrompts(target, line.index);
  ShowRowColumns(target, line.index, columns);
  TextAreaRecord& record = TextRecOf(target.pageIndex, line.index);
  record.QtyBox = columns;
  record.PropChanged = false;
}

void ApplyLabel(Page& target, const PropertyLine& line) {
  LabelRecord record = ApplyLabelLine(target, line);
  proposal.LabelBackup[target.pageIndex][line.index] = record;
  record.Changed = record.Written = true;
  LabelRecOf(target.pageIndex, line.index) = record;
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
      [](int p, int i) { return page(p).txt[i].GetFont().bold; },
      [](int p, int i) { return page(p).columnsLoaded && page(p).IsRow(i) && page(p).HasColumns(i); });
}

QString PropertyFolder() {
  return proposal.OpenedFromBackup || proposal.CurrentFolder.isEmpty() ? prefs.ProposalFolder
                                                                       : proposal.CurrentFolder;
}

bool SavePropertyFile(const QString& baseName, std::vector<Replacement>& written) {
  return Guarded("SavePropertyFile", [&] {
    written.emplace_back(PropertyFolder() + baseName + QStringLiteral(".wpf"),
                         BytesOfLines(proposal.PropertyLines));
  });
}

void MarkPropertiesSaved() {
  proposal.SavedPropertyLines = proposal.PropertyLines;
  for (auto& labels : proposal.LabelBackup)
    for (LabelRecord& label : labels) label.Changed = false;
}

void ReadFileProperties() {
  Guarded("ReadFileProperties", [] {
    proposal.PropertyLines.clear();
    const QString name = proposal.BaseName + QStringLiteral(".wpf");
    if (!FileExists(PropertyFolder(), name)) return;
    proposal.PropertyLines = ReadPropertyLines(PropertyFolder() + name);
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
    ApplyLines(proposal.PropertyLines, EmptyLine::EndsTheFile, ApplyLine);
  });
  if (!proposal.Title.isEmpty()) frame()["lblEvent"].SetCaption(QStringLiteral("Title: ") + proposal.Title);
}

void CopyLabelsToRecords() {
  for (int p = 0; p < IndexedPages; ++p) {
    for (Control& label : page(p).lbl) {
      LabelRecord& stored = LabelRecOf(p, label.Index());
      LabelRecord shown = ValuesOf(label);
      shown.Changed = stored.Changed;
      shown.Written = stored.Written;
      stored = shown;
    }
  }
}

}  // namespace quillane
