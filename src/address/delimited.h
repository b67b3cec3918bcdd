// Lists whose fields are parted by line breaks, commas or tabs.  Texts are bytes of the code page, line
// breaks are CR LF.
#pragma once
#include "address/batch_cells.h"

namespace quillane {

/// optList(0) to (3).
enum class ListType { Lines, Commas, Tabs, MailProgram };

/// What stands between fields: a line break, a comma or a tab.
QByteArray FieldSeparator(ListType type);
/// What stands between records: two line breaks, or one.
QByteArray RecordSeparator(ListType type);

struct DelimitedList {
  QByteArray text;
  std::vector<Span> BatchRecords;
  QByteArray separator;
  Categories selected;
};

/// Finds the records.  A rest of one or two characters at the end is none.
DelimitedList ParseDelimitedList(const QByteArray& text, ListType type, const Categories& selected);
/// The fields of a record, one after the other, for the categories that are selected; more fields than
/// categories are dropped.  In a record without any separator the first character, or the first two where
/// fields are lines, is taken for one and lost.
BatchCells CellsOf(const DelimitedList& list, int record);

}  // namespace quillane
