#include "qorvex/stats/distributions/detail/standard_normal.h"

#include <cmath>

#include "qorvex/base/special/normal_tail.h"
#include "qorvex/base/special_functions.h"

namespace qorvex::distributions {

using special::ExtendedPair;
using special::Scaled;

ExtendedPair Standardised(ExtendedPair x, Extended mean, Extended std_dev) {
  // So far out 64 bits will do, and near the end of the range pairs would overflow.
  constexpr Extended far = 1e2400L;
  const Extended z = (x.hi - mean) / std_dev;
  if (std::fabs(z) > far) return z;
  return (x - ExtendedPair(mean)) / ExtendedPair(std_dev);
}

Extended PointAt(ExtendedPair z, Extended location, Extended scale) {
  const Extended x = (z * scale + location).hi;
  // Pairs that overflow are NaN.
  if (!std::isfinite(x)) throw EOverflow();
  return x;
}

Tails StandardNormalTails(ExtendedPair z) {
  if (z.hi < 0) return StandardNormalTails(-z).Mirrored();
  if (std::isinf(z.hi)) return AboveAll();
  return {Tail::kUpper, special::NormalUpperTail(z)};
}

Extended StandardNormalQuantile(Tail tail, Extended p) {
  const Extended z = std::sqrt(2.0L) * InverseErfc(2 * (p > 0.5L ? 1 - p : p));
  return (tail == Tail::kUpper) == (p <= 0.5L) ? z : -z;
}

ExtendedPair RefinedNormalQuantile(Tail tail, Extended p) {
  if (p > 0.5L) return RefinedNormalQuantile(Opposite(tail), 1 - p);
  const Extended z = StandardNormalQuantile(Tail::kUpper, p);
  // One step of Newton's method.
  const Scaled upper = special::NormalUpperTail(z);
  const Extended error = (upper.Value() - p) / special::NormalDensity(z, 1).Value();
  const ExtendedPair refined = special::OrderedSum(z, error);
  return tail == Tail::kUpper ? refined : -refined;
}

}  // namespace qorvex::distributions
