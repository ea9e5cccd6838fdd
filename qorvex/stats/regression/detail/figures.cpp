#include "qorvex/stats/regression/detail/figures.h"

#include <cmath>
#include <limits>
#include <numbers>

#include "qorvex/stats/distributions/f_distribution.h"
#include "qorvex/stats/distributions/figures.h"
#include "qorvex/stats/distributions/student_t.h"

namespace qorvex::detail {

using exact::Rational;

namespace {

constexpr Extended kNaN = std::numeric_limits<Extended>::quiet_NaN();
constexpr Extended kInfinity = std::numeric_limits<Extended>::infinity();

Extended OverZero(const Rational& a) {
  return a.Sign() == 0 ? kNaN : a.Sign() < 0 ? -kInfinity : kInfinity;
}

}  // namespace

Probability TwoSided(Extended t, std::size_t degrees_of_freedom) {
  if (std::isnan(t) || degrees_of_freedom == 0) return {kNaN, kNaN};
  const StudentTDistribution distribution(static_cast<Extended>(degrees_of_freedom));
  const Extended magnitude = std::fabs(t);
  const Extended p = 2 * Upper(distribution, magnitude);
  // The logarithm of a p near 1 is that of what p lacks.
  if (p > 0.5L) return {p, std::log1p(-Between(distribution, -magnitude, magnitude))};
  return {p, std::numbers::ln2_v<Extended> + LogUpper(distribution, magnitude)};
}

Extended RoundRatio(const Rational& a, const Rational& b) {
  return b.Sign() == 0 ? OverZero(a) : (a / b).Round();
}

Extended RoundRatioRoot(const Rational& a, const Rational& b) {
  return b.Sign() == 0 ? OverZero(a) : (a / b).RoundRoot();
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
  test.f = RoundRatio(sum_of_squares * residual_degrees_of_freedom, residual * degrees_of_freedom);
  if (std::isnan(test.f)) return test;
  const FDistribution distribution(static_cast<Extended>(degrees_of_freedom),
                                   static_cast<Extended>(residual_degrees_of_freedom));
  test.p = Upper(distribution, test.f);
  test.log_p = LogUpper(distribution, test.f);
  return test;
}

}  // namespace qorvex::detail
