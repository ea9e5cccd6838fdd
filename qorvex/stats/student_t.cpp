#include "qorvex/stats/student_t.h"

#include "qorvex/base/special_functions.h"
#include "qorvex/stats/detail/between.h"
#include "qorvex/stats/detail/checks.h"
#include "qorvex/stats/detail/density_table.h"
#include "qorvex/stats/distributions/student_t.h"

namespace qorvex::inline QorvexStatistics {

namespace {

// The probability of [-|t|, |t|].
Extended TwoSided(Extended t, Extended df) {
  return 1 - IncompleteBeta(df / (t * t + df), df / 2, 0.5L);
}

}  // namespace

Extended StudentTPDF(Extended t, std::uint32_t df) {
  detail::RequireDegreesOfFreedom(df);
  return StudentTDistribution(df).Pdf(t);
}

void StudentTPDFValues(std::uint32_t df, Extended t_low, Extended t_high, std::int32_t n,
                       TQorFloatVector& t_values, TQorFloatVector& y_values) {
  detail::FillDensityTable({t_low, t_high, n, t_values, y_values}, [=] {
    detail::RequireDegreesOfFreedom(df);
    return [distribution = StudentTDistribution(df)](Extended t) { return distribution.Pdf(t); };
  });
}

Extended StudentTLess(Extended t, std::uint32_t df) {
  detail::RequireDegreesOfFreedom(df);
  const Extended two_sided = TwoSided(t, df);
  return t >= 0 ? two_sided / 2 + 0.5L : (1 - two_sided) / 2;
}

Extended StudentTGreater(Extended t, std::uint32_t df) {
  return 1 - StudentTLess(t, df);
}

Extended StudentTBetween(Extended t1, Extended t2, std::uint32_t df) {
  return detail::ProbabilityBetween(t1, t2, [=](Extended t) { return StudentTLess(t, df); });
}

Extended InvStudentTLess(std::uint32_t df, Extended p) {
  detail::RequireProbability(p);
  detail::RequireDegreesOfFreedom(df);
  return StudentTDistribution(df).Quantile(Tail::kLower, p);
}

Extended InvStudentTGreater(std::uint32_t df, Extended p) {
  return InvStudentTLess(df, 1 - p);
}

}  // namespace qorvex::inline QorvexStatistics
