#include "app/commands.h"

#include <QCoreApplication>
#include <QFileInfo>

#include "address/book_window.h"
#include "app/address_commands.h"
#include "connected_program.h"

using namespace quillane;
using namespace quillane::test;

namespace {

using CommandTable = ConnectedProgram;

QString Depth(const QString& parent) {
  if (parent.isEmpty()) return {};
  for (const Command& command : Commands())
    if (parent == QLatin1String(command.name))
      return Depth(QString::fromLatin1(command.parent)) + QLatin1Char(' ');
  return QStringLiteral("orphan of ") + parent;
}

/// The file has one row an entry, in menu order: depth by blanks, name, caption, key, and its start state in
/// letters: h hidden, d disabled, c with a check mark.
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
  EXPECT_EQ(table.toUtf8(), ReadWholeFile(QUILLANE_TEST_DATA "/menus.txt"));
}

TEST_F(CommandTable, ToolBarButtonsOfAbsentCommandsAreDisabled) {
  EXPECT_FALSE(frame()["imgSearch"].Enabled());
  EXPECT_TRUE(frame()["cmdReCalc"].Enabled());
  EnableMenu("mnuEditFind", true);
  EXPECT_FALSE(frame()["mnuEditFind"].Enabled());
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

TEST_F(CommandTable, AFailingCommandIsReportedUnderItsNameOnce) {
  RunCommand("mnuHelpTutorial");  // the folder has no help
  ASSERT_EQ(desk.said.size(), 1);
  EXPECT_EQ(desk.said[0].title, "Program Error");
  EXPECT_TRUE(desk.said[0].text.contains("An error occurred in mnuHelpTutorial.\nError Number: 53"));
}

TEST_F(CommandTable, AMergedRecordFillsItsAreasAndLeavesLockedOnes) {
  prefs.ProposalFolder = Path("Wedding Proposals/");
  Book book = Book::Personal;
  const auto merge = [&book](const QString& entry, const QString& fields) {
    UnloadAddressWindow();
    RunCommand("mnuFileOpenAddressBook");
    book == Book::Personal ? SwitchToPersonalBookCommand() : SwitchToCompanyBookCommand();
    int index = 0;
    for (const QString& text : fields.split(u'|')) SetField(index++, text);
    for (const Command& command : AddressCommands())
      if (entry == QLatin1String(command.name)) command.run();
    QStringList texts;
    for (int area = 0; area < 18; ++area) texts << page(0).txt[area].Text();
    return texts.join(u'|').toStdString();
  };
  page(0).txt[0].SetText("May 1, 2027");
  desk.answers.append(Answer::Yes);
  EXPECT_EQ(merge("mnuOptMerge", "Ann|1 Elm|2nd|Bend|H|W|C||X|a@b.c"),
            "||Ann|1 Elm - 2nd|Bend|H|C|a@b.c||||||||||")
      << "a Yes empties the date too";
  desk.said.clear();
  book = Book::Company;
  EXPECT_EQ(merge("mnuOptMergeGroom", "Mill|1 Mill Road||Salem|P|F|C|May 2"),
            "May 2||Ann|1 Elm - 2nd|Bend|H|C|a@b.c|Mill|1 Mill Road|Salem||P|||||");
  EXPECT_TRUE(desk.said.isEmpty()) << "an empty date gives way unasked";
  editing.DoNotLockFormat = false;
  format.FormatIsOpen = true;
  for (const int area : {0, 14}) format.FormatTextRec[0][area].HasFormatText = true;
  merge("mnuOptMergeCeremony", "Oak|2 Oak Road|Hall");
  EXPECT_EQ(page(0).txt[14].Text() + u'|' + page(0).txt[15].Text(), "|2 Oak Road - Hall");
  EXPECT_EQ(frame()["lblStatus"].Caption(), "1 area is locked by the format and keeps its text.");
  merge("mnuOptMergeExit", "Eve|||||||Jun 1");
  EXPECT_EQ(page(0).txt[0].Text() + u'|' + page(0).txt[2].Text(), "May 2|Eve");
  EXPECT_FALSE(desk.shown.contains("frmAddress"));
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
