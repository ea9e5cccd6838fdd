#pragma once

/// @file
/// Widening conversions of arrays and vectors.
///
/// - Every conversion is exact: to Extended from any numeric element, to int64 from any integer, to
///   int32 from int32 and the 8- and 16-bit integers. Conversions that could round, truncate or
///   overflow do not exist.
/// - n = 0 gives an empty result. NaN and infinities are kept. No errors. O(n).

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

/// The values of an array as a new float vector.
template <detail::OpenArray Range>
requires detail::WidensToFloat<std::ranges::range_value_t<Range>>
[[nodiscard]] TQorFloatVector Array2FloatVector(const Range& values) {
  return detail::Widened<Extended>(std::span<const std::ranges::range_value_t<Range>>(values));
}

/// The values of an array as a new int64 vector.
template <detail::OpenArray Range>
requires detail::WidensToInt64<std::ranges::range_value_t<Range>>
[[nodiscard]] TQorInt64Vector Array2Int64Vector(const Range& values) {
  return detail::Widened<std::int64_t>(std::span<const std::ranges::range_value_t<Range>>(values));
}

/// The values of an array as a new int32 vector.
template <detail::OpenArray Range>
requires detail::WidensToLInt<std::ranges::range_value_t<Range>>
[[nodiscard]] TQorLIntVector Array2LIntVector(const Range& values) {
  return detail::Widened<std::int32_t>(std::span<const std::ranges::range_value_t<Range>>(values));
}

/// The elements of a vector as a new float vector, which never shares the buffer.
template <detail::WidensToFloat T>
[[nodiscard]] TQorFloatVector Vector2FloatVector(const TQorVector<T>& vector) {
  return detail::Widened<Extended>(std::span<const T>(vector));
}

/// The elements of a vector as a new int64 vector, which never shares the buffer.
template <detail::WidensToInt64 T>
[[nodiscard]] TQorInt64Vector Vector2Int64Vector(const TQorVector<T>& vector) {
  return detail::Widened<std::int64_t>(std::span<const T>(vector));
}

/// The elements of a vector as a new int32 vector, which never shares the buffer.
template <detail::WidensToLInt T>
[[nodiscard]] TQorLIntVector Vector2LIntVector(const TQorVector<T>& vector) {
  return detail::Widened<std::int32_t>(std::span<const T>(vector));
}

}  // namespace qorvex::inline QorvexVector
