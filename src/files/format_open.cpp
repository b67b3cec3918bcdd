// Reading: a format is read whole, then its lines go onto blank pages.
#include "files/event_file.h"
#include "files/format_file.h"
#include "files/new_proposal.h"
#include "model/document_lines.h"
#include "model/frame.h"
#include "model/property_lines.h"
#include "model/report.h"
#include "pages/show_document.h"
#include "pages/titles.h"
#include "platform/files.h"
#include "ui/desk.h"

namespace quillane {

namespace {

QString LogoPathFrom(const QString& stored) {
  const QString path = stored.trimmed();
  const bool hasFolder = path.contains(QLatin1Char('\\')) || path.contains(QLatin1Char('/'));
  return !hasFolder && FileExists(prefs.ProgramFolder, path) ? prefs.ProgramFolder + path : path;
}

// A logo that cannot be read is told, and costs the logo alone; its line stays with the format, since the
// shared folder in which it lies may be back tomorrow.
void ApplyLogo(const LogoRecord& stored) {
  format.LogoLeft = stored.LogoLeft;
  format.LogoTop = stored.LogoTop;
  format.LogoPath = LogoPathFrom(stored.LogoPath);
  format.LogoChanged = false;
  Guarded("ParseFormatFile", [] {
    Control& logo = page(0).pic[0];
    logo.SetPicture(desk().LoadPicture(ResolvePath(format.LogoPath)));
    logo.SetLeft(format.LogoLeft);
    logo.SetTop(format.LogoTop);
    format.LogoChanged = true;
  });
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

void ShowFormat() {
  format.FormatIsOpen = true;
  ParseFormatFile();
  UpdateEventNameLabels();  // the labels of the title have their places now, and keep the proposal's words
  // A title that came with the format is no one's change.
  proposal.LabelMarks[0][shape::TitleLabel(0)].Written = true;
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
  });
}

void ParseFormatFile() {
  const Scoped parsing(editing.Parsing, true);
  const Scoped rebuilding(editing.RebuildingPages, true);
  Document document = ReadPages();
  FormatLayer layer;
  Guarded("ParseFormatFile", [&] {
    ApplyFormatLines(format.FormatLines, document, layer, [&](const LogoRecord& stored) {
      ApplyLogo(stored);
      document.Logo = ReadLogo();
    });
  });
  Guarded("ParseFormatFile", [&] {
    format.FormatLabelRec = layer.labels;
    if (!editing.DoNotLockFormat) format.FormatTextRec = layer.texts;
    PutOnPages(document);
  });
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
