// A document as the lines of the property language: how a proposal differs from the default layout, and what
// a format holds of it.
#pragma once
#include <QStringList>
#include <functional>

#include "model/document.h"

namespace quillane {

/// The lines of the property file.
QStringList PropertyLinesOf(const Document& document);
/// The lines of a format file: also fixed texts, exemptions, column values, the labels that the format has
/// changed, and the logo that the format names.
QStringList FormatLinesOf(const Document& document, const FormatLabelTable& labels, const LogoRecord& logo);

/// The caption of the first page's title in the lines of a property file; empty where they do not name it.
QString TitleIn(const QStringList& lines);
/// Applies the lines of a property file, up to the first empty one.  A row takes or loses its columns only
/// where `follows` allows it.  Stops by an exception at the first malformed line; what stands before it has
/// been applied then.
using RowRule = std::function<bool(int page, int row, bool columns)>;
void ApplyPropertyLines(const QStringList& lines, Document& document, const RowRule& follows);

/// What the lines of a format say beside the document.
struct FormatLayer {
  FormatTextTable texts;  ///< HasFormatText: a line states the area's text
  FormatLabelTable labels;
};
/// Applies the lines of a format file to a document and to `layer`; empty lines are passed over.  A logo is
/// handed to `takeLogo` as its line has it, in its turn.  Stops as ApplyPropertyLines does.
using TakeLogo = std::function<void(const LogoRecord&)>;
void ApplyFormatLines(const QStringList& lines, Document& document, FormatLayer& layer,
                      const TakeLogo& takeLogo);

}  // namespace quillane
