#include "sample.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "failure.h"
#include "model/page.h"
#include "model/proposal.h"
#include "values.h"

namespace quillane::scenario {

namespace {

/// What differs, a line each.
class Differences {
 public:
  void Compare(const QString& what, const QString& wanted, const QString& there) {
    if (wanted == there) return;
    wanted_.append(what + QLatin1Char(' ') + InQuotes(wanted));
    there_.append(what + QLatin1Char(' ') + InQuotes(there));
  }
  void ThrowIfAny() const {
    if (!wanted_.isEmpty()) throw Failure(wanted_.join(Separator), there_.join(Separator));
  }

 private:
  inline static const QString Separator = QStringLiteral("\n            ");
  QStringList wanted_, there_;
};

QJsonObject EntryOf(const QString& folder, const QString& name) {
  QFile file(QDir(folder).filePath(QStringLiteral("expected.json")));
  if (!file.open(QIODevice::ReadOnly))
    throw Failure(QStringLiteral("expected.json in ") + folder, file.errorString());
  const QJsonObject all = QJsonDocument::fromJson(file.readAll()).object();
  for (auto entry = all.begin(); entry != all.end(); ++entry)
    if (entry.key() == name || entry.key().startsWith(name + QLatin1String(" ("))) return entry->toObject();
  throw Failure(QStringLiteral("an entry %1 in expected.json").arg(name), QStringLiteral("there is none"));
}

QString YesNo(bool value) {
  return value ? QStringLiteral("shown") : QStringLiteral("hidden");
}

/// Every area of the item pages: what the entry does not name is empty.
void CompareTexts(const QJsonObject& texts, Differences& differences) {
  for (int window = 0; window < ItemPages; ++window)
    for (const Control& area : page(window).txt)
      differences.Compare(area.FullName(), texts[area.FullName()].toString(), area.Text());
}

void CompareColumns(const QJsonObject& columns, Differences& differences) {
  for (int window = 0; window < ItemPages; ++window)
    for (int row = page(window).FirstRow(); row <= page(window).LastRow(); ++row) {
      const int index = row;
      for (const Control* column : {&page(window).txtQty[index], &page(window).txtAmt[index]}) {
        const bool wanted = columns.contains(column->FullName());
        differences.Compare(column->FullName(), YesNo(wanted), YesNo(column->Visible()));
        if (wanted)
          differences.Compare(column->FullName(), columns[column->FullName()].toString(), column->Text());
      }
    }
}

void CompareMarks(const QJsonArray& exempt, Differences& differences) {
  for (int window = 0; window < ItemPages; ++window)
    for (const Control& mark : page(window).imgNoTax) {
      const bool wanted = exempt.contains(mark.FullName());
      differences.Compare(mark.FullName(), YesNo(wanted), YesNo(mark.Visible()));
      differences.Compare(mark.FullName() + QStringLiteral(".Tag"),
                          wanted ? QString() : QStringLiteral("Hide"), mark.Tag());
    }
}

void CompareTotals(const QJsonArray& totals, Differences& differences) {
  for (const int window : {5, CopyOfPage6})
    for (int at = 0; at < totals.size(); ++at) {
      const Control& area = page(window).txt[(at)];
      differences.Compare(area.FullName(), totals[at].toString(), area.Text());
    }
}

}  // namespace

void ExpectSample(World& world, const QString& name) {
  const QJsonObject entry = EntryOf(world.files.HomeSource(), name);
  Differences differences;
  CompareTexts(entry[QStringLiteral("texts")].toObject(), differences);
  CompareColumns(entry[QStringLiteral("columns")].toObject(), differences);
  CompareMarks(entry[QStringLiteral("exempt")].toArray(), differences);
  CompareTotals(entry[QStringLiteral("totals")].toArray(), differences);
  differences.Compare(QStringLiteral("pages in use"),
                      QString::number(entry[QStringLiteral("highest_page")].toInt()),
                      QString::number(proposal.HighestPage));
  differences.Compare(QStringLiteral("rate"), QString::number(entry[QStringLiteral("tax_rate")].toDouble()),
                      QString::number(static_cast<double>(tax.TaxRate)));
  differences.ThrowIfAny();
}

}  // namespace quillane::scenario
