#include "address/csv.h"

#include <algorithm>
#include <array>
#include <limits>

namespace quillane {

namespace {

constexpr char MaskedBreak = '\xC8', MaskedComma = '\xEA';
const QByteArray LineBreak = QByteArrayLiteral("\r\n");
constexpr std::array<QByteArrayView, CsvFieldCount> Names = {"First Name",
                                                             "Last Name",
                                                             "Middle Name",
                                                             "Name",
                                                             "Nickname",
                                                             "E-mail Address",
                                                             "Home Street",
                                                             "Home City",
                                                             "Home Postal Code",
                                                             "Home State",
                                                             "Home Country",
                                                             "Home Phone",
                                                             "Home Fax",
                                                             "Mobile Phone",
                                                             "Personal Web Page",
                                                             "Business Street",
                                                             "Business City",
                                                             "Business Postal Code",
                                                             "Business State",
                                                             "Business Country",
                                                             "Business Web Page",
                                                             "Business Phone",
                                                             "Business Fax",
                                                             "Pager",
                                                             "Company",
                                                             "Job Title",
                                                             "Department",
                                                             "Office Location",
                                                             "Notes"};

/// Overwrites the line breaks inside quoted fields.  A field begins at `,"` and ends at `",`; each beginning
/// is paired with the next ending, and behind the last ending the first one follows after one beginning that
/// has none.  Once a field has been followed to its end, later ones lose their first line break only.
class BreakMask {
 public:
  explicit BreakMask(QByteArray& text)
      : text_(text), endings_(PlacesOf(text, "\",")), breaks_(PlacesOf(text, LineBreak)) {}

  void Run() {
    if (endings_.empty()) return;
    const std::vector<int> beginnings = PlacesOf(text_, ",\"");
    size_t ending = 0;
    for (const int beginning : beginnings) {
      if (ending < endings_.size()) {
        MaskField(beginning, endings_[ending++]);
      } else {
        ending = 0;
      }
    }
  }

 private:
  bool HasBreakBefore(int end) const { return next_ < breaks_.size() && breaks_[next_] < end; }
  void MaskBreak() {
    const auto at = breaks_[next_++];
    text_[at] = text_[at + 1] = MaskedBreak;
  }
  void MaskField(int beginning, int end) {
    while (HasBreakBefore(beginning)) ++next_;
    if (!HasBreakBefore(end)) return;
    MaskBreak();
    if (spanned_) return;
    while (HasBreakBefore(end)) MaskBreak();
    spanned_ = next_ < breaks_.size();
  }

  QByteArray& text_;
  std::vector<int> endings_, breaks_;
  size_t next_ = 0;  ///< the first line break that may still be masked
  bool spanned_ = false;
};

void SplitLines(CsvList& list, qsizetype start) {
  for (qsizetype end = 0; (end = list.text.indexOf(LineBreak, start)) >= 0; start = end + LineBreak.size())
    list.lines.push_back({static_cast<int>(start), static_cast<int>(end - start)});
}

void EmptyBadLines(CsvList& list) {
  list.BadRecordFlags.assign(list.lines.size(), false);
  for (size_t i = 0; i < list.lines.size(); ++i) {
    if (PieceOf(list.text, list.lines[i]).count('"') % 2 == 0) continue;
    list.BadRecordFlags[i] = true;
    list.lines[i].length = 0;
  }
}

/// Overwrites the first comma between each quote of a line and the next, be the first one an opening or a
/// closing quote.
void MaskCommas(QByteArray& text, Span line) {
  char* const end = text.data() + line.start + line.length;
  char* quote = std::find(text.data() + line.start, end, '"');
  while (quote != end) {
    char* const next = std::find(quote + 1, end, '"');
    char* const comma = std::find(quote + 1, next, ',');
    if (next != end && comma != next) *comma = MaskedComma;
    quote = next;
  }
}

/// The place of a name among the entries of the header, counted from 0; -1 where no entry is just that name.
int EntryOf(QByteArrayView header, QByteArrayView name) {
  int entry = 0;
  for (qsizetype start = 0; start <= header.size(); ++entry) {
    const qsizetype comma = header.indexOf(',', start);
    const qsizetype end = comma < 0 ? header.size() : comma;
    if (header.sliced(start, end - start) == name) return entry;
    start = end + 1;
  }
  return -1;
}

/// A name that the header has only as a part of another is a column too, of the number of its place in the
/// line.
void FindColumns(CsvList& list, QByteArrayView header) {
  constexpr qsizetype HighestColumn = std::numeric_limits<qint16>::max();
  for (int i = 0; i < CsvFieldCount; ++i) {
    const QByteArrayView name = Names[static_cast<size_t>(i)];
    const qsizetype place = header.indexOf(name) + 1;
    if (place == 0) continue;
    list.CsvPresent[i] = true;
    if (place <= HighestColumn) list.CsvColumn[i] = static_cast<int>(place);
    const int entry = EntryOf(header, name);
    if (entry >= 0 && entry <= HighestColumn) list.CsvColumn[i] = entry;
  }
}

/// The text between the comma `column` and the one behind it.  Where the line has too few commas, the count
/// begins anew with its beginning.
QByteArrayView ColumnOf(QByteArrayView line, int column) {
  const int commas =
      static_cast<int>(std::min<qsizetype>(line.count(','), std::numeric_limits<int>::max() - 1));
  qsizetype start = 0;
  for (int left = column % (commas + 1); left > 0; --left) start = line.indexOf(',', start) + 1;
  const qsizetype end = line.indexOf(',', start);
  return line.sliced(start, (end < 0 ? line.size() : end) - start);
}

QByteArray PersonName(const CsvList& list, int line) {
  const bool inTwoParts = list.CsvPresent[static_cast<int>(CsvField::FirstName)] &&
                          list.CsvPresent[static_cast<int>(CsvField::LastName)];
  if (!inTwoParts) return CsvValue(list, line, CsvField::Name);
  return CsvValue(list, line, CsvField::FirstName) + ' ' + CsvValue(list, line, CsvField::LastName);
}

QByteArray CompanyName(const CsvList& list, int line) {
  if (!list.CsvPresent[static_cast<int>(CsvField::Company)]) return "No Company Name Given";
  return CsvValue(list, line, CsvField::Company);
}

QByteArray CityLine(const CsvList& list, int line) {
  // An emptied line is a blank record.
  if (list.lines[static_cast<size_t>(line)].length == 0) return {};
  const bool person = list.book == Book::Personal;
  return CsvValue(list, line, person ? CsvField::HomeCity : CsvField::BusinessCity) + ", " +
         CsvValue(list, line, person ? CsvField::HomeState : CsvField::BusinessState) + ' ' +
         CsvValue(list, line, person ? CsvField::HomePostalCode : CsvField::BusinessPostalCode);
}

}  // namespace

std::optional<CsvList> ParseCsvList(const QByteArray& text, Book book, const Categories& selected) {
  CsvList list;
  list.text = text;
  list.book = book;
  list.selected = selected;
  BreakMask(list.text).Run();
  const qsizetype header = list.text.indexOf(LineBreak);
  if (header < 0) return std::nullopt;
  SplitLines(list, header + LineBreak.size());
  EmptyBadLines(list);
  for (const Span line : list.lines) MaskCommas(list.text, line);
  FindColumns(list, QByteArrayView(list.text).first(header));
  return list;
}

QByteArray CsvValue(const CsvList& list, int line, CsvField field) {
  const int index = static_cast<int>(field);
  if (!list.CsvPresent[index] || field == CsvField::Nickname) return {};
  const int column = field == CsvField::FirstName ? 0 : list.CsvColumn[index];
  return ColumnOf(PieceOf(list.text, list.lines[static_cast<size_t>(line)]), column).toByteArray();
}

BatchCells CellsOf(const CsvList& list, int line) {
  const auto value = [&](CsvField field) { return CsvValue(list, line, field); };
  const bool person = list.book == Book::Personal;
  BatchCells cells;
  cells[category::Name] = person ? PersonName(list, line) : CompanyName(list, line);
  cells[category::Address1] = value(person ? CsvField::HomeStreet : CsvField::BusinessStreet);
  cells[category::City] = CityLine(list, line);
  cells[category::Phone] = value(person ? CsvField::HomePhone : CsvField::BusinessPhone);
  cells[category::SecondPhone] = value(person ? CsvField::BusinessPhone : CsvField::BusinessFax);
  cells[category::Cell] = value(CsvField::MobilePhone);
  if (!person) cells[category::Contact] = value(CsvField::Name);
  cells[category::Email] = value(CsvField::EmailAddress);
  for (int i = 0; i < CategoryCount; ++i)
    if (!list.selected[i]) cells[i].clear();
  return cells;
}

}  // namespace quillane
