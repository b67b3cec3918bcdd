#include "samples.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace quillane::bench {

double Samples::Quantile(double share) const {
  if (values_.empty()) return 0;
  std::vector<double> sorted = values_;
  std::sort(sorted.begin(), sorted.end());
  const double rank = std::ceil(share * static_cast<double>(sorted.size())) - 1;
  return sorted[static_cast<size_t>(std::clamp(rank, 0.0, static_cast<double>(sorted.size() - 1)))];
}

namespace {
QString Told(const Samples& samples, const QString& unit) {
  if (samples.IsEmpty()) return QStringLiteral("-");
  const auto number = [](double value) { return QString::number(value, 'f', value < 10 ? 3 : 1); };
  return QStringLiteral("%1 %2 (%3 to %4)")
      .arg(number(samples.Median()), unit, number(samples.Quantile(0.1)), number(samples.Quantile(0.9)));
}

double Measured(const Samples& ours, const Samples& bare, Aim::Of of) {
  switch (of) {
    case Aim::Of::Ratio:
      return ours.Median() / bare.Median();
    case Aim::Of::Difference:
      return ours.Median() - bare.Median();
    case Aim::Of::Value:
      break;
  }
  return ours.Median();
}

QString Told(const Aim& aim, double measured) {
  static const char* const kinds[] = {"ratio", "value", "difference"};
  return QStringLiteral("%1 at most %2: %3")
      .arg(QLatin1String(kinds[static_cast<int>(aim.of)]))
      .arg(aim.most)
      .arg(measured <= aim.most ? QStringLiteral("met") : QStringLiteral("MISSED"));
}

void PrintColumns(const QString& what, const QString& ours, const QString& bare, const QString& ratio,
                  const QString& aim) {
  std::printf("%-36s %-32s %-32s %6s  %s\n", qPrintable(what), qPrintable(ours), qPrintable(bare),
              qPrintable(ratio), qPrintable(aim));
  std::fflush(stdout);
}
}  // namespace

void PrintHeading() {
  PrintColumns(QStringLiteral("median (10 % to 90 %)"), QStringLiteral("Quillane"), QStringLiteral("bare"),
               QStringLiteral("ratio"), QStringLiteral("aim"));
}

void PrintLine(const QString& what, const QString& unit, const Samples& ours, const Samples& bare,
               const Aim& aim) {
  const QString ratio =
      bare.Median() > 0 ? QString::number(ours.Median() / bare.Median(), 'f', 2) : QString();
  PrintColumns(what, Told(ours, unit), Told(bare, unit), ratio, Told(aim, Measured(ours, bare, aim.of)));
}

}  // namespace quillane::bench
