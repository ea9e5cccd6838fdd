#include "qorvex/stats/chi_square.h"

#include "qorvex/stats/detail/between.h"
#include "qorvex/stats/detail/checks.h"
#include "qorvex/stats/detail/density_table.h"
#include "qorvex/stats/distributions/chi_square.h"
#include "qorvex/stats/incomplete_gamma.h"

namespace qorvex::inline QorvexStatistics {

namespace {

void RequireValid(Extended x, std::uint32_t df) {
  if (x < 0) RaiseMathError(rsValueGEZero);
  detail::RequireDegreesOfFreedom(df);
}

}  // namespace

Extended ChiSquarePDF(Extended x, std::uint32_t df) {
  RequireValid(x, df);
  return ChiSquareDistribution(df).Pdf(x);
}

void ChiSquarePDFValues(std::uint32_t df, Extended x_low, Extended x_high, std::int32_t n,
                        TQorFloatVector& x_values, TQorFloatVector& y_values) {
  detail::FillDensityTable({x_low, x_high, n, x_values, y_values}, [=] {
    detail::RequireDegreesOfFreedom(df);
    return [distribution = ChiSquareDistribution(df)](Extended x) { return distribution.Pdf(x); };
  });
}

Extended ChiSquareLess(Extended x, std::uint32_t df) {
  RequireValid(x, df);
  return IncompleteGamma(static_cast<Extended>(df) / 2, x / 2);
}

Extended ChiSquareGreater(Extended x, std::uint32_t df) {
  return 1 - ChiSquareLess(x, df);
}

Extended ChiSquareBetween(Extended x1, Extended x2, std::uint32_t df) {
  return detail::ProbabilityBetween(x1, x2, [=](Extended x) { return ChiSquareLess(x, df); });
}

Extended InvChiSquareLess(std::uint32_t df, Extended p) {
  detail::RequireProbability(p);
  detail::RequireDegreesOfFreedom(df);
  return ChiSquareDistribution(df).Quantile(Tail::kLower, p);
}

Extended InvChiSquareGreater(std::uint32_t df, Extended p) {
  return InvChiSquareLess(df, 1 - p);
}

}  // namespace qorvex::inline QorvexStatistics
