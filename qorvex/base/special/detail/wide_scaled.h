#pragma once

// What Scaled consists of.

#include "qorvex/base/elementary/detail/wide.h"
#include "qorvex/base/special/scaled.h"

namespace qorvex::special {

using elementary::Wide;

[[nodiscard]] inline Wide Load(const StoredWide& x) {
  return {elementary::Join(x.high, x.low), x.exponent, x.negative};
}
// By words: the compiler would load both at once, which has to wait for the two stores of a number
// that has just been computed.
[[nodiscard]] inline StoredWide Store(const Wide& x) {
  std::uint64_t high = elementary::High(x.mantissa);
  asm("" : "+r"(high));
  return {high, elementary::Low(x.mantissa), x.exponent, x.negative};
}

/// The parts of a Scaled, as numbers to compute with.
struct ScaledParts {
  ScaledParts(const Wide& the_factor, const Wide& the_exponent = {}, Extended is_unbounded = 0)
      : factor(the_factor), exponent(the_exponent), unbounded(is_unbounded) {}
  explicit ScaledParts(const Scaled& x)
      : factor(Load(x.factor_)), exponent(Load(x.exponent_)), unbounded(x.unbounded_) {}
  [[nodiscard]] Scaled Joined() const { return {Store(factor), Store(exponent), unbounded}; }

  Wide factor;
  Wide exponent;
  Extended unbounded;
};

/// factor * e^exponent.
[[nodiscard]] inline Scaled MakeScaled(const Wide& factor, const Wide& exponent = {}) {
  return ScaledParts(factor, exponent).Joined();
}

/// x e^exponent.
[[nodiscard]] inline Scaled Raised(const Scaled& x, const Wide& exponent) {
  const ScaledParts parts(x);
  return ScaledParts(parts.factor, parts.exponent + exponent, parts.unbounded).Joined();
}

}  // namespace qorvex::special
