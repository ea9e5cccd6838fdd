// The univariate reference sets, judged by the number of correct digits against the exact results
// for the data as 80 bits hold them.

#include "qorvex/stats/QorvexStatistics.h"
#include "support/table.h"
#include "support/test.h"

namespace qorvex {

Extended CorrectDigits(Extended value, Extended exact) {
  if (value == exact) return 19.2L;  // all that 64 bits hold
  return -std::log10(std::fabs(value - exact) / std::fabs(exact));
}

TEST(Nist, MeansReach17DigitsAndStandardDeviations17AndAHalf) {
  const testing::Table sets("nist/univariate.csv");
  ASSERT_EQ(sets.size(), 9U);
  for (std::size_t row = 0; row < sets.size(); ++row) {
    const std::string& name = sets.Text(row, "name");
    const TQorFloatVector data(testing::ReadNumbers("nist/" + sets.Text(row, "file")));
    const Extended mean_digits = CorrectDigits(QorMean(data), sets.Value(row, "mean"));
    const Extended std_dev_digits = CorrectDigits(SampleStdDev(data), sets.Value(row, "std_dev"));
    EXPECT_GE(mean_digits, 17.0L) << name;
    EXPECT_GE(std_dev_digits, 17.5L) << name;
    RecordProperty(name, Float2EStr(mean_digits, 1) + " " + Float2EStr(std_dev_digits, 1));
  }
}

}  // namespace qorvex
