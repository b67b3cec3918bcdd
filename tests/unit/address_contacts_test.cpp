#include "address/contacts.h"
#include "address_fixture.h"

using namespace quillane;
using namespace quillane::test;

namespace {

class AddressContacts : public AddressBooks {
 protected:
  /// "name|address 1|..." without the empty fields at the end, a line break as "/".
  static std::string Joined(const FieldTexts& texts) {
    QString joined = QStringList(texts.begin(), texts.end()).join(u'|');
    while (joined.endsWith(u'|')) joined.chop(1);
    return joined.replace("\r\n", "/").toStdString();
  }
  static std::string Read(const QByteArray& card, Book book = Book::Personal) {
    const std::vector<VCard> cards = ReadVCards(card);
    return cards.size() == 1 ? Joined(FieldsOfContact(cards[0], book))
                             : std::to_string(cards.size()) + " cards";
  }
};

TEST_F(AddressContacts, CardsOfManyKindsAreRead) {
  const struct {
    Book book;
    QByteArray lines, fields;
  } cases[] = {
      {Book::Personal,
       "VERSION:4.0\nFN:Ann Bell\nADR;TYPE=home:;;1 Elm,Unit 2;Bend;OR;97701;\nTEL;TYPE=\"cell,voice\":1\n"
       "TEL;VALUE=uri;TYPE=home:tel:+1-541;ext=12\nTEL;TYPE=work:3\nEMAIL;PREF=2:b@c\nEMAIL;PREF=1:a@b\n"
       "ANNIVERSARY:20270619\nRELATED:urn:uuid:1\nRELATED;VALUE=text:Ruth\nNOTE:one\\, two\\nthree\nX-ANY:x",
       "Ann Bell|1 Elm|Unit 2|Bend, OR 97701|+1-541 x12|3|1|Jun 19,2027|Ruth|a@b|one, two/three/Email: b@c"},
      {Book::Personal,
       "version:3.0\r\nN:Bell;Ann;Mary;Dr.;Jr.\r\nitem1.TEL;type=HOME;type=pref:1\r\nitem1.X-ABLabel:"
       "x\r\nTEL;TYPE=home:"
       "2\r\nitem2.ADR:7;Floor 3;1 Elm\\nback door;Paris;;75001;France\r\nNOTE:fol\r\n ded \xC3\r\n "
       "\xA9\r\nORG:Pine;Sales",
       "Dr. Ann Mary Bell Jr.|1 Elm|back door, Floor 3, 7|Paris 75001, France|1||||||"
       "folded \xC3\xA9/Company: Pine/Phone: 2"},
      {Book::Personal,
       "VERSION:2.1\nFN;ENCODING=QUOTED-PRINTABLE;CHARSET=UTF-8:Zo=C3=AB =\nL=C3=B6we=\n =3D\nTEL;CELL:1\n"
       "NOTE;ENCODING=QUOTED-PRINTABLE;CHARSET=ISO-8859-1:caf=E9 =4\nPHOTO;BASE64:AAAA",
       "Zo\xC3\xAB L\xC3\xB6we =||||||1||||caf\xC3\xA9 =4"},
      {Book::Personal, "FN:Zo\xEB\nEMAIL;ENCODING=b:YUBi\nADR:;;;Bend\nTEL;FAX:1",
       "Zo\xC3\xAB|||Bend||||||a@b|Fax: 1"},
      {Book::Personal, "FN:Ann\nAGENT:\nBEGIN:VCARD\nFN:Her agent\nEND:VCARD\nEMAIL:a@b", "Ann|||||||||a@b"},
      {Book::Personal, "FN:\nORG:Pine\nNOTE:a\\;b\\c\\", "Pine||||||||||a;bc\\"},
      {Book::Company,
       "FN:Tess "
       "Lam\nORG:Pine;Sales\nTEL;TYPE=work:1\nTEL;TYPE=work,fax:2\nADR;TYPE=home:;;a;b\nADR;TYPE=work:;;c;d",
       "Pine|c||d|1|2|||Tess Lam"},
      {Book::Company, "FN:Pine\nORG:Pine\nRELATED;TYPE=contact;VALUE=text:Tess Lam", "Pine||||||||Tess Lam"},
      {Book::Personal, "", "0 cards"},
      {Book::Personal, "FN:Ann\nBEGIN:VCARD\nFN:Bob", "2 cards"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(Read("BEGIN:VCARD\r\n" + c.lines + "\r\nEND:VCARD\r\n", c.book), c.fields.toStdString())
        << c.lines.constData();
  EXPECT_EQ(Read("\xEF\xBB\xBF"
                 "begin:vcard\nFN:Ann"),
            "Ann")
      << "a mark in front, and no end";
}

TEST_F(AddressContacts, AWrittenCardIsFoldedAndSplitsItsName) {
  FieldTexts texts;
  texts[field::Name] = "John Doe, JR.";
  texts[field::Notes] = QStringLiteral("a;b\r\n") + QString(40, QChar(0xEB));
  EXPECT_EQ(ContactOf(texts, Book::Personal),
            "BEGIN:VCARD\r\nVERSION:4.0\r\nKIND:individual\r\nFN:John Doe\\, "
            "JR.\r\nN:Doe;John;;;JR.\r\nNOTE:a\\;b\\n" +
                QByteArray("\xC3\xAB").repeated(32) + "\r\n " + QByteArray("\xC3\xAB").repeated(8) +
                "\r\nEND:VCARD\r\n");
  EXPECT_EQ(ContactOf(FieldTexts(), Book::Personal), "");
}

TEST_F(AddressContacts, ABookGoesFromOneHomeToAnother) {
  for (const QString file : {"PerAdd.apx", "ComAdd.acx"}) {
    const QByteArray bytes = ReadWholeFile(QStringLiteral(QUILLANE_TEST_DATA "/samples/") + file);
    const bool company = file == "ComAdd.acx";
    PutBook(bytes, file);
    OpenAddressBookCommand();
    if (company) SwitchToCompanyBookCommand();
    EXPECT_EQ(ExportContactsCommand(Path("all.vcf")), bytes.size() / RecordSize);
    PutBook("", file);
    WillAnswer({Answer::Yes, Answer::Yes});
    ImportContactsCommand(Path("all.vcf"));
    EXPECT_TRUE(WalkPanelShows());
    SaveAllRemainingCommand([](int, int) { return true; });
    EXPECT_EQ(GetBook(file), bytes);
  }
  const struct {
    QByteArray file;
    const char* said;
  } cases[] = {{"no card", "none.vcf has no contacts in it. Please choose"},
               {{}, "none.vcf has no contacts"}};
  for (const auto& c : cases) {
    Put("none.vcf", c.file);
    WillAnswer({Answer::Yes});
    ImportContactsCommand(Path("none.vcf"));
    EXPECT_TRUE(desk.LastSaid().contains(c.said));
    EXPECT_FALSE(WalkPanelShows());
  }
}

}  // namespace
