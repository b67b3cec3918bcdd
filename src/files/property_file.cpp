#include "files/property_file.h"

#include "model/document_lines.h"
#include "model/frame.h"
#include "model/property_lines.h"
#include "model/proposal.h"
#include "model/report.h"
#include "pages/show_document.h"
#include "pages/titles.h"
#include "platform/files.h"

namespace quillane {

namespace {

const QString Extension = QStringLiteral(".wpf");

// The field file owns a row's columns: its text says whether the row has them, and the property file repeats
// it.  A stored text that lost a sign to the field's width is plain text, and columns around it would lose
// the rest.
bool RowFollowsLine(const TextAreaRecord& filed, bool columns) {
  return columns ? filed.QtyBox || !HasStrayMark(filed.Text) : !filed.QtyBox;
}

// The title goes to all pages before the lines place its labels, since writing it centres them.
void TakeTitle(const QString& caption) {
  if (caption.isEmpty()) return;
  proposal.TitleByHand = caption != TitleFor(proposal.BaseName);
  proposal.Title = caption;
  UpdateEventNameLabels();
}

void MarkAsWritten() {
  for (auto& labels : proposal.LabelMarks)
    for (LabelMark& label : labels) label.Written = label.Changed;
}

}  // namespace

void AssignPropChanges() {
  proposal.AreaMarks = {};
  MarkAsWritten();
}

QString PropertyFolder() {
  return proposal.OpenedFromBackup || proposal.CurrentFolder.isEmpty() ? prefs.ProposalFolder
                                                                       : proposal.CurrentFolder;
}

bool SavePropertyFile(const QString& baseName, const QStringList& lines, std::vector<Replacement>& written) {
  return Guarded("SavePropertyFile",
                 [&] { written.emplace_back(PropertyFolder() + baseName + Extension, BytesOfLines(lines)); });
}

void ReadFileProperties(const Document& filed) {
  Guarded("ReadFileProperties", [&] {
    const QString name = proposal.BaseName + Extension;
    if (!FileExists(PropertyFolder(), name)) return;
    const QStringList lines = ReadPropertyLines(PropertyFolder() + name);
    if (!lines.isEmpty()) ParsePropertyFile(lines, filed);
  });
}

void ParsePropertyFile(const QStringList& lines, const Document& filed) {
  const Scoped parsing(editing.Parsing, true);
  const Scoped rebuilding(editing.RebuildingPages, true);
  TakeTitle(TitleIn(lines));
  Document document = ReadPages();
  Guarded("ParsePropertyFile", [&] {
    ApplyPropertyLines(lines, document, [&](int p, int row, bool columns) {
      return format.FormatTextRec[p][row].HasFormatText || RowFollowsLine(filed.TextRec[p][row], columns);
    });
  });
  Guarded("ParsePropertyFile", [&] { PutOnPages(document); });
  MarkAsWritten();
  if (!proposal.Title.isEmpty()) frame()["lblEvent"].SetCaption(QStringLiteral("Title: ") + proposal.Title);
}

}  // namespace quillane
