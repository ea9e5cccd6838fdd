#pragma once

/// @file
/// DescriptiveStats, a sample whose statistics are always current, and its report.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/stats/Qorvex_RS_DescStats.h"

namespace qorvex {

/// The statistics of one sample. All are 0, and mode_exists is false, for an empty one.
struct DescriptiveResults {
  /// In insertion order.
  Extended sum = 0;
  /// The sum of the squares, in insertion order.
  Extended sum_sq = 0;
  /// The arithmetic mean, sum / n.
  Extended mean = 0;
  /// Divided by n - 1, or by n for a population. 0 for one value.
  Extended variance = 0;
  /// The square root of the variance.
  Extended std_dev = 0;
  /// As GetMedian.
  Extended median = 0;
  /// The unique mode when mode_exists; otherwise what GetMode leaves.
  Extended mode = 0;
  /// Whether one value is more frequent than every other.
  bool mode_exists = false;
  /// The first in sorted order.
  Extended minimum = 0;
  /// The last in sorted order, so NaN when there is one.
  Extended maximum = 0;
  /// 0 below three values or when the standard deviation is zero within QorTolerance.
  Extended skew = 0;
  /// Excess kurtosis; 0 below four values or when the standard deviation is zero within
  /// QorTolerance.
  Extended kurtosis = 0;
  /// As GetQuartiles.
  Extended quartile_1st = 0;
  /// As GetQuartiles.
  Extended quartile_3rd = 0;
  /// The third quartile less the first.
  Extended inter_quartile_range = 0;
};

/// A line of a report.
struct QORVEX_EXPORT ReportFigure {
  /// What the figure is, or why it does not exist.
  ReportTextId label;
  /// Empty if the figure does not exist.
  std::optional<Extended> value = std::nullopt;

  /// The value to the given number of decimals; a number of values has none. Empty without a value.
  [[nodiscard]] std::string Text(int decimals) const;
};

/// A line of a report as text: the label, then, if the figure exists, a tab and its text.
[[nodiscard]] QORVEX_EXPORT std::string ReportLine(const ReportFigure& figure,
                                                   const std::string& text);

/// A sample of values, in insertion order, whose descriptive statistics are kept current after
/// every change.
///
/// Every result is, bit for bit, what a fresh computation on the values gives, whether they came at
/// once or one by one. NaN among the values makes the figures that depend on it NaN; it sorts last,
/// so it is the maximum. When memory runs out, the values may hold the change already; the results
/// follow with the next change or EndUpdate. Costs: setting n values O(n log n); adding or deleting
/// one O(n), without a sort unless the sample holds NaN. Memory: the values and a sorted copy, 32
/// bytes a value (48 while they grow one by one), and 16 more while sorting.
class QORVEX_EXPORT DescriptiveStats {
 public:
  /// An empty sample.
  DescriptiveStats() = default;
  /// A sample of its own with the same values.
  DescriptiveStats(const DescriptiveStats& other);
  /// Takes the sample over and leaves the other empty.
  DescriptiveStats(DescriptiveStats&& other) noexcept;
  /// Lets go of this sample and copies, or takes over, the other.
  DescriptiveStats& operator=(DescriptiveStats other) noexcept;
  ~DescriptiveStats() = default;

  /// Replaces the sample. The values become the sample's own: they are copied unless the argument
  /// was the only handle.
  void SetValues(TQorFloatVector values);
  /// A copy of the values, so that nobody writes into the sample behind its back.
  [[nodiscard]] TQorFloatVector Values() const;
  /// The number of values, n.
  [[nodiscard]] std::size_t NoOfValues() const noexcept { return values_.size(); }

  /// Appends one value.
  void AddValue(Extended value);
  /// Removes the value at the index. False, and nothing happens, when there is none.
  bool DeleteValue(std::int64_t index);
  /// Removes all values and ends an update.
  void Clear();

  /// While updating, changes leave the results as they are. The flag does not count: the first
  /// EndUpdate ends it.
  void BeginUpdate() noexcept { updating_ = true; }
  /// Ends an update and brings the results up to date.
  void EndUpdate();
  /// Whether an update has begun and not ended.
  [[nodiscard]] bool Updating() const noexcept { return updating_; }

  /// Population (divide by n) instead of sample statistics (divide by n - 1); initially false.
  [[nodiscard]] bool Population() const noexcept { return population_; }
  /// Chooses between the two; the results follow.
  void SetPopulation(bool population);

  /// The statistics; the reference stays valid and follows every change.
  [[nodiscard]] const DescriptiveResults& Results() const noexcept { return results_; }

  /// The figures of the report in their order; none for an empty sample. Ends an update first.
  [[nodiscard]] std::vector<ReportFigure> Figures();

  /// The labelled report, a line for each figure: label, tab, value to the given number of
  /// decimals. Ends an update first. An empty sample gives one line, the message rsVectorIsEmpty.
  [[nodiscard]] std::vector<std::string> Report(int decimals);

 private:
  void Swap(DescriptiveStats& other) noexcept;
  // Everything afresh, unless updating.
  void UpdateStats();
  // The two sums afresh.
  void SumUp();
  // Everything that follows from the values, their sorted copy and the two sums.
  void UpdateFromSums();

  TQorFloatVector values_;
  TQorFloatVector sorted_;
  DescriptiveResults results_;
  bool updating_ = false;
  bool population_ = false;
};

}  // namespace qorvex
