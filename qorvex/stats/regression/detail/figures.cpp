#include "qorvex/stats/regression/detail/figures.h"

#include <cmath>
#include <limits>

#include "qorvex/stats/inference/detail/exact_numbers.h"
#include "qorvex/stats/inference/detail/exact_tails.h"

namespace qorvex::regression {

using exact::Rational;

namespace {

constexpr Extended kNaN = std::numeric_limits<Extended>::quiet_NaN();
constexpr Extended kInfinity = std::numeric_limits<Extended>::infinity();

Extended OverZero(const Rational& a) {
  return a.Sign() == 0 ? kNaN : a.Sign() < 0 ? -kInfinity : kInfinity;
}

}  // namespace

Significance StudentSignificance(const Rational& estimate, const Rational& squared_error,
                                 std::size_t degrees_of_freedom) {
  if (degrees_of_freedom == 0) return {kNaN, kNaN, kNaN};
  if (squared_error.Sign() == 0) {
    const Extended t = OverZero(estimate);
    return std::isnan(t) ? Significance{t, t, t} : Significance{t, 0, -kInfinity};
  }
  const auto df = static_cast<Extended>(degrees_of_freedom);
  const special::ExtendedPair t =
      inference::RootToPair(estimate * estimate / squared_error, estimate.Sign());
  const TestResult test =
      inference::WithStudentTails({.statistic = t.hi}, t, df, Alternative::kTwoSided);
  return {test.statistic, test.p, test.log_p};
}

Extended RoundRatio(const Rational& a, const Rational& b) {
  return b.Sign() == 0 ? OverZero(a) : (a / b).Round();
}

AnovaRow RowOf(const Rational& sum_of_squares, std::size_t degrees_of_freedom) {
  return {.degrees_of_freedom = degrees_of_freedom,
          .sum_of_squares = sum_of_squares.Round(),
          .mean_square =
              degrees_of_freedom == 0 ? kNaN : RoundRatio(sum_of_squares, degrees_of_freedom)};
}

AnovaTest TestOf(const Rational& sum_of_squares, std::size_t degrees_of_freedom,
                 const Rational& residual, std::size_t residual_degrees_of_freedom) {
  AnovaTest test{RowOf(sum_of_squares, degrees_of_freedom), kNaN, kNaN, kNaN};
  if (degrees_of_freedom == 0 || residual_degrees_of_freedom == 0) return test;
  const Rational explained = sum_of_squares * residual_degrees_of_freedom;
  const Rational left = residual * degrees_of_freedom;
  test.f = RoundRatio(explained, left);
  if (std::isnan(test.f)) return test;
  const special::Tails tails =
      inference::FTails(std::isinf(test.f) ? test.f : inference::ToPair(explained / left),
                        static_cast<Extended>(degrees_of_freedom),
                        static_cast<Extended>(residual_degrees_of_freedom));
  test.p = tails.Probability(special::Tail::kUpper);
  test.log_p = tails.LogProbability(special::Tail::kUpper);
  return test;
}

}  // namespace qorvex::regression
