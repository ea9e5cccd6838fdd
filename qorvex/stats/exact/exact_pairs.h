#pragma once

/// @file
/// Pairs of x and y whose figures no order, no split and no thread can change.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/stats/exact/exact_sum.h"
#include "qorvex/stats/exact/extended_view.h"

namespace qorvex {

/// The exact sums over pairs of x and y, and the means, variances, covariance, correlation and
/// least-squares line that they determine.
///
/// - Every figure is the nearest 80-bit number to its exact value, infinite beyond the format.
///   Digits that all values have in common cost nothing.
/// - Pairs can be added in any order, to several objects that are merged, and removed again. Equal
///   pairs give equal bits.
/// - NaN and infinities: the means are those of IEEE 754 arithmetic, all other figures that depend
///   on the variable are NaN.
/// - Figures raise EMathError if there are too few pairs: rsVectorIsEmpty for none, rsVectorG1 for
///   one pair in sample figures. Removing a pair that was not added gives meaningless figures.
/// - Objects may be used on different threads at the same time; one object must not be changed
///   while another thread uses it.
class QORVEX_EXPORT ExactPairs {
 public:
  /// Adds a pair.
  void Add(Extended x, Extended y);
  /// Adds the pairs (x[i], y[i]). EMathError rsSameDimensions for different lengths; then nothing
  /// is added.
  void Add(VectorView<Extended> x, VectorView<Extended> y);
  /// Removes a pair that was added before. EMathError rsVectorIsEmpty if there is none.
  void Remove(Extended x, Extended y);
  /// Removes the pairs (x[i], y[i]). EMathError, in this order: rsSameDimensions for different
  /// lengths; rsVectorTooSmall if there are fewer pairs. Then nothing is removed.
  void Remove(VectorView<Extended> x, VectorView<Extended> y);
  /// Adds the pairs of another object.
  void Merge(const ExactPairs& other);

  /// @{
  /// The same for ranges of any numeric elements, which are converted to extended precision.
  template <ContiguousRange X, ContiguousRange Y>
  requires NumericElement<ElementOf<X>> && NumericElement<ElementOf<Y>>
  void Add(const X& x, const Y& y) {
    Add(VectorView<Extended>(AsExtended(x)), VectorView<Extended>(AsExtended(y)));
  }
  template <ContiguousRange X, ContiguousRange Y>
  requires NumericElement<ElementOf<X>> && NumericElement<ElementOf<Y>>
  void Remove(const X& x, const Y& y) {
    Remove(VectorView<Extended>(AsExtended(x)), VectorView<Extended>(AsExtended(y)));
  }
  /// @}

  /// The number of pairs.
  [[nodiscard]] std::uint64_t Count() const noexcept { return count_; }

  /// @{
  /// The mean.
  [[nodiscard]] Extended MeanX() const;
  [[nodiscard]] Extended MeanY() const;
  /// @}
  /// @{
  /// The sum of squared deviations from the mean over n - 1, or over n.
  [[nodiscard]] Extended SampleVarianceX() const;
  [[nodiscard]] Extended SampleVarianceY() const;
  [[nodiscard]] Extended PopulationVarianceX() const;
  [[nodiscard]] Extended PopulationVarianceY() const;
  /// @}
  /// @{
  /// The square root of the variance.
  [[nodiscard]] Extended SampleStdDevX() const;
  [[nodiscard]] Extended SampleStdDevY() const;
  [[nodiscard]] Extended PopulationStdDevX() const;
  [[nodiscard]] Extended PopulationStdDevY() const;
  /// @}
  /// @{
  /// The sum of products of deviations from the means over n - 1, or over n.
  [[nodiscard]] Extended SampleCovariance() const;
  [[nodiscard]] Extended PopulationCovariance() const;
  /// @}

  /// Pearson's correlation coefficient; exactly 1 or -1 for points on a line. EMathError:
  /// rsVectorG1 for one pair; rsSameValue if all x or all y are equal.
  [[nodiscard]] Extended Correlation() const;
  /// The square of the correlation, with its errors, rounded once.
  [[nodiscard]] Extended Determination() const;

  /// @{
  /// The least-squares line y = intercept + slope * x. EMathError: rsVectorG1 for one pair;
  /// rsSameValue if all x are equal.
  [[nodiscard]] Extended Slope() const;
  [[nodiscard]] Extended Intercept() const;
  /// @}
  /// The sum of the squared vertical distances from the line, with its errors; 0 for points on a
  /// line.
  [[nodiscard]] Extended SumOfSquaredErrors() const;

  /// Equal counts and sums: the objects hold the same pairs, or pairs with the same figures.
  [[nodiscard]] friend bool operator==(const ExactPairs&, const ExactPairs&) = default;

 private:
  std::uint64_t count_ = 0;
  ExactSum x_, y_;
  ExactSum xx_, xy_, yy_;
};

}  // namespace qorvex
