#pragma once

/// @file
/// ExactSample: descriptive statistics that are exact until they are rounded once.

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "qorvex/base/Qorvex_rs_math.h"
#include "qorvex/base/exact/rational.h"
#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/stats/exact/decimals.h"
#include "qorvex/stats/exact/fixed_point.h"
#include "qorvex/stats/exact/special_counts.h"

namespace qorvex {

namespace exact::detail {
struct PowerSums;
}

/// What a sample says about its values, without the values: their number, the exact sums of their
/// powers, and their extremes.
///
/// - Every figure is the extended number nearest to its exact value, ties to even.
/// - The order of the values, and how they are split over several samples that are merged, makes no
///   difference to any bit. A sample belongs to one thread at a time: several threads fill one
///   each, and the samples are merged.
/// - Amounts and scaled integers count as the decimal numbers that they stand for, and not as the
///   nearest extended ones. They may be mixed with others.
/// - kPowerSums = 2 has the figures up to the standard deviation; 4 has skewness and kurtosis too,
///   and takes more than twice as long.
/// - NaN and infinities have the result that IEEE 754 gives the formula: sums and mean are then NaN
///   or infinite, extremes stay, and the figures of spread and shape are NaN. They are counted, so
///   that they can be removed again.
/// - Zeros have no sign: a figure that is exactly 0 is +0.
/// - Extended values must not be encodings that the processor refuses, which no arithmetic yields.
/// - std::bad_alloc: Merge and Remove change nothing. After Add the sample must be assigned or
///   destroyed.
/// - No value: EMathError rsVectorIsEmpty, except for sums, which are 0.
/// - Cost: O(1) for a value, a few microseconds for a figure. The object has some hundred bytes, at
///   worst a few kilobytes for each power.
template <int kPowerSums = 4>
class QORVEX_EXPORT ExactSample {
  static_assert(kPowerSums == 2 || kPowerSums == 4);

 public:
  /// No value.
  ExactSample() = default;

  /// Adds a value.
  void Add(Extended x) { Add<Extended>(VectorView<Extended>({x})); }
  /// @{
  /// Adds every element. For all elements.
  template <AnyElement T>
  void Add(VectorView<T> values);
  template <ContiguousRange Range>
  requires AnyElement<ElementOf<Range>>
  void Add(const Range& values) { Add<ElementOf<Range>>(VectorView<ElementOf<Range>>(values)); }
  /// @}
  /// Adds every integer times 10^-decimals: AddScaled({1299}, 2) adds 12.99. EMathError
  /// rsInvalidValue unless 0 <= decimals <= kMaxDecimals.
  void AddScaled(VectorView<std::int64_t> values, int decimals);
  /// Adds every value of another sample.
  void Merge(const ExactSample& other);

  /// Takes back every value of another sample.
  ///
  /// - The values must have been added before: this is not checked beyond their number. EMathError
  ///   rsInvalidValue if more values, NaNs or infinities are removed than the sample has. A sample
  ///   of values that were never added may have a negative variance, whose root raises EInvalidOp.
  /// - An extreme that is removed is not known any more.
  void Remove(const ExactSample& other);
  /// @{
  /// Take back what Add and AddScaled have added.
  template <class Values>
  void Remove(const Values& values) {
    ExactSample part;
    part.Add(values);
    Remove(part);
  }
  void RemoveScaled(VectorView<std::int64_t> values, int decimals) {
    ExactSample part;
    part.AddScaled(values, decimals);
    Remove(part);
  }
  /// @}

  /// The number of values, n.
  [[nodiscard]] std::uint64_t Count() const {
    return finite_ + static_cast<std::uint64_t>(special_.Total());
  }
  /// No value is infinite or NaN.
  [[nodiscard]] bool IsFinite() const { return !special_.Any(); }
  /// The sum; infinite beyond the format.
  [[nodiscard]] Extended Sum() const;
  /// The sum of the squares; infinite beyond the format.
  [[nodiscard]] Extended SumOfSquares() const;
  /// The mean, finite even where the sum is not.
  [[nodiscard]] Extended Mean() const;
  /// @{
  /// The sum of (x - mean)^2 over n - 1 or n. n = 1: the sample variance raises EMathError
  /// rsVectorG1, the population variance is 0.
  [[nodiscard]] Extended SampleVariance() const;
  [[nodiscard]] Extended PopulationVariance() const;
  /// @}
  /// @{
  /// The root of the variance, with its errors. Rounded from the exact variance, so that it is
  /// finite where the variance is not.
  [[nodiscard]] Extended SampleStdDev() const;
  [[nodiscard]] Extended PopulationStdDev() const;
  /// @}
  /// @{
  /// Skewness, as GetSampleSkew and GetPopulationSkew define it. EMathError: rsVectorG2 if n < 3;
  /// rsStdDev if all values are equal.
  [[nodiscard]] Extended SampleSkewness() const requires(kPowerSums == 4);
  [[nodiscard]] Extended PopulationSkewness() const requires(kPowerSums == 4);
  /// @}
  /// @{
  /// Excess kurtosis, as GetSampleKurtosis and GetPopulationKurtosis define it. EMathError:
  /// rsVectorG3 if n < 4; rsStdDev if all values are equal.
  [[nodiscard]] Extended SampleKurtosis() const requires(kPowerSums == 4);
  [[nodiscard]] Extended PopulationKurtosis() const requires(kPowerSums == 4);
  /// @}
  /// @{
  /// The least and the greatest value, rounded if it is a decimal number. Nothing if there is no
  /// value, or if the extreme has been removed, because the next one is not known. NaN if a value
  /// is NaN. Zeros are +0.
  [[nodiscard]] std::optional<Extended> Minimum() const;
  [[nodiscard]] std::optional<Extended> Maximum() const;
  /// @}

  /// @{
  /// The exact mean, the exact sum of (x - mean)^2, and the exact sum of the powers x^k for 1 <= k
  /// <= kPowerSums. EMathError rsInvalidValue for another k; EInvalidOp unless all values are
  /// finite.
  [[nodiscard]] exact::Rational ExactMean() const;
  [[nodiscard]] exact::Rational ExactSumOfSquaredDeviations() const;
  [[nodiscard]] exact::Rational PowerSum(int k) const;
  /// @}

  /// The sample as bytes. Equal samples have equal bytes, on every machine. Integers start with
  /// their lowest byte:
  ///
  /// | bytes | contents                                                                       |
  /// |-------|--------------------------------------------------------------------------------|
  /// | 4     | QXSM                                                                           |
  /// | 1     | version: 1                                                                     |
  /// | 1     | kPowerSums                                                                     |
  /// | 2     | decimals d, as few as possible                                                 |
  /// | 8 * 4 | how many values are finite, NaN, positive infinities, negative infinities: at  |
  /// |       | most 2^61 each                                                                 |
  /// | 1     | 1 if the minimum of the finite values is known, plus 2 if the maximum is       |
  /// | 10    | minimum: 80 bits, 0 if unknown                                                 |
  /// | 10    | maximum                                                                        |
  /// | ...   | for each power k the sum of (10^d x)^k over the finite values: 4 bytes for the |
  /// |       | signed position p, 4 for the number of words, and the words of 8 bytes. It is  |
  /// |       | the shortest integer in two's complement, times 2^(64 p).                      |
  [[nodiscard]] std::vector<std::byte> ToBytes() const;
  /// The sample with these bytes. EMathError rsInvalidValue, with a text that says what is wrong,
  /// unless ToBytes writes the same bytes for it and its sums are possible: a variance, for
  /// instance, is not negative.
  [[nodiscard]] static ExactSample FromBytes(std::span<const std::byte> bytes);

  /// The same count, the same sums of powers, the same extremes.
  [[nodiscard]] friend bool operator==(const ExactSample& a, const ExactSample& b) {
    return a.IsEqual(b);
  }

 private:
  using Sums = std::array<exact::FixedPoint, std::size_t{kPowerSums}>;

  template <class T>
  void AddIntegers(VectorView<T> values, int decimals);
  // Counts finite values and their extremes.
  void CountValues(std::uint64_t finite, const std::optional<Extended>& minimum,
                   const std::optional<Extended>& maximum);
  [[nodiscard]] bool IsEqual(const ExactSample& other) const;
  // Changes the unit of the sums to 10^-decimals, which must not be a larger one.
  void Refine(int decimals);
  // The same sample in the largest unit in which all sums are multiples of powers of two.
  [[nodiscard]] ExactSample Canonical() const;
  // 10^decimals, to the power k.
  [[nodiscard]] exact::Dyadic Unit(int k) const;
  // The sums in units, of which skewness and kurtosis are independent.
  [[nodiscard]] exact::detail::PowerSums Powers() const;
  // The sum of (x - mean)^2 over the divisor.
  [[nodiscard]] exact::Rational Variance(std::uint64_t divisor) const;
  // Whether sums of any values can be like this.
  [[nodiscard]] bool IsPossible() const;
  void RequireCount(std::uint64_t least, MessageId error) const;
  void RequireFinite() const;

  Sums sums_;  // of the powers of x * 10^decimals_, for finite x
  std::uint64_t finite_ = 0;
  exact::SpecialCounts special_;
  std::optional<Extended> minimum_;  // of the finite values
  std::optional<Extended> maximum_;
  int decimals_ = 0;
};

}  // namespace qorvex
