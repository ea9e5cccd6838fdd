#include "qorvex/stats/distributions/detail/standard_normal.h"

#include <cmath>

#include "qorvex/base/special/detail/normal_wide.h"

namespace qorvex::distributions {

Tails StandardNormalTails(const Wide& z) {
  return {z.negative ? Tail::kLower : Tail::kUpper, special::NormalFarTail(z)};
}

Tails StandardNormalTails(const special::ExtendedPair& z) {
  if (std::isinf(z.hi)) return z.hi < 0 ? BelowAll() : AboveAll();
  return StandardNormalTails(Wide(z));
}

Wide WideNormalQuantile(Tail tail, const Extended& p) {
  const Wide upper = special::NormalUpperQuantile(Wide(p));
  return tail == Tail::kUpper ? upper : -upper;
}

}  // namespace qorvex::distributions
