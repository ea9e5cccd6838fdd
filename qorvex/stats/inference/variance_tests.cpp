#include "qorvex/stats/inference/variance_tests.h"

#include <cmath>

#include "qorvex/base/errors.h"
#include "qorvex/stats/inference/detail/exact_tails.h"
#include "qorvex/stats/inference/detail/moments.h"
#include "qorvex/stats/inference/detail/p_values.h"

namespace qorvex {

using namespace inference;

namespace {

// NaN passes.
void RequirePositive(Extended parameter) {
  if (parameter <= 0 || std::isinf(parameter)) RaiseMathError(rsValueGZero);
}

}  // namespace

TestResult VarianceTest(const ExactSample<2>& sample, Extended variance, Alternative alternative) {
  RequireTwo(sample);
  RequirePositive(variance);
  TestResult result{.degrees_of_freedom = DegreesOfFreedom(sample)};
  if (!sample.IsFinite() || std::isnan(variance)) return result;
  const ExtendedPair x = ToPair(sample.ExactSumOfSquaredDeviations() / Rational(variance));
  result.statistic = x.hi;
  return WithTails(result, ChiSquareTails(x, result.degrees_of_freedom), alternative);
}

TestResult VarianceRatioTest(const ExactSample<2>& first, const ExactSample<2>& second,
                             Extended ratio, Alternative alternative) {
  RequireTwo(first);
  RequireTwo(second);
  RequirePositive(ratio);
  TestResult result{.degrees_of_freedom = DegreesOfFreedom(first),
                    .second_degrees_of_freedom = DegreesOfFreedom(second)};
  if (!first.IsFinite() || !second.IsFinite() || std::isnan(ratio)) return result;
  const Rational numerator =
      first.ExactSumOfSquaredDeviations() * Rational(result.second_degrees_of_freedom);
  const Rational denominator =
      second.ExactSumOfSquaredDeviations() * Rational(result.degrees_of_freedom) * Rational(ratio);
  if (numerator.Sign() == 0 || denominator.Sign() == 0) RaiseMathError(rsSameValue);
  const ExtendedPair f = ToPair(numerator / denominator);
  result.statistic = f.hi;
  return WithTails(result, FTails(f, result.degrees_of_freedom, result.second_degrees_of_freedom),
                   alternative);
}

}  // namespace qorvex
