#pragma once

/// @file
/// Conversions of arrays and vectors from one numeric element type to another.
///
/// - Exact conversions and narrowing ones have different names, so that a loss is always asked for.
/// - Every contiguous range of numeric elements can be converted. The result is always a copy.
/// - n = 0 gives an empty result. O(n).
/// - Conversions of amounts are those of the unit QorvexFinVector.

#include <concepts>
#include <cstdint>
#include <limits>
#include <utility>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexVector {

/// @cond internal
namespace detail {

template <class To, class From>
inline constexpr bool kHoldsAll = [] {
  using ToLimits = std::numeric_limits<To>;
  using FromLimits = std::numeric_limits<From>;
  if constexpr (std::integral<To> && std::integral<From>) {
    return std::in_range<To>(FromLimits::min()) && std::in_range<To>(FromLimits::max());
  } else {
    // The exponents of floating types grow with their digits.
    return !std::integral<To> && ToLimits::digits >= FromLimits::digits;
  }
}();

template <class To, class From>
QORVEX_EXPORT TQorVector<To> Converted(VectorView<From> values);

}  // namespace detail
/// @endcond

/// Every value of the element type From is a value of the element type To: integers that the range
/// of To includes or that its mantissa holds, and floating elements of To's precision or less.
template <class From, class To>
concept ConvertsExactlyTo =
    NumericElement<From> && NumericElement<To> && detail::kHoldsAll<To, From>;

/// The same values as elements of type To, for types that hold them all: ConvertVector<Extended>(v)
/// works for every numeric v. NaN and infinities are kept. No errors.
template <NumericElement To, ContiguousRange Range>
requires ConvertsExactlyTo<ElementOf<Range>, To>
[[nodiscard]] TQorVector<To> ConvertVector(const Range& values) {
  return detail::Converted<To, ElementOf<Range>>(values);
}

/// The values rounded to elements of type To, as in NarrowVector<float>(v).
///
/// - Rounds to nearest, ties to even.
/// - NaN and infinities stay what they are in floating elements.
/// - EMathError with rsInvalidValue, and no result, if To cannot hold a value: if an integer would
///   be out of range, a finite floating value would overflow, or NaN would become an integer.
/// - For all pairs of numeric element types; those of ConvertVector raise nothing.
template <NumericElement To, ContiguousRange Range>
requires NumericElement<ElementOf<Range>>
[[nodiscard]] TQorVector<To> NarrowVector(const Range& values) {
  return detail::Converted<To, ElementOf<Range>>(values);
}

/// @{
/// The values as a new float vector: the same as ConvertVector<Extended>.
template <ContiguousRange Range>
requires ConvertsExactlyTo<ElementOf<Range>, Extended>
[[nodiscard]] TQorFloatVector Array2FloatVector(const Range& values) {
  return ConvertVector<Extended>(values);
}
template <ConvertsExactlyTo<Extended> T>
[[nodiscard]] TQorFloatVector Vector2FloatVector(VectorView<T> values) {
  return ConvertVector<Extended>(values);
}
template <ContiguousRange Range>
requires ConvertsExactlyTo<ElementOf<Range>, Extended>
[[nodiscard]] TQorFloatVector Vector2FloatVector(const Range& values) {
  return ConvertVector<Extended>(values);
}
/// @}

/// @{
/// The values of any integer type as a new int64 vector: the same as ConvertVector<std::int64_t>.
template <ContiguousRange Range>
requires ConvertsExactlyTo<ElementOf<Range>, std::int64_t>
[[nodiscard]] TQorInt64Vector Array2Int64Vector(const Range& values) {
  return ConvertVector<std::int64_t>(values);
}
template <ConvertsExactlyTo<std::int64_t> T>
[[nodiscard]] TQorInt64Vector Vector2Int64Vector(VectorView<T> values) {
  return ConvertVector<std::int64_t>(values);
}
template <ContiguousRange Range>
requires ConvertsExactlyTo<ElementOf<Range>, std::int64_t>
[[nodiscard]] TQorInt64Vector Vector2Int64Vector(const Range& values) {
  return ConvertVector<std::int64_t>(values);
}
/// @}

/// @{
/// The values of int32 or narrower integers as a new int32 vector, the same as that of
/// ConvertVector<std::int32_t>.
template <ContiguousRange Range>
requires ConvertsExactlyTo<ElementOf<Range>, std::int32_t>
[[nodiscard]] TQorLIntVector Array2LIntVector(const Range& values) {
  return ConvertVector<std::int32_t>(values);
}
template <ConvertsExactlyTo<std::int32_t> T>
[[nodiscard]] TQorLIntVector Vector2LIntVector(VectorView<T> values) {
  return ConvertVector<std::int32_t>(values);
}
template <ContiguousRange Range>
requires ConvertsExactlyTo<ElementOf<Range>, std::int32_t>
[[nodiscard]] TQorLIntVector Vector2LIntVector(const Range& values) {
  return ConvertVector<std::int32_t>(values);
}
/// @}

}  // namespace qorvex::inline QorvexVector
