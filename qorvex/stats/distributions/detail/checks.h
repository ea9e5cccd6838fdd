#pragma once

/// @file
/// Checks and limits that the families share.

#include <cmath>
#include <limits>

#include "qorvex/base/checked_math.h"
#include "qorvex/base/elementary/detail/binary80.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/special/shape_range.h"
#include "qorvex/stats/distributions/distribution.h"

namespace qorvex::distributions {

inline constexpr Extended kLargest = std::numeric_limits<Extended>::max();
inline constexpr Extended kInfinite = std::numeric_limits<Extended>::infinity();
inline constexpr Extended kNotANumber = std::numeric_limits<Extended>::quiet_NaN();

// The checks look at bits: comparisons would load parameters into the x87 unit, which has to wait
// for what has just been stored.

/// Whether any of the values is NaN.
template <class... Values>
bool AnyNaN(const Values&... values) {
  return (elementary::IsNaN(elementary::BitsOf(values)) || ...);
}

/// Whether the value is infinite.
inline bool IsInfinite(const Extended& value) {
  return elementary::IsInfinity(elementary::BitsOf(value));
}

/// @{
/// Whether the value, not NaN, is above or below 0.
inline bool IsPositive(const Extended& value) {
  const elementary::Binary80 bits = elementary::BitsOf(value);
  return !bits.IsNegative() && !elementary::IsZero(bits);
}
inline bool IsNegative(const Extended& value) {
  const elementary::Binary80 bits = elementary::BitsOf(value);
  return bits.IsNegative() && !elementary::IsZero(bits);
}
/// @}

/// Raises rsValue01 unless 0 < p < 1; NaN passes.
inline void RequireProbability(const Extended& p) {
  const elementary::Binary80 bits = elementary::BitsOf(p);
  const bool is_inside =
      !bits.IsNegative() && bits.Exponent() < elementary::kExponentBias && bits.significand != 0;
  if (!is_inside && !elementary::IsNaN(bits)) RaiseMathError(rsValue01);
}

/// Raises the message unless the parameter is positive, finite and not subnormal, so that it can be
/// divided by; NaN passes.
inline void RequirePositive(const Extended& parameter, MessageId message) {
  const elementary::Binary80 bits = elementary::BitsOf(parameter);
  const bool is_positive = elementary::IsNormal(bits) && !bits.IsNegative();
  if (!is_positive && !elementary::IsNaN(bits)) RaiseMathError(message);
}

/// Raises EInvalidOp for an infinite parameter.
inline void RequireFinite(const Extended& parameter) {
  if (IsInfinite(parameter)) throw EInvalidOp();
}

/// Raises EInvalidOp for a shape beyond the range of the methods; NaN passes.
inline void RequireShape(Extended shape) {
  if (special::IsShapeOutOfRange(shape)) throw EInvalidOp();
}

/// The tails below the support, or at its lower end.
inline Tails BelowAll() {
  return {Tail::kLower, special::Scaled{0, special::ExtendedPair()}};
}

/// The tails above the support, or at its upper end.
inline Tails AboveAll() {
  return {Tail::kUpper, special::Scaled{0, special::ExtendedPair()}};
}

/// The tails at a point that is NaN, or with a parameter that is.
inline Tails UnknownTails() {
  return {Tail::kLower, special::Scaled{kNotANumber, special::ExtendedPair()}};
}

/// The density at the end of a support where it is c x^(shape - 1): 0, c or infinity.
inline Extended DensityAtEnd(Extended shape, Extended c) {
  if (shape == 1) return c;
  return shape < 1 ? kInfinite : 0;
}

}  // namespace qorvex::distributions
