#include "sample.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "model/page.h"
#include "model/proposal.h"
#include "script.h"
#include "values.h"

namespace quillane::scenario {

namespace {

QJsonObject EntryOf(const QString& folder, const QString& name) {
  QFile file(QDir(folder).filePath(QStringLiteral("expected.json")));
  if (!file.open(QIODevice::ReadOnly))
    throw Failure(QStringLiteral("expected.json in ") + folder, file.errorString());
  const QJsonObject all = QJsonDocument::fromJson(file.readAll()).object();
  for (auto entry = all.begin(); entry != all.end(); ++entry)
    if (entry.key() == name || entry.key().startsWith(name + QLatin1String(" ("))) return entry->toObject();
  throw Failure(QStringLiteral("an entry %1 in expected.json").arg(name), QStringLiteral("there is none"));
}

QString State(bool shown, const QString& text) {
  return shown ? InQuotes(text) : QStringLiteral("hidden");
}

}  // namespace

void ExpectSample(const QString& folder, const QString& name) {
  const QJsonObject entry = EntryOf(folder, name);
  const QJsonObject texts = entry["texts"].toObject(), columns = entry["columns"].toObject();
  const QJsonArray exempt = entry["exempt"].toArray(), totals = entry["totals"].toArray();
  QStringList wanted, found;
  const auto compare = [&](const QString& what, const QString& expected, const QString& there) {
    if (expected == there) return;
    wanted.append(what + QLatin1Char(' ') + expected);
    found.append(what + QLatin1Char(' ') + there);
  };
  for (int window = 0; window < ItemPages; ++window) {
    // What the entry does not name is empty, hidden or taxable.
    for (const Control& area : page(window).txt)
      compare(area.FullName(), texts[area.FullName()].toString(), area.Text());
    for (int row = page(window).FirstRow(); row <= page(window).LastRow(); ++row)
      for (const Control* column : {&page(window).txtQty[row], &page(window).txtAmt[row]}) {
        const QString own = column->FullName();
        compare(own, State(columns.contains(own), columns[own].toString()),
                State(column->Visible(), column->Text()));
      }
    for (const Control& mark : page(window).imgNoTax) {
      const bool shown = exempt.contains(mark.FullName());
      compare(mark.FullName(), State(shown, shown ? QString() : QStringLiteral("Hide")),
              State(mark.Visible(), mark.Tag()));
      compare(mark.FullName() + QStringLiteral(".Tag"), shown ? QString() : QStringLiteral("Hide"),
              mark.Tag());
    }
  }
  for (const int window : {5, CopyOfPage6})
    for (int at = 0; at < totals.size(); ++at)
      compare(page(window).txt[at].FullName(), totals[at].toString(), page(window).txt[at].Text());
  compare(QStringLiteral("pages in use"), QString::number(entry["highest_page"].toInt()),
          QString::number(proposal.HighestPage));
  compare(QStringLiteral("rate"), QString::number(entry["tax_rate"].toDouble()),
          QString::number(static_cast<double>(tax.TaxRate)));
  const QString separator = QStringLiteral("\n            ");
  if (!wanted.isEmpty()) throw Failure(wanted.join(separator), found.join(separator));
}

}  // namespace quillane::scenario
