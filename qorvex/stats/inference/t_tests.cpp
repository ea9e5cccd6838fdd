#include "qorvex/stats/inference/t_tests.h"

#include <cmath>

#include "qorvex/base/errors.h"
#include "qorvex/stats/exact/exact_sum.h"
#include "qorvex/stats/inference/detail/exact_numbers.h"
#include "qorvex/stats/inference/detail/exact_tails.h"
#include "qorvex/stats/inference/detail/moments.h"
#include "qorvex/stats/inference/detail/p_values.h"

namespace qorvex {

using namespace inference;

namespace {

// t = estimate / sqrt(square of its standard error).
TestResult StudentResult(const Rational& estimate, const Rational& squared_error, Extended df,
                         Alternative alternative, TestForm form = TestForm::kExact) {
  if (squared_error.Sign() == 0) RaiseMathError(rsSameValue);
  const ExtendedPair t = RootToPair(estimate * estimate / squared_error, estimate.Sign());
  return WithStudentTails({.statistic = t.hi, .degrees_of_freedom = df, .form = form}, t, df,
                          alternative);
}

}  // namespace

TestResult OneSampleTTest(const ExactSample<2>& sample, Extended mean, Alternative alternative) {
  RequireTwo(sample);
  const Extended df = DegreesOfFreedom(sample);
  if (!sample.IsFinite() || !std::isfinite(mean)) return {.degrees_of_freedom = df};
  return StudentResult(sample.ExactMean() - Rational(mean), SquaredErrorOfMean(sample), df,
                       alternative);
}

TestResult TwoSampleTTest(const ExactSample<2>& first, const ExactSample<2>& second,
                          Extended difference, Alternative alternative) {
  RequireTwo(first);
  RequireTwo(second);
  const Extended df = DegreesOfFreedom(first) + DegreesOfFreedom(second);
  if (!first.IsFinite() || !second.IsFinite() || !std::isfinite(difference))
    return {.degrees_of_freedom = df};
  return StudentResult(first.ExactMean() - second.ExactMean() - Rational(difference),
                       PooledSquaredError(first, second), df, alternative);
}

TestResult WelchTTest(const ExactSample<2>& first, const ExactSample<2>& second,
                      Extended difference, Alternative alternative) {
  RequireTwo(first);
  RequireTwo(second);
  if (!first.IsFinite() || !second.IsFinite() || !std::isfinite(difference))
    return {.form = TestForm::kWelch};
  const Rational squared_error = WelchSquaredError(first, second);
  if (squared_error.Sign() == 0) RaiseMathError(rsSameValue);
  return StudentResult(first.ExactMean() - second.ExactMean() - Rational(difference), squared_error,
                       WelchDegreesOfFreedom(first, second), alternative, TestForm::kWelch);
}

TestResult PairedTTest(VectorView<Extended> x, VectorView<Extended> y, Extended difference,
                       Alternative alternative) {
  if (x.size() != y.size()) RaiseMathError(rsSameDimensions);
  if (x.size() < 2) RaiseMathError(rsVectorG1);
  const auto size = static_cast<Extended>(x.size());
  ExactSum squares;
  squares.AddSquare(x);
  squares.AddSquare(y);
  if (!squares.IsFinite() || !std::isfinite(difference)) return {.degrees_of_freedom = size - 1};
  ExactSum sum;
  sum.Add(x);
  sum.Remove(y);
  ExactSum products;
  products.AddProduct(x, y);
  const Rational n(size);
  const Rational total(sum.Value());
  const Rational sum_of_squares(squares.Value() - products.Value().Shifted(1));
  const Rational deviations = sum_of_squares - total * total / n;
  return StudentResult(total / n - Rational(difference), deviations / (n * Rational(size - 1)),
                       size - 1, alternative);
}

}  // namespace qorvex
