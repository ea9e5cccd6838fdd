// Correct digits for the NIST reference sets, compared with the exact results for the data after
// rounding to 80 bits.

#include "qorvex/stats/QorvexPairStats.h"
#include "qorvex/stats/QorvexStatistics.h"
#include "qorvex/stats/exact/exact_pairs.h"
#include "support/table.h"
#include "support/test.h"

namespace qorvex {

Extended CorrectDigits(Extended value, Extended exact) {
  if (value == exact) return 19.2L;  // the precision of 64 bits
  return -std::log10(std::fabs(value - exact) / std::fabs(exact));
}

TEST(Nist, DigitsOfMeansAndStandardDeviations) {
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

TEST(Nist, DigitsOfLinesAndParabolas) {
  const testing::Table sets("nist/regression.csv");
  const auto expect_digits = [&](std::size_t row, const char* column, Extended value,
                                 Extended least) {
    const Extended digits = CorrectDigits(value, sets.Value(row, column));
    EXPECT_GE(digits, least) << column;
    RecordProperty(sets.Text(row, "name") + "_" + column, Float2EStr(digits, 1));
  };
  const auto read_pairs = [&](std::size_t row, TQorFloatVector& x, TQorFloatVector& y) {
    const auto numbers = testing::ReadNumbers("nist/" + sets.Text(row, "file"));
    for (std::size_t i = 0; i < numbers.size(); i += 2) {
      x.Append(numbers[i]);
      y.Append(numbers[i + 1]);
    }
  };
  TQorFloatVector x;
  TQorFloatVector y;
  Extended b0 = 0;
  Extended b1 = 0;
  read_pairs(0, x, y);
  ASSERT_EQ(x.size(), 36U);
  GetRegressionLine(x, y, b0, b1);
  expect_digits(0, "b0", b0, 15.4L);
  expect_digits(0, "b1", b1, 18);
  expect_digits(0, "rss", GetSSE(x, y, b0, b1), 16);
  expect_digits(0, "r2", CoeffDetermination(x, y), 18);

  ExactPairs pairs;
  pairs.Add(x, y);
  for (const auto& [column, figure] : {std::pair("b0", pairs.Intercept()),
                                       {"b1", pairs.Slope()},
                                       {"rss", pairs.SumOfSquaredErrors()},
                                       {"r2", pairs.Determination()}})
    EXPECT_EQ(figure, sets.Value(0, column)) << column;

  Extended b2 = 0;
  x = y = TQorFloatVector();
  read_pairs(1, x, y);
  ASSERT_EQ(x.size(), 40U);
  GetQuadraticCurve(x, y, b0, b1, b2);
  expect_digits(1, "b0", b0, 13);
  expect_digits(1, "b1", b1, 16);
  expect_digits(1, "b2", b2, 15);
}

}  // namespace qorvex
