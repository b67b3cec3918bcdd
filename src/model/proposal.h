// The open proposal and the application-wide state around it: plain structs by owner, one instance of each.
#pragma once
#include <QString>
#include <QStringList>
#include <array>
#include <vector>

#include "model/document.h"
#include "model/page.h"
#include "ui/font.h"

namespace quillane {

/// What has happened to an area or a label since its file was written; a copy of the document has none of it.
struct AreaMark {
  bool PropChanged = false;  ///< bold or exemption changed by hand; cleared once the property file is written
  bool QtyWritten = false;   ///< set while the row's column line must still reach a file
};
struct LabelMark {
  bool Changed = false;  ///< stored by hand or by a file: the property file has a line for it
  bool Written = false;  ///< as it stands
};
template <class T, int Count>
using ByPage = FixedArray<FixedArray<T, Count>, IndexedPages>;

struct ProposalState {
  // What the pages show is the document: ReadPages() in pages/show_document.h reads it off.  Beside it stand
  // what no page shows, and the document as it was last written or read.
  Document Saved;
  ByPage<AreaMark, AreasPerPage> AreaMarks;
  ByPage<LabelMark, LabelsPerPage> LabelMarks;
  ByPage<LabelValues, LabelsPerPage>
      LabelBackup;  ///< a label as it stood when it was marked by a double click

  // All money is single precision.
  ByPage<float, AreasPerPage> AreaAmount;  ///< by page index, then area: the last text that was a number
  FixedArray<float, ItemPages> PageSubTotal, PageTaxable;
  float SubTotal = 0, TaxableAmount = 0, SalesTax = 0, GrandTotal = 0, DepositReceived = 0, BalanceDue = 0;
  float RunningTotal = 0, CheckTotal = 0;  ///< GrandTotal as each of the two calculations last had it
  int HighestPage = 6;                     ///< pages in use, 2 to 6
  UserFont UDP;

  // File names, without a path.
  QString BaseName, EventFileName, TextFileName, FootnoteFileName, DepositFileName;
  QString FootnoteText;
  QString CurrentFolder;  ///< the folder of the open file
  bool FileIsNamed = false, SavingAs = false, SaveCancelled = false, BackupInProgress = false;
  bool OpenedFromBackup = false;
  QString Mode;                 ///< "Event", "Wedding", or empty
  QString Title, SubTitleText;  ///< see Document
  bool TitleByHand = false;
};

/// The reusable format that may lie under a proposal.
struct FormatState {
  FormatTextTable FormatTextRec;
  FormatLabelTable FormatLabelRec;
  QString FormatName, FormatFolder;
  bool FormatIsOpen = false, FormatSessionActive = false, FormatAsDefault = false, FormatSaveAs = false;
  bool DefaultSetAside = false;  ///< another format, or none, was chosen in place of the default for this run
  QString LogoPath;
  float LogoLeft = 0, LogoTop = 0;
  bool LogoChanged = false;
  QStringList FormatLines;  ///< as last written or read: a difference from what would be written is a change
};

struct EditingState {
  // The page in use is that of the last area to have the focus, and stands in front unless the copy does.
  int CurrentPage = 0;  ///< page index 0 to 5
  bool CopyInFront = false;
  Page& CurrentForm() const { return page(CurrentPage); }
  int FrontWindow() const { return CopyInFront ? CopyOfPage6 : CurrentPage; }  ///< 0 to 6
  int CurrentArea = 0;
  QString CurrentText, CurrentAreaType, CurrentAreaLimit;
  float CurrentAreaWidth = 0;
  int LastTextIndex = 35, LastLabelIndex = 45;
  int CursorLocation = 0;
  float PrinterTextPosition = 0;  ///< inches
  QString LastKey;
  int KeysSinceBackup = 0;
  int MouseDownArea = 0;
  bool TextOverflowing = false, PushPending = false, PushKeepCaret = false, PushMoveCaret = false;
  bool SuppressAreaCaption = false, AutoCompleting = false, DateWarningGiven = false;
  bool Typing = false;     ///< the next change of the area with the focus is a character that was typed
  bool Cascading = false;  ///< words are being pushed: the areas that they reach push in their turn
  int SelectedTextStart = 0,
      SelectedTextLength = 0;  ///< the character selection when the text menu's states were set
  int MoveRow = -1;            ///< the row last written by a move
  bool UndoAvailable = false;  ///< a delete may be undone
  Control* Focus = nullptr;    ///< the control that has the focus, a page's or the frame's

  // Guards.  Set them through Scoped, so that they return to what they were on every way out.
  bool RecalcPending = false, AreasSelected = false, MovingContents = false, OpeningFile = false;
  bool RebuildingPages = false, ApplyingFonts = false, CheckRunning = false, NewFile = false, Parsing = false;
  bool StartingUp = false, Quitting = false, RecalcMarked = false, ActionCancelled = false;
  bool SelectionMemoryFull = false;  ///< something has been copied
  bool ColumnRebuild = false;

  // Options.
  bool HideTotals = false, UnderlineMainCategories = false, DoNotLockFormat = true;
  bool SkipScrollChange = false, ButtonPressed = false;
  float ScreenScale = 0;  ///< client height of the frame divided by the sheet's
};

/// The label last pressed, and what the label dialog does with it or with a selection of labels.
struct LabelEditState {
  int CurrentLabel = 0;  ///< index of the label last pressed
  int pressedOn = 0;     ///< the page index of that label
  LabelValues CurrentLabelRec;
  int LabelCount = 0;  ///< highest label index of the page
  QString LabelCaption;
  float LabelFontSize = 0;  ///< points
  bool LabelBold = false;
  Color LabelColor = 0;
  bool SizeChanged = false, PropChanged = false, ColorChanged = false, ItalicChanged = false,
       UnderlineChanged = false;
  bool MultipleLabelsSelected = false, LabelDialogCancelled = false;
  bool LabelColorMode = false;  ///< frmRGB colours the labels, not the user's font
};

/// A point of the grid, twips on the sheet.
struct GridPoint {
  float x = 0, y = 0;
  bool operator==(const GridPoint&) const = default;
};

/// What helps to lay labels out, on the screen only.
struct LayoutAids {
  float SnapValue = 180;                  ///< twips that a dragged label jumps by; the grid's step
  std::vector<GridPoint> GridPoints;      ///< drawn by the last DrawGrid; grows with each point
  FixedArray<bool, PageCount> gridDrawn;  ///< by window: its centre lines and points show
};

struct PrintState {
  float PrinterXOffset = 0, PrinterYOffset = 0;  ///< twips
  bool PrintCancelled = false;
  int NoPrinter = 0;
  QStringList PrinterFontNames;
  bool FontsLoaded = false;
  float PrinterFontRatio = 1;
  QString CurrentPrinter;  ///< device name
};

struct TaxState {
  QString TaxRateText;  ///< at most five characters
  float TaxRate = 0;    ///< percent
  bool DialogOpen = false;
};

/// The settings, one member a line of UserPreferences.txt; see app/preferences.h.
struct Preferences {
  QStringList PrefLines;
  bool Reading = false, Read = false;
  bool SessionCopiesTaken =
      false;  ///< what a session changes on its own has been copied; later readings leave it
  bool FirstInstance = false;
  QString SharedDirectory, CompanyName, CompanyAddress1, CompanyAddress2, CompanyCity, CompanyPhone,
      CompanyFax, CompanyWebsite, CompanyEmail, PageTitle, LogoFile;
  float LogoLeft = 0, LogoTop = 0;
  bool AutoCompleteWord = false;
  int AutoStartPosition = 0;
  bool ShowFUT = false, MinimizeFUT = false, ShowCalc = false;
  QString DefaultFileFormat;
  bool LoadDefaultFormat = false;
  QString DefaultPrinter, CurrencySymbol, FrequentTermsFile;
  bool LoadFUT = false;
  QString PageTitles;
  float FUTLeft = 0, FUTTop = 0, FUTWidth = 0, FUTHeight = 0;
  UserFont DefaultFont;
  bool LogoVisible = false;

  QString ProgramFolder, ProposalFolder, BackupFolder;  ///< each ends in a separator
  QString LogoPath;                                     ///< LogoFile with its folder
  bool SnfSettings = false;                             ///< the alternative first page; stays set for the run
};

/// The file dialog's state, and what the two list windows were told.
struct FileDialogState {
  QString FileFilter = QStringLiteral("*.wwf");
  QString Caption, Folder;  ///< the dialog's own folder, with a separator
  bool DeleteMode = false, FormatMode = false, IgnoreProperties = false;
  QString SelectedFileName;
};

/// Frequent terms, as far as other subsystems ask.
struct TermsState {
  QString FileName;
  bool FileLoaded = false;
  bool AutoComplete = false;  ///< the working switch
  int AutoStart = 0;          ///< the working start position
};

inline ProposalState proposal;
inline FormatState format;
inline EditingState editing;
inline LabelEditState labelEdit;
inline LayoutAids layoutAids;
inline PrintState printing;
inline TaxState tax;
inline Preferences prefs;
inline FileDialogState fileDialog;
inline TermsState terms;

/// The client's name, or one given by hand, names the proposal's files; without one there are none.
void NameProposal(const QString& baseName);

/// Puts every struct above, the pages and the frame back to what they are at the program's start.
void ResetState();

/// Sets a flag for a scope and puts back what it was, on every way out.
class Scoped {
 public:
  Scoped(bool& flag, bool value) : flag_(flag), before_(flag) { flag = value; }
  ~Scoped() { flag_ = before_; }
  Scoped(const Scoped&) = delete;
  Scoped& operator=(const Scoped&) = delete;

 private:
  bool& flag_;
  bool before_;
};

}  // namespace quillane
