#include "address/batch_cells.h"

#include <array>

namespace quillane {

namespace {

constexpr std::array<int, CategoryCount> Fields = {field::Name, field::Address1, field::Address2,
                                                   field::City, field::Phone,    field::SecondPhone,
                                                   field::Cell, field::Contact,  field::Email};

struct Captions {
  const char *person, *company;
};
constexpr std::array<Captions, CategoryCount> AllCaptions = {{{"Name", "Company Name"},
                                                              {"Address 1", "Address 1"},
                                                              {"Address 2", "Address 2"},
                                                              {"City, State Zip", "City, State Zip"},
                                                              {"Home Phone", "Company Phone"},
                                                              {"Work Phone", "Company Fax"},
                                                              {"Cell Phone", "Cell Phone"},
                                                              {"Other Contact Person", "Contact Person"},
                                                              {"Email Address", "Email Address"}}};

}  // namespace

int CategoryField(int category) {
  RequireIndex(category, CategoryCount);
  return Fields[static_cast<size_t>(category)];
}

QString CategoryCaption(Book book, int category) {
  RequireIndex(category, CategoryCount);
  const Captions& captions = AllCaptions[static_cast<size_t>(category)];
  return QString::fromLatin1(book == Book::Personal ? captions.person : captions.company);
}

QByteArrayView PieceOf(const QByteArray& text, Span span) {
  return QByteArrayView(text).sliced(span.start, span.length);
}

std::vector<int> PlacesOf(QByteArrayView text, QByteArrayView wanted) {
  std::vector<int> places;
  for (qsizetype at = text.indexOf(wanted); at >= 0; at = text.indexOf(wanted, at + 1))
    places.push_back(static_cast<int>(at));
  return places;
}

}  // namespace quillane
