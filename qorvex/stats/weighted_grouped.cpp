#include "qorvex/stats/weighted_grouped.h"

#include <cstddef>

#include "qorvex/base/errors.h"
#include "qorvex/stats/detail/exact_moments.h"
#include "qorvex/stats/detail/moments.h"
#include "qorvex/vector/detail/checks.h"

namespace qorvex::inline QorvexStatistics {

namespace {

using exact::BigInteger;
using exact::detail::PowerSums;

// The sums of the powers of the class numbers, which stand for the midpoints: neither skewness nor
// kurtosis changes with shift and scale.
PowerSums SumsOf(VectorView<std::uint32_t> freq, std::uint64_t least, MessageId too_few) {
  QorvexVector::detail::RequireElements(freq);
  std::uint64_t total = 0;
  BigInteger sums[4];
  for (std::size_t i = 0; i < freq.size(); ++i) {
    if (freq[i] == 0) continue;
    total += freq[i];
    BigInteger term = freq[i];
    for (BigInteger& sum : sums) sum += term *= i;
  }
  if (total < least) RaiseMathError(too_few);
  return {total, exact::Dyadic(sums[0]), exact::Dyadic(sums[1]), exact::Dyadic(sums[2]),
          exact::Dyadic(sums[3])};
}

}  // namespace

Extended WeightedGroupedSkew(VectorView<std::uint32_t> freq, Estimate estimate) {
  return exact::detail::Skewness(SumsOf(freq, detail::kMinCountForSkew, rsVectorG2), estimate);
}

Extended WeightedGroupedKurtosis(VectorView<std::uint32_t> freq, Estimate estimate) {
  return exact::detail::Kurtosis(SumsOf(freq, detail::kMinCountForKurtosis, rsVectorG3), estimate);
}

}  // namespace qorvex::inline QorvexStatistics
