// A program folder with address books in it.
#pragma once
#include <QByteArrayList>

#include "address/batch.h"
#include "address/book_file.h"
#include "address/book_window.h"
#include "platform/codepage.h"
#include "program_folder.h"

namespace quillane::test {

class AddressBooks : public InProgramFolder {
 protected:
  void SetUp() override {
    InProgramFolder::SetUp();
    prefs.ProposalFolder = Path("Wedding Proposals/");
    checkedBooks = {};
    UnloadAddressWindow();
  }
  static QByteArray Record(const QString& name, const QString& address = {}) {
    FieldTexts texts;
    texts[field::Name] = name;
    texts[field::Address1] = address;
    return BytesOf(RecordOf(texts));
  }
  /// The records of "Ann Bell|Cher".
  static QByteArray Records(const QString& names) {
    QByteArray bytes;
    for (const QString& name : names.split(u'|', Qt::SkipEmptyParts)) bytes += Record(name);
    return bytes;
  }
  static QByteArray Sample(const QString& name) {
    return ReadWholeFile(QUILLANE_TEST_DATA "/samples/" + name);
  }
  void PutBook(const QByteArray& bytes, const QString& name = "PerAdd.apx") const {
    Put("Wedding Proposals/" + name, bytes);
  }
  QByteArray GetBook(const QString& name = "PerAdd.apx") const { return Get("Wedding Proposals/" + name); }
  /// Opens the window anew on a personal book of these names.
  void Open(const QString& names) {
    PutBook(Records(names));
    UnloadAddressWindow();
    OpenAddressBookCommand();
  }
  /// The fields up to the last that is filled, the record's number, the row, and what has changed: "Ann
  /// [Bell]|1 Elm #1 row 0 changed"; a selection stands in brackets.
  static std::string Screen() {
    const AddressBook& book = addressBook;
    QStringList texts;
    for (const AddressField& txt : book.txt) {
      texts << txt.Text;
      if (txt.SelLength > 0) texts.last().insert(txt.SelStart + txt.SelLength, ']').insert(txt.SelStart, '[');
    }
    while (!texts.isEmpty() && texts.last().isEmpty()) texts.removeLast();
    QString screen =
        texts.join(u'|') + (book.NewRecordFlag ? " new" : QString(" #%1").arg(book.CurrentRecord));
    if (book.lstNames.ListIndex >= 0) screen += QString(" row %1").arg(book.lstNames.ListIndex);
    return (screen + (book.NameChanged ? " renamed" : book.RecordChanged ? " changed" : "")).toStdString();
  }
  /// Does something, with an answer for its first question, and looks at the screen and at what was said.
  void After(const std::function<void()>& act, const char* screen, const char* said = "",
             QList<Answer> answers = {Answer::Yes}) {
    desk.said.clear();
    desk.answers.clear();
    desk.answers.append(answers);
    act();
    EXPECT_EQ(Screen(), screen);
    EXPECT_TRUE(Texts().join(u'|').contains(QString::fromUtf8(said)) && desk.said.isEmpty() == !*said)
        << "behind " << screen << ": " << Texts().join(u'|').toStdString();
  }
  static void Save() { SaveRecordCommand(); }
  static std::function<void()> Row(int row) {
    return [row] { ChooseNameCommand(row); };
  }
  static std::function<void()> Type(int field, const QString& text) {
    return [field, text] { SetField(field, text); };
  }
};

}  // namespace quillane::test
