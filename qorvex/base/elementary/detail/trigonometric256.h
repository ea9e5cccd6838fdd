#pragma once

// Sines, cosines and arcs for second stages.

#include "qorvex/base/elementary/detail/wide256.h"

namespace qorvex::elementary {

struct SineAndCosine256 {
  Wide256 sine;
  Wide256 cosine;
};

/// For |r| < 1; relative error below 2^-245.
[[nodiscard]] SineAndCosine256 SineAndCosineOf(const Wide256& r);

/// The square root of x >= 0; relative error below 2^-245.
[[nodiscard]] Wide256 SquareRoot(const Wide256& x);

/// The angle in [0, pi/2] with tangent y / x, for y >= 0 and x >= 0 that are not both 0; relative
/// error below 2^-240.
[[nodiscard]] Wide256 ArcTan256(const Wide256& y, const Wide256& x);

}  // namespace qorvex::elementary
