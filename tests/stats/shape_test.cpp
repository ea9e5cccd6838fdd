#include "qorvex/stats/shape.h"

#include "qorvex/stats/dispersion.h"
#include "qorvex/stats/location.h"
#include "support/table.h"
#include "support/test.h"

namespace qorvex {

TEST(Shape, AgreesWithTheTable) {
  const testing::Table table("tables/shape.csv");
  for (std::size_t row = 0; row < table.size(); ++row) {
    const TQorFloatVector v(table.Values(row, "values"));
    const auto expect_near = [&](const char* column, Extended figure, Extended limit) {
      EXPECT_LE(std::fabs(figure / table.Value(row, column) - 1), limit)
          << column << ", row " << row + 1;
    };
    // The single-pass standard deviation loses a few digits.
    expect_near("sample_skew", GetSampleSkew(v), 2e-16L);
    expect_near("sample_kurtosis", GetSampleKurtosis(v), 2e-16L);
    expect_near("population_skew", GetPopulationSkew(v), 2e-16L);
    expect_near("population_kurtosis", GetPopulationKurtosis(v), 2e-16L);
    const Extended mean = QorMean(v);
    const Extended s = SampleStdDev(v);
    const Extended sigma = PopulationStdDev(v);
    expect_near("sample_skew", GetSampleSkew(v, mean, s), 2e-17L);
    expect_near("sample_kurtosis", GetSampleKurtosis(v, mean, s), 2e-17L);
    expect_near("population_skew", GetPopulationSkew(v, mean, sigma), 2e-17L);
    expect_near("population_kurtosis", GetPopulationKurtosis(v, mean, sigma), 2e-17L);
  }
}

}  // namespace qorvex
