#pragma once

// Sums of products of deviations from the means, exactly.

#include <cstdint>

#include "qorvex/base/exact/dyadic.h"
#include "qorvex/base/exact/rational.h"
#include "qorvex/stats/estimate.h"
#include "qorvex/stats/exact/exact_sum.h"

namespace qorvex::exact::detail {

/// n times the sum of (x - mean of x) (y - mean of y) over n pairs, from the sums of the products,
/// of the x and of the y.
[[nodiscard]] inline Dyadic ScaledDeviations(std::uint64_t n, const ExactSum& products,
                                             const ExactSum& x, const ExactSum& y) {
  return Dyadic(n) * products.Value() - x.Value() * y.Value();
}

/// The covariance of n pairs, or the variance if x and y are the same variable.
[[nodiscard]] inline Rational MeanOfDeviations(std::uint64_t n, Estimate estimate,
                                               const ExactSum& products, const ExactSum& x,
                                               const ExactSum& y) {
  const std::uint64_t divisor = estimate == Estimate::kSample ? n - 1 : n;
  return {ScaledDeviations(n, products, x, y), Dyadic(n) * Dyadic(divisor)};
}

/// The correlation of two variables with these scaled deviations, neither xx nor yy being 0.
[[nodiscard]] inline Extended CorrelationOf(const Dyadic& xx, const Dyadic& xy, const Dyadic& yy) {
  const Extended magnitude = Rational(xy * xy, xx * yy).RoundRoot();
  return xy.Sign() < 0 ? -magnitude : magnitude;
}

}  // namespace qorvex::exact::detail
