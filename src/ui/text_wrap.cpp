#include "ui/text_wrap.h"

namespace quillane {

namespace {

/// How many letters from `first` on fit; at least one, so that every line takes something.
qsizetype Fitting(const Font& font, const QString& text, qsizetype first, float width) {
  qsizetype fits = 1, above = text.size() - first + 1;
  while (above - fits > 1) {
    const qsizetype middle = fits + (above - fits) / 2;
    (TextWidth(font, text.mid(first, middle)) <= width ? fits : above) = middle;
  }
  return fits;
}

/// The end of the word that begins at or behind `first`.
qsizetype EndOfWord(const QString& text, qsizetype first) {
  while (first < text.size() && text[first] == u' ') ++first;
  while (first < text.size() && text[first] != u' ') ++first;
  return first;
}

/// The end of the line that begins at `first`: behind its last word that fits, or inside a word that is wider
/// than the line.
qsizetype EndOfLine(const Font& font, const QString& text, qsizetype first, float width) {
  qsizetype end = first;
  while (end < text.size()) {
    const qsizetype next = EndOfWord(text, end);
    if (TextWidth(font, text.mid(first, next - first)) > width) break;
    end = next;
  }
  return end > first ? end : first + Fitting(font, text, first, width);
}

}  // namespace

QStringList WrapText(const Font& font, const QString& text, float width) {
  QStringList lines;
  for (qsizetype first = 0; first < text.size();) {
    qsizetype end = EndOfLine(font, text, first, width), shown = end;
    if (end < text.size())
      while (shown > first && text[shown - 1] == u' ') --shown;
    lines.append(text.mid(first, shown - first));
    while (end < text.size() && text[end] == u' ') ++end;
    first = end;
  }
  if (lines.isEmpty()) lines.append(QString());
  return lines;
}

}  // namespace quillane
