#include "qt/word_document.h"

#include <QBuffer>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentWriter>

#include "platform/runtime_error.h"

namespace quillane {

namespace {

constexpr qreal PixelsPerInch = 96;  // of a text document without a screen
constexpr qreal TabInches = 0.75, SheetWidthInches = 8.5, SheetHeightInches = 11;
constexpr int TabStops = 8;
constexpr int TextPoints = 10, HeadingPoints = 13;

bool IsRule(const QString& line) {
  return line.size() >= 10 && line.count(u'-') == line.size();
}

QTextBlockFormat LineFormat() {
  QList<QTextOption::Tab> tabs;
  for (int i = 1; i <= TabStops; ++i)
    tabs.append(QTextOption::Tab(i * TabInches * PixelsPerInch, QTextOption::LeftTab));
  QTextBlockFormat format;
  format.setTabPositions(tabs);
  return format;
}

QTextCharFormat Letters(int points, QFont::Weight weight) {
  QTextCharFormat format;
  format.setFontFamilies({QStringLiteral("Arial")});
  format.setFontPointSize(points);
  format.setFontWeight(weight);
  return format;
}

/// A section's heading is known by the long rule beneath it, a main category by the short one.
QTextCharFormat FormatOf(const QStringList& lines, qsizetype i) {
  constexpr qsizetype sectionRule = 60;
  if (i == 0) return Letters(HeadingPoints, QFont::Bold);
  const QString& below = lines.value(i + 1);
  if (IsRule(lines[i]) || !IsRule(below)) return Letters(TextPoints, QFont::Normal);
  return Letters(below.size() > sectionRule ? HeadingPoints : TextPoints, QFont::Bold);
}

void FillDocument(QTextDocument& document, const QStringList& lines) {
  QTextCursor cursor(&document);
  for (qsizetype i = 0; i < lines.size(); ++i) {
    if (i > 0) cursor.insertBlock();
    cursor.setBlockFormat(LineFormat());
    cursor.insertText(lines[i], FormatOf(lines, i));
  }
}

}  // namespace

QByteArray WordDocument(const QString& title, const QString& report) {
  QString text = report;
  text.remove(u'\r');
  QTextDocument document;
  document.setMetaInformation(QTextDocument::DocumentTitle, title);
  document.setPageSize({SheetWidthInches * PixelsPerInch, SheetHeightInches * PixelsPerInch});
  FillDocument(document, text.split(u'\n'));
  QBuffer buffer;
  QTextDocumentWriter writer(&buffer, "odf");
  if (!writer.write(&document)) Raise(errors::PathFileAccess, title);
  return buffer.data();
}

}  // namespace quillane
