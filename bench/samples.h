// Measurements and how they are told: medians with their spread, as ratios.
#pragma once
#include <QString>
#include <vector>

namespace quillane::bench {

/// Repeated measurements of one thing, in milliseconds or megabytes.
class Samples {
 public:
  void Add(double value) { values_.push_back(value); }
  bool IsEmpty() const { return values_.empty(); }
  double Median() const { return Quantile(0.5); }
  /// The value below which that share of the measurements lies.
  double Quantile(double share) const;

 private:
  std::vector<double> values_;
};

/// What a line of the report holds against what it aims at.
struct Aim {
  enum class Of { Ratio, Value, Difference } of;
  double most;
};

void PrintHeading();
/// "page change   2.1 ms (2.0 to 2.4)   0.9 ms (0.8 to 1.0)   2.33   under 4: met"
void PrintLine(const QString& what, const QString& unit, const Samples& ours, const Samples& bare,
               const Aim& aim);

}  // namespace quillane::bench
