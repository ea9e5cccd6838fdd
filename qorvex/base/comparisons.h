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

/// The tolerance of every comparison here, initially 1.0e-15. The zero and sign tests compare with
/// it as it is; SameFloat scales it with the values.
///
/// A program may change it for data of another scale, while no other thread uses the library. Raise
/// it where rounding residue of long computations should count as zero, such as elimination on
/// large or badly scaled matrices; lower it where values below 1e-15 carry meaning.
extern QORVEX_EXPORT Extended QorTolerance;

/// |x| <= QorTolerance. False for NaN.
[[nodiscard]] inline bool FloatIsZero(Extended x) noexcept {
  return std::fabs(x) <= QorTolerance;
}

/// The negation of FloatIsZero; true for NaN.
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

/// Equality for ties and duplicates, whatever the unit of the values: x == y, or both are finite
/// and |x - y| <= max(QorTolerance, 4 eps) * max(|x|, |y|), computed in the wider of the two types
/// with that type's eps. NaN is the same as nothing; an infinity only as itself, and zero only as
/// zero while the tolerance is below 1.
///
/// Over sorted finite values the values that are the same as a given one are contiguous, as long as
/// the tolerance is below 0.5.
template <FloatElement X, FloatElement Y>
[[nodiscard]] inline bool SameFloat(X x, Y y) noexcept {
  using T = std::common_type_t<X, Y>;
  if (static_cast<T>(x) == static_cast<T>(y)) return true;
  if (!std::isfinite(x) || !std::isfinite(y)) return false;
  constexpr T rounding = 4 * std::numeric_limits<T>::epsilon();
  // A tolerance that is NaN compares false, which leaves the rounding bound.
  const T given = static_cast<T>(QorTolerance);
  const T tolerance = given > rounding ? given : rounding;
  // By a power of two both sides keep their digits: the difference of large values does not
  // overflow then, nor does the bound for small ones underflow.
  const bool large = std::fabs(x) > 1 || std::fabs(y) > 1;
  const T scale = large ? T(0.5) : T(0x1p64);
  const T a = x * scale;
  const T b = y * scale;
  return std::fabs(a - b) <= tolerance * std::max(std::fabs(a), std::fabs(b));
}

/// The negation of SameFloat for extended values.
[[nodiscard]] inline bool NotSameFloat(Extended x, Extended y) noexcept {
  return !SameFloat(x, y);
}

}  // namespace qorvex::inline QorvexGlobals
