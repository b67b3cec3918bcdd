// The import of addresses from the clipboard: the set-up panel, and the walk through the records, each of
// which is saved or skipped by hand.
#pragma once
#include <functional>
#include <variant>

#include "address/batch_cells.h"
#include "address/csv.h"
#include "address/delimited.h"

namespace quillane {

/// Records that come whole, as contacts do.
using ReadyRecords = std::vector<FieldTexts>;

struct BatchImport {
  // picImport.  It stands in the place of the fields, the list and the buttons.
  bool SetUpShows = false;
  QString lblMain, txtSample;
  FixedArray<QString, CategoryCount> lblFormat;
  Categories CategorySelected;  ///< these labels are cyan, the others grey
  int CategoryLast = 0;         ///< number of selected categories, less one
  ListType optList = ListType::Lines;
  bool CsvMode = false;

  // picBatchProcess.
  bool WalkShows = false;
  Book book = Book::Personal;  ///< the book that the records go into
  std::variant<DelimitedList, CsvList, ReadyRecords> list;
  int BatchLastIndex = 0, BatchIndex = 0;
  QString BadRecordList;  ///< lines that could not be taken, counted from 0; kept until the window closes
};

inline BatchImport batch;

/// The texts of record `index` of the list that is walked, for the eleven fields; blank for one that it does
/// not have.
FieldTexts BatchRecordTexts(int index);
/// How many records the list has that is walked.
int BatchRecordCount();
/// True where the walk's panel is to be seen: a second set-up covers it.
bool WalkPanelShows();

// The set-up.

/// mnuToolsImportBatch.
void ImportBatchCommand();
/// "This will save the Batch Records into ...": the book that the answers choose, or nothing.
std::optional<Book> AskForBatchBook();
/// Empties the fields and opens a book for its records.  False when it did not open.
bool OpenBatchBook(Book book);
/// A click on lblFormat(index).
void ToggleCategory(int index);
/// optList(0) to (3).
void ChooseListType(ListType type);
void RefreshSampleCommand();
void RefreshFormatListTypes(ListType type);
/// cmdCancel; the main window's address commands end a set-up so too.
void CancelImport();
/// imgExit: leaves CsvMode as it is.
void ExitImport();
/// cmdOK: reads the clipboard, once, and shows the first record.
void BeginBatchProcess();

// The walk.

/// Parses the clipboard's list for the book that is open, and shows its first record.
void WalkClipboard();
/// Walks records that come from elsewhere; its book is the one that is open.
void WalkRecords(ReadyRecords records);
void SaveBatchRecordCommand();
void SkipBatchRecordCommand();
void EndBatchCommand();
/// Told before each record, and behind the last, how many of how many have been done; false ends it there.
using BatchProgress = std::function<bool(int done, int total)>;
/// Saves the record on the screen and all behind it, after a question; those without a name are passed over.
void SaveAllRemainingCommand(const BatchProgress& progress);

}  // namespace quillane
