#include "qorvex/stats/distributions/detail/unit_exponential.h"

#include "qorvex/base/elementary/detail/first_stage.h"
#include "qorvex/base/special/detail/wide_constants.h"
#include "qorvex/base/special/detail/wide_scaled.h"

namespace qorvex::distributions {

using special::kOne;
using special::MakeScaled;

namespace {

// Where |ln t| exceeds 2^15, t or its reciprocal is beyond the square of every extended number.
constexpr std::int64_t kFarExponent = 15;

}  // namespace

Tails UnitExponentialTails(const Wide& t) {
  // Below 1 the lower tail is the one to compute.
  if (t.exponent < 0) return {Tail::kLower, MakeScaled(-elementary::Expm1Wide(-t))};
  return {Tail::kUpper, MakeScaled(kOne, -t)};
}

Wide PointOfLog(const Wide& ln_t) {
  if (ln_t.exponent < kFarExponent) return elementary::ExpWide(ln_t);
  return ln_t.negative ? Wide() : ScaledBy(kOne, 2 << kFarExponent);
}

Tails UnitExponentialTailsAtLog(const Wide& ln_t) {
  // So far down the lower tail is t.
  if (ln_t.negative && ln_t.exponent >= kFarExponent) return {Tail::kLower, MakeScaled(kOne, ln_t)};
  return UnitExponentialTails(PointOfLog(ln_t));
}

Wide UnitExponentialQuantile(Tail tail, const Extended& p) {
  return -(tail == Tail::kUpper ? elementary::LogWide(Wide(p)) : elementary::Log1pWide(-Wide(p)));
}

}  // namespace qorvex::distributions
