// The figures of DescriptiveStats, whose sums advance side by side, against the routines.

#include "qorvex/base/comparisons.h"
#include "qorvex/stats/QorvexStatistics.h"
#include "qorvex/stats/descriptive_stats.h"
#include "qorvex/vector/aggregates.h"
#include "support/hard_vectors.h"
#include "support/test.h"

namespace qorvex {

using testing::SameBits;

void ExpectFiguresOfRoutines(const TQorFloatVector& v, bool population) {
  DescriptiveStats stats;
  stats.SetPopulation(population);
  stats.SetValues(v);
  const DescriptiveResults& r = stats.Results();
  ASSERT_TRUE(SameBits(r.sum, SumVector(v)));
  ASSERT_TRUE(SameBits(r.sum_sq, SumSqVector(v)));
  if (v.size() < 4) return;
  ASSERT_TRUE(SameBits(r.variance, population ? PopulationVariance(v) : SampleVariance(v)));
  if (FloatIsZero(r.std_dev)) return;
  ASSERT_TRUE(SameBits(r.skew, population ? GetPopulationSkew(v, r.mean, r.std_dev)
                                          : GetSampleSkew(v, r.mean, r.std_dev)));
  ASSERT_TRUE(SameBits(r.kurtosis, population ? GetPopulationKurtosis(v, r.mean, r.std_dev)
                                              : GetSampleKurtosis(v, r.mean, r.std_dev)));
}

TEST(SampleSums, AreThoseOfTheRoutines) {
  testing::Engine engine(104);
  testing::ForEachHardKind([&](testing::Hard kind) {
    for (std::size_t n = 1; n <= 301; ++n) {
      const auto v = testing::HardVector<Extended>(engine, n <= 300 ? n : 10'007, kind);
      ASSERT_NO_FATAL_FAILURE(ExpectFiguresOfRoutines(v, n % 2 == 0)) << v.size();
    }
  });
}

}  // namespace qorvex
