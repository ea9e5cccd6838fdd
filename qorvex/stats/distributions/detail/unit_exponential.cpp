#include "qorvex/stats/distributions/detail/unit_exponential.h"

#include <cmath>

#include "qorvex/base/elementary/functions.h"

namespace qorvex::distributions {

using special::ExtendedPair;
using special::Scaled;

Tails UnitExponentialTails(ExtendedPair ln_t) {
  // So far down the lower tail is t, which may be too small for the format.
  constexpr Extended far_down = -60;
  if (ln_t.hi < far_down) return {Tail::kLower, Scaled{1, ln_t}};
  const ExtendedPair t = Exp(ln_t);
  if (t.hi < 1) return {Tail::kLower, Scaled{-Expm1(-t.hi), ExtendedPair()}};
  return {Tail::kUpper, Scaled{1, -t}};
}

ExtendedPair LnUnitExponentialQuantile(Tail tail, Extended p) {
  // So small a lower tail is the point itself.
  constexpr Extended tiny = 1e-30L;
  if (tail == Tail::kLower && p < tiny) return Ln(ExtendedPair(p));
  return Ln(-Ln(tail == Tail::kUpper ? ExtendedPair(p) : special::ExactSum(1, -p)));
}

}  // namespace qorvex::distributions
