// What a line of an imported list gives: a text for each category that was selected.
#pragma once
#include <QByteArray>
#include <QString>
#include <vector>

#include "address/record.h"

namespace quillane {

/// The categories by their places in lblFormat.
namespace category {
inline constexpr int Name = 0, Address1 = 1, Address2 = 2, City = 3, Phone = 4, SecondPhone = 5, Cell = 6,
                     Contact = 7, Email = 8;
}
inline constexpr int CategoryCount = 9;
using Categories = FixedArray<bool, CategoryCount>;
using BatchCells = FixedArray<QByteArray, CategoryCount>;

/// The field that category 0 to 8 goes to.
int CategoryField(int category);
/// "Name" or "Company Name", and so on.
QString CategoryCaption(Book book, int category);

/// A piece of a list's text.
struct Span {
  int start = 0, length = 0;
};
QByteArrayView PieceOf(const QByteArray& text, Span span);
/// The places of `wanted` in `text`, counted from 0.
std::vector<int> PlacesOf(QByteArrayView text, QByteArrayView wanted);

}  // namespace quillane
