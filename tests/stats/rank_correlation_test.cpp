#include "qorvex/stats/rank_correlation.h"

#include <cstdint>

#include "qorvex/stats/covariance_matrix.h"
#include "support/random_vectors.h"
#include "support/table.h"
#include "support/test.h"

namespace qorvex {

namespace {

TEST(RankCorrelation, AgreesWithR) {
  const testing::Table table("tables/r_correlations.csv");
  for (std::size_t row = 0; row < table.size(); ++row) {
    const std::vector<std::vector<Extended>> columns{table.Values(row, "x"),
                                                     table.Values(row, "y")};
    for (const auto& [column, figure] : {std::pair("kendall", KendallTau(columns[0], columns[1])),
                                         {"spearman", SpearmanRho(columns[0], columns[1])},
                                         {"pearson", CorrelationMatrix(columns)[0][1]},
                                         {"cov", CovarianceMatrix(columns)[0][1]}}) {
      const Extended expected = table.Value(row, column);
      EXPECT_LE(std::fabs(figure - expected), 1e-14L * std::fabs(expected)) << column << row;
    }
  }
}

int Sign(Extended x) {
  return (x > 0) - (x < 0);
}

// Over all pairs of points, with many ties, and enough points for every kind of sort.
TEST(RankCorrelation, AgreesWithCounting) {
  testing::Engine engine(18);
  for (const std::size_t n : {2U, 3U, 5U, 31U, 64U, 100U, 450U}) {
    for (const unsigned values : {2U, 5U, 40U, 100000U}) {
      auto x = TQorFloatVector::WithLength(n);
      auto y = TQorFloatVector::WithLength(n);
      for (Extended& value : x) value = static_cast<Extended>(engine() % values) / 8 - 2;
      for (Extended& value : y) value = static_cast<Extended>(engine() % values) / 8 - 2;
      x[0] = -0.0L;
      y[0] = 100000;
      x[1] = 100000;
      y[1] = kInfinity;
      std::int64_t score = 0, untied_x = 0, untied_y = 0, xx = 0, xy = 0, yy = 0;
      for (std::size_t i = 0; i < n; ++i) {
        std::int64_t rank_x = 0, rank_y = 0;  // twice the distance from the mean rank
        for (std::size_t j = 0; j < n; ++j) {
          const int order_x = Sign(x[i] - x[j]), order_y = i == j ? 0 : Sign(y[i] - y[j]);
          rank_x += order_x;
          rank_y += order_y;
          if (j < i) {
            score += order_x * order_y;
            untied_x += order_x * order_x;
            untied_y += order_y * order_y;
          }
        }
        xx += rank_x * rank_x;
        xy += rank_x * rank_y;
        yy += rank_y * rank_y;
      }
      const auto coefficient = [](std::int64_t a, std::int64_t b, std::int64_t c) {
        return static_cast<Extended>(a) /
               (std::sqrt(static_cast<Extended>(b)) * std::sqrt(static_cast<Extended>(c)));
      };
      EXPECT_LE(std::fabs(KendallTau(x, y) - coefficient(score, untied_x, untied_y)), 4e-19L)
          << x << y;
      EXPECT_LE(std::fabs(SpearmanRho(x, y) - coefficient(xy, xx, yy)), 4e-19L) << x << y;
    }
  }
}

TEST(RankCorrelation, OfPerfectOrderAndOfUnusableData) {
  using Routine = Extended (*)(VectorView<Extended>, VectorView<Extended>);
  const TQorFloatVector none, one{1}, two{1, 2}, equal{3, 3}, unknown{1, kNaN};
  for (const auto routine : {static_cast<Routine>(KendallTau), static_cast<Routine>(SpearmanRho)}) {
    EXPECT_EQ(routine({1, 2, 7, 7}, {-0.1L, 3, 8, 8}), 1);
    EXPECT_EQ(routine({1, 2, 3}, {5, -4, -kInfinity}), -1);
    EXPECT_MATH_ERROR(routine(two, one), rsSameDimensions);
    EXPECT_MATH_ERROR(routine(none, none), rsVectorIsEmpty);
    EXPECT_MATH_ERROR(routine(one, one), rsVectorG1);
    EXPECT_MATH_ERROR(routine(two, equal), rsSameValue);
    EXPECT_MATH_ERROR(routine(equal, two), rsSameValue);
    EXPECT_TRUE(std::isnan(routine(equal, unknown)));
    EXPECT_TRUE(std::isnan(routine(unknown, two)));
  }
}

template <class T>
class Midranks : public ::testing::Test {};
TYPED_TEST_SUITE(Midranks, AllTypes);

TYPED_TEST(Midranks, ShareTheMeanOfTies) {
  EXPECT_EQ(DoubledMidranks(TQorVector<TypeParam>{20, 30, 10, 20}), (TQorInt64Vector{5, 8, 2, 5}));
  EXPECT_EQ(DoubledMidranks(TQorVector<TypeParam>()), TQorInt64Vector());
  if constexpr (FloatElement<TypeParam>) {
    constexpr auto nan = std::numeric_limits<TypeParam>::quiet_NaN();
    EXPECT_EQ(DoubledMidranks(TQorVector<TypeParam>{nan, 0, -0.0F, nan}),
              (TQorInt64Vector{6, 3, 3, 8}));
  }
}

}  // namespace

}  // namespace qorvex
