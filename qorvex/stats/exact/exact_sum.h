#pragma once

/// @file
/// ExactSum: sums of values and of products without any rounding before the result.

#include <array>
#include <cstddef>
#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/stats/exact/fixed_point.h"
#include "qorvex/stats/exact/special_counts.h"

namespace qorvex {

/// A sum of values, squares and products that is exact until Round() rounds it, once.
///
/// - The order of the values, and how they are split over several sums that are merged, makes no
///   difference to any bit.
/// - NaN and infinities have the result that IEEE 754 gives their sum; they are counted, so that
///   they can be removed again. A product of an infinity and 0 is NaN.
/// - Nothing overflows or underflows before it is rounded.
/// - The sum of no value is 0. A sum of nothing but -0 is -0; every other zero is +0. After a
///   removal a zero sum is +0.
/// - For numeric elements. Amounts and decimal numbers: ExactSample, which adds them as such.
/// - Extended values must not be encodings that the processor refuses, which no arithmetic yields.
/// - std::bad_alloc: Merge and Remove change nothing; the others may have added some of the terms.
/// - Cost: O(1) for a value. A long range takes less time than a plain sum, but up to twice as long
///   if its exponents are scattered over the whole range. Round() takes a microsecond. The object
///   has some hundred bytes, at worst a few kilobytes.
///
/// Source: Neal (2015), "Fast exact summation using small and large superaccumulators".
class QORVEX_EXPORT ExactSum {
 public:
  /// 0.
  ExactSum() = default;

  /// Adds a value.
  void Add(Extended x);
  /// Adds x * x.
  void AddSquare(Extended x) { AddProduct(x, x); }
  /// @{
  /// Adds the product of the factors.
  void AddProduct(Extended x, Extended y);
  void AddProduct(Extended x, Extended y, Extended z);
  /// @}

  /// @{
  /// Adds every element. For all numeric elements.
  template <NumericElement T>
  void Add(VectorView<T> values);
  template <ContiguousRange Range>
  requires NumericElement<ElementOf<Range>>
  void Add(const Range& values) { Add<ElementOf<Range>>(VectorView<ElementOf<Range>>(values)); }
  /// @}
  /// @{
  /// Adds the square of every element.
  template <NumericElement T>
  void AddSquare(VectorView<T> values) {
    AddProduct<T>(values, values);
  }
  template <ContiguousRange Range>
  requires NumericElement<ElementOf<Range>>
  void AddSquare(const Range& values) {
    AddSquare<ElementOf<Range>>(VectorView<ElementOf<Range>>(values));
  }
  /// @}
  /// @{
  /// Adds x[i] * y[i] for every i, or x[i] * y[i] * z[i]. EMathError rsSameDimensions for different
  /// lengths.
  template <NumericElement T>
  void AddProduct(VectorView<T> x, VectorView<T> y);
  template <ContiguousRange Range>
  requires NumericElement<ElementOf<Range>>
  void AddProduct(const Range& x, VectorView<ElementOf<Range>> y) {
    AddProduct<ElementOf<Range>>(VectorView<ElementOf<Range>>(x), y);
  }
  template <NumericElement T>
  void AddProduct(VectorView<T> x, VectorView<T> y, VectorView<T> z);
  template <ContiguousRange Range>
  requires NumericElement<ElementOf<Range>>
  void AddProduct(const Range& x, VectorView<ElementOf<Range>> y, VectorView<ElementOf<Range>> z) {
    AddProduct<ElementOf<Range>>(VectorView<ElementOf<Range>>(x), y, z);
  }
  /// @}

  /// Adds everything that another sum has added.
  void Merge(const ExactSum& other);
  /// Takes back everything that another sum has added. EMathError rsInvalidValue if it has more
  /// NaNs or infinities; finite values are not checked.
  void Remove(const ExactSum& other);
  /// @{
  /// Take back what the Add of that name has added.
  template <class Values>
  void Remove(const Values& values) {
    ExactSum part;
    part.Add(values);
    Remove(part);
  }
  template <class Values>
  void RemoveSquare(const Values& values) {
    ExactSum part;
    part.AddSquare(values);
    Remove(part);
  }
  template <class... Factors>
  void RemoveProduct(const Factors&... factors) {
    ExactSum part;
    part.AddProduct(factors...);
    Remove(part);
  }
  /// @}

  /// The sum rounded to the nearest extended value, ties to even: infinite beyond the format.
  [[nodiscard]] Extended Round() const;
  /// The exact sum of the finite values.
  [[nodiscard]] exact::Dyadic Value() const { return total_.Value(); }
  /// No infinity and no NaN has been added, or all have been removed.
  [[nodiscard]] bool IsFinite() const { return !special_.Any(); }

  /// The same sum, and as many infinities and NaNs.
  [[nodiscard]] friend bool operator==(const ExactSum& a, const ExactSum& b) {
    return a.total_ == b.total_ && a.special_ == b.special_;
  }

 private:
  // What a sum of zeros is.
  enum class Zero : std::uint8_t { kOfNothing, kNegative, kPositive };

  template <class T, std::size_t kFactors>
  void AddTerms(const std::array<const T*, kFactors>& factors, std::size_t count);

  exact::FixedPoint total_;
  exact::SpecialCounts special_;
  Zero zero_ = Zero::kOfNothing;
};

}  // namespace qorvex
