#pragma once

/// @file
/// Constants and elementary functions.

#include <string_view>
#include <type_traits>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"

namespace qorvex::inline QorvexGlobals {

/// Pi to 64 bits of mantissa.
inline constexpr Extended QorPi = 3.14159265358979323846264338327950288L;

/// The empty text.
inline constexpr std::string_view QorNullStr = "";

/// @{
/// The base-2 and base-10 logarithms: -infinity for 0, NaN for negative values and NaN, infinity
/// for infinity. Within two units in the last place.
[[nodiscard]] QORVEX_EXPORT Extended QorLog2(Extended x) noexcept;
[[nodiscard]] QORVEX_EXPORT Extended QorLog10(Extended x) noexcept;
/// @}

/// The arc cosine in radians, from 0 to pi. Values outside [-1, 1] by at most QorTolerance are
/// taken for rounding errors of the nearer end, which makes 0 of the angle between parallel
/// vectors; all others outside, and NaN, give NaN.
[[nodiscard]] QORVEX_EXPORT Extended QorArcCos(Extended x) noexcept;

/// x to the power y. XtoY(0, 0) is 1. Integer exponents up to 8 are repeated products from the
/// left; all others are the C++ library's power, NaN for a negative finite x with a finite y that
/// is no integer.
[[nodiscard]] QORVEX_EXPORT Extended XtoY(Extended x, Extended y) noexcept;

/// The smaller of two values; x when they are equal or when one is NaN.
template <class T>
requires NumericElement<T>
[[nodiscard]] constexpr T MinXY(T x, ScalarOf<T> y) noexcept {
  const T other = y;
  return other < x ? other : x;
}

}  // namespace qorvex::inline QorvexGlobals
