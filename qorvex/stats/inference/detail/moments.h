#pragma once

/// @file
/// Squared standard errors of exact samples.

#include "qorvex/base/errors.h"
#include "qorvex/stats/exact/exact_sample.h"
#include "qorvex/stats/inference/detail/exact_numbers.h"

namespace qorvex::inference {

/// Raises rsVectorG1 for fewer than two values.
inline void RequireTwo(const ExactSample<2>& sample) {
  if (sample.Count() < 2) RaiseMathError(rsVectorG1);
}

/// n - 1.
[[nodiscard]] inline Extended DegreesOfFreedom(const ExactSample<2>& sample) {
  return static_cast<Extended>(sample.Count() - 1);
}

/// s^2 / n.
[[nodiscard]] inline Rational SquaredErrorOfMean(const ExactSample<2>& sample) {
  const Dyadic n = sample.Count();
  return sample.ExactSumOfSquaredDeviations() / Rational(n * (n - Dyadic(1)));
}

/// The squared error of the difference of two means with one variance.
[[nodiscard]] inline Rational PooledSquaredError(const ExactSample<2>& first,
                                                 const ExactSample<2>& second) {
  const Dyadic n1 = first.Count();
  const Dyadic n2 = second.Count();
  const Dyadic both = n1 + n2;
  return (first.ExactSumOfSquaredDeviations() + second.ExactSumOfSquaredDeviations()) *
         Rational(both, n1 * n2 * (both - Dyadic(2)));
}

/// The same with two variances.
[[nodiscard]] inline Rational WelchSquaredError(const ExactSample<2>& first,
                                                const ExactSample<2>& second) {
  return SquaredErrorOfMean(first) + SquaredErrorOfMean(second);
}

/// Welch's degrees of freedom, unless both variances are 0.
[[nodiscard]] inline Extended WelchDegreesOfFreedom(const ExactSample<2>& first,
                                                    const ExactSample<2>& second) {
  const Rational v1 = SquaredErrorOfMean(first);
  const Rational v2 = SquaredErrorOfMean(second);
  const Rational total = v1 + v2;
  return (total * total /
          (v1 * v1 / Rational(first.Count() - 1) + v2 * v2 / Rational(second.Count() - 1)))
      .Round();
}

}  // namespace qorvex::inference
