#include "address/contacts.h"
#include "address_fixture.h"

using namespace quillane;
using namespace quillane::test;

namespace {

class AddressContacts : public AddressBooks {};

TEST_F(AddressContacts, CardsOfManyKindsAreRead) {
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

TEST_F(AddressContacts, AWrittenCardIsFoldedAndSplitsItsName) {
  FieldTexts texts;
  texts[field::Name] = "John Doe, JR.";
  texts[field::Notes] = "a;b\r\n" + QString(40, QChar(0xEB));
  const QByteArray e("\xC3\xAB");
  EXPECT_EQ(ContactOf(texts, Book::Personal),
            "BEGIN:VCARD\r\nVERSION:4.0\r\nKIND:individual\r\nFN:John Doe\\, JR.\r\nN:Doe;John;;;JR.\r\n"
            "NOTE:a\\;b\\n" +
                e.repeated(32) + "\r\n " + e.repeated(8) + "\r\nEND:VCARD\r\n");
}

TEST_F(AddressContacts, ABookGoesFromOneHomeToAnother) {
  for (const QString file : {"PerAdd.apx", "ComAdd.acx"}) {
    PutBook(Sample(file), file);
    file == "PerAdd.apx" ? OpenAddressBookCommand() : SwitchToCompanyBookCommand();
    EXPECT_EQ(ExportContactsCommand(Path("all.vcf")), Sample(file).size() / RecordSize);
    PutBook("", file);
    desk.answers.append({Answer::Yes, Answer::Yes});
    ImportContactsCommand(Path("all.vcf"));
    SaveAllRemainingCommand([](int, int) { return true; });
    EXPECT_EQ(GetBook(file), Sample(file));
  }
  Put("none.vcf", "no card");
  After([this] { ImportContactsCommand(Path("none.vcf")); }, " new",
        "none.vcf has no contacts in it. Please");
}

}  // namespace
