#include <QDir>
#include <QFile>

#include "address/company_info.h"
#include "address/field_commands.h"
#include "address_fixture.h"
#include "settings/preferences.h"

using namespace quillane;
using namespace quillane::test;

namespace {

using AddressBookTest = AddressBooks;

TEST_F(AddressBookTest, TheSamplesOpenAndAreSavedByteForByte) {
  const struct {
    QString file;
    QList<int> records;  ///< that the rows open
  } cases[] = {{"PerAdd.apx", {1, 5, 3, 4, 8, 2, 6, 7}}, {"ComAdd.acx", {2, 3, 1}}};
  for (const auto& c : cases) {
    PutBook(Sample(c.file), c.file);
    c.file == "PerAdd.apx" ? OpenAddressBookCommand() : SwitchToCompanyBookCommand();
    for (int row = 0; row < addressBook.lstNames.ListCount(); ++row) {
      ChooseNameCommand(row);
      EXPECT_EQ(addressBook.CurrentRecord, c.records[row]) << row;
      EXPECT_EQ(SaveRecordCommand(), SaveResult::Saved);
      EXPECT_EQ(GetBook(c.file), Sample(c.file)) << row;
    }
  }
  EXPECT_EQ(addressBook.Caption, " Company Address Book/Pine Ridge Pavilion/Record 1 of 3 Displayed");
  EXPECT_EQ(addressBook.lblInfo[field::SecondPhone], "Fax");
}

TEST_F(AddressBookTest, ANewRecordGoesBehindTheLastAndARenamedOneIsACopy) {
  Open("");
  EXPECT_EQ(addressBook.Caption, " Personal Address Book/Beginning New Record: 0 Records Exist");
  After(Type(field::Address1, "Elm"), "|Elm new changed");
  After(Save, "|Elm new changed", "Cannot save record... no name given.");
  EXPECT_FALSE(AddressMenuEnabled("mnuOptMerge"));
  SetField(field::Name, "  " + QString(40, 'x'));
  const AddressField& name = addressBook.txt[field::Name];
  EXPECT_EQ(name.ToolTipText, "Maximum characters for this field = 40. Please adjust.");
  EXPECT_TRUE(name.BackColor == colors::Red && addressBook.txt[field::Address1].BackColor == colors::Cyan);
  EXPECT_TRUE(addressBook.cmdSaveBackColor == colors::Cyan && AddressMenuEnabled("mnuOptMerge"));
  After(Save, "xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx|Elm #1");
  EXPECT_TRUE(name.BackColor == colors::White && addressBook.cmdSaveBackColor == colors::ButtonFace);
  After(Type(field::Name, "Ann Bell"), "Ann Bell|Elm #1 renamed");
  After(Save, "Ann Bell|Elm #2");
  SetField(field::Name, "Ann");
  After(Type(field::Name, "Ann Bell"), "Ann Bell|Elm #2");
  After(Type(field::Address1, "Fir\nOak"), "Ann Bell|Fir Oak #2 changed");
  After(Save, "Ann Bell|Fir Oak #2");
  EXPECT_EQ(GetBook(), Record(QString(38, 'x'), "Elm") + Record("Ann Bell", "Fir Oak"));
}

TEST_F(AddressBookTest, AChangedRecordIsAskedAboutBeforeItIsLeft) {
  const Cases<Answer, const char*, const char*> cases = {
      {Answer::Cancel, "Ann Bells new renamed", "Ann Bell|Cher"},
      {Answer::No, "Cher #2 row 1", "Ann Bell|Cher"},
      {Answer::Yes, "Cher #2 row 2", "Ann Bell|Cher|Ann Bells"}};
  for (const auto& [answer, screen, names] : cases) {
    Open("Ann Bell|Cher");
    SetField(field::Name, "Ann Bells");
    After(Row(1), screen, "Do you want to save the changes?", {answer});
    EXPECT_EQ(GetBook(), Records(names));
  }
  SetField(field::Address1, "Elm");
  for (const auto command : {NewRecordCommand, FindCommand, OpenAddressBookCommand})
    After(command, "Cher|Elm #2 row 2 changed", "Do you want to save the changes?", {Answer::Cancel});
  After(SwitchToCompanyBookCommand, " new");  // drops what was typed without a question
}

TEST_F(AddressBookTest, ASaveThatDoesNotHappenCountsAsCancel) {
  Open("Ann Bell|Cher");
  After(Row(0), "Ann Bell #1 row 0");
  After(Type(field::Address1, "Bend"), "Ann Bell|Bend #1 row 0 changed");
  BreakDisk("sync", EROFS);
  After(Row(1), "Ann Bell|Bend #1 row 0 changed", "An error occurred in SaveRecord.\nError Number: 70");
  SetField(field::Name, "Ann");
  After(Save, "Ann|Bend #1 row 0 renamed", "Error Number: 70");
  EXPECT_EQ(GetBook(), Records("Ann Bell|Cher")) << "an append that failed leaves nothing behind";
}

TEST_F(AddressBookTest, ARowThatLeadsNowhereLeavesWhatShows) {
  Open("Ann Bell|Cher JR.|Doe, John");
  After(Row(0), "Ann Bell #1 row 0");
  After(Row(1), "Ann Bell #1");
  After(Row(2), "Ann Bell #1", "An error occurred in ActivateCurrentRecord.\nError Number: 5");
  After(DeleteRecordCommand, "Ann Bell #1", "No Record Selected");
}

TEST_F(AddressBookTest, ADeletedRecordLeavesItsRowToANeighbour) {
  const Cases<const char*, const char*, const char*, const char*, int> cases = {
      {"C|A|B", "A", "C|B", "B #2 row 0", 0},
      {"C|A|B", "B", "C|A", "A #2 row 0", 1},
      {"C|A|B", "C", "A|B", "B #2 row 1", 1},
      {"A", "A", "", " #1", 0}};
  for (const auto& [names, row, left, screen, TopIndex] : cases) {
    Open(names);
    ChooseNameCommand(row[0] - 'A');
    SetField(field::City, "typed and not saved");
    After(DeleteRecordCommand, screen, "Delete this record?");
    EXPECT_EQ(GetBook(), Records(left));
    EXPECT_TRUE(addressBook.lstNames.TopIndex == TopIndex && addressBook.lstNames.Visible) << screen;
  }
  EXPECT_EQ(addressBook.RecordCount, 1) << "of an empty file, until it is loaded";
  SetField(field::Name, "D");
  After(Save, "D #1");  // no hole in front
}

TEST_F(AddressBookTest, AnotherProgramsChangesAreNeverOverwritten) {
  const QByteArray theirs = Record("Ann", "by another hand") + Record("Cher").left(300);
  Open("Ann|Cher");
  ChooseNameCommand(0);
  PutBook(theirs);
  SetField(field::Address1, "Bend");
  After(Save, "Ann|Bend #3");
  EXPECT_EQ(GetBook(), Record("Ann", "by another hand") + Record("Cher") + Record("Ann", "Bend"));
  After(Row(1), "Ann|Bend #3 row 1");
  for (const QByteArray& now : {Record("X") + theirs, QByteArray()}) {
    PutBook(now);
    addressBook.lstNames.ListIndex = 0;
    After(DeleteRecordCommand, "Ann|Bend #3", "Record doesn't exist.");
    EXPECT_EQ(GetBook(), now);
    EXPECT_EQ(addressBook.lstNames.ListCount(), CountRecords(now.size())) << "listed anew";
  }
}

TEST_F(AddressBookTest, AFileThatIsNoBookIsReportedAndTheOtherBookOpens) {
  const QString path = Path("Wedding Proposals/PerAdd.apx");
  const struct {
    qint64 length;  ///< of the file; -1 for a folder in its place, -2 for one that cannot be made
    const char *said, *saidBySave;
  } cases[] = {{-2, "Unable to Create Personal Address File. \nError Number: 70\n", "in SaveRecord."},
               {-1, "LoadBook.\nError Number: 75", "in SaveRecord."},
               {1 << 30, "has 1073741824 bytes", "in SaveRecord."},
               {32768 * 520, "FillNameList.\nError Number: 6", "at most 32767 records"},
               {32767 * 520, "", "at most 32767 records"}};
  for (const auto& c : cases) {
    QDir().rmdir(path);
    if (c.length == -1) QDir().mkpath(path);
    if (c.length == -2) BreakDisk("", EACCES);
    if (c.length >= 0) PutBook("");
    QFile::resize(path, c.length);
    After(OpenAddressBookCommand, " new", c.said);
    SetField(field::Name, "Ann Bell");
    After(Save, "Ann Bell new renamed", c.saidBySave);
    MendDisk();
    UnloadAddressWindow();
  }
  SwitchToCompanyBookCommand();
  SetField(field::Name, "Pine");
  After(Save, "Pine #1");
}

TEST_F(AddressBookTest, FindGoesThroughEveryFieldOfEveryRecord) {
  const auto find = [this](const char* text) {
    return [this, text] { desk.inputs = {}, desk.inputs.append(QString::fromUtf8(text)), FindCommand(); };
  };
  Open("");
  After(FindCommand, " new", "There's no records to search.");
  PutBook(Record("Ann Bell", "the bell") + Record("Cher") + Record("Bello", "x Bell") + Record("Zo\u00EB"));
  OpenAddressBookCommand();
  After(find("bell"), "Ann [Bell]|the bell #1", "Search for:");  // a second mark only behind the first
  PutBook(GetBook() + Record("Bell"));                           // not seen, since the search has begun
  After(FindAgainCommand, "[Bell]o|x [Bell] #3");
  After(FindAgainCommand, "Bello|x Bell #3", "No more occurrances.");
  After(FindAgainCommand, "Ann [Bell]|the bell #1");
  After(find("   "), "Ann [Bell]|the bell #1", "Search cancelled.");
  After(find("ZO\u00CB"), "[Zo\u00EB] #4", "Search for:");
  After(find("l "), "Ann Bell|the bell #1", "Search for:");  // the blanks behind a name
  ChooseNameCommand(0);
  After(DeleteRecordCommand, "Bello|x Bell #2 row 0", "Delete this record?");
  After(FindAgainCommand, "Bello|x Bell #2 row 0");  // from the first record on
  SwitchToCompanyBookCommand();
  EXPECT_TRUE(addressBook.SearchRecord == 0 && addressBook.SearchText == "L ");
}

TEST_F(AddressBookTest, ADoubleClickFormatsAndSelects) {
  const struct {
    int field;
    const char *text, *screen;
  } cases[] = {{field::Address1, "john O'NEIL the 3RD", "|[John O'neil The 3rd] new changed"},
               {field::Phone, "05415550142", "||||[(0541) 555-0142] new changed"},
               {field::Cell, "0142", "||||||[() -0142] new changed"},
               {field::Phone, "555-1212", "||||[555-1212] new changed"},
               {field::EventDate, "12/17/08", "|||||||Dec 17,2008 new changed"},
               {field::EventDate, "in june", "|||||||[in june] new changed"}};
  for (const auto& c : cases) {
    Open("");
    SetField(c.field, c.text);
    After([&c] { DoubleClickField(c.field); }, c.screen);
  }
  CopyNameAddressCommand();
  EXPECT_EQ(desk.clipboard, "\n\n\n");
  EXPECT_EQ(FieldBelow(10) * 100 + FieldAbove(0) * 10 + FieldBelow(6), 1007);
}

TEST_F(AddressBookTest, TheBusinesssDetailsGoToTheirLinesOfThePreferences) {
  QByteArray lines = "App First Instance:False\r\nShared Directory:\r\n";
  for (int i = 2; i < 32; ++i) lines += SettingKey(Setting(i)).toLatin1() + QByteArray::number(i) + "\r\n";
  Put("UserPreferences.txt", lines);
  GetUserPreferences();
  EditCompanyInfoCommand();
  After(OpenAddressBookCommand, "2|3|4|5|6|7|8||9|10 #0", "The Company Information Window must be closed");
  EXPECT_EQ(addressBook.lblInfo[field::Email] + addressBook.lblInfo[field::Notes], "Page 1 Title");
  EXPECT_EQ(FieldBelow(6) * 100 + FieldBelow(9) * 10 + FieldAbove(8), 896);
  SetField(field::Email, "Proposal");
  BreakDisk("", EROFS);
  After(Save, "2|3|4|5|6|7|8||9|Proposal #0", "Error Number: 70");
  MendDisk();
  Put("UserPreferences.txt", lines.replace("Font Name:27", "Font Name:x"));  // by another program
  After(Save, " #0", "Changes will be applied in the next \"New\" or \"Open\" session.");
  EXPECT_EQ(Get("UserPreferences.txt"), lines.replace("Page Title:10", "Page Title:Proposal"));
  OpenAddressBookCommand();
  After(EditCompanyInfoCommand, " new", "Address Book must be closed before you can edit Company Info.");
}

}  // namespace
