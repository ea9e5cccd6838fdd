#include "qorvex/base/special/factorial.h"

#include <array>
#include <cmath>
#include <cstddef>

#include "qorvex/base/special/detail/factorial_wide.h"
#include "qorvex/base/special/detail/gamma_wide.h"
#include "qorvex/base/special/detail/wide_constants.h"
#include "qorvex/base/special/detail/wide_scaled.h"

namespace qorvex::special {

namespace {

// Gamma(i / 2 + 1); off by less than 2^-115.
constexpr auto kFactorialsOfHalves = [] {
  std::array<Wide, std::size_t{2} * kFactorialWideEnd> factorials{};
  Wide whole = kOne;
  Wide half = kHalfRootOfPi;
  for (std::size_t i = 0; i < factorials.size(); i += 2) {
    factorials[i] = whole;
    factorials[i + 1] = half;
    whole = whole * WholeNumber(i / 2 + 1);
    half = half * ScaledBy(WholeNumber(i + 3), -1);
  }
  return factorials;
}();

}  // namespace

Wide FactorialWide(const Wide& a) {
  // The bits of 2 a after the point.
  const int whole_bits = static_cast<int>(a.exponent) + 2;
  if (a.IsZero() || whole_bits < 1) return kOne + GammaMinusOne(a);
  if (a.mantissa << whole_bits == 0)
    return kFactorialsOfHalves[elementary::High(a.mantissa) >> (64 - whole_bits)];
  return a.exponent < 0 ? kOne + GammaMinusOne(a) : a * GammaWide(a);
}

Scaled FactorialOf(ExtendedPair a) {
  if (std::isnan(a.hi)) return a.hi;
  const Wide x(a);
  return a.hi < kFactorialWideEnd ? MakeScaled(FactorialWide(x))
                                  : MakeScaled(kOne, LnFactorialWide(x));
}

}  // namespace qorvex::special
