#pragma once

/// @file
/// Exact numbers as pairs of extended values, for tails that depend on more than 64 bits of a
/// statistic.

#include <cmath>

#include "qorvex/base/exact/rational.h"
#include "qorvex/base/special/extended_pair.h"

namespace qorvex::inference {

using exact::Dyadic;
using exact::Rational;

/// The number, to some 125 bits where it is within the format.
[[nodiscard]] inline special::ExtendedPair ToPair(const Rational& x) {
  const Extended rounded = x.Round();
  if (!std::isfinite(rounded)) return rounded;
  return {rounded, (x - Rational(rounded)).Round()};
}

/// sign * sqrt(x), to some 125 bits where it is within the format.
[[nodiscard]] inline special::ExtendedPair RootToPair(const Rational& x, int sign) {
  const Extended root = x.RoundRoot();
  if (!std::isnormal(root)) return static_cast<Extended>(sign) * root;
  const Extended rest = ((x - Rational(Dyadic(root) * Dyadic(root))) / Rational(2 * root)).Round();
  const special::ExtendedPair pair{root, rest};
  return sign < 0 ? -pair : pair;
}

}  // namespace qorvex::inference
