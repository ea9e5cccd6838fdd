#pragma once

/// @file
/// Comparisons of floating values within the library's tolerance.

#include <algorithm>
#include <cmath>
#include <limits>
#include <type_traits>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"

namespace qorvex::inline QorvexGlobals {

/// The tolerance of every comparison in this header, initially 1.0e-15. It is absolute in the zero
/// and sign tests; SameFloat scales it with the values.
///
/// A program may change it, but only while no other thread uses the library. Raise it if the
/// rounding errors of long computations should count as zero, such as those of an elimination on a
/// large or badly scaled matrix; lower it if values below 1e-15 are significant.
extern QORVEX_EXPORT Extended QorTolerance;

/// |x| <= QorTolerance. False for NaN.
[[nodiscard]] inline bool FloatIsZero(Extended x) noexcept {
  return std::fabs(x) <= QorTolerance;
}

/// !FloatIsZero(x). True for NaN.
[[nodiscard]] inline bool FloatIsNotZero(Extended x) noexcept {
  return !FloatIsZero(x);
}

/// x > QorTolerance. False for NaN.
[[nodiscard]] inline bool FloatIsPositive(Extended x) noexcept {
  return x > QorTolerance;
}

/// x < -QorTolerance. False for NaN.
[[nodiscard]] inline bool FloatIsNegative(Extended x) noexcept {
  return x < -QorTolerance;
}

/// Approximate equality for ties and duplicates, relative at every magnitude, so that the unit of
/// the values does not matter.
///
/// - True if x == y; otherwise false if x or y is not finite.
/// - Otherwise |x - y| <= max(QorTolerance, 4 eps) * max(|x|, |y|), computed in the wider of the two
///   types with the eps of that type.
/// - NaN: always false. An infinity is the same only as itself.
/// - Zero is the same only as zero if the tolerance is below 1.
/// - In a sorted sequence of finite values, the values that are the same as a given one are
///   contiguous if the tolerance is below 0.5.
template <FloatElement X, FloatElement Y>
[[nodiscard]] inline bool SameFloat(X x, Y y) noexcept {
  using T = std::common_type_t<X, Y>;
  if (static_cast<T>(x) == static_cast<T>(y)) return true;
  if (!std::isfinite(x) || !std::isfinite(y)) return false;
  constexpr T rounding = 4 * std::numeric_limits<T>::epsilon();
  // If the tolerance is NaN the comparison is false, which leaves the rounding bound.
  const T given = static_cast<T>(QorTolerance);
  const T tolerance = given > rounding ? given : rounding;
  // Scaling by a power of two is exact. It keeps the difference of large values from overflowing
  // and the bound for small values from underflowing.
  const bool large = std::fabs(x) > 1 || std::fabs(y) > 1;
  const T scale = large ? T(0.5) : T(0x1p64);
  const T a = x * scale;
  const T b = y * scale;
  return std::fabs(a - b) <= tolerance * std::max(std::fabs(a), std::fabs(b));
}

/// !SameFloat(x, y) for extended values.
[[nodiscard]] inline bool NotSameFloat(Extended x, Extended y) noexcept {
  return !SameFloat(x, y);
}

}  // namespace qorvex::inline QorvexGlobals
