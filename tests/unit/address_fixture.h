// A program folder with address books in it.
#pragma once
#include <QByteArrayList>

#include "address/batch.h"
#include "address/book.h"
#include "address/book_window.h"
#include "address/names.h"
#include "platform/codepage.h"
#include "program_folder.h"

namespace quillane::test {

class AddressBooks : public InProgramFolder {
 protected:
  void SetUp() override {
    InProgramFolder::SetUp();
    prefs.ProposalFolder = Path("Wedding Proposals/");
    UnloadAddressWindow();
    checkedBooks = {};
  }

  static QByteArray Record(const QString& name, const QString& address = {}) {
    FieldTexts texts;
    texts[field::Name] = name;
    texts[field::Address1] = address;
    return BytesOf(RecordOf(texts));
  }
  static QByteArray Records(const QStringList& names) {
    QByteArray book;
    for (const QString& name : names) book += Record(name);
    return book;
  }
  void PutBook(const QByteArray& bytes, const QString& name = "PerAdd.apx") const {
    Put("Wedding Proposals/" + name, bytes);
  }
  QByteArray GetBook(const QString& name = "PerAdd.apx") const { return Get("Wedding Proposals/" + name); }
  void WillAnswer(const QList<Answer>& answers) { desk.answers.append(answers); }
  /// The names in the order of the file.
  QStringList Names(const QString& file = "PerAdd.apx") const {
    QStringList names;
    const QByteArray book = GetBook(file);
    for (qsizetype at = 0; at < book.size(); at += RecordSize)
      names << FromCodePage(book.mid(at, 40)).trimmed();
    return names;
  }
  static QString Rows() {
    QStringList rows;
    for (const QByteArray& row : addressBook.lstNames.rows) rows << FromCodePage(row).trimmed();
    return rows.join(u'|');
  }
  static QString Field(int index) { return addressBook.txt[index].Text; }
  void Open(const QStringList& names) {
    PutBook(Records(names));
    OpenAddressBookCommand();
  }
};

}  // namespace quillane::test
