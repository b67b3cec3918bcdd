#include "model/document_lines.h"

#include "model/property_lines.h"
#include "platform/runtime_error.h"

namespace quillane {

namespace {

constexpr QLatin1String TitleLine("frmP1.lbl(45)");

// --- To lines

void AddFont(QStringList& lines, const UserFont& font) {
  if (!font.FontName.isEmpty() && font.FontSize != 0) lines << UserFontLine(font);
}

/// Runs over the areas of pages 1 to 5.
template <class Body>
void ForEachArea(const Document& document, Body&& body) {
  for (int p = 0; p < ItemPages; ++p)
    for (int i = 0; i < AreaCount(p); ++i) body(p, i, document.TextRec[p][i]);
}

template <class Counts>
void AddLabels(QStringList& lines, const Document& document, Counts&& counts) {
  for (int p = 0; p < IndexedPages; ++p)
    for (int n = 0; n < shape::LabelCount(p); ++n)
      if (counts(p, n)) lines << LabelLine(p, n, document.LabelRec[p][n]);
}

// An amount belongs to one proposal, so it is never part of a format.
QString FixedText(int p, int i, const TextAreaRecord& area) {
  return shape::IsNumeric(p, i) ? QString() : area.Text;
}

// --- From lines

void RequireLineIndex(int index, int count) {
  if (index < 0 || index >= count)
    Raise(errors::Subscript, QStringLiteral("a property line names number %1").arg(index));
}

/// Applies line after line; a line that names no page of this program belongs to the page of the line before.
enum class EmptyLine { EndsTheFile, IsPassedOver };
template <class Apply>
void ApplyLines(const QStringList& lines, EmptyLine empty, Apply&& apply) {
  int current = 0;
  for (const QString& text : lines) {
    if (text.isEmpty() && empty == EmptyLine::EndsTheFile) return;
    const PropertyLine line = ParseLine(text);
    if (line.page >= 0) current = line.page;
    apply(current, line);
  }
}

void ApplyLabel(Document& document, int p, const PropertyLine& line) {
  RequireLineIndex(line.index, shape::LabelCount(p));
  LabelRecord label = document.LabelRec[p][line.index];
  TakeLabelValues(line, label);
  label.Changed = true;
  document.LabelRec[p][line.index] = label;
}

void ApplyFont(Document& document, const PropertyLine& line) {
  UserFont font;
  font.FontName = line.Text("FontName");
  font.FontSize = line.FontSize();
  font.FontColor = line.Integer("FontColor");
  font.FontItalic = line.Flag("FontItalic");
  document.UDP = font;
}

void SetColumns(TextAreaRecord& row, bool columns, const QString& quantity, const QString& each) {
  row.QtyBox = columns;
  row.QtyValue = !columns ? QString() : quantity.isEmpty() ? QuantityPrompt : quantity;
  row.AmtValue = !columns ? QString() : each.isEmpty() ? EachPrompt : each;
}

class PropertyReader {
 public:
  PropertyReader(Document& document, const RowRule& follows) : document_(document), follows_(follows) {}

  void operator()(int p, const PropertyLine& line) {
    switch (line.word) {
      case LineWord::Text:
        RequireLineIndex(line.index, AreaCount(p));
        document_.TextRec[p][line.index].FontBold = line.Flag("FontBold");
        return;
      case LineWord::Columns:
        return ApplyColumns(p, line);
      case LineWord::Label:
        return ApplyLabel(document_, p, line);
      case LineWord::UserFont:
        return ApplyFont(document_, line);
      case LineWord::Logo:  // a proposal has no logo of its own; the line belongs to formats
      case LineWord::None:
        return;
    }
  }

 private:
  void ApplyColumns(int p, const PropertyLine& line) {
    RequireLineIndex(line.index, shape::ColumnBoxCount(p));
    const bool columns = line.Flag("QtyBox");
    if (!shape::IsRow(p, line.index) || !follows_(p, line.index, columns)) return;
    TextAreaRecord& row = document_.TextRec[p][line.index];
    if (columns != row.QtyBox) SetColumns(row, columns, {}, {});
  }

  Document& document_;
  const RowRule& follows_;
};

class FormatReader {
 public:
  FormatReader(Document& document, FormatLayer& layer, const TakeLogo& takeLogo)
      : document_(document), layer_(layer), takeLogo_(takeLogo) {}

  void operator()(int p, const PropertyLine& line) {
    switch (line.word) {
      case LineWord::Text:
        return ApplyText(p, line);
      case LineWord::Columns:
        return ApplyColumns(p, line);
      case LineWord::Label:
        return ApplyFormatLabel(p, line);
      case LineWord::Logo:
        return takeLogo_({line.Text("Picture"), line.Place("Left"), line.Place("Top")});
      case LineWord::UserFont:
        return ApplyFont(document_, line);
      case LineWord::None:
        return;
    }
  }

 private:
  void ApplyText(int p, const PropertyLine& line) {
    RequireLineIndex(line.index, AreaCount(p));
    TextAreaRecord& area = document_.TextRec[p][line.index];
    if (line.Has("FontBold")) area.FontBold = line.Flag("FontBold");
    if (line.Has("Text")) {
      area.Text = line.Text("Text");
      layer_.texts[p][line.index].HasFormatText = true;
    }
    if (line.Has("TaxExempt") && line.Flag("TaxExempt")) {
      RequireLineIndex(line.index, shape::IsItemPage(p) ? AreaCount(p) : 1);
      area.TaxExempt = shape::IsItemPage(p);
    }
  }

  void ApplyColumns(int p, const PropertyLine& line) {
    RequireLineIndex(line.index, shape::ColumnBoxCount(p));
    const bool columns = line.Flag("QtyBox");
    if (!shape::IsRow(p, line.index)) return;
    TextAreaRecord& row = document_.TextRec[p][line.index];
    SetColumns(row, columns, line.Has("QtyValue") ? line.Text("QtyValue") : row.QtyValue,
               line.Has("AmtValue") ? line.Text("AmtValue") : row.AmtValue);
  }

  // Whether the proposal itself has changed a label is no format's to say.
  void ApplyFormatLabel(int p, const PropertyLine& line) {
    RequireLineIndex(line.index, shape::LabelCount(p));
    const bool changed = document_.LabelRec[p][line.index].Changed;
    ApplyLabel(document_, p, line);
    document_.LabelRec[p][line.index].Changed = changed;
    layer_.labels[p][line.index].Changed = true;
    if (p == 0 && line.index == shape::TitleLabel(0)) TakeTitle(document_.LabelRec[p][line.index].Caption);
  }

  // A client's name in a title is one proposal's; other words were made by hand and belong to the format.
  void TakeTitle(const QString& caption) {
    if (caption.isEmpty() || IsTitleOfName(caption)) return;
    document_.Title = caption;
    document_.TitleByHand = true;
  }

  Document& document_;
  FormatLayer& layer_;
  const TakeLogo& takeLogo_;
};

}  // namespace

QStringList PropertyLinesOf(const Document& document) {
  QStringList lines;
  ForEachArea(document, [&](int p, int i, const TextAreaRecord& area) {
    if (area.FontBold) lines << BoldLine(p, i);
  });
  ForEachArea(document, [&](int p, int i, const TextAreaRecord& area) {
    if (area.QtyBox) lines << ColumnsLine(p, i);
  });
  AddLabels(lines, document, [&](int p, int n) { return document.LabelRec[p][n].Changed; });
  AddFont(lines, document.UDP);
  return lines;
}

QStringList FormatLinesOf(const Document& document, const FormatLabelTable& labels, const LogoRecord& logo) {
  QStringList lines;
  ForEachArea(document, [&](int p, int i, const TextAreaRecord& area) {
    const QString text = FixedText(p, i, area);
    if (area.FontBold) lines << BoldLine(p, i);
    if (!text.isEmpty()) lines << TextLine(p, i, text);
    if (area.TaxExempt) lines << ExemptLine(p, i);
  });
  ForEachArea(document, [&](int p, int i, const TextAreaRecord& area) {
    if (area.QtyBox) lines << ColumnsLine(p, i, area.QtyValue, area.AmtValue);
  });
  // A label that the proposal itself has changed looks changed on the page, and a format made from that page
  // has to look the same.
  AddLabels(lines, document,
            [&](int p, int n) { return labels[p][n].Changed || document.LabelRec[p][n].Changed; });
  if (!logo.LogoPath.isEmpty()) lines << LogoLine(logo.LogoPath, logo.LogoLeft, logo.LogoTop);
  AddFont(lines, document.UDP);
  return lines;
}

QString TitleIn(const QStringList& lines) {
  QString title;
  try {
    for (const QString& text : lines) {
      if (text.isEmpty()) break;
      if (!text.startsWith(TitleLine)) continue;
      const QString caption = ParseLine(text).Text("Caption");
      if (!caption.isEmpty()) title = caption;
    }
  } catch (const RuntimeError&) {
    // The same line stops the reading, and is reported, at its place.
  }
  return title;
}

void ApplyPropertyLines(const QStringList& lines, Document& document, const RowRule& follows) {
  ApplyLines(lines, EmptyLine::EndsTheFile, PropertyReader(document, follows));
}

void ApplyFormatLines(const QStringList& lines, Document& document, FormatLayer& layer,
                      const TakeLogo& takeLogo) {
  ApplyLines(lines, EmptyLine::IsPassedOver, FormatReader(document, layer, takeLogo));
}

}  // namespace quillane
