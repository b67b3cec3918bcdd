// Writing: what of the pages a format holds, and under which name.
#include "files/format_file.h"

#include "editing/totals_commands.h"
#include "files/changes.h"
#include "files/event_file.h"
#include "files/property_file.h"
#include "model/document_lines.h"
#include "model/frame.h"
#include "model/property_lines.h"
#include "model/report.h"
#include "pages/show_document.h"
#include "platform/codepage.h"
#include "platform/files.h"
#include "settings/preferences.h"
#include "ui/desk.h"

namespace quillane {

namespace {

const QString Extension = QStringLiteral(".wft");

// The format's logo stands where the page shows it; one that could not be read keeps the place it had.
LogoRecord LogoOfFormat() {
  const Control& logo = page(0).pic[0];
  if (format.LogoChanged) return {format.LogoPath, logo.Left(), logo.Top()};
  return {format.LogoPath, format.LogoLeft, format.LogoTop};
}

QStringList LinesOf(const Document& document) {
  return FormatLinesOf(document, format.FormatLabelRec, LogoOfFormat());
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
  // The amounts alone stay as they were saved.
  Document held = ReadPages();
  for (int p = 0; p < ItemPages; ++p)
    for (int i = 0; i < AreaCount(p); ++i)
      if (shape::IsNumeric(p, i)) held.TextRec[p][i].Text = proposal.Saved.TextRec[p][i].Text;
  held.TextRec[shape::Totals] = proposal.Saved.TextRec[shape::Totals];
  proposal.Saved = held;
  AssignPropChanges();
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
  format.FormatName = name + Extension;
  const bool stored = !format.FormatAsDefault || StoreAsDefault();
  format.FormatIsOpen = true;
  MarkHeldBySavedFormat(unsavedWork ? Work::Unsaved : Work::Saved);
  ShowFormatName();
  return stored;
}

}  // namespace

QStringList FormatLinesNow() {
  return LinesOf(ReadPages());
}

void AssignFormatPropChanges() {
  Guarded("AssignFormatPropChanges", [] {
    const Document document = ReadPages();
    for (int p = 0; p < IndexedPages; ++p)
      for (int n = 0; n < shape::LabelCount(p); ++n)
        if (document.LabelRec[p][n].Changed) format.FormatLabelRec[p][n].Changed = true;
    format.FormatLines = LinesOf(document);
  });
}

bool FormatChanged() {
  if (format.LogoChanged) return true;
  // The logo and the font alone are no format that is worth a file; a difference from what was read is.
  const Document document = ReadPages();
  Document look = document;
  look.UDP.FontName.clear();
  for (auto& areas : look.TextRec)
    for (TextAreaRecord& area : areas) area.TaxExempt = false;
  return !FormatLinesOf(look, format.FormatLabelRec, {}).isEmpty() || LinesOf(document) != format.FormatLines;
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
