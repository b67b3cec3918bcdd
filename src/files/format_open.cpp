// Reading: a format is read whole, then its lines go onto blank pages.
#include "files/event_file.h"
#include "files/format_file.h"
#include "files/new_proposal.h"
#include "files/property_apply.h"
#include "files/property_file.h"
#include "model/frame.h"
#include "model/report.h"
#include "pages/defaults.h"
#include "pages/features.h"
#include "pages/titles.h"
#include "platform/files.h"
#include "ui/desk.h"

namespace quillane {

namespace {

constexpr int TitleLabel = 45;
const QString ClientTitle = QStringLiteral("Proposal for ");

// One area or row in both tables, since the page now shows what the format says.
template <class Change>
void InBothTables(const Page& target, int area, Change&& change) {
  change(proposal.TextRec[target.pageIndex][area]);
  change(format.FormatTextRec[target.pageIndex][area]);
}

void ApplyFixedText(Page& target, Control& area, const QString& text) {
  area.SetText(text);
  TextAreaRecord& record = format.FormatTextRec[target.pageIndex][area.Index()];
  record.Text = text;
  record.HasFormatText = !editing.DoNotLockFormat;
}

void ApplyExemption(Page& target, int area, bool exempt) {
  if (!exempt) return;
  ControlOfLine(target.imgNoTax, area).SetShown(true);
  InBothTables(target, area, [](TextAreaRecord& record) { record.TaxExempt = true; });
}

void ApplyText(Page& target, const PropertyLine& line) {
  Control& area = ControlOfLine(target.txt, line.index);
  if (line.Has("FontBold")) {
    const bool bold = line.Flag("FontBold");
    area.SetFontBold(bold);
    InBothTables(target, line.index, [bold](TextAreaRecord& record) {
      record.FontBold = bold;
      record.PropChanged = false;
    });
  }
  if (line.Has("Text")) ApplyFixedText(target, area, line.Text("Text"));
  if (line.Has("TaxExempt")) ApplyExemption(target, line.index, line.Flag("TaxExempt"));
}

void ApplyColumns(Page& target, const PropertyLine& line) {
  Control& quantity = ControlOfLine(target.txtQty, line.index);
  Control& each = ControlOfLine(target.txtAmt, line.index);
  const bool columns = line.Flag("QtyBox");
  if (!target.IsRow(line.index)) return;
  LoadColumns(target);
  ShowRowColumns(target, line.index, columns);
  if (line.Has("QtyValue")) quantity.SetText(line.Text("QtyValue"));
  if (line.Has("AmtValue")) each.SetText(line.Text("AmtValue"));
  if (columns) ShowColumnPrompts(target, line.index);
  InBothTables(target, line.index, [&](TextAreaRecord& record) {
    record.QtyBox = columns;
    record.QtyValue = quantity.Text();
    record.AmtValue = each.Text();
    record.PropChanged = false;
  });
}

// A client's name in a title is one proposal's; other words were made by hand and belong to the format.
void TakeTitle(const QString& caption) {
  if (caption.isEmpty() || caption.startsWith(ClientTitle)) return;
  proposal.Title = caption;
  proposal.TitleByHand = true;
}

void ApplyLabel(Page& target, const PropertyLine& line) {
  LabelRecord record = ApplyLabelLine(target, line);
  proposal.LabelBackup[target.pageIndex][line.index] = record;
  record.Changed = record.Written = true;
  format.FormatLabelRec[target.pageIndex][line.index] = record;
  if (target.pageIndex == 0 && line.index == TitleLabel) TakeTitle(record.Caption);
}

QString LogoPathFrom(const QString& stored) {
  const QString path = stored.trimmed();
  const bool hasFolder = path.contains(QLatin1Char('\\')) || path.contains(QLatin1Char('/'));
  return !hasFolder && FileExists(prefs.ProgramFolder, path) ? prefs.ProgramFolder + path : path;
}

// A logo that cannot be read is told, and costs the logo alone; its line stays with the format, since the
// shared folder in which it lies may be back tomorrow.
void ApplyLogo(const PropertyLine& line) {
  format.LogoLeft = line.Place("Left");
  format.LogoTop = line.Place("Top");
  format.LogoPath = LogoPathFrom(line.Text("Picture"));
  format.LogoChanged = false;
  Guarded("ParseFormatFile", [] {
    Control& logo = page(0).pic[0];
    logo.SetPicture(desk().LoadPicture(ResolvePath(format.LogoPath)));
    logo.SetLeft(format.LogoLeft);
    logo.SetTop(format.LogoTop);
    format.LogoChanged = true;
  });
}

void ApplyLine(Page& target, const PropertyLine& line) {
  if (target.window == 0) LoadColumns(target);
  switch (line.word) {
    case LineWord::Text:
      return ApplyText(target, line);
    case LineWord::Columns:
      return ApplyColumns(target, line);
    case LineWord::Label:
      return ApplyLabel(target, line);
    case LineWord::Logo:
      return ApplyLogo(line);
    case LineWord::UserFont:
      return ApplyFontLine(line);
    case LineWord::None:
      return;
  }
}

// A new proposal leaves what the format fills; the format is read anew, so that its texts come back as its
// file has them.
void EmptyFixedAreas() {
  for (int p = 0; p < ItemPages; ++p)
    for (Control& area : page(p).txt) {
      if (!format.FormatTextRec[p][area.Index()].HasFormatText) continue;
      area.SetText(QString());
      area.SetFontBold(false);
    }
}

void EmptyFormat() {
  format.FormatTextRec = {};
  format.FormatLabelRec = {};
  format.FormatLines.clear();
  format.LogoPath.clear();
  format.LogoLeft = prefs.LogoLeft;
  format.LogoTop = prefs.LogoTop;
  format.LogoChanged = false;
}

void TakeStoredForms() {
  for (int p = 0; p < ItemPages; ++p)
    for (int i = 0; i < AreaCount(p); ++i) {
      proposal.PageText[p][i] = StoredForm(page(p), i);
      proposal.SavedText[p][i] = proposal.PageText[p][i];
    }
}

void ShowFormat() {
  format.FormatIsOpen = true;
  ParseFormatFile();
  CopyLabelsToRecords();
  ApplyFormatBold();
  UpdateEventNameLabels();  // the labels of the title have their places now, and keep the proposal's words
  proposal.LabelRec[0][TitleLabel].Written = true;  // a title that came with the format is no one's change
  frame().form.caption = QStringLiteral("Quillane - Format File = ") + format.FormatName;
}

bool ReadFormat(QStringList& lines) {
  return Guarded("OpenFormatFile",
                 [&] { lines = ReadPropertyLines(format.FormatFolder + format.FormatName); });
}

}  // namespace

void OpenFormatFile() {
  QStringList lines;
  const bool read = ReadFormat(lines);
  Guarded("OpenFormatFile", [&] {
    const Scoped rebuilding(editing.RebuildingPages, true);
    EmptyFixedAreas();
    EmptyFormat();
    format.FormatLines = lines;
    if (!read) {
      ForgetFormat();
    } else if (!lines.isEmpty()) {
      ShowFormat();
    }
    TakeStoredForms();
  });
}

void ParseFormatFile() {
  Guarded("ParseFormatFile", [] {
    const Scoped parsing(editing.Parsing, true);
    const Scoped rebuilding(editing.RebuildingPages, true);
    ApplyLines(format.FormatLines, EmptyLine::IsPassedOver, ApplyLine);
  });
}

void ApplyFormatBold() {
  for (int p = 0; p < ItemPages; ++p)
    for (Control& area : page(p).txt)
      if (format.FormatTextRec[p][area.Index()].FontBold) area.SetFontBold(true);
}

void ForgetFormat() {
  EmptyFormat();
  format.FormatName.clear();
  format.FormatIsOpen = false;
}

void OpenPickedFormat() {
  const QString folder = WithSeparator(fileDialog.Folder);
  const QString name = fileDialog.SelectedFileName;
  if (!Guarded("OpenFormatFile", [&] { ReadPropertyLines(folder + name); })) return;
  const FormatState before = format;
  ForgetFormat();
  format.FormatFolder = folder;
  format.FormatName = name;
  format.FormatIsOpen = true;
  format.DefaultSetAside = true;
  if (!StartNewFile()) format = before;
}

bool DefaultFormatApplies() {
  return prefs.LoadDefaultFormat && !format.DefaultSetAside && !prefs.DefaultFileFormat.isEmpty();
}

}  // namespace quillane
