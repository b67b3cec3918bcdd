// The comma-separated list that a mail program exports, with a line of column names at its head.  Texts are
// bytes of the code page, line breaks are CR LF.
#pragma once
#include <optional>

#include "address/batch_cells.h"

namespace quillane {

/// The columns that such a list may have, in the order in which they are looked for.
enum class CsvField {
  FirstName,
  LastName,
  MiddleName,
  Name,
  Nickname,
  EmailAddress,
  HomeStreet,
  HomeCity,
  HomePostalCode,
  HomeState,
  HomeCountry,
  HomePhone,
  HomeFax,
  MobilePhone,
  PersonalWebPage,
  BusinessStreet,
  BusinessCity,
  BusinessPostalCode,
  BusinessState,
  BusinessCountry,
  BusinessWebPage,
  BusinessPhone,
  BusinessFax,
  Pager,
  Company,
  JobTitle,
  Department,
  OfficeLocation,
  Notes,
  Count
};
inline constexpr int CsvFieldCount = static_cast<int>(CsvField::Count);

struct CsvList {
  QByteArray text;  ///< with its masks: C8 twice for a line break inside quotes, EA for a comma
  std::vector<Span> lines;
  std::vector<bool> BadRecordFlags;            ///< lines with an odd number of quotes
  FixedArray<bool, CsvFieldCount> CsvPresent;  ///< the header has the name somewhere
  FixedArray<int, CsvFieldCount> CsvColumn;    ///< columns count from 0
  Book book = Book::Personal;
  Categories selected;
};

/// Takes the list apart, flags its bad lines and empties them.  Nothing when there is no line break at all. A
/// last line without a line break is no line.  The masks and the quotes stay in the fields.
std::optional<CsvList> ParseCsvList(const QByteArray& text, Book book, const Categories& selected);

/// A field of a line; empty for a column that the list does not have.
QByteArray CsvValue(const CsvList& list, int line, CsvField field);
/// What the selected categories get from a line.
BatchCells CellsOf(const CsvList& list, int line);

}  // namespace quillane
