// What the reader and the writer of contacts must agree on.
#pragma once
#include <QDate>
#include <QString>

namespace quillane {

struct CityParts {
  QString locality, region, code, country;
};
/// "Bend, OR 97701".
QString CityLine(const CityParts& parts);
/// "Jun 19,2027", as an event date stands in a record.
QString EventDateText(QDate date);

}  // namespace quillane
