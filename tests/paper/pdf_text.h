// The words of a PDF file with their places, as the pdftotext program finds them.
#pragma once
#include <QString>
#include <vector>

namespace quillane::test {

/// A word, or several that stand beside each other; twips from the top left corner of the sheet.  `top` is
/// the top of the text's cell: its baseline less the font's ascent.
struct PdfWord {
  QString text;
  float left = 0, top = 0, right = 0, bottom = 0;
};

struct PdfPage {
  float width = 0, height = 0;
  std::vector<PdfWord> words;  ///< in reading order
};

/// All pages of a file.  Throws std::runtime_error when pdftotext is missing or does not like the file.
std::vector<PdfPage> ReadPdf(const QString& path);

/// Every place where the words of `phrase` follow each other on one line.
std::vector<PdfWord> FindText(const PdfPage& page, const QString& phrase);

/// True when one of those places begins within `tolerance` twips of (left, top).
bool HasTextAt(const PdfPage& page, const QString& phrase, float left, float top, float tolerance = 2);
/// The same for a text that ends at `right`.
bool HasTextEndingAt(const PdfPage& page, const QString& phrase, float right, float top, float tolerance = 2);

}  // namespace quillane::test
