#include "address_fixture.h"

using namespace quillane;
using namespace quillane::test;

namespace {

class AddressBatch : public AddressBooks {
 protected:
  void SetUp() override {
    AddressBooks::SetUp();
    OpenAddressBookCommand();
    desk.said.clear();
  }
  void Begin(const QString& clipboard, ListType type = ListType::Commas) {
    WillAnswer({Answer::Yes});
    ImportBatchCommand();
    ChooseListType(type);
    desk.clipboard = clipboard;
    BeginBatchProcess();
  }
  /// Boxes but for the questions about the book, since the last call.
  QStringList Said() {
    QStringList texts = Texts();
    desk.said.clear();
    texts.removeIf([](const QString& text) { return text.contains(QLatin1String("Address Book")); });
    return texts;
  }
  static QString Shown() {
    QStringList texts;
    for (const AddressField& txt : addressBook.txt) texts << txt.Text;
    while (!texts.isEmpty() && texts.last().isEmpty()) texts.removeLast();
    return texts.join(u'|');
  }
};

TEST_F(AddressBatch, TheSetUpPanelFollowsItsQuestionsCategoriesAndTypes) {
  WillAnswer({Answer::No, Answer::No, Answer::Cancel, Answer::No, Answer::Yes});
  ImportBatchCommand();
  ImportBatchCommand();
  EXPECT_FALSE(batch.SetUpShows);
  ImportBatchCommand();
  EXPECT_EQ(desk.LastSaid(),
            "Import the Records into the Business Address Book instead? Click Cancel to exit.");
  EXPECT_TRUE(batch.SetUpShows);
  EXPECT_FALSE(AddressMenuEnabled("mnuFile"));
  EXPECT_EQ(addressBook.Caption, "Beginning Batch Import/Business Address Book");
  EXPECT_EQ(addressBook.AddressFileName, "ComAdd.acx");
  EXPECT_TRUE(batch.lblMain.endsWith(". You can quit at any time by pressing End Batch Process."));
  EXPECT_EQ(batch.CategoryLast, 8);
  ToggleCategory(category::Name);
  EXPECT_EQ(desk.LastSaid(), "Name cannot be de-selected.");
  for (int i = 2; i < category::Email; ++i) ToggleCategory(i);
  EXPECT_EQ(batch.CategoryLast, 2);
  const struct {
    ListType type;
    const char* sample;
  } cases[] = {
      {ListType::Lines,
       "Company Name\r\nAddress 1\r\nEmail Address\r\n\r\nCompany Name\r\nAddress 1\r\nEmail "
       "Address\r\n"},
      {ListType::Tabs, "Company Name\tAddress 1\tEmail Address\r\nCompany Name\tAddress 1\tEmail Address"},
      {ListType::MailProgram,
       "First Name,Last Name,Middle Name,Name,Nickname,E-mail Address,etc.\r\nFirst "
       "Name,Last Name,Middle Name,Name,Nickname,E-mail Address,etc."},
      {ListType::Commas, "Company Name,Address 1,Email Address\r\nCompany Name,Address 1,Email Address"}};
  for (const auto& c : cases) {
    ChooseListType(c.type);
    EXPECT_EQ(batch.txtSample, c.sample);
  }
  ToggleCategory(category::Address1);
  RefreshSampleCommand();
  EXPECT_EQ(batch.txtSample, "Company Name,Email Address\r\nCompany Name,Email Address");
  ExitImport();
  EXPECT_TRUE(batch.CsvMode && !batch.SetUpShows && AddressMenuEnabled("mnuFile"));
  WillAnswer({Answer::Yes});
  ImportBatchCommand();
  EXPECT_TRUE(batch.CategorySelected[category::Address1] && batch.optList == ListType::Lines);
  OpenAddressBookCommand();
  EXPECT_FALSE(batch.CsvMode || batch.SetUpShows) << "ended as by its Cancel";
}

TEST_F(AddressBatch, EachRecordIsSavedOrSkippedByHand) {
  Begin("Ann Bell,1 Elm\nBob,2 Fir\r,no name\nCher\tx,3 Oak");
  EXPECT_TRUE(WalkPanelShows());
  EXPECT_EQ(Shown(), "Ann Bell|1 Elm");
  SetField(field::City, "Bend");
  SaveBatchRecordCommand();
  EXPECT_EQ(Shown(), "Bob|2 Fir");
  EXPECT_FALSE(AddressMenuEnabled("mnuFileDelete"));
  SkipBatchRecordCommand();
  EXPECT_EQ(Shown(), "|no name");
  SaveBatchRecordCommand();
  EXPECT_EQ(Said(), QStringList{"Cannot save record... no name given."}) << "and moves on";
  SetFaultHook([](const char*, const QString&) { return EROFS; });
  SaveBatchRecordCommand();
  EXPECT_EQ(Said().size(), 1);
  EXPECT_EQ(Shown(), "Cher\tx|3 Oak") << "what could not be saved stays";
  SetFaultHook(nullptr);
  SaveBatchRecordCommand();
  EXPECT_EQ(Said(), QStringList{"Batch Process Finished."});
  EXPECT_FALSE(WalkPanelShows());
  EXPECT_EQ(Names(), (QStringList{"Ann Bell", "Cher\tx"}));
  EXPECT_EQ(GetBook().mid(120, 4), "Bend");
}

TEST_F(AddressBatch, TheWalkKeepsItsRecordAndItsBook) {
  Begin("Ann Bell,1 Elm\r\nBob,2 Fir");
  SaveBatchRecordCommand();
  WillAnswer({Answer::No});
  ChooseNameCommand(0);
  EXPECT_EQ(Shown(), "Ann Bell|1 Elm");
  SetField(field::City, "Bend");
  SaveBatchRecordCommand();
  EXPECT_EQ(GetBook().mid(120, 4), "Bend");
  EXPECT_EQ(Shown(), "Bob|2 Fir") << "once more";
  SwitchToCompanyBookCommand();
  SkipBatchRecordCommand();
  EXPECT_EQ(Shown(), "Bob|2 Fir");
  EXPECT_EQ(addressBook.AddressFileName, "PerAdd.apx");
  SaveBatchRecordCommand();
  EXPECT_EQ(Names(), (QStringList{"Ann Bell", "Bob"}));
}

TEST_F(AddressBatch, AWalkWithNothingInItSaysSo) {
  const struct {
    ListType type;
    const char* clipboard;
    const char* said;
    int last;
  } cases[] = {{ListType::Commas, "", "There's nothing in the Clipboard Memory.", 0},
               {ListType::Commas, "   ", "No more records to save.", -1},
               {ListType::Tabs, "AB", "No more records to save.", -1},
               {ListType::MailProgram, "", "There's nothing in memory to batch process.", 0},
               {ListType::MailProgram, "Name,x", "Error. No carriage returns found.", 0},
               {ListType::MailProgram, "Name,x\nlost", "No more records to save.", -1}};
  for (const auto& c : cases) {
    Begin(c.clipboard, c.type);
    EXPECT_EQ(Said(), QStringList{c.said});
    EXPECT_EQ(batch.BatchLastIndex, c.last) << c.clipboard;
    EXPECT_TRUE(WalkPanelShows());
    EXPECT_EQ(Shown(), "");
    EndBatchCommand();
    EXPECT_FALSE(batch.CsvMode || WalkPanelShows());
  }
}

TEST_F(AddressBatch, BadLinesAreNamedAndTheRestIsWalked) {
  const QString list = "Name,E-mail Address\n\"Ann,a@b\nBob,b@c\n";
  WillAnswer({});
  Begin(list, ListType::MailProgram);
  EXPECT_EQ(desk.said.last().title, "Bad data in some records.");
  EXPECT_TRUE(desk.LastSaid().startsWith("The following records cound not be parsed...0\nand will"));
  EXPECT_EQ(Shown(), "") << "No imports none";
  EndBatchCommand();
  WillAnswer({Answer::Yes, Answer::Yes});
  ImportBatchCommand();
  ChooseListType(ListType::MailProgram);
  ChooseListType(ListType::Tabs);  // the samples of the tab type, and the parser of the other
  BeginBatchProcess();
  EXPECT_TRUE(desk.LastSaid().startsWith("The following records cound not be parsed...0, 0\n"));
  EXPECT_EQ(Shown(), "");
  SkipBatchRecordCommand();
  EXPECT_EQ(Shown(), "Bob|||,||||||b@c");
}

TEST_F(AddressBatch, AllRemainingRecordsAreSavedAfterOneQuestion) {
  const auto begin = [this] {
    Begin("Ann Bell,1\nBob,2\n,no name\n  Cher,4\nDan,5");
    SkipBatchRecordCommand();
    SetField(field::City, "Bend");
    desk.said.clear();
    WillAnswer({Answer::Yes});
  };
  begin();
  SaveAllRemainingCommand([](int done, int) { return done < 2; });
  EXPECT_EQ(desk.LastSaid(), "Save all 4 remaining records without looking at each?");
  EXPECT_EQ(Names(), QStringList{"Bob"});
  EXPECT_EQ(Shown(), "Cher|4") << "stopped by hand";
  SetFaultHook([](const char*, const QString&) { return ENOSPC; });
  WillAnswer({Answer::Yes});
  SaveAllRemainingCommand([](int, int) { return true; });
  EXPECT_EQ(Shown(), "Cher|4");
  SetFaultHook(nullptr);
  EndBatchCommand();
  PutBook("");
  begin();
  SaveAllRemainingCommand([](int, int total) { return total == 4; });
  EXPECT_EQ(desk.LastSaid(), "Batch Process Finished.\n3 records saved. 1 without a name passed over.");
  EXPECT_EQ(GetBook().mid(120, 4), "Bend") << "the record on the screen goes as it was typed";
  EXPECT_EQ(Rows(), "Bob|Cher|Dan");
  EXPECT_FALSE(WalkPanelShows());
}

}  // namespace
