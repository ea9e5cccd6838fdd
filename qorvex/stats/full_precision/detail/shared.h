#pragma once

/// @file
/// Checks and shapes that the families share.

#include <cmath>
#include <limits>

#include "qorvex/base/checked_math.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/special/normal_tail.h"
#include "qorvex/base/special/regularised_beta.h"
#include "qorvex/base/special/regularised_gamma.h"
#include "qorvex/base/special/shape_range.h"
#include "qorvex/base/special/tails.h"

namespace qorvex::full_precision::detail {

using special::ExtendedPair;
using special::FactorialOf;
using special::FromOdds;
using special::Ln;
using special::LnOfRatio;
using special::NormalDensity;
using special::NormalUpperTail;
using special::Odds;
using special::Power;
using special::RegularisedBeta;
using special::RegularisedGamma;
using special::Scaled;
using special::SquareRoot;
using special::Tail;
using special::Tails;

inline constexpr Extended kLargest = std::numeric_limits<Extended>::max();
inline constexpr Extended kNaN = std::numeric_limits<Extended>::quiet_NaN();

/// Whether any of the values is NaN.
template <class... Values>
bool AnyNaN(Values... values) {
  return (std::isnan(values) || ...);
}

/// Raises rsValue01 unless 0 < p < 1; NaN passes.
inline void RequireProbability(Extended p) {
  if (p <= 0 || p >= 1) RaiseMathError(rsValue01);
}

/// Raises the message unless the parameter is positive, finite and not subnormal, so that it can be
/// divided by; NaN passes.
inline void RequirePositive(Extended parameter, MessageId message) {
  if (parameter < std::numeric_limits<Extended>::min() || std::isinf(parameter)) {
    RaiseMathError(message);
  }
}

/// Raises EInvalidOp for an infinite parameter.
inline void RequireFinite(Extended parameter) {
  if (std::isinf(parameter)) throw EInvalidOp();
}

/// Raises EInvalidOp for a shape beyond the range of the methods.
inline void RequireShape(Extended shape) {
  if (special::IsShapeOutOfRange(shape)) throw EInvalidOp();
}

/// The tails below the whole of a distribution, or at its lower end.
inline Tails BelowAll() {
  return {Tail::kLower, Scaled{0, ExtendedPair()}};
}

/// The tails above the whole of a distribution.
inline Tails AboveAll() {
  return {Tail::kUpper, Scaled{0, ExtendedPair()}};
}

/// The tails at a point that is NaN, or with a parameter that is.
inline Tails Unknown() {
  return {Tail::kLower, Scaled{kNaN, ExtendedPair()}};
}

/// The density at the end of a support where it is c x^(shape - 1): 0, c or infinity.
inline Extended DensityAtEnd(Extended shape, Extended c) {
  if (shape == 1) return c;
  return shape < 1 ? std::numeric_limits<Extended>::infinity() : 0;
}

}  // namespace qorvex::full_precision::detail
