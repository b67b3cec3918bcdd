#include <QDir>
#include <QFile>

#include "address_fixture.h"

using namespace quillane;
using namespace quillane::test;

namespace {

class AddressBookTest : public AddressBooks {};

TEST_F(AddressBookTest, TheSamplesOpenAndAreSavedByteForByte) {
  const struct {
    const char *file, *rows;
    QList<int> records;  ///< that the rows open
  } cases[] = {
      {"PerAdd.apx",
       "Carter, Emily|Cher|Doe JR., John|Doe, JR., John|Kravitz-Löwe, Zoë|Smith, Mary Ann|Smith, Mary Ann|"
       "Tudor III, Henry",
       {1, 5, 3, 4, 8, 2, 6, 7}},
      {"ComAdd.acx", "Bloom & Branch Wholesale|Cascade Linen Rental|Pine Ridge Pavilion", {2, 3, 1}}};
  for (const auto& c : cases) {
    const QByteArray bytes = ReadWholeFile(QStringLiteral(QUILLANE_TEST_DATA "/samples/") + c.file);
    PutBook(bytes, c.file);
    OpenAddressBookCommand();
    if (&c != cases) SwitchToCompanyBookCommand();
    EXPECT_EQ(Rows().toStdString(), c.rows);
    for (int row = 0; row < c.records.size(); ++row) {
      ChooseNameCommand(row);
      EXPECT_EQ(addressBook.CurrentRecord, c.records[row]) << row;
      EXPECT_EQ(SaveRecordCommand(), SaveResult::Saved);
      EXPECT_EQ(GetBook(c.file), bytes) << row;
    }
  }
  EXPECT_EQ(addressBook.Caption, " Company Address Book/" + Field(field::Name) + "/Record 1 of 3 Displayed");
  EXPECT_TRUE(desk.said.isEmpty());
}

TEST_F(AddressBookTest, ANewRecordGoesBehindTheLastAndARenamedOneIsACopy) {
  OpenAddressBookCommand();
  EXPECT_EQ(GetBook(), "") << "made, and empty";
  EXPECT_EQ(addressBook.Caption, " Personal Address Book/Beginning New Record: 0 Records Exist");
  SetField(field::Email, "a@b");
  EXPECT_EQ(SaveRecordCommand(), SaveResult::Refused);
  EXPECT_EQ(desk.LastSaid(), "Cannot save record... no name given.");
  EXPECT_FALSE(AddressMenuEnabled("mnuOptMerge"));
  SetField(field::Name, QStringLiteral("  ") + QString(40, u'x'));
  EXPECT_EQ(addressBook.txt[field::Name].BackColor, colors::Red);
  EXPECT_EQ(addressBook.txt[field::Name].ToolTipText,
            "Maximum characters for this field = 40. Please adjust.");
  EXPECT_EQ(addressBook.txt[field::Email].BackColor, colors::Cyan);
  EXPECT_EQ(addressBook.cmdSaveBackColor, colors::Cyan);
  EXPECT_TRUE(AddressMenuEnabled("mnuOptMerge") && !AddressMenuEnabled("mnuOptMergeCeremony"));
  EXPECT_EQ(SaveRecordCommand(), SaveResult::Saved);
  EXPECT_EQ(Names(), QStringList{QString(38, u'x')});
  EXPECT_EQ(Field(field::Name), QString(38, u'x')) << "shown as the file has it";
  EXPECT_EQ(addressBook.txt[field::Name].BackColor, colors::White);
  EXPECT_EQ(addressBook.cmdSaveBackColor, colors::ButtonFace);
  EXPECT_EQ(addressBook.lstNames.ListIndex, -1);

  SetField(field::City, "Bend");
  SetField(field::Name, "Ann Bell");
  SaveRecordCommand();
  EXPECT_EQ(Names(), (QStringList{QString(38, u'x'), "Ann Bell"}));
  SetField(field::Name, "Ann");
  SetField(field::Name, "Ann Bell");
  EXPECT_FALSE(addressBook.RecordChanged) << "typed back";
  SetField(field::City, QStringLiteral("Bend\nOR"));
  SaveRecordCommand();
  EXPECT_EQ(addressBook.RecordCount, 2) << "the same name is the same record";
  EXPECT_EQ(GetBook().mid(520 + 120, 10), "Bend OR   ");
}

TEST_F(AddressBookTest, AChangedRecordIsAskedAboutBeforeItIsLeft) {
  const struct {
    Answer answer;
    const char *name, *names;  ///< in the field and in the file behind the question
    int row;
  } cases[] = {{Answer::Cancel, "Ann Bells", "Ann Bell|Cher", -1},
               {Answer::No, "Cher", "Ann Bell|Cher", 1},
               {Answer::Yes, "Cher", "Ann Bell|Cher|Ann Bells", 2}};
  for (const auto& c : cases) {
    UnloadAddressWindow();
    Open({"Ann Bell", "Cher"});
    SetField(field::Name, "Ann Bells");
    WillAnswer({c.answer});
    ChooseNameCommand(1);
    EXPECT_EQ(Field(field::Name), c.name);
    EXPECT_EQ(Names().join(u'|'), c.names);
    EXPECT_EQ(addressBook.lstNames.ListIndex, c.row);
    EXPECT_FALSE(addressBook.SaveCancelled);
  }
  EXPECT_EQ(desk.said.last().title, "Record Has Changed");
  SetField(field::City, "Malibu");
  WillAnswer({Answer::Cancel, Answer::Cancel, Answer::Cancel});
  desk.said.clear();
  NewRecordCommand();
  FindCommand();
  OpenAddressBookCommand();
  EXPECT_EQ(desk.said.size(), 3);
  EXPECT_EQ(Field(field::City), "Malibu");
  SwitchToCompanyBookCommand();
  EXPECT_EQ(desk.said.size(), 3) << "a switch drops what was typed without a question";
  EXPECT_EQ(addressBook.lblInfo[field::SecondPhone], "Fax");
}

TEST_F(AddressBookTest, ASaveThatDoesNotHappenCountsAsCancel) {
  Open({"Ann Bell", "Cher"});
  ChooseNameCommand(0);
  SetField(field::City, "Bend");
  const QByteArray before = GetBook();
  SetFaultHook([](const char* step, const QString&) { return qstrcmp(step, "sync") == 0 ? EROFS : 0; });
  WillAnswer({Answer::Yes});
  ChooseNameCommand(1);
  EXPECT_TRUE(desk.LastSaid().contains("An error occurred in SaveRecord.\nError Number: 70"));
  EXPECT_EQ(Field(field::City), "Bend");
  EXPECT_EQ(addressBook.lstNames.ListIndex, 0);
  SetField(field::Name, "Ann");
  EXPECT_EQ(SaveRecordCommand(), SaveResult::Failed);
  EXPECT_EQ(GetBook().size(), before.size()) << "an append that failed leaves nothing behind";
  EXPECT_TRUE(addressBook.RecordChanged && addressBook.NameChanged);
  EXPECT_EQ(addressBook.RecordCount, 2);
  EXPECT_EQ(addressBook.CurrentRecord, 1);
}

TEST_F(AddressBookTest, ARowThatLeadsNowhereLeavesWhatShows) {
  Open({"Ann Bell", "Cher JR.", "Doe, John"});
  ChooseNameCommand(0);
  for (const int row : {1, 2}) {
    ChooseNameCommand(row);
    EXPECT_EQ(Field(field::Name), "Ann Bell");
    EXPECT_EQ(addressBook.lstNames.ListIndex, -1);
    EXPECT_EQ(desk.said.size(), row - 1);
  }
  EXPECT_TRUE(desk.LastSaid().contains("An error occurred in ActivateCurrentRecord.\nError Number: 5"));
  DeleteRecordCommand();
  EXPECT_EQ(desk.LastSaid(), "No Record Selected");
}

TEST_F(AddressBookTest, ADeletedRecordLeavesItsRowToANeighbour) {
  const struct {
    QStringList names;
    int row;
    const char* left;
    int ListIndex, TopIndex, CurrentRecord;
    const char* shown;
  } cases[] = {{{"C", "A", "B"}, 0, "C|B", 0, 0, 2, "B"},
               {{"C", "A", "B"}, 1, "C|A", 0, 1, 2, "A"},
               {{"C", "A", "B"}, 2, "A|B", 1, 1, 2, "B"},
               {{"B", "A"}, 0, "B", -1, 0, 1, "B"},
               {{"A"}, 0, "", -1, 0, 1, ""}};
  for (const auto& c : cases) {
    UnloadAddressWindow();
    Open(c.names);
    ChooseNameCommand(c.row);
    SetField(field::City, "typed and not saved");
    WillAnswer({Answer::Yes});
    DeleteRecordCommand();
    EXPECT_EQ(Names().join(u'|'), c.left);
    EXPECT_EQ(addressBook.lstNames.ListIndex, c.ListIndex) << c.left;
    EXPECT_EQ(addressBook.lstNames.TopIndex, c.TopIndex) << c.left;
    EXPECT_EQ(addressBook.CurrentRecord, c.CurrentRecord) << c.left;
    EXPECT_EQ(Field(field::Name), c.shown);
    EXPECT_TRUE(addressBook.lstNames.Visible && !addressBook.RecordChanged);
  }
  EXPECT_EQ(desk.LastSaid(), "Delete this record?");
  EXPECT_EQ(addressBook.RecordCount, 1) << "of an empty file, until it is loaded";
  SetField(field::Name, "D");
  SaveRecordCommand();
  EXPECT_EQ(Names(), QStringList{"D"}) << "no hole in front";
}

TEST_F(AddressBookTest, AnotherProgramsChangesAreNeverOverwritten) {
  const QByteArray theirs = Record("Ann Bell", "by another hand") + Record("Cher");
  Open({"Ann Bell", "Cher"});
  ChooseNameCommand(0);
  PutBook(theirs);
  SetField(field::City, "Bend");
  SaveRecordCommand();
  EXPECT_EQ(GetBook().left(theirs.size()), theirs);
  EXPECT_EQ(addressBook.CurrentRecord, 3);
  EXPECT_EQ(Field(field::City), "Bend");
  ChooseNameCommand(2);
  for (const QByteArray& now : {Record("X") + theirs, QByteArray()}) {
    PutBook(now);
    addressBook.lstNames.ListIndex = 0;
    WillAnswer({Answer::Yes});
    DeleteRecordCommand();
    EXPECT_EQ(desk.LastSaid(), "Record doesn't exist.");
    EXPECT_EQ(GetBook(), now);
    EXPECT_EQ(addressBook.lstNames.ListCount(), now.size() / RecordSize) << "listed anew";
  }
}

TEST_F(AddressBookTest, APartOfARecordIsKept) {
  const QByteArray part = Record("Part").left(300);
  PutBook(Record("Ann Bell") + part);
  OpenAddressBookCommand();
  EXPECT_EQ(Rows(), "Bell, Ann|Part");
  ChooseNameCommand(0);
  WillAnswer({Answer::Yes});
  DeleteRecordCommand();
  EXPECT_EQ(GetBook(), part);
  NewRecordCommand();
  SetField(field::Name, "Cher");
  SaveRecordCommand();
  EXPECT_EQ(GetBook(), Record("Part") + Record("Cher"));
}

TEST_F(AddressBookTest, AFileThatIsNoBookIsReportedAndTheOtherBookOpens) {
  const QString path = Path("Wedding Proposals/PerAdd.apx");
  const struct {
    std::function<void()> make;
    const char* said;
    int rows;
  } cases[] = {{[&] { QDir().mkpath(path); }, "Error Number: 75", 0},
               {[&] { QFile::resize(path, 1 << 30); }, "has 1073741824 bytes", 0},
               {[&] { QFile::resize(path, 32768 * 520); }, "FillNameList.\nError Number: 6", 32767},
               {[&] { QFile::resize(path, 32767 * 520); }, "", 32767}};
  for (const auto& c : cases) {
    UnloadAddressWindow();
    QDir().rmdir(path);
    if (&c != cases) PutBook("");
    c.make();
    desk.said.clear();
    OpenAddressBookCommand();
    EXPECT_EQ(desk.said.size(), *c.said ? 1 : 0);
    EXPECT_TRUE(desk.LastSaid().contains(c.said)) << desk.LastSaid().toStdString();
    EXPECT_EQ(addressBook.lstNames.ListCount(), c.rows);
    SetField(field::Name, "Ann Bell");
    EXPECT_EQ(SaveRecordCommand(), SaveResult::Failed);
    EXPECT_EQ(Field(field::Name), "Ann Bell");
  }
  EXPECT_TRUE(desk.LastSaid().contains("at most 32767 records"));
  SwitchToCompanyBookCommand();
  SetField(field::Name, "Pine");
  EXPECT_EQ(SaveRecordCommand(), SaveResult::Saved);
}

TEST_F(AddressBookTest, AFileThatCannotBeMadeIsTold) {
  SetFaultHook([](const char*, const QString&) { return EACCES; });
  OpenAddressBookCommand();
  ASSERT_EQ(desk.said.size(), 1);
  EXPECT_TRUE(desk.LastSaid().startsWith("Unable to Create Personal Address File. \nError Number: 70\n"));
  SwitchToCompanyBookCommand();
  EXPECT_TRUE(desk.LastSaid().contains("An error occurred in mnuFileOpenBusiness_Click."));
  EXPECT_EQ(addressBook.AddressFileName, "PerAdd.apx");
}

TEST_F(AddressBookTest, FindGoesThroughEveryFieldOfEveryRecord) {
  const auto marks = [] {
    QString text;
    for (int i = 0; i < field::Count; ++i)
      if (addressBook.txt[i].SelLength > 0)
        text += QStringLiteral("%1@%2 ").arg(i).arg(addressBook.txt[i].SelStart);
    return text;
  };
  FindCommand();
  EXPECT_EQ(desk.LastSaid(), "There's no records to search.");
  PutBook(Record("Ann Bell", "the bell") + Record("Cher") + Record("Bello", "x Bell") +
          Record("Zo\u00EB", "elm"));
  OpenAddressBookCommand();
  desk.inputs.append({"bell", "   ", "ZO\u00CB", "l ", "elm"});
  FindCommand();
  EXPECT_EQ(addressBook.CurrentRecord, 1);
  EXPECT_EQ(marks(), "0@4 ") << "the second field is searched from behind the first one's place";
  addressBook.txt[field::Name].SelLength = 0;
  PutBook(GetBook() + Record("Bell"));
  FindAgainCommand();
  EXPECT_EQ(addressBook.CurrentRecord, 3);
  EXPECT_EQ(marks(), "0@0 1@2 ");
  FindAgainCommand();
  EXPECT_EQ(desk.LastSaid(), "No more occurrances.") << "what was added since the search began is not seen";
  EXPECT_EQ(marks(), "");
  FindCommand();
  EXPECT_EQ(desk.LastSaid(), "Search cancelled.");
  for (const int record : {4, 1, 4}) {
    FindCommand();
    EXPECT_EQ(addressBook.CurrentRecord, record) << "by text, by padding, by text";
  }
  WillAnswer({Answer::Yes});
  ChooseNameCommand(0);
  DeleteRecordCommand();
  FindAgainCommand();
  EXPECT_EQ(addressBook.CurrentRecord, 3) << "a delete begins the search anew";
}

}  // namespace
