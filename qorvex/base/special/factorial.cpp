#include "qorvex/base/special/factorial.h"

#include <array>
#include <cmath>
#include <cstddef>

#include "qorvex/base/special/detail/gamma_wide.h"
#include "qorvex/base/special/detail/wide_constants.h"
#include "qorvex/base/special/detail/wide_scaled.h"

namespace qorvex::special {

namespace {

// Far beyond where Stirling's series begins, because the table is quicker.
constexpr int kTableEnd = 256;

// Gamma(i / 2 + 1); off by less than 2^-115.
constexpr auto kFactorialsOfHalves = [] {
  std::array<Wide, std::size_t{2} * kTableEnd> factorials{};
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

Scaled FactorialOf(ExtendedPair a) {
  if (std::isnan(a.hi)) return a.hi;
  const Extended twice = 2 * a.hi;
  if (a.hi < kTableEnd && a.lo == 0 && twice == std::trunc(twice))
    return MakeScaled(kFactorialsOfHalves[static_cast<std::size_t>(twice)]);
  constexpr Extended stirling_from = 16;
  const Wide x = Wide(a);
  if (a.hi < 1) return MakeScaled(kOne + GammaMinusOne(x));
  if (a.hi < stirling_from) return MakeScaled(x * GammaWide(x));
  return MakeScaled(kOne, LnFactorialWide(x));
}

}  // namespace qorvex::special
