#include "qt/word_document.h"

#include <QBuffer>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentWriter>

#include "platform/runtime_error.h"

namespace quillane {

namespace {

constexpr qreal PixelsPerInch = 96;                      // of a text document without a screen
constexpr qreal ValueColumn = 1.75, BetweenStops = 0.1;  // inches
constexpr int TextPoints = 10, HeadingPoints = 13;

bool IsRule(const QString& line) {
  return line.size() >= 10 && line.count(u'-') == line.size();
}

/// The report counts its tabs for letters of one width.  Here the last tab of each line leads to one column,
/// and those before it to stops just short of that.
QTextBlockFormat LineFormat(const QString& line) {
  QList<QTextOption::Tab> stops;
  for (qsizetype before = line.count(u'\t') - 1; before >= 0; --before)
    stops.append(QTextOption::Tab((ValueColumn - static_cast<qreal>(before) * BetweenStops) * PixelsPerInch,
                                  QTextOption::LeftTab));
  QTextBlockFormat format;
  format.setTabPositions(stops);
  return format;
}

QTextCharFormat Letters(int points, QFont::Weight weight) {
  QTextCharFormat format;
  const QString family = QStringLiteral("Arial");
  format.setFontFamilies({family});
  format.setProperty(QTextFormat::FontFamily, family);  // without its old name the writer takes another one
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
    cursor.setBlockFormat(LineFormat(lines[i]));
    cursor.insertText(lines[i], FormatOf(lines, i));
  }
}

}  // namespace

QByteArray MakeWordDocument(const QString& title, const QString& report) {
  QString text = report;
  text.remove(u'\r');
  QTextDocument document;
  document.setMetaInformation(QTextDocument::DocumentTitle, title);
  FillDocument(document, text.split(u'\n'));
  QBuffer buffer;
  QTextDocumentWriter writer(&buffer, "odf");
  if (!writer.write(&document)) Raise(errors::PathFileAccess, title);
  return buffer.data();
}

}  // namespace quillane
