#include "address_fixture.h"

using namespace quillane;
using namespace quillane::test;

namespace {

class AddressBatch : public AddressBooks {
 protected:
  void SetUp() override {
    AddressBooks::SetUp();
    OpenAddressBookCommand();
  }
  void Begin(const QString& clipboard, ListType type = ListType::Commas) {
    desk.answers.append(Answer::Yes);
    ImportBatchCommand();
    ChooseListType(type);
    desk.clipboard = clipboard;
    desk.said.clear();
    BeginBatchProcess();
  }
};

TEST_F(AddressBatch, TheSetUpPanelFollowsItsQuestionsCategoriesAndTypes) {
  const char *instead = "Import the Records into the Business Address Book instead? Click Cancel to exit.",
             *first = "This will save the Batch Records into the Personal Address Book. Continue?";
  After(ImportBatchCommand, " new", instead, {Answer::No, Answer::No});
  After(ImportBatchCommand, " new", first, {Answer::Cancel});
  EXPECT_FALSE(batch.SetUpShows);
  After(ImportBatchCommand, " new", instead, {Answer::No, Answer::Yes});
  EXPECT_EQ(addressBook.Caption, "Beginning Batch Import/Business Address Book");
  EXPECT_TRUE(batch.SetUpShows && CurrentBook() == Book::Company && !AddressMenuEnabled("mnuFile"));
  for (int i = 0; i < category::Email; ++i) ToggleCategory(i);
  EXPECT_EQ(desk.LastSaid(), "Name cannot be de-selected.");
  EXPECT_EQ(batch.CategoryLast, 1);
  const QString samples[] = {"N\r\nE\r\n\r\nN\r\nE\r\n", "N,E\r\nN,E", "N\tE\r\nN\tE"};
  for (const ListType type : {ListType::Lines, ListType::Commas, ListType::Tabs}) {
    ChooseListType(type);
    EXPECT_EQ(batch.txtSample.replace("Company Name", "N").replace("Email Address", "E"),
              samples[static_cast<int>(type)]);
  }
  ChooseListType(ListType::MailProgram);
  ExitImport();
  EXPECT_TRUE(batch.CsvMode && !batch.SetUpShows && AddressMenuEnabled("mnuFile"));
  desk.answers.append(Answer::Yes);
  ImportBatchCommand();
  EXPECT_TRUE(batch.CategoryLast == 8 && batch.optList == ListType::Lines);
  OpenAddressBookCommand();
  EXPECT_FALSE(batch.CsvMode || batch.SetUpShows) << "ended as by its Cancel";
}

TEST_F(AddressBatch, EachRecordIsSavedOrSkippedByHand) {
  Begin("Ann Bell,1 Elm\nBob,2 Fir\r,no name\nCher\tx,3 Oak");
  After(SaveBatchRecordCommand, "Bob|2 Fir new renamed");
  EXPECT_FALSE(AddressMenuEnabled("mnuFileDelete"));
  After(SkipBatchRecordCommand, "|no name new changed");
  After(SaveBatchRecordCommand, "Cher\tx|3 Oak new renamed", "Cannot save record... no name given.");
  SetFaultHook([](const char*, const QString&) { return EROFS; });
  After(SaveBatchRecordCommand, "Cher\tx|3 Oak new renamed", "Error Number: 70");
  SetFaultHook(nullptr);
  After(SaveBatchRecordCommand, "Cher\tx|3 Oak #2", "Batch Process Finished.");
  EXPECT_FALSE(WalkPanelShows());
  EXPECT_EQ(GetBook(), Record("Ann Bell", "1 Elm") + Record("Cher\tx", "3 Oak"));
}

TEST_F(AddressBatch, TheWalkKeepsItsRecordAndItsBook) {
  Begin("Ann Bell,1 Elm\r\nBob,2 Fir");
  SaveBatchRecordCommand();
  After(Row(0), "Ann Bell|1 Elm #1 row 0", "Do you want to save the changes?", {Answer::No});
  SetField(field::Address1, "Bend");
  After(SaveBatchRecordCommand, "Bob|2 Fir new renamed");
  SwitchToCompanyBookCommand();
  After(SkipBatchRecordCommand, "Bob|2 Fir new renamed");
  SaveBatchRecordCommand();
  EXPECT_EQ(GetBook(), Record("Ann Bell", "Bend") + Record("Bob", "2 Fir"));
}

TEST_F(AddressBatch, AWalkWithNothingInItSaysSo) {
  const struct {
    ListType type;
    const char *clipboard, *said;
    int last;
  } cases[] = {{ListType::Commas, "", "There's nothing in the Clipboard Memory.", 0},
               {ListType::Tabs, "AB", "No more records to save.", -1},
               {ListType::MailProgram, "", "There's nothing in memory to batch process.", 0},
               {ListType::MailProgram, "Name,x", "Error. No carriage returns found.", 0},
               {ListType::MailProgram, "Name,x\nlost", "No more records to save.", -1}};
  for (const auto& c : cases) {
    Begin(c.clipboard, c.type);
    EXPECT_EQ(Texts(), QStringList{c.said});
    EXPECT_TRUE(WalkPanelShows() && batch.BatchLastIndex == c.last) << c.clipboard;
    After(EndBatchCommand, " new");
    EXPECT_FALSE(WalkPanelShows() || batch.CsvMode);
  }
}

TEST_F(AddressBatch, BadLinesAreNamedAndTheRestIsWalked) {
  Begin("Name,E-mail Address\n\"Ann,a@b\nBob,b@c\n", ListType::MailProgram);
  EXPECT_EQ(desk.said.last().title, "Bad data in some records.");
  EXPECT_EQ(Screen(), " new") << "No imports none";
  ExitImport();
  After(ImportBatchCommand, " new",
        "This will save the Batch Records into the Personal Address Book. Continue?");
  ChooseListType(ListType::Tabs);  // its sample, but still the other parser
  After(BeginBatchProcess, " new", "The following records cound not be parsed...0, 0\nand will be excluded");
  After(SkipBatchRecordCommand, "Bob|||,||||||b@c new renamed");
}

TEST_F(AddressBatch, AllRemainingRecordsAreSavedAfterOneQuestion) {
  const auto save = [](int most) {
    return [most] { SaveAllRemainingCommand([most](int done, int) { return done < most; }); };
  };
  Begin("Ann Bell,1\nBob,2\n,no name\n  Cher,4\nDan,5");
  SkipBatchRecordCommand();
  SetField(field::Address1, "as typed");
  After(save(2), "Cher|4 new renamed", "Save all 4 remaining records without looking at each?");
  SetFaultHook([](const char*, const QString&) { return ENOSPC; });
  After(save(9), "Cher|4 new renamed", "Error Number: 61");
  SetFaultHook(nullptr);
  After(save(9), " new", "Batch Process Finished.\n2 records saved.");
  EXPECT_EQ(GetBook(), Record("Bob", "as typed") + Record("Cher", "4") + Record("Dan", "5"));
  EXPECT_TRUE(addressBook.lstNames.ListCount() == 3 && !WalkPanelShows());
}

}  // namespace
