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

}  // namespace qorvex::elementary
