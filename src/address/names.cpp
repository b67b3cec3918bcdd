#include "address/names.h"

#include <algorithm>
#include <array>

#include "platform/codepage.h"
#include "platform/runtime_error.h"

namespace quillane {

namespace {

// Each is looked for in what the one before has left.  With a comma in front, or a third I behind, they are
// found by the same forms, and the comma stays with the name.
constexpr std::array<QByteArrayView, 3> Suffixes = {" JR.", " SR.", " II"};

/// -1 where there is none.  Each suffix begins with a blank, and a small letter is 32 above its capital.
qsizetype PlaceOfSuffix(QByteArrayView name, QByteArrayView suffix) {
  const auto same = [](char capital, char c) {
    return c == capital || (capital >= 'A' && c == capital + ('a' - 'A'));
  };
  for (qsizetype at = 0; (at = name.indexOf(' ', at)) >= 0 && at + suffix.size() <= name.size(); ++at)
    if (std::equal(suffix.begin(), suffix.end(), name.begin() + at, same)) return at;
  return -1;
}

/// A quick look, since few names have one.
bool MayHaveSuffix(QByteArrayView name) {
  const auto begins = [](char blank, char letter) {
    const char small = static_cast<char>(letter | 0x20);
    return blank == ' ' && (small == 'j' || small == 's' || small == 'i');
  };
  return std::adjacent_find(name.begin(), name.end(), begins) != name.end();
}

void AppendPersonText(QByteArray& texts, QByteArrayView storedName) {
  const PersonNameParts parts = PartsOfName(storedName);
  if (!parts.first.isEmpty()) {
    texts.append(parts.last).append(parts.suffix).append(", ").append(parts.first);
  } else {
    texts.append(parts.last.isEmpty() ? QByteArrayView(" ") : parts.last);
  }
}

void AppendListText(QByteArray& texts, Book book, QByteArrayView storedName) {
  if (book == Book::Company) {
    texts.append(storedName);
  } else {
    AppendPersonText(texts, storedName);
  }
}

QByteArray PersonKey(const QByteArray& text) {
  const qsizetype first = text.indexOf(',');
  if (first < 0) return text;
  const qsizetype second = text.indexOf(',', first + 1);
  const qsizetype comma = second < 0 ? first : second;
  if (comma == text.size() - 1) Raise(errors::InvalidProcedureCall);
  return text.mid(comma + 2) + ' ' + text.left(comma);
}

// Most names differ in their beginnings, which compare as one number.
constexpr qsizetype BeginningLength = sizeof(quint64);

/// How bytes are sorted: each by its capital letter without an accent.
using SortTable = std::array<uchar, 256>;

const SortTable& TheSortTable() {
  static const SortTable table = [] {
    SortTable bytes{};
    for (int i = 0; i < 256; ++i) {
      const char letter = static_cast<char>(i);
      const QByteArray upper = UpperCaseBytes(QByteArrayView(&letter, 1));
      const QString parts = FromCodePage(upper).normalized(QString::NormalizationForm_D);
      const char plain = parts.size() > 1 ? ToCodePage(parts.left(1))[0] : upper[0];
      bytes[static_cast<size_t>(i)] = static_cast<uchar>(plain);
    }
    return bytes;
  }();
  return table;
}

quint64 BeginningOf(QByteArrayView name, const SortTable& table) {
  quint64 beginning = 0;
  for (qsizetype i = 0; i < BeginningLength; ++i)
    beginning = beginning << 8 | (i < name.size() ? table[static_cast<uchar>(name[i])] : 0U);
  return beginning;
}

/// Of two names whose beginnings are alike.
bool StandsBefore(QByteArrayView a, QByteArrayView b, const SortTable& table) {
  const qsizetype common = std::min(a.size(), b.size());
  for (qsizetype i = BeginningLength; i < common; ++i) {
    const int order = table[static_cast<uchar>(a[i])] - table[static_cast<uchar>(b[i])];
    if (order != 0) return order < 0;
  }
  return a.size() != b.size() ? a.size() < b.size() : a < b;
}

}  // namespace

PersonNameParts PartsOfName(QByteArrayView storedName) {
  QByteArrayView name = TrimmedBytes(storedName), taken;
  const bool mayHave = MayHaveSuffix(name);
  for (const QByteArrayView suffix : Suffixes) {
    if (!mayHave) break;
    const qsizetype at = PlaceOfSuffix(name, suffix);
    if (at < 0) continue;
    taken = name.sliced(at);
    name = TrimmedBytes(name.first(at + 1));
  }
  const qsizetype blank = name.lastIndexOf(' ');
  if (blank <= 0) return {{}, name, {}};
  return {name.first(blank), name.sliced(blank + 1), taken};
}

QByteArray ListText(Book book, QByteArrayView storedName) {
  QByteArray text;
  AppendListText(text, book, storedName);
  return text;
}

QByteArray KeyOf(Book book, const QByteArray& listText) {
  const QByteArray key = book == Book::Company ? listText : PersonKey(listText);
  return key.leftJustified(FieldWidth(field::Name), ' ');
}

void NameRows::Clear() {
  texts_.clear();
  rows_.clear();
}

void NameRows::Reserve(int count) {
  texts_.reserve(static_cast<qsizetype>(count) * (FieldWidth(field::Name) + 1));
  rows_.reserve(static_cast<size_t>(count));
}

void NameRows::Add(Book book, QByteArrayView storedName) {
  const qsizetype start = texts_.size();
  AppendListText(texts_, book, storedName);
  rows_.push_back({start, texts_.size() - start});
}

void NameRows::Sort() {
  struct Place {
    quint64 beginning;
    Row row;
  };
  const SortTable& table = TheSortTable();
  std::vector<Place> order;
  order.reserve(rows_.size());
  for (const Row row : rows_) order.push_back({BeginningOf(TextOf(row), table), row});
  std::sort(order.begin(), order.end(), [&](const Place& a, const Place& b) {
    if (a.beginning != b.beginning) return a.beginning < b.beginning;
    return StandsBefore(TextOf(a.row), TextOf(b.row), table);
  });
  std::transform(order.begin(), order.end(), rows_.begin(), [](const Place& place) { return place.row; });
}

int NameRows::RowThatBegins(QByteArrayView typed, int start) const {
  const SortTable& table = TheSortTable();
  const auto alike = [&table](char a, char b) {
    return table[static_cast<uchar>(a)] == table[static_cast<uchar>(b)];
  };
  for (int step = 0; step < Count(); ++step) {
    const int row = (start + step) % Count();
    const QByteArrayView text = (*this)[row];
    if (text.size() >= typed.size() && std::equal(typed.begin(), typed.end(), text.begin(), alike))
      return row;
  }
  return -1;
}

QByteArrayView NameRows::operator[](int row) const {
  RequireIndex(row, Count());
  return TextOf(rows_[static_cast<size_t>(row)]);
}

}  // namespace quillane
