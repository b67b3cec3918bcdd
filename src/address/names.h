// How a book's list shows the names of its records, and the way back from a row to a name.
#pragma once
#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <vector>

#include "address/record.h"

namespace quillane {

/// A person's name, first name first, as the list takes it apart.  A name of one word is all last name, and
/// its suffix is left out.
struct PersonNameParts {
  QByteArrayView first, last, suffix;
};
PersonNameParts PartsOfName(QByteArrayView storedName);

/// What the list shows for a stored name.  A company stands as it is stored, with its blanks behind; a person
/// by the last name: "John Doe JR." as "Doe JR., John".
QByteArray ListText(Book book, QByteArrayView storedName);

/// The stored name that a row stands for, padded as it is stored.  Not every row leads back: "Cher JR." shows
/// as "Cher".  Throws 5 for a person's row that ends in its comma.
QByteArray KeyOf(Book book, const QByteArray& listText);

/// The rows of a list of names, as ListText gives them.  They lie one behind the other in one text, since a
/// list of 32,767 is filled anew after every save.
class NameRows {
 public:
  void Clear();
  void Reserve(int count);
  void Add(Book book, QByteArrayView storedName);
  /// Sorts without regard to case and accents, character by character; what is alike then stands by its
  /// bytes.
  void Sort();
  /// The first row from `start` on, going round, that begins with `typed` without regard to case and accents;
  /// -1 for none.
  int RowThatBegins(QByteArrayView typed, int start) const;
  int Count() const { return static_cast<int>(rows_.size()); }
  /// Throws 9.
  QByteArrayView operator[](int row) const;

 private:
  struct Row {
    qsizetype start = 0, length = 0;
  };
  QByteArrayView TextOf(Row row) const { return QByteArrayView(texts_).sliced(row.start, row.length); }
  QByteArray texts_;
  std::vector<Row> rows_;
};

}  // namespace quillane
