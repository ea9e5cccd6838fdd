#pragma once

// Arguments of the trigonometric functions and their inverses that need no computing.

#include "qorvex/base/elementary/detail/binary80.h"

namespace qorvex::elementary {

/// Below 2^-32, sines, tangents, arc sines and arc tangents round to x and cosines to 1: they
/// differ by at most x^3/3 and x^2/2, which is less than half the distance to the next number.
inline constexpr int kLeastExponent = -32;

/// Whether x is finite, normal and not that small.
inline bool NeedsKernel(Binary80 x) {
  constexpr int first = kExponentBias + kLeastExponent;
  return static_cast<unsigned>(x.Exponent() - first) <
             static_cast<unsigned>(kExponentOfInfinity - first) &&
         x.significand >= kTopBit;
}

}  // namespace qorvex::elementary
