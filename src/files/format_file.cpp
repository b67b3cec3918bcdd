// Writing: what of the pages a format holds, and under which name.
#include "files/format_file.h"

#include "editing/totals_commands.h"
#include "files/changes.h"
#include "files/event_file.h"
#include "files/property_apply.h"
#include "files/property_file.h"
#include "model/frame.h"
#include "model/report.h"
#include "pages/features.h"
#include "pages/labels.h"
#include "platform/codepage.h"
#include "platform/files.h"
#include "settings/preferences.h"
#include "ui/desk.h"

namespace quillane {

namespace {

const QString Extension = QStringLiteral(".wft");

TextAreaRecord& FormatTextOf(int p, int i) {
  return format.FormatTextRec[p][i];
}
LabelRecord& FormatLabelOf(int p, int n) {
  return format.FormatLabelRec[p][n];
}

// An amount belongs to one proposal, so it is never part of a format.
QString FixedText(const Control& area) {
  return IsNumericArea(area) ? QString() : area.Text();
}

// A label that the proposal's own property file has changed looks changed on the page, and a format made from
// that page has to look the same.
bool LabelCounts(int p, int n) {
  return FormatLabelOf(p, n).Changed || proposal.LabelRec[p][n].Changed;
}

void AddTexts(QStringList& lines) {
  for (int p = 0; p < ItemPages; ++p)
    for (int i = 0; i < AreaCount(p); ++i) {
      const Control& area = page(p).txt[i];
      const QString text = FixedText(area);
      if (area.GetFont().bold) lines << BoldLine(p, i);
      if (!text.isEmpty()) lines << TextLine(p, i, text);
      if (!page(p).imgNoTax[i].Hidden()) lines << ExemptLine(p, i);
    }
}

void AddColumns(QStringList& lines) {
  for (int p = 0; p < ItemPages; ++p)
    for (int row = page(p).FirstRow(); row <= page(p).LastRow(); ++row) {
      if (page(p).HasColumns(row))
        lines << ColumnsLine(p, row, page(p).txtQty[row].Text(), page(p).txtAmt[row].Text());
    }
}

void AddLabels(QStringList& lines) {
  for (int p = 0; p < IndexedPages; ++p)
    for (const Control& label : page(p).lbl)
      if (LabelCounts(p, label.Index())) lines << LabelLine(p, label.Index(), ValuesOf(label));
}

// The format's logo stands where the page shows it; one that could not be read keeps the place it had.
void AddLogo(QStringList& lines) {
  if (format.LogoPath.isEmpty()) return;
  const Control& logo = page(0).pic[0];
  lines << (format.LogoChanged ? LogoLine(format.LogoPath, logo.Left(), logo.Top())
                               : LogoLine(format.LogoPath, format.LogoLeft, format.LogoTop));
}

// The whole answer, blanks and an extension that was typed along taken off.
QString NameFrom(const QString& answer) {
  QString name = FoldToCodePage(answer).trimmed();
  if (name.endsWith(Extension, Qt::CaseInsensitive)) name.chop(Extension.size());
  return name.trimmed();
}

QString OpenName() {
  return format.FormatName.chopped(Extension.size());
}

// The name to save under; empty, after telling why, when there is none.
QString ChooseName() {
  if (!format.FormatName.isEmpty() && !format.FormatSaveAs) return OpenName();
  const QString offered = format.FormatName.isEmpty() ? QString() : OpenName();
  const QString name = NameFrom(desk().InputBox(QStringLiteral("Please input the File Name below."),
                                                QStringLiteral("Saving File As..."), offered));
  if (name.isEmpty()) {
    Tell(QStringLiteral("No name entered. File not saved."));
  } else if (HasForbiddenCharacter(name)) {
    Tell(QStringLiteral("Illegal File Name. Please rename your file and exclude these characters <>:|?*/\\"));
  } else if (MayOverwrite(format.FormatFolder, name, Extension)) {
    return name;
  }
  return {};
}

void TakeFormatTexts() {
  for (int p = 0; p < ItemPages; ++p)
    for (int i = 0; i < AreaCount(p); ++i) FormatTextOf(p, i).Text = FixedText(page(p).txt[i]);
}

bool HoldsAnything() {
  for (int p = 0; p < ItemPages; ++p)
    for (int i = 0; i < AreaCount(p); ++i) {
      const TextAreaRecord& record = FormatTextOf(p, i);
      if (record.FontBold || record.QtyWritten || !FixedText(page(p).txt[i]).isEmpty()) return true;
    }
  for (int p = 0; p < IndexedPages; ++p)
    for (const Control& label : page(p).lbl)
      if (LabelCounts(p, label.Index())) return true;
  return false;
}

void ShowFormatName() {
  frame().form.caption = QStringLiteral("Quillane - Format File = ") + format.FormatName;
  // The frame's window looks at its caption when the title's label has changed.
  Control& event = frame()["lblEvent"];
  event.SetVisible(false);
  event.SetVisible(true);
}

// What the format's file now holds needs no question any more.  The changes of a proposal with a file of its
// own, and the amounts, are not in the format and stay unsaved; where there were none, the marks that were
// set for this save make none.
enum class Work { Saved, Unsaved };
void MarkHeldBySavedFormat(Work work) {
  if (proposal.FileIsNamed) {
    if (work == Work::Saved) AssignPropChanges();
    return;
  }
  for (int p = 0; p < ItemPages; ++p)
    for (int i = 0; i < AreaCount(p); ++i) {
      if (IsNumericArea(page(p).txt[i])) continue;
      proposal.SavedText[p][i] = proposal.PageText[p][i];
    }
  AssignPropChanges();
  proposal.SavedPropertyLines = PropertyLinesNow();
}

bool StoreAsDefault() {
  return StorePreference(QStringLiteral("Default File Format:"), format.FormatFolder + format.FormatName);
}

// A format of nothing but a font has nothing to write a second time, and can be the default all the same.
bool IsSavedAs(const QString& name) {
  return format.FormatIsOpen && format.FormatName == name + Extension &&
         FileExists(format.FormatFolder, format.FormatName);
}

bool SaveUnder(const QString& name) {
  const bool unsavedWork = ProposalHasChanged();
  SaveTextBoxFeatures();
  if (!FormatChanged()) return IsSavedAs(name) && (!format.FormatAsDefault || StoreAsDefault());
  // The marks and lines follow the file: what could not be written still counts as unsaved.
  ReplaceFile(format.FormatFolder + name + Extension, BytesOfLines(FormatLinesNow()));
  AssignFormatPropChanges();
  CopyLabelsToRecords();
  format.FormatName = name + Extension;
  const bool stored = !format.FormatAsDefault || StoreAsDefault();
  format.FormatIsOpen = true;
  MarkHeldBySavedFormat(unsavedWork ? Work::Unsaved : Work::Saved);
  ShowFormatName();
  return stored;
}

}  // namespace

QStringList FormatLinesNow() {
  QStringList lines;
  AddTexts(lines);
  AddColumns(lines);
  AddLabels(lines);
  AddLogo(lines);
  const UserFont& font = proposal.UDP;
  if (!font.FontName.isEmpty() && font.FontSize != 0) lines << UserFontLine(font);
  return lines;
}

void AssignFormatPropChanges() {
  Guarded("AssignFormatPropChanges", [] {
    TakeFormatTexts();
    format.FormatLines = FormatLinesNow();
    for (auto& areas : format.FormatTextRec)
      for (TextAreaRecord& record : areas) record.QtyWritten = false;
    for (int p = 0; p < IndexedPages; ++p)
      for (const Control& label : page(p).lbl)
        if (LabelCounts(p, label.Index()))
          FormatLabelOf(p, label.Index()).Changed = FormatLabelOf(p, label.Index()).Written = true;
  });
}

bool FormatChanged() {
  if (format.LogoChanged) return true;
  for (int p = 0; p < ItemPages; ++p)
    for (int i = 0; i < AreasPerPage; ++i)
      format.FormatTextRec[p][i].FontBold = proposal.TextRec[p][i].FontBold;
  return HoldsAnything() || FormatLinesNow() != format.FormatLines;
}

bool SaveFileFormat() {
  bool saved = false;
  Guarded("SaveFileFormat", [&] {
    TakeFocusedAmount();
    if (format.FormatFolder.isEmpty()) format.FormatFolder = prefs.ProposalFolder;
    const QString name = ChooseName();
    if (!name.isEmpty()) saved = SaveUnder(name);
  });
  return saved;
}

}  // namespace quillane
