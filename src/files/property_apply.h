// What a line of the property language does to a page, as far as proposals and formats agree on it.
#pragma once
#include "files/property_lines.h"

namespace quillane {

/// The control of an array that a line names.  Throws 9 for an index beyond the array.
Control& ControlOfLine(Array<Control>& array, int index);

/// Gives a label the values that a line states, on page 6 its copy as well, and returns what it then has.
/// FontItalic and FontUnderline stay the label's own where an older, shorter line leaves them out.
LabelRecord ApplyLabelLine(Page& target, const PropertyLine& line);
/// Takes the user's font and gives it to all text.
void ApplyFontLine(const PropertyLine& line);
/// Puts the prompts into column boxes that are empty.
void ShowColumnPrompts(Page& target, int row);

/// Applies line after line; a line that names no page of this program belongs to the page of the line before.
/// Stops by an exception at the first malformed line; what stands before it has been applied then.
enum class EmptyLine { EndsTheFile, IsPassedOver };
template <class Apply>
void ApplyLines(const QStringList& lines, EmptyLine empty, Apply&& apply) {
  int current = 0;
  for (const QString& text : lines) {
    if (text.isEmpty() && empty == EmptyLine::EndsTheFile) return;
    const PropertyLine line = ParseLine(text);
    if (line.page >= 0) current = line.page;
    apply(page(current), line);
  }
}

}  // namespace quillane
