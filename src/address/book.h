// The address book that is open: the record in its fields, the list of names beside it, the search.  The
// window shows this state after every command and keeps none of its own.
#pragma once
#include <QByteArray>
#include <QSet>
#include <QString>

#include "address/names.h"
#include "address/record.h"
#include "ui/font.h"

namespace quillane {

/// One of the eleven fields, as the window shows it.
struct AddressField {
  QString Text;  ///< a line break in the notes is CR LF, two characters
  int SelStart = 0, SelLength = 0;
  Color BackColor = colors::White;
  QString ToolTipText;
};

/// lstNames.
struct NameList {
  NameRows rows;
  int revision = 0;  ///< counts the fillings, so that a view knows when to begin anew
  int ListIndex = -1, TopIndex = 0;
  bool Visible = true;
  int ListCount() const { return rows.Count(); }
};

struct AddressBook {
  // The open book.
  QString Folder;  ///< where the book lies; stays until the window closes
  QString AddressFileName, AddressBakName, AddressTmpName;
  int RecordLength = 0, RecordCount = 0;
  QString BookTitle;

  // The record on the screen.
  int CurrentRecord = 0;    ///< counted from 1
  QByteArray RecordAsRead;  ///< its 520 bytes when it was shown: another program may write into the book
  bool NewRecordFlag = false, NameChanged = false, RecordChanged = false;
  FixedArray<bool, field::Count> FieldChanged;
  FixedArray<QString, field::Count> FieldOriginal;
  bool RecordLoading = false, FieldsClearing = false, SaveCancelled = false;

  // The window.
  bool AddressBookOpen = false;
  bool CompanyInfoMode = false;  ///< the window edits the business's own details
  bool CompanyInfoChanged = false;
  QString Caption;
  FixedArray<AddressField, field::Count> txt;
  FixedArray<QString, field::Count> lblInfo;
  Color cmdSaveBackColor = colors::ButtonFace;
  NameList lstNames;
  int SelectedListIndex = -1;  ///< the row that was last opened
  bool ListReselecting = false;
  int FocusField = 0, FocusCaret = 0;
  bool FocusWanted = false;  ///< the window gives the focus to txt(FocusField), and clears this
  QSet<QString> EnabledMenus;

  // The search.
  QString SearchText;
  int SearchRecord = 0, SearchHit = 0;
  bool SearchLoaded = false, FindAgainFlag = false;
  QByteArray SearchSlices;  ///< the book in capitals, 520 bytes to the record

  bool WalkRecordShows = false;  ///< the record on the screen is the one that an import has put there
};

/// The books whose file this run has found or made, in one folder.
struct CheckedBooks {
  QString Folder;
  bool PersonalFileChecked = false, CompanyFileChecked = false;
};

inline AddressBook addressBook;
inline CheckedBooks checkedBooks;

/// Which book is open; before the first, the personal one.
Book CurrentBook();
QString BookPath();

// Opening.  A book that cannot be read is reported and shows no names.

/// Asks about a changed record, makes the book's file where it is missing, names and lists it.  False when
/// the answer was Cancel.
bool OpenPersonalBook();
/// The same; throws when the file cannot be made, and leaves the book that is open.
bool OpenCompanyBook();
/// Tells a failure, and goes on.
void CreatePersonalFile();
/// Throws.
void CreateCompanyFile();
void LoadBook();
/// Lists the names of `bytes`, RecordCount of them.  Throws 6 behind the 32,767th.
void FillNameList(const QByteArray& bytes);
void SetBookLabels();

// The record on the screen.

/// Shows record CurrentRecord; a failure is told and leaves what shows.
void ShowRecord();
enum class SaveResult { Saved, Refused, Failed };
/// Writes the fields: a new record, and one whose name was changed, behind the last.
SaveResult SaveRecord();
/// False when the question about a changed record was answered with Cancel.
bool NewRecord();
void ClearRecordFields();
/// The record that texts become when they are saved; its name has no blanks in front.
AddressRecord RecordToSave(const FieldTexts& texts);
bool HasName(const AddressRecord& record);
FieldTexts TextsOnScreen();
void DeleteRecord();
void RecountAfterDelete();
/// Opens the record of row lstNames.ListIndex.
void ActivateCurrentRecord();
/// "Record Has Changed".  A save that does not happen counts as Cancel, which SaveCancelled tells.
void PromptSaveRecord();
/// Asks about a changed record where there is one.  False for Cancel.
bool MayLeaveRecord();
void UpdateFieldFlags();
/// Writes a field as a hand does: FieldInput of `text` becomes its text, and what follows from a change
/// follows.
void SetField(int index, const QString& text);

/// Find, or with FindAgainFlag set, Find Again.
void FindInBook();
void ResetSearch();

}  // namespace quillane
