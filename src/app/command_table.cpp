#include "address/book_window.h"
#include "address/company_info.h"
#include "app/address_merge.h"
#include "app/commands.h"
#include "app/small_commands.h"
#include "app/startup.h"
#include "editing/areas.h"
#include "editing/grid.h"
#include "editing/selection.h"
#include "editing/totals_commands.h"
#include "editing/user_font.h"
#include "files/event_file.h"
#include "files/export.h"
#include "files/file_dialog.h"
#include "files/format_commands.h"
#include "files/format_file.h"
#include "files/logo.h"
#include "files/new_proposal.h"
#include "model/proposal.h"
#include "pages/labels.h"
#include "print/pdf_file.h"
#include "print/preview.h"
#include "print/print.h"
#include "print/printer_choice.h"
#include "settings/preferences.h"
#include "ui/desk.h"

namespace quillane {

using namespace entries;

namespace {

template <int Window>
void PrintPage() {
  PrintPageCommand(Window);
}
void Leave() {
  if (MayExit()) QuitApplication();
}

const std::vector<Command> FileEntries = {
    Menu("", "mnuFile", "&File"),
    Entry("mnuFile", "mnuFileNewEvent", "New Proposal", "Ctrl+N", NewEventCommand),
    Hidden(Entry("mnuFile", "mnuFileNewWedding", "Wedding Proposal File", "Ctrl+W", NewWeddingCommand)),
    Menu("mnuFile", "mnuFileOpen", "&Open"),
    Entry("mnuFileOpen", "mnuFileOpenEvent", "Open Proposal File", "Ctrl+O", OpenEventCommand),
    Entry("mnuFileOpen", "mnuFileOpenFootnotes", "Open Foo&tnotes", "Ctrl+T", nullptr),
    Entry("mnuFileOpen", "mnuFileOpenAddressBook", "Open Address Book", "Ctrl+B", OpenAddressBookCommand),
    Entry("mnuFileOpen", "mnuFileOpenTextFile", "Open Text File", "", OpenTextFileCommand),
    Rule("mnuFile"),
    Entry("mnuFile", "mnuFileSaveEvent", "&Save Proposal Fi&le", "Ctrl+S", [] { SaveEventFile(); }),
    Entry("mnuFile", "mnuFileSaveAs", "Save &As", "", [] { SaveEventFileAs(); }),
    Entry("mnuFile", "mnuFileSaveAsText", "Save Proposal as Simple &Text File", "", SaveAsTextCommand),
    Entry("mnuFile", "mnuFileSaveToWord", "Save Proposal to &Word for Formatting", "", SaveToWordCommand),
    Entry("mnuFile", "mnuFileCopyProposal", "Save Proposal to Memory (to insert elsewhere)", "",
          CopyProposalCommand),
    Entry("mnuFile", "mnuFileSaveAsPdf", "Save Proposal as PDF...", "", SaveAsPdfCommand),
    Rule("mnuFile"),
    Off(Entry("mnuFile", "mnuFileRestoreFromBackup", "Replace Original Proposal with this Backup Copy", "",
              RestoreFromBackupCommand)),
    Entry("mnuFile", "mnuFileDelete", "Delete Displayed Proposal", "", DeleteProposalCommand),
    Rule("mnuFile"),
    Entry("mnuFile", "mnuFilePrintPreview", "Print P&review", "Ctrl+R", PrintPreview),
    Menu("mnuFile", "mnuFilePrint", "&Print"),
    Entry("mnuFilePrint", "mnuFilePrintAll", "&Print All Pages", "Ctrl+P", PrintAllCommand),
    Rule("mnuFilePrint"),
    Entry("mnuFilePrint", "mnuFilePrintPage1", "Print Page 1", "", PrintPage<0>),
    Entry("mnuFilePrint", "mnuFilePrintPage2", "Print Page 2", "", PrintPage<1>),
    Entry("mnuFilePrint", "mnuFilePrintPage3", "Print Page 3", "", PrintPage<2>),
    Entry("mnuFilePrint", "mnuFilePrintPage4", "Print Page 4", "", PrintPage<3>),
    Entry("mnuFilePrint", "mnuFilePrintPage5", "Print Page 5", "", PrintPage<4>),
    Entry("mnuFilePrint", "mnuFilePrintPage6", "Print Totals and Contract Page", "", PrintPage<5>),
    Entry("mnuFilePrint", "mnuFilePrintPage6_1", "Print Totals and Contract Page Copy", "", PrintPage<6>),
    Off(Entry("mnuFile", "mnuFileResume", "Resume &Editing", "Ctrl+E", PrintPreview)),
    Rule("mnuFile"),
    Entry("mnuFile", "mnuFileExit", "E&xit", "", Leave),

    Menu("", "mnuFileFormat", "File &Format"),
    Entry("mnuFileFormat", "mnuFileFormatNew", "&Clear Current Format", "", ClearFormatCommand),
    Entry("mnuFileFormat", "mnuFileFormatOpen", "&Open Existing Format", "", OpenFormatCommand),
    Entry("mnuFileFormat", "mnuFileFormatSave", "&Save Current Format", "", [] { SaveFileFormat(); }),
    Entry("mnuFileFormat", "mnuFileFormatSaveAs", "Save Current Format &As...", "", SaveFormatAsCommand),
    Entry("mnuFileFormat", "mnuFileFormatDelete", "Delete Current Format", "", DeleteFormatCommand),
    Rule("mnuFileFormat"),
    Entry("mnuFileFormat", "mnuFileFormatDefault", "Se&t Current Format as Default", "",
          DefaultFormatCommand),
};

const std::vector<Command> EditEntries = {
    Menu("", "mnuEdit", "&Edit"),
    Entry("mnuEdit", "mnuEditCompInfo", "Edit Company Info", "", EditCompanyInfoCommand),
    Entry("mnuEdit", "mnuEditTitles", "Proposal Page Titles and Subtitles", "",
          [] { desk().ShowWindow(QStringLiteral("frmTitle"), Modality::Modal); }),
    Rule("mnuEdit"),
    Entry("mnuEdit", "mnuEditSpellCheck", "Chec&k Spelling", "", nullptr),
    Entry("mnuEdit", "mnuEditFind", "&Find", "Ctrl+F", nullptr),

    Menu("", "mnuEditCtrl", "&Edit Control"),
    Menu("mnuEditCtrl", "mnuEditTextBox", "Text Box"),
    Entry("mnuEditTextBox", "mnuEditTextColumns", "Add Columns", "F8", ToggleColumns),
    Entry("mnuEditTextBox", "mnuEditTextBold", "Make Bold", "", MakeBold),
    Entry("mnuEditTextBox", "mnuEditTextNormal", "Not Bold", "", MakeNormal),
    Hidden(Off(Entry("mnuEditTextBox", "mnuEditTextCenter", "Centrally Align for Printing", "",
                     [] { Tell(QStringLiteral("ok")); }))),
    Rule("mnuEditTextBox"),
    Entry("mnuEditTextBox", "mnuEditTextSelLCase", "Lower Case Selected Text", "",
          [] { ChangeCase(LetterCase::Lower); }),
    Entry("mnuEditTextBox", "mnuEditTextSelPCase", "Proper Case Selected Text", "",
          [] { ChangeCase(LetterCase::Proper); }),
    Entry("mnuEditTextBox", "mnuEditTextSelUCase", "Upper Case Selected Text", "",
          [] { ChangeCase(LetterCase::Upper); }),
    Rule("mnuEditTextBox"),
    Entry("mnuEditTextBox", "mnuEditTextAddFUT", "Add to Frequent Terms", "F9", nullptr),
    Entry("mnuEditTextBox", "mnuEditTextEditFUT", "Edit this Frequent Term", "", nullptr),
    Entry("mnuEditTextBox", "mnuEditTextDeleteFUT", "Remove from Frequent Terms", "", nullptr),
    Rule("mnuEditTextBox"),
    Entry("mnuEditTextBox", "mnuEditTextDelete", "Delete Contents", "Shift+Del",
          [] { DeleteTextContents(editing.CurrentForm()); }),
    Off(Entry("mnuEditTextBox", "mnuEditTextUndo", "Undo Delete", "Ctrl+U", UndoDelete)),
    Entry("mnuEditTextBox", "mnuEditTextCopy", "Copy Selected Text Areas", "F2", CopyCommand),
    Entry("mnuEditTextBox", "mnuEditTextCut", "Cut Selected Text Areas", "F3",
          [] { CutTextContents(editing.CurrentForm()); }),
    Off(Entry("mnuEditTextBox", "mnuEditTextPaste", "Paste Copied Text Areas", "F4",
              [] { PasteTextContents(editing.CurrentForm()); })),
    Rule("mnuEditTextBox"),
    Off(Entry("mnuEditTextBox", "mnuEditTextMoveDown", "Move Contents Down", "",
              [] { MoveCommand(Direction::Down); })),
    Off(Entry("mnuEditTextBox", "mnuEditTextMoveUp", "Move Contents Up", "",
              [] { MoveCommand(Direction::Up); })),
    Rule("mnuEditTextBox"),
    Entry("mnuEditTextBox", "mnuEditTextTaxExempt", "Make this Area Tax Exempt", "", MakeTaxExempt),
    Entry("mnuEditTextBox", "mnuEditTextTaxable", "Make this Area Taxable", "", MakeTaxable),
    Rule("mnuEditTextBox"),
    Off(Entry("mnuEditTextBox", "mnuEditTextDeselect", "Deselect Text Areas and Clear Memory", "Ctrl+D",
              [] { DeselectAll(page(editing.FrontWindow())); })),
    Hidden(Entry("mnuEditTextBox", "mnuEditTextProperties", "Properties", "", nullptr)),
    Menu("mnuEditCtrl", "mnuEditLabel", "Label"),
    Entry("mnuEditLabel", "mnuEditLabelProps", "Label &Properties", "", EditLabelProps),
    Entry("mnuEditLabel", "mnuEditLabelSelectAll", "&Select All", "", SelectAllLabels),
    Entry("mnuEditLabel", "mnuEditLabelDeselectAll", "&DeSelect All", "", DeselectAllLabels),
    Menu("mnuEditCtrl", "mnuEditLogo", "Logo"),
    Entry("mnuEditLogo", "mnuEditLogoOpen", "Select Different Logo", "", OpenLogoCommand),
    Entry("mnuEditLogo", "mnuEditLogoSave", "Save this Logo as Default", "", SaveLogoAsDefault),
    Checkable(Entry("mnuEditLogo", "mnuEditLogoVisible", "Show Logo", "", ToggleLogoVisible), Check::On),
    Checkable(Entry("mnuEditLogo", "mnuEditLogoBorder", "Show Logo with Border", "", ToggleLogoBorder),
              Check::Off),
    Entry("mnuEditCtrl", "mnuEditAllTextFonts", "Edit &All Text Area Fonts", "",
          [] { desk().ShowWindow(QStringLiteral("frmTextProps"), Modality::Modal); }),
};

const std::vector<Command> ViewEntries = {
    Menu("", "mnuView", "&View"),
    Entry("mnuView", "mnuViewEventDates", "All Events by Date", "", nullptr),
    Entry("mnuView", "mnuViewExpiredEvents", "Show Expired Events", "", nullptr),
    Entry("mnuView", "mnuViewNewEvents", "All Events within 10 days of Today", "", nullptr),

    Menu("", "mnuManage", "Manage"),
    Entry("mnuManage", "mnuManageDeposits", "Open &Deposit Manager", "Ctrl+M", nullptr),
    Entry("mnuManage", "mnuManageEditor", "Open Contract Language Editor", "", nullptr),
};

const std::vector<Command> OptionEntries = {
    Menu("", "mnuOpt", "Options"),
    Entry("mnuOpt", "mnuOptFUT", "Show &Frequently Used Terms", "", nullptr),
    Entry("mnuOpt", "mnuOptCalc", "Show &Calculator", "", nullptr),
    Hidden(Entry("mnuOpt", "mnuOptPrinterOffset", "Change Printer Offsets", "", nullptr)),
    Entry("mnuOpt", "mnuOptPrinter", "Change Default Printer", "", ChangePrinterCommand),
    Entry("mnuOpt", "mnuOptACStart", "Change Auto Word Complete Start Position", "", nullptr),
    Entry("mnuOpt", "mnuOptSalesTax", "Check Sales &Tax Rate", "",
          [] { desk().ShowWindow(QStringLiteral("frmTax"), Modality::Modal); }),
    Entry("mnuOpt", "mnuOptNetwork", "Set Up Network Share Path", "", RequestNetworkSharePath),
    Entry("mnuOpt", "mnuOptCurrencySymbol", "Change Currency Symbol", "", CurrencySymbolCommand),
    Rule("mnuOpt"),
    Checkable(Entry("mnuOpt", "mnuOptDoNotLockFmtTextBoxes", "Do Not Lock Format Text Areas", "",
                    ToggleDoNotLockFormat),
              Check::On),
    Checkable(Entry("mnuOpt", "mnuOptHideTotals", "Hide Totals on Final Page", "", ToggleHideTotals),
              Check::Off),
    Entry("mnuOpt", "mnuOptUserPref", "User Preferences", "",
          [] { desk().ShowWindow(QStringLiteral("frmPref"), Modality::Modal); }),
    Rule("mnuOpt"),
    Entry("mnuOpt", "mnuOptCopyToPersonalAddressBook", "Add Bride to Address Book", "",
          [] { AddPartyCommand(Party::Bride); }),
    Entry("mnuOpt", "mnuOptCopyGroomToPersonalAddressBook", "Add Groom to Address Book", "",
          [] { AddPartyCommand(Party::Groom); }),
    Rule("mnuOpt"),
    Checkable(
        Entry("mnuOpt", "mnuOptUnderline", "Underline Main Categories when Printing", "", ToggleUnderline),
        Check::Off),
    Entry("mnuOpt", "mnuOptSetDefaultFonts", "Save Current Font Properties as Default", "",
          [] { MakeUserFontDefault(); }),
    Entry("mnuOpt", "mnuOptEmptyBackup", "Empty Backup Folder", "", EmptyBackupCommand),
};

const std::vector<Command> ToolEntries = {
    Menu("", "mnuTools", "&Tools"),
    Entry("mnuTools", "mnuToolsSnap", "Change Snap", "",
          [] { desk().ShowWindow(QStringLiteral("frmSnap"), Modality::Modal); }),
    Entry("mnuTools", "mnuToolsAlignWithSnap", "Align Form to Snap", "", AlignFormToSnap),
    Entry("mnuTools", "mnuToolsDrawCenterLines", "Draw Grid", "", DrawGridCommand),
    Entry("mnuTools", "mnuToolsClearCenterLines", "Clear Grid", "", ClearGridCommand),
    Entry("mnuTools", "mnuToolsPrinterOffsets", "Adjust Printer Offsets", "",
          [] { desk().ShowWindow(QStringLiteral("frmPOffsets"), Modality::Modal); }),
    Rule("mnuTools"),
    Entry("mnuTools", "mnuToolsCreateShorcut", "Create Shorcut on the Desktop", "", CreateShortcutCommand),
    Entry("mnuTools", "mnuToolsCreateShortcutUM", "Create Shortcut for Upgrade Manager", "",
          CreateUpgradeShortcutCommand),
    Rule("mnuTools"),
    Entry("mnuTools", "mnuToolsRecalculate", "&Recalculate Totals", "F11", RecalculateCommand),
    Rule("mnuTools"),
    Menu("mnuTools", "mnuToolsAdmin", "Administrator"),
    Entry("mnuToolsAdmin", "mnuAdminLogon", "Logon", "", LogonCommand),
    Entry("mnuToolsAdmin", "mnuToolsAdminTestStrings", "Test String P4.4, P5.4", "", TestStringsCommand),
    Hidden(Entry("mnuToolsAdmin", "mnuAdminDelete", "Delete Old Files", "", DeleteAnyFileCommand)),
    Hidden(
        Entry("mnuToolsAdmin", "mnuAdminDebug", "Debug Font Position Descrepancies", "", DebugFontsCommand)),
    Hidden(Entry("mnuToolsAdmin", "mnuAdminCheckAddition", "Check Addition", "", AdminCheckAddition)),
    Hidden(Entry("mnuToolsAdmin", "mnuAdminTestCode", "Test Code", "", nullptr)),
    Hidden(Entry("mnuToolsAdmin", "mnuToolsAdminShowAllLabels", "Show All Labels", "", ShowAllLabelsCommand)),
    Hidden(Off(
        Entry("mnuToolsAdmin", "mnuAdminConvert", "Convert Page 6 Text from 200 to 100 bytes", "", nullptr))),
    Hidden(Off(Entry("mnuToolsAdmin", "mnuAdminRecalc", "Manually Force Re-Calculation", "", nullptr))),
    Hidden(Off(Entry("mnuToolsAdmin", "mnuAdminPrintAll", "Force Print of All Pages", "", nullptr))),
};

const std::vector<Command> HelpEntries = {
    Menu("", "mnuSupport", "Support"),
    Entry("mnuSupport", "mnuSupportUpdates", "Check for Updates (Internet Connection Required)", "",
          CheckForUpdatesCommand),
    Hidden(Entry("mnuSupport", "mnuSupportFree", "Free Technical Support", "", nullptr)),

    Menu("", "mnuFeedback", "Feedback"),
    Entry("mnuFeedback", "mnuFeedbackReportBug", "Report Software Problem (Internet Connection Required)", "",
          [] { OpenOutside(maker::ProblemPage); }),
    Entry("mnuFeedback", "mnuFeedbackSuggestions", "Offer Product Suggestion (Internet Connection Required)",
          "", [] { OpenOutside(maker::SuggestionPage); }),

    Menu("", "mnuHelp", "&Help"),
    Entry("mnuHelp", "mnuHelpAbout", "About", "", AboutCommand),
    Entry("mnuHelp", "mnuHelpTutorial", "Quick Start Tutorial", "",
          [] { OpenHelp(QStringLiteral("tutorial.htm")); }),
    Entry("mnuHelp", "mnuHelpContents", "Contents", "", [] { OpenHelp(QStringLiteral("index.htm")); }),
    Entry("mnuHelp", "mnuHelpFAQ", "Visit Our Website for Frequently Asked Questions", "",
          [] { OpenOutside(maker::FaqPage); }),
    Hidden(Entry("mnuHelp", "mnuHelpShortCuts", "Show Short&cuts", "", nullptr)),
    Entry("mnuHelp", "mnuHelpVersion", "Get Software Version", "", VersionCommand),
};

std::vector<Command> Joined() {
  std::vector<Command> all;
  for (const auto* part :
       {&FileEntries, &EditEntries, &ViewEntries, &OptionEntries, &ToolEntries, &HelpEntries})
    all.insert(all.end(), part->begin(), part->end());
  return all;
}

}  // namespace

const std::vector<Command>& Commands() {
  static const std::vector<Command> commands = Joined();
  return commands;
}

}  // namespace quillane
