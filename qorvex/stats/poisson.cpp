#include "qorvex/stats/poisson.h"

#include <algorithm>
#include <cmath>

#include "qorvex/base/comparisons.h"
#include "qorvex/base/elementary.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"
#include "qorvex/stats/combinatorics.h"
#include "qorvex/stats/detail/combinatorics.h"
#include "qorvex/stats/detail/count_between.h"

namespace qorvex::inline QorvexStatistics {

namespace {

void RequireMean(Extended lambda) {
  if (lambda <= 0) RaiseMathError(rsPoissonInvalid);
}

// The probabilities of consecutive counts from `first` upwards.
class Probabilities {
 public:
  Probabilities(Extended lambda, std::uint32_t first)
      : lambda_(lambda), at_zero_(Exp(-lambda)), factorial_(Factorial(first)) {}

  Extended operator()(std::uint64_t count) {
    const auto k = static_cast<Extended>(count);
    const Extended probability = Probability(k);
    factorial_ *= k + 1;
    return probability;
  }

 private:
  [[nodiscard]] Extended Probability(Extended k) const {
    const Extended power = XtoY(lambda_, k);
    if (std::isnormal(at_zero_) && std::isnormal(power)) return at_zero_ * power / factorial_;
    if (std::isinf(lambda_)) return 0;
    return Exp(k * Log(lambda_) - lambda_ - Log(factorial_));
  }

  Extended lambda_;
  Extended at_zero_;    // the probability of the count 0
  Extended factorial_;  // of the next count
};

auto TermsOf(Extended lambda) {
  return [lambda](std::uint64_t end) {
    if (end > detail::kLargestFactorial + 1) RaiseMathError(rsFactOverflow);
    return Probabilities(lambda, 0);
  };
}

}  // namespace

Extended PoissonEq(Extended lambda, std::uint32_t k) {
  RequireMean(lambda);
  return Probabilities(lambda, k)(k);
}

Extended PoissonLess(Extended lambda, std::uint32_t k) {
  RequireMean(lambda);
  return detail::LowerProbability(0, k, TermsOf(lambda));
}

Extended PoissonGreater(Extended lambda, std::uint32_t k) {
  RequireMean(lambda);
  return 1 - detail::LowerProbability(0, std::uint64_t{k} + 1, TermsOf(lambda));
}

Extended PoissonBetween(Extended lambda, std::uint32_t k1, std::uint32_t k2) {
  if (SameFloat(static_cast<float>(k1), static_cast<float>(k2))) return PoissonEq(lambda, k1);
  RequireMean(lambda);
  return detail::CountBetween(0, k1, k2, TermsOf(lambda));
}

void PoissonPDFValues(std::int32_t n, Extended lambda, TQorLIntVector& ks, TQorFloatVector& probs) {
  ks = TQorLIntVector();
  probs = TQorFloatVector();
  if (!(n > 0 && lambda > 0)) RaiseMathError(rsPoissonInvalid);

  const std::int32_t above = n / 2;
  if (std::trunc(lambda) + above > detail::kLargestFactorial) RaiseMathError(rsFactOverflow);
  const auto mean = static_cast<std::int32_t>(lambda);
  const std::int32_t below = std::min(n % 2 == 0 ? above - 1 : above, mean);
  const std::int32_t first = mean - below;

  const auto count = static_cast<std::size_t>(above + below + 1);
  auto counts = TQorLIntVector::ForOverwrite(count);
  auto values = TQorFloatVector::ForOverwrite(count);
  Probabilities probability(lambda, static_cast<std::uint32_t>(first));
  for (std::size_t i = 0; i < count; ++i) {
    counts[i] = first + static_cast<std::int32_t>(i);
    values[i] = probability(static_cast<std::uint64_t>(counts[i]));
  }
  ks = counts;
  probs = values;
}

}  // namespace qorvex::inline QorvexStatistics
