#include "qorvex/stats/beta_distribution.h"

#include <algorithm>
#include <limits>

#include "qorvex/base/special_functions.h"
#include "qorvex/stats/detail/between.h"
#include "qorvex/stats/detail/checks.h"
#include "qorvex/stats/detail/density_table.h"
#include "qorvex/stats/distributions/beta.h"

namespace qorvex::inline QorvexStatistics {

namespace {

void RequireShapes(Extended a, Extended b) {
  if (a <= 0 || b <= 0) RaiseMathError(rsValueGZero);
}

// The support, and its map to [0, 1].
class Support {
 public:
  Support(Extended lower, Extended upper) : lower_(lower), width_(upper - lower) {
    constexpr Extended largest = std::numeric_limits<Extended>::max();
    if (!(width_ > 0 && width_ <= largest)) RaiseMathError(rsInvalidValue);
  }
  [[nodiscard]] Extended ToUnit(Extended x) const { return (x - lower_) / width_; }
  [[nodiscard]] Extended FromUnit(Extended x) const { return lower_ + width_ * x; }
  [[nodiscard]] Extended Density(Extended x, const BetaDistribution& beta) const {
    return beta.Pdf(ToUnit(x)) / width_;
  }

 private:
  Extended lower_;
  Extended width_;
};

}  // namespace

Extended BetaPDF(Extended x, Extended a, Extended b) {
  RequireShapes(a, b);
  return BetaDistribution(a, b).Pdf(x);
}

Extended BetaPDF(Extended x, Extended a, Extended b, Extended lower, Extended upper) {
  RequireShapes(a, b);
  return Support(lower, upper).Density(x, BetaDistribution(a, b));
}

void BetaPDFValues(Extended a, Extended b, Extended x_low, Extended x_high, std::int32_t n,
                   TQorFloatVector& x_values, TQorFloatVector& y_values) {
  BetaPDFValues(a, b, 0, 1, x_low, x_high, n, x_values, y_values);
}

void BetaPDFValues(Extended a, Extended b, Extended lower, Extended upper, Extended x_low,
                   Extended x_high, std::int32_t n, TQorFloatVector& x_values,
                   TQorFloatVector& y_values) {
  detail::FillDensityTable({x_low, x_high, n, x_values, y_values}, [=] {
    RequireShapes(a, b);
    return [=, support = Support(lower, upper)](Extended x) {
      return support.Density(x, BetaDistribution(a, b));
    };
  });
}

Extended BetaDistLess(Extended x, Extended a, Extended b) {
  RequireShapes(a, b);
  // Points up to 0, including -0, become +0. NaN stays NaN.
  return IncompleteBeta(x <= 0 ? 0 : std::min<Extended>(x, 1), a, b);
}

Extended BetaDistLess(Extended x, Extended a, Extended b, Extended lower, Extended upper) {
  RequireShapes(a, b);
  return BetaDistLess(Support(lower, upper).ToUnit(x), a, b);
}

Extended BetaDistGreater(Extended x, Extended a, Extended b) {
  return 1 - BetaDistLess(x, a, b);
}

Extended BetaDistGreater(Extended x, Extended a, Extended b, Extended lower, Extended upper) {
  return 1 - BetaDistLess(x, a, b, lower, upper);
}

Extended BetaDistBetween(Extended x1, Extended x2, Extended a, Extended b) {
  return detail::ProbabilityBetween(x1, x2, [=](Extended x) { return BetaDistLess(x, a, b); });
}

Extended BetaDistBetween(Extended x1, Extended x2, Extended a, Extended b, Extended lower,
                         Extended upper) {
  return detail::ProbabilityBetween(
      x1, x2, [=](Extended x) { return BetaDistLess(x, a, b, lower, upper); });
}

Extended InvBetaDistLess(Extended a, Extended b, Extended p) {
  detail::RequireProbability(p);
  RequireShapes(a, b);
  return BetaDistribution(a, b).Quantile(Tail::kLower, p);
}

Extended InvBetaDistLess(Extended a, Extended b, Extended lower, Extended upper, Extended p) {
  detail::RequireProbability(p);
  RequireShapes(a, b);
  return Support(lower, upper).FromUnit(BetaDistribution(a, b).Quantile(Tail::kLower, p));
}

Extended InvBetaDistGreater(Extended a, Extended b, Extended p) {
  return InvBetaDistLess(a, b, 1 - p);
}

Extended InvBetaDistGreater(Extended a, Extended b, Extended lower, Extended upper, Extended p) {
  return InvBetaDistLess(a, b, lower, upper, 1 - p);
}

}  // namespace qorvex::inline QorvexStatistics
