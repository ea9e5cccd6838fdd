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
/// The base-2 and base-10 logarithms, correctly rounded: Log2 and Log10. The result is -infinity for
/// 0, infinity for infinity, and NaN for negative x and NaN.
[[nodiscard]] QORVEX_EXPORT Extended QorLog2(Extended x) noexcept;
[[nodiscard]] QORVEX_EXPORT Extended QorLog10(Extended x) noexcept;
/// @}

/// The arc cosine in radians, in [0, pi]: ArcCos, correctly rounded.
///
/// - An x outside [-1, 1] by at most QorTolerance is treated as -1 or 1, so that rounding errors do
///   not turn the angle between parallel vectors into NaN.
/// - NaN for any other x outside [-1, 1], and for NaN.
[[nodiscard]] QORVEX_EXPORT Extended QorArcCos(Extended x) noexcept;

/// x to the power y.
///
/// - Integer exponents from 0 to 8: the product x * x * ..., from left to right. XtoY(x, 0) is 1.
/// - Other exponents: Pow, correctly rounded, which is NaN if x is finite and negative and y is
///   finite and not an integer.
[[nodiscard]] QORVEX_EXPORT Extended XtoY(Extended x, Extended y) noexcept;

/// The smaller of two values; x if they are equal or one is NaN.
template <class T>
requires NumericElement<T>
[[nodiscard]] constexpr T MinXY(T x, ScalarOf<T> y) noexcept {
  const T other = y;
  return other < x ? other : x;
}

}  // namespace qorvex::inline QorvexGlobals
