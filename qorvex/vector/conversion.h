#pragma once

/// @file
/// Widening conversions of arrays and vectors.
///
/// Every conversion is exact: to Extended from any element, to int64 from any integer, to int32
/// from int32 and the 8- and 16-bit integers. Conversions that could round, truncate or overflow do
/// not exist. An empty source gives an empty result; nothing raises; NaN and infinities stay. O(n).

#include <concepts>
#include <ranges>
#include <span>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexVector {

/// @cond internal
namespace detail {

template <class T>
concept WidensToFloat = NumericElement<T>;
template <class T>
concept WidensToInt64 = IntegerElement<T>;
template <class T>
concept WidensToLInt = NarrowIntegerElement<T> || std::same_as<T, std::int32_t>;

// A contiguous range of T, such as a C array, std::array, std::vector or std::span.
template <class Range>
concept OpenArray = std::ranges::contiguous_range<Range> && std::ranges::sized_range<Range>;

template <class To, class From>
QORVEX_EXPORT TQorVector<To> Widened(std::span<const From> values);

}  // namespace detail
/// @endcond

/// An array's values as a float vector.
template <detail::OpenArray Range>
requires detail::WidensToFloat<std::ranges::range_value_t<Range>>
[[nodiscard]] TQorFloatVector Array2FloatVector(const Range& values) {
  return detail::Widened<Extended>(std::span<const std::ranges::range_value_t<Range>>(values));
}

/// An array's values as an int64 vector.
template <detail::OpenArray Range>
requires detail::WidensToInt64<std::ranges::range_value_t<Range>>
[[nodiscard]] TQorInt64Vector Array2Int64Vector(const Range& values) {
  return detail::Widened<std::int64_t>(std::span<const std::ranges::range_value_t<Range>>(values));
}

/// An array's values as an int32 vector.
template <detail::OpenArray Range>
requires detail::WidensToLInt<std::ranges::range_value_t<Range>>
[[nodiscard]] TQorLIntVector Array2LIntVector(const Range& values) {
  return detail::Widened<std::int32_t>(std::span<const std::ranges::range_value_t<Range>>(values));
}

/// A vector's elements as a new float vector; a copy for a float vector.
template <detail::WidensToFloat T>
[[nodiscard]] TQorFloatVector Vector2FloatVector(const TQorVector<T>& vector) {
  return detail::Widened<Extended>(std::span<const T>(vector));
}

/// A vector's elements as a new int64 vector; a copy for an int64 vector.
template <detail::WidensToInt64 T>
[[nodiscard]] TQorInt64Vector Vector2Int64Vector(const TQorVector<T>& vector) {
  return detail::Widened<std::int64_t>(std::span<const T>(vector));
}

/// A vector's elements as a new int32 vector; a copy for an int32 vector.
template <detail::WidensToLInt T>
[[nodiscard]] TQorLIntVector Vector2LIntVector(const TQorVector<T>& vector) {
  return detail::Widened<std::int32_t>(std::span<const T>(vector));
}

}  // namespace qorvex::inline QorvexVector
