#include "qorvex/stats/shape.h"

#include <boost/multiprecision/cpp_bin_float.hpp>

#include "qorvex/stats/dispersion.h"
#include "qorvex/stats/location.h"
#include "support/random_vectors.h"
#include "support/test.h"

namespace qorvex {

using Real = boost::multiprecision::cpp_bin_float_100;

struct Shape {
  Real sample_skew, population_skew, sample_kurtosis, population_kurtosis;
};

// Two passes in 100 digits, from the central moments.
Shape ExactShape(const TQorFloatVector& v) {
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
  return {g1 * sqrt(n * (n - 1)) / (n - 2), g1, (n - 1) / ((n - 2) * (n - 3)) * ((n + 1) * g2 + 6),
          g2};
}

double RelativeError(Extended value, const Real& exact) {
  return static_cast<double>(abs((Real(value) - exact) / exact));
}

TEST(Shape, AgreesWithAComputationInHigherPrecision) {
  testing::Engine engine(99);
  for (const std::size_t n : {4U, 5U, 17U, 400U}) {
    auto v = TQorFloatVector::WithLength(n);
    // Skewed and off centre, so that no term vanishes.
    for (Extended& x : v)
      x = 3 - 2 * std::log(static_cast<Extended>(engine() >> 1U) * 0x1p-63L + 0x1p-64L);
    const Shape exact = ExactShape(v);
    constexpr double limit = 2e-16;  // the single-pass standard deviation loses a few digits
    EXPECT_LT(RelativeError(GetSampleSkew(v), exact.sample_skew), limit) << n;
    EXPECT_LT(RelativeError(GetPopulationSkew(v), exact.population_skew), limit) << n;
    EXPECT_LT(RelativeError(GetSampleKurtosis(v), exact.sample_kurtosis), limit) << n;
    EXPECT_LT(RelativeError(GetPopulationKurtosis(v), exact.population_kurtosis), limit) << n;

    const Extended mean = QorMean(v);
    constexpr double two_pass_limit = 2e-17;
    EXPECT_LT(RelativeError(GetSampleSkew(v, mean, SampleStdDev(v)), exact.sample_skew),
              two_pass_limit)
        << n;
    EXPECT_LT(RelativeError(GetPopulationKurtosis(v, mean, PopulationStdDev(v)),
                            exact.population_kurtosis),
              two_pass_limit)
        << n;
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
