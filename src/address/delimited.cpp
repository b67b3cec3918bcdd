#include "address/delimited.h"

namespace quillane {

namespace {

const QByteArray LineBreak = QByteArrayLiteral("\r\n");
constexpr int LongestRest = 2;  // characters behind the last separator that are no record

/// The first selected category from `category` on; CategoryCount when there is none.
int SelectedFrom(int category, const Categories& selected) {
  while (category < CategoryCount && !selected[category]) ++category;
  return category;
}

Span SpanOf(qsizetype start, qsizetype end) {
  return {static_cast<int>(start), static_cast<int>(end - start)};
}

}  // namespace

QByteArray FieldSeparator(ListType type) {
  if (type == ListType::Lines) return LineBreak;
  return type == ListType::Tabs ? QByteArrayLiteral("\t") : QByteArrayLiteral(",");
}
QByteArray RecordSeparator(ListType type) {
  return type == ListType::Lines ? LineBreak + LineBreak : LineBreak;
}

DelimitedList ParseDelimitedList(const QByteArray& text, ListType type, const Categories& selected) {
  DelimitedList list{TrimmedBytes(text).toByteArray(), {}, FieldSeparator(type), selected};
  if (list.text.endsWith(LineBreak)) {
    list.text.chop(LineBreak.size());
  } else if (list.text.endsWith('\n')) {
    list.text.chop(1);
  }
  const QByteArray separator = RecordSeparator(type);
  qsizetype start = 0;
  for (qsizetype end = 0; (end = list.text.indexOf(separator, start)) >= 0; start = end + separator.size())
    list.BatchRecords.push_back(SpanOf(start, end));
  if (list.text.size() - start > LongestRest) list.BatchRecords.push_back(SpanOf(start, list.text.size()));
  return list;
}

BatchCells CellsOf(const DelimitedList& list, int record) {
  const QByteArrayView text = PieceOf(list.text, list.BatchRecords[static_cast<size_t>(record)]);
  const qsizetype width = list.separator.size();
  BatchCells cells;
  // Places count from 1; `start` is the last separator's, and before the first one, that of the first
  // character.
  qsizetype start = 1;
  bool first = true;
  int category = SelectedFrom(0, list.selected);
  while (category < CategoryCount) {
    const qsizetype place = text.indexOf(list.separator, first ? 0 : start) + 1;
    if (place == 0) break;
    if (!first) start += width;
    cells[category] = text.sliced(start - 1, place - start).toByteArray();
    start = place;
    first = false;
    category = SelectedFrom(category + 1, list.selected);
  }
  if (category == CategoryCount) return cells;
  // What is left stands behind the last separator, whose second character counts where it is a line break.
  start += width - 1;
  if (text.size() > start) cells[category] = text.sliced(start).toByteArray();
  return cells;
}

}  // namespace quillane
