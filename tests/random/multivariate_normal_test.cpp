#include "qorvex/random/QorvexRandom.h"
#include "random/scripted_source.h"
#include "support/test.h"

namespace qorvex {

namespace {

using testing::ScriptedSource;

// Some script of normal variates.
ScriptedSource Script() {
  return ScriptedSource({0.5L, 0.75L, 0.5L, 0.25L, 0.625L, 0.5625L});
}

TEST(MultivariateNormal, HasTheBitsOfTheRoutineForDefiniteMatrices) {
  const TQorFloatVector mean{10, 20, 30};
  const TQorFloatVector covariance{4, 2, 10.1L, 6, 0.3L, 10.25L};
  TQorFloatVector factor, variate;
  std::int32_t error = 7;
  Random_MVNorm(mean, covariance, factor, variate, error, Script());
  const MultivariateNormal distribution(mean, covariance);
  EXPECT_EQ(distribution.Size(), 3U);
  EXPECT_EQ(distribution.Rank(), 3U);
  EXPECT_EQ(distribution.Draw(Script()), variate);
}

// Covariance matrices of variables that depend on one another, and their ranks.
TEST(MultivariateNormal, DrawsFromSingularMatrices) {
  constexpr Extended third = 1 / 3.0L, unit = std::numeric_limits<Extended>::epsilon();
  struct {
    TQorFloatVector covariance;
    std::size_t rank;
    TQorFloatVector weights;  // of a sum without variance
  } const cases[] = {
      {{1, 1, 1}, 1, {1, -1}},
      {{1, 1 + unit, 1}, 1, {1, -1}},
      {{0, 0, 1}, 1, {1, 0}},
      {{0, 0, 0}, 0, {1, 1}},
      {{1, -1e-6L, 1e-12L}, 1, {1e-6L, 1}},
      {{third, third, third, 0, 0, 2, kNaN}, 2, {1, -1, 0}},
      // x, y and x + y, with variances of very different sizes.
      {{1e-12L, 0.5e-12L, 1, 1.5e-12L, 1 + 0.5e-12L, 1 + 2e-12L}, 2, {1, 1, -1}},
      {{2, 1, 2, 3, 3, 6, 1, -1, 0, 2}, 2, {1, 1, -1, 0}},
      // Elimination leaves a positive pivot of some units.
      {{0.3L, 0.1L, 0.7L, 0.4L, 0.8L, 1.2L + unit}, 2, {1, 1, -1}},
  };
  constexpr int draws = 20000;
  for (const auto& c : cases) {
    SCOPED_TRACE(::testing::Message() << c.covariance);
    const std::size_t n = c.weights.size();
    const MultivariateNormal distribution(TQorFloatVector::WithLength(n), c.covariance);
    EXPECT_EQ(distribution.Rank(), c.rank);
    std::vector<std::vector<Extended>> means(n, std::vector<Extended>(n));
    RandomStream stream(18);
    for (int draw = 0; draw < draws; ++draw) {
      const TQorFloatVector x = distribution.Draw(stream);
      Extended sum = 0, size = 0;
      for (std::size_t i = 0; i < n; ++i) {
        sum += c.weights[i] * x[i];
        size += std::fabs(c.weights[i] * x[i]);
        for (std::size_t j = 0; j <= i; ++j) means[i][j] += x[i] * x[j] / draws;
      }
      ASSERT_LE(std::fabs(sum), 100 * unit * size) << "varies in a direction without variance";
    }
    const auto element = [&](std::size_t i, std::size_t j) {
      return c.covariance[i * (i + 1) / 2 + j];
    };
    for (std::size_t i = 0; i < n; ++i) {
      for (std::size_t j = 0; j <= i; ++j) {
        const Extended spread = std::sqrt(2 * element(i, i) * element(j, j) / draws);
        EXPECT_LE(std::fabs(means[i][j] - element(i, j)), 5 * spread) << i << j;
      }
    }
  }
}

TEST(MultivariateNormal, RefusesWhatIsNoCovarianceMatrix) {
  EXPECT_MATH_ERROR(MultivariateNormal({}, {1}), rsVectorEmpty);
  EXPECT_MATH_ERROR(MultivariateNormal({1, 2}, {1, 0}), rsVectorTooSmall);
  for (const TQorFloatVector& covariance : {TQorFloatVector{-1, 0, 1},
                                            {1, 1 + 1e-15L, 1},
                                            {0, 1e-30L, 1},
                                            {kNaN, 0, 1},
                                            {1, kNaN, 1},
                                            {kInfinity, 1, 1}})
    EXPECT_MATH_ERROR(MultivariateNormal({1, 2}, covariance), rsCovariance);
}

}  // namespace

}  // namespace qorvex
