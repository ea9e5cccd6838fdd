#pragma once

/// @file
/// DescriptiveStats: a sample whose statistics are always up to date, and its report.

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/stats/Qorvex_RS_DescStats.h"
#include "qorvex/vector/building.h"

namespace qorvex {

/// The statistics of one sample. For an empty sample all are 0, and mode_exists is false.
struct DescriptiveResults {
  /// The sum, added in insertion order.
  Extended sum = 0;
  /// The sum of the squares, added in insertion order.
  Extended sum_sq = 0;
  /// The arithmetic mean, sum / n.
  Extended mean = 0;
  /// Divided by n - 1, or by n for a population. 0 for one value.
  Extended variance = 0;
  /// The square root of the variance.
  Extended std_dev = 0;
  /// See GetMedian.
  Extended median = 0;
  /// The mode if mode_exists; otherwise what GetMode stores.
  Extended mode = 0;
  /// Whether one value occurs more often than every other.
  bool mode_exists = false;
  /// The first value in sorted order.
  Extended minimum = 0;
  /// The last value in sorted order; NaN if the sample contains one.
  Extended maximum = 0;
  /// 0 if n < 3, or if the standard deviation is zero within QorTolerance.
  Extended skew = 0;
  /// Excess kurtosis; 0 if n < 4, or if the standard deviation is zero within QorTolerance.
  Extended kurtosis = 0;
  /// See GetQuartiles.
  Extended quartile_1st = 0;
  /// See GetQuartiles.
  Extended quartile_3rd = 0;
  /// The third quartile minus the first.
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

/// The figures of a report on n values in their order; none for n = 0. Skewness and kurtosis exist
/// only if the values have a spread: a standard deviation that counts as different from zero.
[[nodiscard]] QORVEX_EXPORT std::vector<ReportFigure> DescriptiveFigures(
    const DescriptiveResults& results, std::size_t n, bool population, bool has_spread);

/// A line of a report as text: the label, then, if the figure exists, a tab and its text.
[[nodiscard]] QORVEX_EXPORT std::string ReportLine(const ReportFigure& figure,
                                                   const std::string& text);

/// A sample of values in insertion order. Its descriptive statistics are updated after every
/// change.
///
/// - Every result has exactly the bits that a computation from all values gives, whether the values
///   were set at once or one by one.
/// - NaN among the values makes the results that depend on it NaN. It sorts last, so it becomes the
///   maximum.
/// - If memory runs out during a change, the values may already include it. The results follow at
///   the next change or EndUpdate.
/// - Cost: O(n log n) to set n values; O(n) to add or delete one, without sorting unless the sample
///   contains NaN.
/// - Memory: the values and a sorted copy, 32 bytes a value (48 while values are added one by one),
///   and 16 more during a sort.
class QORVEX_EXPORT DescriptiveStats {
 public:
  /// Creates an empty sample.
  DescriptiveStats() = default;
  /// Copies the values; the two samples are independent.
  DescriptiveStats(const DescriptiveStats& other);
  /// Moves the values; the other sample becomes empty.
  DescriptiveStats(DescriptiveStats&& other) noexcept;
  /// Copies or moves the other sample.
  DescriptiveStats& operator=(DescriptiveStats other) noexcept;
  ~DescriptiveStats() = default;

  /// @{
  /// Replaces all values. They are copied unless the argument is the only handle to its buffer.
  void SetValues(TQorFloatVector values);
  template <ContiguousRange Range>
  requires std::same_as<ElementOf<Range>, Extended>
  void SetValues(const Range& values) { SetValues(CopyVector<Extended>(values)); }
  /// @}
  /// A copy of the values, so that changes to it do not affect the sample.
  [[nodiscard]] TQorFloatVector Values() const;
  /// The number of values, n.
  [[nodiscard]] std::size_t NoOfValues() const noexcept { return values_.size(); }

  /// Appends one value.
  void AddValue(Extended value);
  /// Removes the value at the index. Returns false, without any change, if the index is out of
  /// range.
  bool DeleteValue(std::int64_t index);
  /// Removes all values, and ends an update.
  void Clear();

  /// Suspends the computation of results until EndUpdate. Calls do not nest: the first EndUpdate
  /// ends all.
  void BeginUpdate() noexcept { updating_ = true; }
  /// Ends an update and computes the results.
  void EndUpdate();
  /// Whether an update is in progress.
  [[nodiscard]] bool Updating() const noexcept { return updating_; }

  /// Whether the statistics are those of a population (divided by n) instead of a sample (divided
  /// by n - 1); false by default.
  [[nodiscard]] bool Population() const noexcept { return population_; }
  /// Chooses between the two, and updates the results.
  void SetPopulation(bool population);

  /// The current statistics. The reference stays valid and follows every change.
  [[nodiscard]] const DescriptiveResults& Results() const noexcept { return results_; }

  /// The figures of the report in their order; none for an empty sample. Ends an update first.
  [[nodiscard]] std::vector<ReportFigure> Figures();

  /// The report: one line for each figure, with its label, a tab, and the value to the given number
  /// of decimals. Ends an update first. For an empty sample it is one line, the message
  /// rsVectorIsEmpty.
  [[nodiscard]] std::vector<std::string> Report(int decimals);

 private:
  void Swap(DescriptiveStats& other) noexcept;
  // Computes everything from the values, unless updating.
  void UpdateStats();
  // Computes the two sums from the values.
  void SumUp();
  // Computes what depends on the values, their sorted copy and the two sums.
  void UpdateFromSums();

  TQorFloatVector values_;
  TQorFloatVector sorted_;
  DescriptiveResults results_;
  bool updating_ = false;
  bool population_ = false;
};

}  // namespace qorvex
