#include <array>

#include "qorvex/stats/QorvexPairStats.h"
#include "qorvex/vector/aggregates.h"
#include "qorvex/vector/arithmetic.h"
#include "support/random_vectors.h"
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

TEST(PairStats, FollowsItsFormulasToTheBit) {
  testing::Engine engine(1);
  for (const std::size_t size : {2U, 3U, 7U, 100U, 1001U}) {
    const auto x = testing::RandomVector<Extended>(engine, size);
    const auto y = testing::RandomVector<Extended>(engine, size);
    const auto n = static_cast<Extended>(size);
    const Extended sx = SumVector(x);
    const Extended sy = SumVector(y);
    const Extended sxy = DotProdVectors(x, y);
    const Extended ss_xx = SumSqVector(x) - sx * sx / n;
    const Extended ss_yy = SumSqVector(y) - sy * sy / n;
    const Extended sp_xy = sxy - sx * sy / n;
    const auto [a, b] = Line(x, y);
    EXPECT_EQ(b, sp_xy / ss_xx);
    EXPECT_EQ(a, (sy - b * sx) / n);
    const Extended r =
        (sp_xy / (n - 1)) / (std::sqrt(ss_xx / (n - 1)) * std::sqrt(ss_yy / (n - 1)));
    EXPECT_EQ(CoeffCorrelation(x, y), r);
    EXPECT_EQ(CoeffDetermination(x, y), r * r);
    Extended sse = 0;
    for (std::size_t i = 0; i < size; ++i) sse += ((b * x[i] + a) - y[i]) * ((b * x[i] + a) - y[i]);
    EXPECT_EQ(GetSSE(x, y, a, b), sse);
  }
}

// The normal equations by Cramer's rule, each cofactor written out.
std::array<Extended, 3> PlainParabola(const TQorFloatVector& x, const TQorFloatVector& y) {
  const auto n = static_cast<Extended>(x.size());
  Extended s1 = 0, s2 = 0, s3 = 0, s4 = 0, t0 = 0, t1 = 0, t2 = 0;
  for (std::size_t i = 0; i < x.size(); ++i) {
    const Extended u = x[i];
    s1 += u;
    s2 += u * u;
    s3 += u * u * u;
    s4 += (u * u) * (u * u);
    t0 += y[i];
    t1 += u * y[i];
    t2 += u * u * y[i];
  }
  const Extended d = n * s2 * s4 + 2 * s1 * s2 * s3 - s2 * s2 * s2 - s1 * s1 * s4 - n * (s3 * s3);
  return {
      (s2 * s4 * t0 + s2 * s3 * t1 + s1 * s3 * t2 - s2 * s2 * t2 - s1 * s4 * t1 - s3 * s3 * t0) / d,
      (n * s4 * t1 + s1 * s2 * t2 + s2 * s3 * t0 - s2 * s2 * t1 - s1 * s4 * t0 - n * s3 * t2) / d,
      (n * s2 * t2 + s1 * s3 * t0 + s1 * s2 * t1 - s2 * s2 * t0 - s1 * s1 * t2 - n * s3 * t1) / d};
}

TEST(PairStats, FollowsCramersRuleToTheBit) {
  testing::Engine engine(1);
  for (std::size_t size = 3; size < 60; ++size) {
    const auto x = testing::RandomVector<Extended>(engine, size);
    const auto y = testing::RandomVector<Extended>(engine, size);
    EXPECT_EQ(Parabola(x, y), PlainParabola(x, y)) << size;
  }
}

TEST(PairStats, FindsExactLinesAndParabolas) {
  const std::array<Extended, 2> line{0, 2};
  EXPECT_EQ(Line({1, 2, 3}, {2, 4, 6}), line);
  EXPECT_EQ(GetSSE({1, 2, 3}, {2, 4, 6}, 0, 2), 0);
  EXPECT_EQ(GetSSE({1, 2}, {5, 4}, 1, 2), 5);
  EXPECT_EQ(CoeffCorrelation({1, 2, 3}, {2, 4, 6}), 1);
  EXPECT_EQ(CoeffCorrelation({1, 2, 3}, {6, 4, 2}), -1);
  const std::array<Extended, 3> simple{1, 0, 1};
  EXPECT_EQ(Parabola({0, 1, 2}, {1, 2, 5}), simple);
  // Integers whose sums and determinants are all exact.
  testing::Engine engine(1);
  const auto small = [&engine] { return static_cast<Extended>(engine() % 21) - 10; };
  for (int round = 0; round < 50; ++round) {
    const std::array<Extended, 3> expected{small(), small(), small()};
    TQorFloatVector x = {-1, 0, 2};
    for (int i = 0; i < 5; ++i) x.Append(small());
    TQorFloatVector y;
    for (const Extended u : x) y.Append(expected[0] + expected[1] * u + expected[2] * u * u);
    EXPECT_EQ(Parabola(x, y), expected);
  }
}

TEST(PairStats, FindsParabolasOverSmallSpreadsAfterScaling) {
  const TQorFloatVector x = {0, 0x1p-14L, 0x1p-13L};
  const TQorFloatVector y = {1, 2, 5};
  EXPECT_MATH_ERROR(Parabola(x, y), rsDivideByZero);
  const Extended scale = 0x1p14L;
  TQorFloatVector scaled_x;
  for (const Extended u : x) scaled_x.Append(scale * u);
  const std::array<Extended, 3> scaled = Parabola(scaled_x, y);
  EXPECT_EQ(scaled[0], 1);
  EXPECT_EQ(scaled[1], 0);
  EXPECT_EQ(scale * scale * scaled[2], 0x1p28L);
}

TEST(PairStats, IsLenientForCorrelationsOnly) {
  EXPECT_EQ(CoeffCorrelation({1}, {2}), 0);
  EXPECT_EQ(CoeffCorrelation({}, {}), 0);
  EXPECT_EQ(CoeffCorrelation({1, 2}, {1, 2, 3}), 0);
  EXPECT_EQ(CoeffDetermination({1, 2}, {1, 2, 3}), 0);
  EXPECT_EQ(GetSSE({}, {}, 1, 2), 0);
  Extended a = -1;
  Extended b = -1;
  Extended c = -1;
  const TQorFloatVector three = {1, 2, 3};
  const TQorFloatVector same = {1, 1, 1};
  EXPECT_MATH_ERROR(GetSSE({1, 2}, three, 0, 0), rsSameDimensions);
  EXPECT_MATH_ERROR(GetRegressionLine({}, three, a, b), rsSameDimensions);
  EXPECT_MATH_ERROR(GetQuadraticCurve({}, three, a, b, c), rsSameDimensions);
  EXPECT_ERROR(GetRegressionLine({}, {}, a, b), EInvalidOp, rsInvalidOp);
  EXPECT_ERROR(GetRegressionLine(same, three, a, b), EInvalidOp, rsInvalidOp);
  EXPECT_MATH_ERROR(GetQuadraticCurve({}, {}, a, b, c), rsDivideByZero);
  EXPECT_MATH_ERROR(GetQuadraticCurve(same, three, a, b, c), rsDivideByZero);
  EXPECT_MATH_ERROR(GetQuadraticCurve({1, 2, 1}, three, a, b, c), rsDivideByZero);
  EXPECT_ERROR(CoeffCorrelation(same, three), EInvalidOp, rsInvalidOp);
  EXPECT_ERROR(CoeffCorrelation(three, same), EInvalidOp, rsInvalidOp);
  for (const Extended untouched : {a, b, c}) EXPECT_EQ(untouched, -1);
}

TEST(PairStats, LetsNaNThrough) {
  const TQorFloatVector x = {1, kNaN, 3};
  const TQorFloatVector y = {1, 2, 5};
  EXPECT_TRUE(std::isnan(Line(x, y)[1]));
  EXPECT_TRUE(std::isnan(Parabola(x, y)[2]));
  EXPECT_TRUE(std::isnan(CoeffCorrelation(x, y)));
  EXPECT_TRUE(std::isnan(GetSSE(x, y, 0, 1)));
}

}  // namespace qorvex
