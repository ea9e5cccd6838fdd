#include "qorvex/random/weibull.h"

#include <cmath>

#include "qorvex/base/checked_math.h"
#include "qorvex/base/elementary/detail/functions_of_bits.h"
#include "qorvex/base/errors.h"
#include "qorvex/random/detail/floor.h"
#include "qorvex/random/detail/limits.h"

namespace qorvex::inline QorvexRandom {

using elementary::Binary80;

WeibullSampler::WeibullSampler(Extended a) : exponent_(1 / a) {
  if (std::fabs(a) <= detail::kVerySmall) RaiseMathError(rsInvalidValue);
  constexpr Extended largest = 256;
  is_usual_ = std::fabs(exponent_) < largest && exponent_ != detail::Floor(exponent_);
}

// XtoY(Random_Exponential(source), exponent_). Bits that stay in integer registers save a sixth of
// the time.
Extended WeibullSampler::operator()(UniformSource source) const {
  Binary80 exponential = elementary::LogOfBits(elementary::BitsOf(detail::PositiveUniform(source)));
  exponential.sign_exponent ^= 0x8000;
  // From 2^-60 to 2^60, with powers from 2^(-60 * 256) to 2^(60 * 256).
  const int least = elementary::kExponentBias - 60;
  const bool is_medium = static_cast<unsigned>(exponential.sign_exponent - least) < 120;
  if (is_usual_ && is_medium) {
    return FromBits(elementary::PowOfBits(exponential, elementary::BitsOf(exponent_)));
  }
  return CheckedXtoY(FromBits(exponential), exponent_);
}

Extended Random_Weibull(Extended a, UniformSource source) {
  return WeibullSampler(a)(source);
}

}  // namespace qorvex::inline QorvexRandom
