#pragma once

// Skewness and kurtosis from exact sums of powers.

#include <cstdint>

#include "qorvex/base/errors.h"
#include "qorvex/base/exact/rational.h"
#include "qorvex/stats/estimate.h"

namespace qorvex::exact::detail {

/// The sums of the powers of n values, up to the third or the fourth.
struct PowerSums {
  std::uint64_t n = 0;
  Dyadic first, second, third, fourth;

  /// n times the sum of squared deviations from the mean.
  [[nodiscard]] Dyadic SecondMoment() const { return Dyadic(n) * second - first * first; }
  /// n^2 times the sum of cubed deviations.
  [[nodiscard]] Dyadic ThirdMoment() const {
    const Dyadic count(n);
    return count * (count * third - Dyadic(3) * first * second) + Dyadic(2) * first * first * first;
  }
  /// n^3 times the sum of the fourth powers of deviations.
  [[nodiscard]] Dyadic FourthMoment() const {
    const Dyadic count(n);
    const Dyadic square = first * first;
    return count * (count * (count * fourth - Dyadic(4) * first * third) +
                    Dyadic(6) * square * second) -
           Dyadic(3) * square * square;
  }
};

/// The second moment, for values of which not all are equal: EMathError rsStdDev otherwise.
[[nodiscard]] inline Dyadic RequireSpread(const PowerSums& sums) {
  Dyadic second = sums.SecondMoment();
  if (second.Sign() == 0) RaiseMathError(rsStdDev);
  return second;
}

/// The skewness of at least three values.
[[nodiscard]] inline Extended Skewness(const PowerSums& sums, Estimate estimate) {
  const Dyadic second = RequireSpread(sums);
  const Dyadic third = sums.ThirdMoment();
  Dyadic numerator = third * third;
  Dyadic denominator = second * second * second;
  if (estimate == Estimate::kSample) {
    const Dyadic n(sums.n);
    numerator *= n * (n - 1);
    denominator *= (n - 2) * (n - 2);
  }
  const Extended magnitude = Rational(numerator, denominator).RoundRoot();
  return third.Sign() < 0 ? -magnitude : magnitude;
}

/// The excess kurtosis of at least four values.
[[nodiscard]] inline Extended Kurtosis(const PowerSums& sums, Estimate estimate) {
  const Dyadic second = RequireSpread(sums);
  const Dyadic square = second * second;
  const Dyadic fourth = sums.FourthMoment();
  if (estimate == Estimate::kPopulation) {
    return Rational(fourth - Dyadic(3) * square, square).Round();
  }
  const Dyadic n(sums.n);
  const Dyadic less = n - 1;
  return Rational(less * ((n + 1) * fourth - Dyadic(3) * less * square), (n - 2) * (n - 3) * square)
      .Round();
}

}  // namespace qorvex::exact::detail
