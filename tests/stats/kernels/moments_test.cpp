// Means and variances against plain loops, above all variances about a mean that a double cannot
// hold.

#include "qorvex/matrix/QorvexMatrix.h"
#include "qorvex/stats/QorvexStatistics.h"
#include "qorvex/vector/QorvexVector.h"
#include "support/hard_vectors.h"
#include "support/test.h"

namespace qorvex {

using testing::SameBits;

template <class T>
struct OrderedMoments : ::testing::Test {};
TYPED_TEST_SUITE(OrderedMoments, FloatTypes);

template <FloatElement T>
void ExpectMomentsOfLoops(const TQorVector<T>& v) {
  const auto n = static_cast<Extended>(v.size());
  Extended sum = 0;
  Extended sum_sq = 0;
  for (const T element : v) {
    const auto x = static_cast<Extended>(element);
    sum += x;
    sum_sq += x * x;
  }
  Extended deviations = 0;
  for (const T element : v) {
    const Extended difference = static_cast<Extended>(element) - sum / n;
    deviations += difference * difference;
  }
  ASSERT_TRUE(SameBits(QorMean(v), sum / n));
  ASSERT_TRUE(SameBits(PopulationVariance(v), deviations / n));
  ASSERT_TRUE(SameBits(SampleVariance(v), deviations / (n - 1)));
  Extended variance = 0;
  Extended mean = 0;
  PopulationVarianceAndMean(v, variance, mean);
  ASSERT_TRUE(SameBits(mean, sum / n));
  ASSERT_TRUE(SameBits(variance, (sum_sq - sum * sum / n) / n));

  const TQorMatrix<T> matrix = {v, v};
  std::uint32_t count = 0;
  for (const T x : v) sum += static_cast<Extended>(x);
  ASSERT_TRUE(SameBits(GrandMean(matrix, count), sum / (2 * n)));
  ASSERT_TRUE(SameBits(SumMatrixRow(matrix, 1), SumVector(v)));
  if (v.size() < 100) return;
  sum = 0;
  for (std::size_t i = 10; i < v.size() - 10; ++i) sum += static_cast<Extended>(v[i]);
  ASSERT_TRUE(SameBits(TrimmedMean(v, 10.5L / n), sum / (n - 20)));
}

TYPED_TEST(OrderedMoments, AreThoseOfLoops) {
  testing::Engine engine(1904);
  testing::ForEachHardKind([&](testing::Hard kind) {
    for (std::size_t n = 2; n <= 300; ++n) {
      ExpectMomentsOfLoops(testing::HardVector<TypeParam>(engine, n, kind));
    }
    for (const std::size_t n : {600U, 3'000U, 10'000U}) {
      auto v = testing::HardVector<TypeParam>(engine, n, kind);
      ExpectMomentsOfLoops(v);
      // Deviations that are tiny compared with the mean.
      for (TypeParam& x : v) x = static_cast<TypeParam>(1000 + std::fmod(x, 1) / 1024);
      ExpectMomentsOfLoops(v);
    }
  });
}

}  // namespace qorvex
