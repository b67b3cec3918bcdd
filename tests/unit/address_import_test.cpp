#include "address/contacts.h"
#include "address_fixture.h"

using namespace quillane;
using namespace quillane::test;

namespace {

class AddressImport : public AddressBooks {
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

TEST_F(AddressImport, TheSetUpPanelFollowsItsQuestionsCategoriesAndTypes) {
  const char* instead = "Import the Records into the Business Address Book instead? Click Cancel to exit.";
  After(ImportBatchCommand, " new", instead, {Answer::No, Answer::No});
  EXPECT_FALSE(batch.SetUpShows);
  After(ImportBatchCommand, " new", instead, {Answer::No, Answer::Yes});
  EXPECT_EQ(addressBook.Caption, "Beginning Batch Import/Business Address Book");
  EXPECT_TRUE(batch.SetUpShows && CurrentBook() == Book::Company && !AddressMenuEnabled("mnuFile"));
  for (int i = 0; i < category::Email; ++i) ToggleCategory(i);
  EXPECT_EQ(desk.LastSaid(), "Name cannot be de-selected.");
  const QString samples[] = {"N\r\nE\r\n\r\nN\r\nE\r\n", "N,E\r\nN,E", "N\tE\r\nN\tE"};
  for (int type = 0; type < 3; ++type) {
    ChooseListType(ListType(type));
    EXPECT_EQ(batch.txtSample.replace("Company Name", "N").replace("Email Address", "E"), samples[type]);
  }
  ChooseListType(ListType::MailProgram);
  ExitImport();
  EXPECT_TRUE(batch.CsvMode && batch.CategoryLast == 1 && AddressMenuEnabled("mnuFile"));
  After(ImportBatchCommand, " new", "This will save the Batch Records into the Business Address Book.");
  EXPECT_TRUE(batch.CategoryLast == 8 && batch.optList == ListType::Lines);
  OpenAddressBookCommand();
  EXPECT_FALSE(batch.CsvMode || batch.SetUpShows) << "ended as by its Cancel";
}

TEST_F(AddressImport, EachRecordIsSavedOrSkippedByHand) {
  Begin("Ann Bell,1 Elm\nBob,2 Fir\r,no name\nCher\tx,3 Oak");
  After(SaveBatchRecordCommand, "Bob|2 Fir new renamed");
  EXPECT_FALSE(AddressMenuEnabled("mnuFileDelete"));
  After(SkipBatchRecordCommand, "|no name new changed");
  After(SaveBatchRecordCommand, "Cher\tx|3 Oak new renamed", "Cannot save record... no name given.");
  BreakDisk("", EROFS);
  After(SaveBatchRecordCommand, "Cher\tx|3 Oak new renamed", "Error Number: 70");
  MendDisk();
  After(SaveBatchRecordCommand, "Cher\tx|3 Oak #2", "Batch Process Finished.");
  EXPECT_FALSE(WalkPanelShows());
  EXPECT_EQ(GetBook(), Record("Ann Bell", "1 Elm") + Record("Cher\tx", "3 Oak"));
}

TEST_F(AddressImport, TheWalkKeepsItsRecordAndItsBook) {
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

TEST_F(AddressImport, AWalkWithNothingInItSaysSo) {
  const Cases<ListType, const char*, const char*, int> cases = {
      {ListType::Commas, "", "There's nothing in the Clipboard Memory.", 0},
      {ListType::Tabs, "AB", "No more records to save.", -1},
      {ListType::MailProgram, "", "There's nothing in memory to batch process.", 0},
      {ListType::MailProgram, "Name,x", "Error. No carriage returns found.", 0},
      {ListType::MailProgram, "Name,x\nlost", "No more records to save.", -1}};
  for (const auto& [type, clipboard, said, last] : cases) {
    Begin(clipboard, type);
    EXPECT_EQ(Texts(), QStringList{said});
    EXPECT_TRUE(WalkPanelShows() && batch.BatchLastIndex == last) << clipboard;
    After(EndBatchCommand, " new");
    EXPECT_FALSE(WalkPanelShows() || batch.CsvMode);
  }
}

TEST_F(AddressImport, BadLinesAreNamedAndTheRestIsWalked) {
  Begin("Name,E-mail Address\n\"Ann,a@b\nBob,b@c\n", ListType::MailProgram);
  EXPECT_EQ(desk.said.last().title, "Bad data in some records.");
  EXPECT_EQ(Screen(), " new") << "No imports none";
  ExitImport();
  After(ImportBatchCommand, " new", "This will save the Batch Records into the Personal Address Book.");
  ChooseListType(ListType::Tabs);  // its sample, but still the other parser
  After(BeginBatchProcess, " new", "The following records cound not be parsed...0, 0\nand will be excluded");
  After(SkipBatchRecordCommand, "Bob|||,||||||b@c new renamed");
}

TEST_F(AddressImport, AllRemainingRecordsAreSavedAfterOneQuestion) {
  const auto save = [](int most) {
    return [most] { SaveAllRemainingCommand([most](int done, int) { return done < most; }); };
  };
  Begin("Ann Bell,1\nBob,2\n,no name\n  Cher,4\nDan,5");
  SkipBatchRecordCommand();
  SetField(field::Address1, "as typed");
  After(save(2), "Cher|4 new renamed", "Save all 4 remaining records without looking at each?");
  BreakDisk("", ENOSPC);
  SetField(field::Address1, "typed");
  After(save(9), "Cher|typed new renamed", "Error Number: 61");
  MendDisk();
  After(save(9), " new", "Batch Process Finished.\n2 records saved.");
  EXPECT_EQ(GetBook(), Record("Bob", "as typed") + Record("Cher", "typed") + Record("Dan", "5"));
  EXPECT_TRUE(addressBook.lstNames.ListCount() == 3 && !WalkPanelShows());
}

TEST_F(AddressImport, CardsOfManyKindsAreRead) {
  const struct {
    Book book;
    const char* fields;  ///< up to the last that is filled, a line break as "/"
  } cases[] = {{Book::Personal,
                "Ann Bell|1 Elm|Unit 2|Bend, OR 97701|+1-541 x12|3|1|Jun 19,2027|Ruth|a@b|"
                "one, two/three/Email: b@c"},
               {Book::Personal,
                "Dr. Ann Mary Bell Jr.|1 Elm|back, Floor 3, 7|Paris 75001, France|1||||||"
                "folded é/Company: Pine/Phone: 2"},
               {Book::Personal, "Zoë Löwe =||||||1||||café =4/Fax: 2"},
               {Book::Personal, "Zoë||||||||||Company: y;z"},
               {Book::Company, "Pine|c||d|1|2|||Tess Lam"},
               {Book::Personal, "and none here No end above|||||||||a@b"}};
  const std::vector<VCard> cards = ReadVCards(ReadWholeFile(QUILLANE_TEST_DATA "/contacts.vcf"));
  ASSERT_EQ(cards.size(), std::size(cases));
  for (size_t i = 0; i < cards.size(); ++i) {
    const FieldTexts texts = FieldsOfContact(cards[i], cases[i].book);
    QString joined = QStringList(texts.begin(), texts.end()).join(u'|').replace("\r\n", "/");
    while (joined.endsWith(u'|')) joined.chop(1);
    EXPECT_EQ(joined.toStdString(), cases[i].fields);
  }
}

TEST_F(AddressImport, AWrittenCardIsFoldedAndSplitsItsName) {
  FieldTexts texts;
  texts[field::Name] = "John Doe, JR.";
  texts[field::Notes] = "a;b\r\n" + QString(40, QChar(0xEB));
  const QByteArray e("\xC3\xAB");
  EXPECT_EQ(ContactOf(texts, Book::Personal),
            "BEGIN:VCARD\r\nVERSION:4.0\r\nKIND:individual\r\nFN:John Doe\\, JR.\r\nN:Doe;John;;;JR.\r\n"
            "NOTE:a\\;b\\n" +
                e.repeated(32) + "\r\n " + e.repeated(8) + "\r\nEND:VCARD\r\n");
}

TEST_F(AddressImport, ABookGoesFromOneHomeToAnother) {
  for (const QString file : {"PerAdd.apx", "ComAdd.acx"}) {
    PutBook(Sample(file), file);
    file == "PerAdd.apx" ? OpenAddressBookCommand() : SwitchToCompanyBookCommand();
    ExportContactsCommand(Path("all.vcf"));
    PutBook("", file);
    desk.answers.append({Answer::Yes, Answer::Yes});
    ImportContactsCommand(Path("all.vcf"));
    SaveAllRemainingCommand([](int, int) { return true; });
    EXPECT_EQ(GetBook(file), Sample(file));
  }
  Put("none.vcf", "no card");
  After([this] { ImportContactsCommand(Path("none.vcf")); }, " new", "none.vcf has no contacts");
}

}  // namespace
