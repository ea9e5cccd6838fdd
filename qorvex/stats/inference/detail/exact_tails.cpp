#include "qorvex/stats/inference/detail/exact_tails.h"

#include <cmath>

#include "qorvex/base/special/regularised_gamma.h"
#include "qorvex/base/special/symmetric_beta.h"
#include "qorvex/stats/distributions/chi_square.h"
#include "qorvex/stats/distributions/detail/standard_normal.h"
#include "qorvex/stats/distributions/f_distribution.h"
#include "qorvex/stats/distributions/student_t.h"
#include "qorvex/stats/inference/detail/p_values.h"

namespace qorvex::inference {

namespace {

// Where the low part of a pair counts, and pairs neither overflow nor underflow.
bool IsModerate(ExtendedPair x) {
  return std::fabs(x.hi) > 1e-20L && std::fabs(x.hi) < 1e4000L;
}

// Whether two-sided p is sure to exceed 1/2. Its logarithm then comes from what it leaves of 1, the
// lower tail of the squared statistic.
bool IsCentral(ExtendedPair x, Alternative alternative) {
  return alternative == Alternative::kTwoSided && std::fabs(x.hi) < 0.6L;
}

}  // namespace

Tails StudentTails(ExtendedPair t, Extended df) {
  if (!IsModerate(t)) return StudentTDistribution(df).At(t.hi);
  if (t.hi < 0) return StudentTails(-t, df).Mirrored();
  // Half of what lies beyond -t and t.
  const special::RegularisedBeta beta(df / 2, 0.5L);
  const Tails tails = beta.At({ExtendedPair(df) / t, t});
  return {Tail::kUpper, tails.ScaledProbability(Tail::kLower) * 0.5L};
}

Tails ChiSquareTails(ExtendedPair x, Extended df) {
  if (!IsModerate(x)) return ChiSquareDistribution(df).At(x.hi);
  return special::RegularisedGamma(df / 2).At(special::RegularisedGamma::Point(x, 2));
}

Tails FTails(ExtendedPair f, Extended df1, Extended df2) {
  if (!IsModerate(f)) return FDistribution(df1, df2).At(f.hi);
  return special::SymmetricBeta(df1 / 2, df2 / 2).At({f, ExtendedPair(df2) / df1});
}

TestResult WithStudentTails(const TestResult& result, ExtendedPair t, Extended df,
                            Alternative alternative) {
  if (IsCentral(t, alternative)) return WithTail(result, FTails(t * t, 1, df), Tail::kUpper);
  return WithTails(result, StudentTails(t, df), alternative);
}

TestResult WithNormalTails(const TestResult& result, ExtendedPair z, Alternative alternative) {
  if (IsCentral(z, alternative)) return WithTail(result, ChiSquareTails(z * z, 1), Tail::kUpper);
  return WithTails(result, distributions::StandardNormalTails(z), alternative);
}

}  // namespace qorvex::inference
