#pragma once

/// @file
/// Pairs of x and y whose figures no order, no split and no thread can change.

#include <cstdint>

#include "qorvex/base/exact/rational.h"
#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/stats/estimate.h"
#include "qorvex/stats/exact/decimals.h"
#include "qorvex/stats/exact/exact_sum.h"
#include "qorvex/stats/exact/extended_view.h"

namespace qorvex {

/// The exact sums over pairs of x and y, and the means, variances, covariance, correlation and
/// least-squares line that they determine.
///
/// - Every figure is the extended number nearest to its exact value, ties to even; infinite beyond
///   the format. Common leading digits lose no accuracy.
/// - The order of the pairs, and how they are split over several objects that are merged, makes no
///   difference to any bit. An object belongs to one thread at a time: several threads fill one
///   each, and the objects are merged.
/// - NaN and infinities: the means are those of IEEE 754 arithmetic, other figures that depend on
///   the variable are NaN. Zeros have no sign: a figure that is exactly 0 is +0.
/// - For numeric elements; decimal numbers are added as integers with their decimals. Amounts:
///   LinearModel, or an ExactSample of each variable.
/// - std::bad_alloc: Merge and Remove change nothing. After Add the object must be assigned or
///   destroyed.
/// - EMathError if there are too few pairs: rsVectorIsEmpty for none, rsVectorG1 for one pair in
///   sample figures.
/// - Cost: O(1) for a pair, some microseconds for a figure.
class QORVEX_EXPORT ExactPairs {
 public:
  /// No pair.
  ExactPairs() = default;
  /// No pair. An x that is added counts as the decimal number x * 10^-x_decimals, exactly, and a y
  /// as y * 10^-y_decimals: ExactPairs(2, 0) takes the x in cents. EMathError rsInvalidValue unless
  /// 0 <= decimals <= kMaxDecimals.
  ExactPairs(int x_decimals, int y_decimals);
  /// Adds a pair.
  void Add(Extended x, Extended y);
  /// @{
  /// Adds the pairs (x[i], y[i]). EMathError rsSameDimensions for different lengths; then nothing
  /// is added. For all numeric elements; those that are not Extended are converted to a temporary
  /// vector.
  void Add(VectorView<Extended> x, VectorView<Extended> y);
  template <ContiguousRange X, ContiguousRange Y>
  requires NumericElement<ElementOf<X>> && NumericElement<ElementOf<Y>>
  void Add(const X& x, const Y& y) {
    Add(VectorView<Extended>(AsExtended(x)), VectorView<Extended>(AsExtended(y)));
  }
  /// @}
  /// Adds the pairs of another object. EMathError rsInvalidValue if it has other decimals.
  void Merge(const ExactPairs& other);
  /// Takes back the pairs of another object. They must have been added before, which is not checked
  /// beyond their number: EMathError rsInvalidValue if there are fewer pairs, NaNs or infinities,
  /// or if the object has other decimals.
  void Remove(const ExactPairs& other);
  /// Takes back what an Add has added.
  template <class X, class Y>
  void Remove(const X& x, const Y& y) {
    ExactPairs part(x_decimals_, y_decimals_);
    part.Add(x, y);
    Remove(part);
  }

  /// The number of pairs.
  [[nodiscard]] std::uint64_t Count() const noexcept { return count_; }

  /// @{
  /// The sums of the values, of their squares and of the products; 0 for no pair.
  [[nodiscard]] Extended SumX() const;
  [[nodiscard]] Extended SumY() const;
  [[nodiscard]] Extended SumOfSquaresX() const;
  [[nodiscard]] Extended SumOfSquaresY() const;
  [[nodiscard]] Extended SumOfProducts() const;
  /// @}
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
  /// The square root of the variance, rounded once.
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
  /// @{
  /// The sum of the squared vertical distances from the line, 0 for points on a line; and the rest
  /// of the sum of squared deviations of y, which the line explains. With the errors of the line.
  [[nodiscard]] Extended SumOfSquaredErrors() const;
  [[nodiscard]] Extended RegressionSumOfSquares() const;
  /// @}

  /// Equal counts, equal decimals and equal sums.
  [[nodiscard]] friend bool operator==(const ExactPairs&, const ExactPairs&) = default;

 private:
  // n times the sums of products of deviations from the means.
  struct Deviations {
    exact::Dyadic xx, xy, yy;
  };
  [[nodiscard]] Deviations ScaledDeviations() const;
  // The figure of the deviations, after the checks for a line.
  template <class Figure>
  [[nodiscard]] Extended OfLine(Figure figure) const;
  // The sum of the x, or of the y.
  struct Variable {
    const ExactSum& sum;
    int decimals;
  };
  [[nodiscard]] Variable X() const { return {x_, x_decimals_}; }
  [[nodiscard]] Variable Y() const { return {y_, y_decimals_}; }
  // A variance or covariance, or its root.
  [[nodiscard]] Extended Moment(const ExactSum& products, const Variable& a, const Variable& b,
                                Estimate estimate,
                                Extended (exact::Rational::*round)() const) const;
  void RequireDecimalsOf(const ExactPairs& other) const;
  [[nodiscard]] bool IsFinite() const { return x_.IsFinite() && y_.IsFinite(); }

  int x_decimals_ = 0;
  int y_decimals_ = 0;
  std::uint64_t count_ = 0;
  ExactSum x_, y_;
  ExactSum xx_, xy_, yy_;
};

}  // namespace qorvex
