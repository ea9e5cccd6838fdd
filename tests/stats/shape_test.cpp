#include "qorvex/stats/shape.h"

#include <array>
#include <boost/multiprecision/cpp_bin_float.hpp>

#include "qorvex/stats/dispersion.h"
#include "qorvex/stats/location.h"
#include "support/random_vectors.h"
#include "support/test.h"

namespace qorvex {

using Real = boost::multiprecision::cpp_bin_float_100;

// Two passes in 100 digits, from the central moments: the skew and kurtosis of the sample, then
// those of the population.
std::array<Real, 4> ExactShape(const TQorFloatVector& v) {
  const Real n = v.size();
  Real mean = 0;
  for (const Extended x : v) mean += Real(x) / n;
  Real m2 = 0;
  Real m3 = 0;
  Real m4 = 0;
  for (const Extended x : v) {
    const Real d = Real(x) - mean;
    m2 += d * d / n;
    m3 += d * d * d / n;
    m4 += d * d * d * d / n;
  }
  const Real g1 = m3 / (m2 * sqrt(m2));
  const Real g2 = m4 / (m2 * m2) - 3;
  return {g1 * sqrt(n * (n - 1)) / (n - 2), (n - 1) / ((n - 2) * (n - 3)) * ((n + 1) * g2 + 6), g1,
          g2};
}

TEST(Shape, AgreesWithAComputationInHigherPrecision) {
  testing::Engine engine(99);
  for (const std::size_t n : {4U, 5U, 17U, 400U}) {
    auto v = TQorFloatVector::WithLength(n);
    // Skewed and off centre, so that no term vanishes.
    for (Extended& x : v)
      x = 3 - 2 * std::log(static_cast<Extended>(engine() >> 1U) * 0x1p-63L + 0x1p-64L);
    const auto expect_near = [&](const std::array<Extended, 4>& shape, double limit) {
      const std::array<Real, 4> exact = ExactShape(v);
      for (std::size_t i = 0; i < shape.size(); ++i)
        EXPECT_LT(abs((shape[i] - exact[i]) / exact[i]), limit) << n << ' ' << i;
    };
    // The single-pass standard deviation loses a few digits.
    expect_near(
        {GetSampleSkew(v), GetSampleKurtosis(v), GetPopulationSkew(v), GetPopulationKurtosis(v)},
        2e-16);
    const Extended mean = QorMean(v);
    const Extended s = SampleStdDev(v);
    const Extended sigma = PopulationStdDev(v);
    expect_near({GetSampleSkew(v, mean, s), GetSampleKurtosis(v, mean, s),
                 GetPopulationSkew(v, mean, sigma), GetPopulationKurtosis(v, mean, sigma)},
                2e-17);
  }
}

TEST(Shape, ChecksTheCountBeforeTheSpread) {
  EXPECT_MATH_ERROR(GetSampleSkew({}), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(GetSampleSkew({1, 1}), rsVectorG2);
  EXPECT_MATH_ERROR(GetSampleSkew({1, 1, 1}), rsStdDev);
  EXPECT_MATH_ERROR(GetPopulationSkew({1, 2}, 1.5L, 0), rsVectorG2);
  EXPECT_MATH_ERROR(GetPopulationSkew({1, 2, 3}, 2, 1e-16L), rsStdDev);
  EXPECT_MATH_ERROR(GetSampleKurtosis({}, 0, 0), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(GetSampleKurtosis({1, 2, 3}), rsVectorG3);
  EXPECT_MATH_ERROR(GetPopulationKurtosis({1, 2, 3}), rsVectorG3);
  EXPECT_MATH_ERROR(GetPopulationKurtosis({1, 1, 1, 1}), rsStdDev);
  EXPECT_MATH_ERROR(GetSampleKurtosis({1, 2, 3, 4}, 2.5L, 1e-16L), rsStdDev);
  EXPECT_MATH_ERROR(GetPopulationKurtosis({1, 2, 3, 4}, 2.5L, -1e-16L), rsStdDev);
}

}  // namespace qorvex
