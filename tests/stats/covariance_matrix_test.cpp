#include "qorvex/stats/covariance_matrix.h"

#include "qorvex/random/QorvexRandom.h"
#include "qorvex/stats/exact/exact_pairs.h"
#include "support/random_vectors.h"
#include "support/test.h"

namespace qorvex {

namespace {

template <class T>
class CovarianceMatrixOf : public ::testing::Test {};
TYPED_TEST_SUITE(CovarianceMatrixOf, AllTypes);

TYPED_TEST(CovarianceMatrixOf, HasTheFiguresOfPairs) {
  testing::Engine engine(18);
  std::vector<TQorVector<TypeParam>> columns;
  for (int i = 0; i < 4; ++i) columns.push_back(testing::RandomVector<TypeParam>(engine, 60));
  const TQorFloatMatrix sample = CovarianceMatrix(columns);
  const TQorFloatMatrix population = CovarianceMatrix(columns, Estimate::kPopulation);
  const TQorFloatMatrix correlation = CorrelationMatrix(columns);
  for (std::size_t i = 0; i < 4; ++i) {
    for (std::size_t j = 0; j < 4; ++j) {
      ExactPairs pairs;
      pairs.Add(columns[i], columns[j]);
      EXPECT_EQ(sample[i][j], pairs.SampleCovariance());
      EXPECT_EQ(population[i][j], pairs.PopulationCovariance());
      EXPECT_EQ(correlation[i][j], pairs.Correlation());
    }
  }
}

TEST(CovarianceMatrix, OfDependentColumns) {
  const TQorFloatMatrix columns{{1, 2, 4, 9}, {-2, -4, -8, -18}, {5, 0, 0, 3}};
  const TQorFloatMatrix correlation = CorrelationMatrix(columns);
  EXPECT_EQ(correlation[0][0], 1);
  EXPECT_EQ(correlation[0][1], -1);
  EXPECT_EQ(correlation[1][0], -1);
  EXPECT_EQ(PackedUpperTriangle({{1, 2, 4}, {2, 3, 5}, {4, 5, 6}}),
            (TQorFloatVector{1, 2, 3, 4, 5, 6}));
  const TQorFloatMatrix unknown{{1, 2}, {kNaN, 2}, {3, kInfinity}};
  const TQorFloatMatrix covariance = CovarianceMatrix(unknown);
  const TQorFloatMatrix unit = CorrelationMatrix(unknown);
  EXPECT_EQ(covariance[0][0], 0.5L);
  EXPECT_EQ(unit[0][0], 1);
  for (const auto& [i, j] : {std::pair(0U, 1U), {1U, 1U}, {2U, 0U}, {2U, 2U}}) {
    EXPECT_TRUE(std::isnan(covariance[i][j]));
    EXPECT_TRUE(std::isnan(unit[i][j]));
  }
}

// Variables of which one is the sum of two others: rounding makes some of the matrices indefinite.
TEST(CovarianceMatrix, OfDependentColumnsCanBeDrawnFrom) {
  testing::Engine engine(18);
  int refused = 0;
  for (int trial = 0; trial < 200; ++trial) {
    auto columns = TQorFloatMatrix::WithLength(3);
    for (TQorFloatVector& column : columns) column = TQorFloatVector::WithLength(20);
    for (std::size_t i = 0; i < 20; ++i) {
      columns[0][i] = static_cast<Extended>(engine() % 1000);
      columns[1][i] = static_cast<Extended>(engine() % 1000);
      columns[2][i] = columns[0][i] + columns[1][i];
    }
    const TQorFloatVector packed = PackedUpperTriangle(CovarianceMatrix(columns));
    TQorFloatVector factor, variate;
    std::int32_t error = 0;
    RandomStream stream(18);
    Random_MVNorm({0, 0, 0}, packed, factor, variate, error, stream);
    refused += error;
    const MultivariateNormal distribution({0, 0, 0}, packed);
    ASSERT_EQ(distribution.Rank(), 2U);
    const TQorFloatVector x = distribution.Draw(stream);
    EXPECT_LE(std::fabs(x[0] + x[1] - x[2]), 1e-14L);
  }
  EXPECT_GT(refused, 20);
}

TEST(CovarianceMatrix, RefusesWhatIsNoTable) {
  const std::vector<TQorFloatVector> none, empty{{}, {}}, one{{1}, {2}}, equal{{1, 2}, {3, 3}};
  const std::vector<TQorFloatVector> ragged{{}, {1}};
  EXPECT_MATH_ERROR(CovarianceMatrix(none), rsMatrixIsEmpty);
  EXPECT_MATH_ERROR(CovarianceMatrix(ragged), rsSameDimensions);
  EXPECT_MATH_ERROR(CorrelationMatrix(empty), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(CovarianceMatrix(one), rsVectorG1);
  EXPECT_MATH_ERROR(CorrelationMatrix(one), rsVectorG1);
  EXPECT_EQ(CovarianceMatrix(one, Estimate::kPopulation)[0][1], 0);
  EXPECT_MATH_ERROR(CorrelationMatrix(equal), rsSameValue);
  EXPECT_MATH_ERROR(PackedUpperTriangle(TQorFloatMatrix()), rsMatrixIsEmpty);
  EXPECT_MATH_ERROR(PackedUpperTriangle({{1, 2}}), rsMatrixSqr);
}

}  // namespace

}  // namespace qorvex
