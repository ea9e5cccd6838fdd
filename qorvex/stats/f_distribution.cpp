#include "qorvex/stats/f_distribution.h"

#include "qorvex/base/special_functions.h"
#include "qorvex/stats/detail/between.h"
#include "qorvex/stats/detail/checks.h"
#include "qorvex/stats/detail/density_table.h"
#include "qorvex/stats/distributions/f_distribution.h"

namespace qorvex::inline QorvexStatistics {

namespace {

void RequireBoth(std::uint32_t df1, std::uint32_t df2) {
  detail::RequireDegreesOfFreedom(df1);
  detail::RequireDegreesOfFreedom(df2);
}

}  // namespace

Extended FDistPDF(Extended f, std::uint32_t df1, std::uint32_t df2) {
  if (f < 0) RaiseMathError(rsValueGZero);
  RequireBoth(df1, df2);
  return FDistribution(df1, df2).Pdf(f);
}

void FDistPDFValues(std::uint32_t df1, std::uint32_t df2, Extended f_low, Extended f_high,
                    std::int32_t n, TQorFloatVector& f_values, TQorFloatVector& y_values) {
  detail::FillDensityTable({f_low, f_high, n, f_values, y_values}, [=] {
    RequireBoth(df1, df2);
    return [distribution = FDistribution(df1, df2)](Extended f) { return distribution.Pdf(f); };
  });
}

Extended FDistLess(Extended f, std::uint32_t df1, std::uint32_t df2) {
  if (f <= 0) RaiseMathError(rsValueGZero);
  RequireBoth(df1, df2);
  const Extended numerator = df1;
  const Extended denominator = df2;
  return 1 - IncompleteBeta(denominator / (denominator + numerator * f), denominator / 2,
                            numerator / 2);
}

Extended FDistGreater(Extended f, std::uint32_t df1, std::uint32_t df2) {
  return 1 - FDistLess(f, df1, df2);
}

Extended FDistBetween(Extended f1, Extended f2, std::uint32_t df1, std::uint32_t df2) {
  return detail::ProbabilityBetween(f1, f2, [=](Extended f) { return FDistLess(f, df1, df2); });
}

Extended InvFDistLess(std::uint32_t df1, std::uint32_t df2, Extended p) {
  detail::RequireProbability(p);
  RequireBoth(df1, df2);
  return FDistribution(df1, df2).Quantile(Tail::kLower, p);
}

Extended InvFDistGreater(std::uint32_t df1, std::uint32_t df2, Extended p) {
  return InvFDistLess(df1, df2, 1 - p);
}

}  // namespace qorvex::inline QorvexStatistics
