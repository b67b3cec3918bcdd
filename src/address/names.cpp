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

QByteArray PersonText(QByteArrayView storedName) {
  const PersonNameParts parts = PartsOfName(storedName);
  if (parts.first.isEmpty()) return parts.last.isEmpty() ? QByteArray(" ") : parts.last.toByteArray();
  QByteArray text = parts.last.toByteArray();
  return text.append(parts.suffix).append(", ").append(parts.first);
}

QByteArray PersonKey(const QByteArray& text) {
  const qsizetype first = text.indexOf(',');
  if (first < 0) return text;
  const qsizetype second = text.indexOf(',', first + 1);
  const qsizetype comma = second < 0 ? first : second;
  if (comma == text.size() - 1) Raise(errors::InvalidProcedureCall);
  return text.mid(comma + 2) + ' ' + text.left(comma);
}

/// The capital letter without its accent.
char SortByte(char byte) {
  const QByteArray upper = UpperCaseBytes(QByteArrayView(&byte, 1));
  const QString parts = FromCodePage(upper).normalized(QString::NormalizationForm_D);
  return parts.size() > 1 ? ToCodePage(parts.left(1))[0] : upper[0];
}

QByteArray SortKey(const QByteArray& name) {
  static const auto table = [] {
    std::array<char, 256> bytes{};
    for (int i = 0; i < 256; ++i) bytes[static_cast<size_t>(i)] = SortByte(static_cast<char>(i));
    return bytes;
  }();
  QByteArray key(name.size(), Qt::Uninitialized);
  std::transform(name.begin(), name.end(), key.begin(),
                 [](char c) { return table[static_cast<unsigned char>(c)]; });
  return key;
}

struct SortRow {
  QByteArray key, name;
  bool operator<(const SortRow& other) const {
    const int order = key.compare(other.key);
    return order != 0 ? order < 0 : name < other.name;
  }
};

}  // namespace

PersonNameParts PartsOfName(QByteArrayView storedName) {
  QByteArrayView name = TrimmedBytes(storedName), taken;
  const QByteArray upper = UpperCaseBytes(name);
  for (const QByteArrayView suffix : Suffixes) {
    const qsizetype at = QByteArrayView(upper).first(name.size()).indexOf(suffix);
    if (at < 0) continue;
    taken = name.sliced(at);
    name = TrimmedBytes(name.first(at + 1));
  }
  const qsizetype blank = name.lastIndexOf(' ');
  if (blank <= 0) return {{}, name, {}};
  return {name.first(blank), name.sliced(blank + 1), taken};
}

QByteArray ListText(Book book, QByteArrayView storedName) {
  return book == Book::Company ? storedName.toByteArray() : PersonText(storedName);
}

QByteArray KeyOf(Book book, const QByteArray& listText) {
  const QByteArray key = book == Book::Company ? listText : PersonKey(listText);
  return key.leftJustified(FieldWidth(field::Name), ' ');
}

void SortNames(std::vector<QByteArray>& names) {
  std::vector<SortRow> rows;
  rows.reserve(names.size());
  for (const QByteArray& name : names) rows.push_back({SortKey(name), name});
  std::sort(rows.begin(), rows.end());
  std::transform(rows.begin(), rows.end(), names.begin(), [](SortRow& row) { return std::move(row.name); });
}

}  // namespace quillane
