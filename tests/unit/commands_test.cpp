#include "app/commands.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QTemporaryDir>

#include "app/startup.h"
#include "model/focus.h"
#include "model/frame.h"
#include "model/proposal.h"
#include "platform/files.h"
#include "unit/fake_desk.h"

using namespace quillane;

namespace {

class CommandTable : public ::testing::Test {
 protected:
  CommandTable() {
    prefs.ProgramFolder = WithSeparator(folder.path());
    ResetState();
    ConnectLayers();
    BuildMenus();
  }
  QTemporaryDir folder;
  test::FakeDesk desk;
};

/// One row an entry, in menu order: depth by blanks, name, caption, key, and its start state in letters: h
/// hidden, d disabled, c with a check mark.
const char* const ExpectedMenus = R"(mnuFile|&File||
 mnuFileNewEvent|New Proposal|Ctrl+N|
 mnuFileNewWedding|Wedding Proposal File|Ctrl+W|h
 mnuFileOpen|&Open||
  mnuFileOpenEvent|Open Proposal File|Ctrl+O|
  mnuFileOpenFootnotes|Open Foo&tnotes|Ctrl+T|d
  mnuFileOpenAddressBook|Open Address Book|Ctrl+B|d
  mnuFileOpenTextFile|Open Text File||
 mnuFileSaveEvent|&Save Proposal Fi&le|Ctrl+S|
 mnuFileSaveAs|Save &As||
 mnuFileSaveAsText|Save Proposal as Simple &Text File||
 mnuFileSaveToWord|Save Proposal to &Word for Formatting||
 mnuFileCopyProposal|Save Proposal to Memory (to insert elsewhere)||
 mnuFileSaveAsPdf|Save Proposal as PDF...||
 mnuFileRestoreFromBackup|Replace Original Proposal with this Backup Copy||d
 mnuFileDelete|Delete Displayed Proposal||
 mnuFilePrintPreview|Print P&review|Ctrl+R|
 mnuFilePrint|&Print||
  mnuFilePrintAll|&Print All Pages|Ctrl+P|
  mnuFilePrintPage1|Print Page 1||
  mnuFilePrintPage2|Print Page 2||
  mnuFilePrintPage3|Print Page 3||
  mnuFilePrintPage4|Print Page 4||
  mnuFilePrintPage5|Print Page 5||
  mnuFilePrintPage6|Print Totals and Contract Page||
  mnuFilePrintPage6_1|Print Totals and Contract Page Copy||
 mnuFileResume|Resume &Editing|Ctrl+E|d
 mnuFileExit|E&xit||
mnuFileFormat|File &Format||
 mnuFileFormatNew|&Clear Current Format||d
 mnuFileFormatOpen|&Open Existing Format||d
 mnuFileFormatSave|&Save Current Format||d
 mnuFileFormatSaveAs|Save Current Format &As...||d
 mnuFileFormatDelete|Delete Current Format||d
 mnuFileFormatDefault|Se&t Current Format as Default||d
mnuEdit|&Edit||
 mnuEditCompInfo|Edit Company Info||d
 mnuEditTitles|Proposal Page Titles and Subtitles||
 mnuEditSpellCheck|Chec&k Spelling||d
 mnuEditFind|&Find|Ctrl+F|d
mnuEditCtrl|&Edit Control||
 mnuEditTextBox|Text Box||
  mnuEditTextColumns|Add Columns|F8|
  mnuEditTextBold|Make Bold||
  mnuEditTextNormal|Not Bold||
  mnuEditTextCenter|Centrally Align for Printing||hd
  mnuEditTextSelLCase|Lower Case Selected Text||
  mnuEditTextSelPCase|Proper Case Selected Text||
  mnuEditTextSelUCase|Upper Case Selected Text||
  mnuEditTextAddFUT|Add to Frequent Terms|F9|d
  mnuEditTextEditFUT|Edit this Frequent Term||d
  mnuEditTextDeleteFUT|Remove from Frequent Terms||d
  mnuEditTextDelete|Delete Contents|Shift+Del|
  mnuEditTextUndo|Undo Delete|Ctrl+U|d
  mnuEditTextCopy|Copy Selected Text Areas|F2|
  mnuEditTextCut|Cut Selected Text Areas|F3|
  mnuEditTextPaste|Paste Copied Text Areas|F4|d
  mnuEditTextMoveDown|Move Contents Down||d
  mnuEditTextMoveUp|Move Contents Up||d
  mnuEditTextTaxExempt|Make this Area Tax Exempt||
  mnuEditTextTaxable|Make this Area Taxable||
  mnuEditTextDeselect|Deselect Text Areas and Clear Memory|Ctrl+D|d
  mnuEditTextProperties|Properties||hd
 mnuEditLabel|Label||
  mnuEditLabelProps|Label &Properties||
  mnuEditLabelSelectAll|&Select All||
  mnuEditLabelDeselectAll|&DeSelect All||
 mnuEditLogo|Logo||
  mnuEditLogoOpen|Select Different Logo||
  mnuEditLogoSave|Save this Logo as Default||
  mnuEditLogoVisible|Show Logo||c
  mnuEditLogoBorder|Show Logo with Border||
 mnuEditAllTextFonts|Edit &All Text Area Fonts||
mnuView|&View||
 mnuViewEventDates|All Events by Date||d
 mnuViewExpiredEvents|Show Expired Events||d
 mnuViewNewEvents|All Events within 10 days of Today||d
mnuManage|Manage||
 mnuManageDeposits|Open &Deposit Manager|Ctrl+M|d
 mnuManageEditor|Open Contract Language Editor||d
mnuOpt|Options||
 mnuOptFUT|Show &Frequently Used Terms||d
 mnuOptCalc|Show &Calculator||d
 mnuOptPrinterOffset|Change Printer Offsets||hd
 mnuOptPrinter|Change Default Printer||
 mnuOptACStart|Change Auto Word Complete Start Position||d
 mnuOptSalesTax|Check Sales &Tax Rate||
 mnuOptNetwork|Set Up Network Share Path||
 mnuOptCurrencySymbol|Change Currency Symbol||
 mnuOptDoNotLockFmtTextBoxes|Do Not Lock Format Text Areas||c
 mnuOptHideTotals|Hide Totals on Final Page||
 mnuOptUserPref|User Preferences||
 mnuOptCopyToPersonalAddressBook|Add Bride to Address Book||d
 mnuOptCopyGroomToPersonalAddressBook|Add Groom to Address Book||d
 mnuOptUnderline|Underline Main Categories when Printing||
 mnuOptSetDefaultFonts|Save Current Font Properties as Default||
 mnuOptEmptyBackup|Empty Backup Folder||
mnuTools|&Tools||
 mnuToolsSnap|Change Snap||
 mnuToolsAlignWithSnap|Align Form to Snap||
 mnuToolsDrawCenterLines|Draw Grid||
 mnuToolsClearCenterLines|Clear Grid||
 mnuToolsPrinterOffsets|Adjust Printer Offsets||
 mnuToolsCreateShorcut|Create Shorcut on the Desktop||
 mnuToolsCreateShortcutUM|Create Shortcut for Upgrade Manager||
 mnuToolsRecalculate|&Recalculate Totals|F11|
 mnuToolsAdmin|Administrator||
  mnuAdminLogon|Logon||
  mnuToolsAdminTestStrings|Test String P4.4, P5.4||
  mnuAdminDelete|Delete Old Files||h
  mnuAdminDebug|Debug Font Position Descrepancies||h
  mnuAdminCheckAddition|Check Addition||h
  mnuAdminTestCode|Test Code||hd
  mnuToolsAdminShowAllLabels|Show All Labels||h
  mnuAdminConvert|Convert Page 6 Text from 200 to 100 bytes||hd
  mnuAdminRecalc|Manually Force Re-Calculation||hd
  mnuAdminPrintAll|Force Print of All Pages||hd
mnuSupport|Support||
 mnuSupportUpdates|Check for Updates (Internet Connection Required)||
 mnuSupportFree|Free Technical Support||hd
mnuFeedback|Feedback||
 mnuFeedbackReportBug|Report Software Problem (Internet Connection Required)||
 mnuFeedbackSuggestions|Offer Product Suggestion (Internet Connection Required)||
mnuHelp|&Help||
 mnuHelpAbout|About||
 mnuHelpTutorial|Quick Start Tutorial||
 mnuHelpContents|Contents||
 mnuHelpFAQ|Visit Our Website for Frequently Asked Questions||
 mnuHelpShortCuts|Show Short&cuts||hd
 mnuHelpVersion|Get Software Version||
)";

QString Depth(const QString& parent) {
  if (parent.isEmpty()) return {};
  for (const Command& command : Commands())
    if (parent == QLatin1String(command.name))
      return Depth(QString::fromLatin1(command.parent)) + QLatin1Char(' ');
  return QStringLiteral("orphan of ") + parent;
}

TEST_F(CommandTable, HasEveryEntryWithItsCaptionKeyAndStartState) {
  QString table;
  for (const Command& command : Commands()) {
    const QString name = QString::fromLatin1(command.name);
    if (name.isEmpty()) continue;
    const Control& entry = frame()[name];
    table += Depth(QString::fromLatin1(command.parent)) + name + QLatin1Char('|') + entry.Caption() +
             QLatin1Char('|') + QString::fromLatin1(command.key) + QLatin1Char('|');
    if (!entry.Visible()) table += QLatin1Char('h');
    if (!entry.Enabled()) table += QLatin1Char('d');
    if (entry.Checked()) table += QLatin1Char('c');
    table += QLatin1Char('\n');
  }
  EXPECT_EQ(table.toStdString(), ExpectedMenus);
}

TEST_F(CommandTable, ToolBarButtonsOfAbsentCommandsAreDisabled) {
  EXPECT_FALSE(frame()["imgSearch"].Enabled());
  EXPECT_TRUE(frame()["cmdReCalc"].Enabled());
  EnableEntry("mnuEditFind", true);
  EXPECT_FALSE(frame()["mnuEditFind"].Enabled());
}

TEST_F(CommandTable, SwitchesKeepCheckAndFlagTogether) {
  RunCommand("mnuOptUnderline");
  EXPECT_TRUE(editing.UnderlineMainCategories && frame()["mnuOptUnderline"].Checked());
  RunCommand("mnuOptDoNotLockFmtTextBoxes");
  EXPECT_FALSE(editing.DoNotLockFormat || frame()["mnuOptDoNotLockFmtTextBoxes"].Checked());
  frame()["mnuOptUnderline"].SetEnabled(false);
  RunCommand("mnuOptUnderline");
  EXPECT_TRUE(editing.UnderlineMainCategories) << "a disabled entry must not run";
}

TEST_F(CommandTable, LogonEnablesThreeHiddenEntriesForTheRightWordOnly) {
  frame()["mnuAdminRecalc"].SetEnabled(false);
  desk.inputs.enqueue("Kolbera");
  RunCommand("mnuAdminLogon");
  EXPECT_FALSE(frame()["mnuAdminRecalc"].Enabled());
  desk.inputs.enqueue("kolbera");
  RunCommand("mnuAdminLogon");
  for (const char* name : {"mnuAdminConvert", "mnuAdminRecalc", "mnuAdminPrintAll"}) {
    EXPECT_TRUE(frame()[name].Enabled()) << name;
    EXPECT_FALSE(frame()[name].Visible()) << name;
  }
  EXPECT_EQ(desk.said.first().title, "Password Required");
}

TEST_F(CommandTable, TheHiddenAdditionTestFillsTheSecondPage) {
  desk.inputs.enqueue("2");
  RunCommand("mnuAdminCheckAddition");
  EXPECT_EQ(desk.said.first().text, "Please enter value");
  EXPECT_EQ(page(1).txt[35].Text(), "2");
  EXPECT_EQ(page(1).txt[69].Text(), "70");
  EXPECT_EQ(desk.LastSaid(), "1260");
}

TEST_F(CommandTable, VersionIsToldAndWritten) {
  RunCommand("mnuHelpVersion");
  EXPECT_TRUE(desk.LastSaid().startsWith("Quillane\nVersion: " QUILLANE_VERSION "\nComments: "));
  QString onDisk = desk.LastSaid();
  onDisk.replace('\n', "\r\n");
  EXPECT_EQ(QString::fromLatin1(ReadWholeFile(prefs.ProgramFolder + "QLNVersion.txt")), onDisk);
}

TEST_F(CommandTable, AFailingCommandIsReportedUnderItsNameOnce) {
  RunCommand("mnuHelpTutorial");  // the folder has no help
  ASSERT_EQ(desk.said.size(), 1);
  EXPECT_EQ(desk.said[0].title, "Program Error");
  EXPECT_TRUE(desk.said[0].text.contains("An error occurred in mnuHelpTutorial.\nError Number: 53"));
}

TEST_F(CommandTable, ShortcutsAreEntriesOnTheDesktopAndAmongTheApplications) {
  int count = 0;
  const QCoreApplication application(count, nullptr);
  QTemporaryDir home;
  qputenv("HOME", home.path().toUtf8());
  qputenv("XDG_DATA_HOME", (home.path() + "/share").toUtf8());
  qputenv("XDG_CONFIG_HOME", (home.path() + "/config").toUtf8());
  RunCommand("mnuToolsCreateShorcut");
  EXPECT_EQ(desk.LastSaid(), "A Shortcut has been successfully added to your Desktop.");
  for (const QString& place : {home.path() + "/Desktop/", home.path() + "/share/applications/"}) {
    ASSERT_TRUE(QFileInfo(place + "Quillane.desktop").isExecutable()) << place.toStdString();
    EXPECT_TRUE(ReadWholeFile(place + "Quillane.desktop").contains("\nName=Quillane\n"));
  }
  RunCommand("mnuToolsCreateShortcutUM");
  EXPECT_TRUE(desk.LastSaid().startsWith("The Upgrade Manager is not installed"));
  EXPECT_FALSE(QFileInfo::exists(home.path() + "/Desktop/QuillaneUpgrade Upgrade Manager.desktop"));
}

}  // namespace
