#include <array>

#include "qorvex/stats/QorvexPairStats.h"
#include "support/table.h"
#include "support/test.h"

namespace qorvex {

std::array<Extended, 2> Line(const TQorFloatVector& x, const TQorFloatVector& y) {
  std::array<Extended, 2> line;
  GetRegressionLine(x, y, line[0], line[1]);
  return line;
}

std::array<Extended, 3> Parabola(const TQorFloatVector& x, const TQorFloatVector& y) {
  std::array<Extended, 3> parabola;
  GetQuadraticCurve(x, y, parabola[0], parabola[1], parabola[2]);
  return parabola;
}

TEST(PairStats, AgreesWithTheTableToTheLastBit) {
  const testing::Table table("tables/pairs.csv");
  for (std::size_t row = 0; row < table.size(); ++row) {
    const TQorFloatVector x(table.Values(row, "x"));
    const TQorFloatVector y(table.Values(row, "y"));
    const auto [a, b] = Line(x, y);
    const auto [a0, a1, a2] = Parabola(x, y);
    for (const auto& [column, figure] : {
             std::pair("a", a),
             {"b", b},
             {"sse", GetSSE(x, y, a, b)},
             {"r", CoeffCorrelation(x, y)},
             {"r2", CoeffDetermination(x, y)},
             {"a0", a0},
             {"a1", a1},
             {"a2", a2},
         })
      EXPECT_EQ(figure, table.Value(row, column)) << column << ", row " << row + 1;
  }
}

TEST(PairStats, ExactLinesAndParabolas) {
  const std::array<Extended, 2> line{0, 2};
  EXPECT_EQ(Line({1, 2, 3}, {2, 4, 6}), line);
  const std::array<Extended, 3> simple{1, 0, 1};
  EXPECT_EQ(Parabola({0, 1, 2}, {1, 2, 5}), simple);
}

TEST(PairStats, FitsCheckLengthsAndSpread) {
  Extended a = -1;
  Extended b = -1;
  Extended c = -1;
  const TQorFloatVector three = {1, 2, 3};
  const TQorFloatVector same = {1, 1, 1};
  EXPECT_MATH_ERROR(GetRegressionLine({}, three, a, b), rsSameDimensions);
  EXPECT_MATH_ERROR(GetQuadraticCurve({}, three, a, b, c), rsSameDimensions);
  EXPECT_ERROR(GetRegressionLine({}, {}, a, b), EInvalidOp, rsInvalidOp);
  EXPECT_ERROR(GetRegressionLine(same, three, a, b), EInvalidOp, rsInvalidOp);
  EXPECT_MATH_ERROR(GetQuadraticCurve({}, {}, a, b, c), rsDivideByZero);
  EXPECT_MATH_ERROR(GetQuadraticCurve(same, three, a, b, c), rsDivideByZero);
  EXPECT_MATH_ERROR(GetQuadraticCurve({1, 2, 1}, three, a, b, c), rsDivideByZero);
  EXPECT_MATH_ERROR(GetQuadraticCurve({0, 0x1p-14L, 0x1p-13L}, three, a, b, c), rsDivideByZero);
  for (const Extended untouched : {a, b, c}) EXPECT_EQ(untouched, -1);
}

TEST(PairStats, NaNGivesNaN) {
  const TQorFloatVector x = {1, kNaN, 3};
  const TQorFloatVector y = {1, 2, 5};
  EXPECT_TRUE(std::isnan(Line(x, y)[1]));
  EXPECT_TRUE(std::isnan(Parabola(x, y)[2]));
}

}  // namespace qorvex
