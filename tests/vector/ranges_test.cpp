// Every kind of contiguous range gives what a vector gives, and is not copied.

#include <array>
#include <span>

#include "qorvex/stats/QorvexPairStats.h"
#include "qorvex/stats/QorvexStatistics.h"
#include "qorvex/stats/descriptive_stats.h"
#include "qorvex/vector/QorvexVector.h"
#include "support/failing_allocation.h"
#include "support/test.h"

namespace qorvex {
namespace {

struct DerivedVector : TQorFloatVector {
  using TQorFloatVector::TQorFloatVector;
};

const TQorFloatVector kX{0.5L, 3, 0.1L, 7, 7};
const TQorFloatVector kY{2, 0.3L, 5, 1, 0.25L};

// Compares a routine's result for two ranges with that for the vectors. It may only allocate the
// vector that it returns.
#define EXPECT_SAME(new_vectors, expression)                                \
  do {                                                                      \
    const auto result = [](const auto& v, [[maybe_unused]] const auto& w) { \
      return (expression);                                                  \
    };                                                                      \
    testing::allocations_left = new_vectors;                                \
    const auto figure = result(x, y);                                       \
    testing::allocations_left = -1;                                         \
    EXPECT_EQ(figure, result(kX, kY)) << #expression;                       \
  } while (false)

// What a routine stores in its outputs.
template <std::size_t kOutputs, class Routine>
std::array<Extended, kOutputs> Stored(Routine routine) {
  std::array<Extended, kOutputs> outputs{};
  std::apply(routine, outputs);
  return outputs;
}

template <class Range>
std::array<Extended, 9> Deciles(const Range& range) {
  std::array<Extended, 9> deciles{};
  GetDeciles(range, deciles);
  return deciles;
}

template <class X, class Y>
void ExpectSameAsVectors(const X& x, const Y& y) {
  EXPECT_SAME(0, SumVector(v));
  EXPECT_SAME(0, SumSqVector(v));
  EXPECT_SAME(0, SumSqDiffVector(v, 2));
  EXPECT_SAME(0, VectorMagnitude(v));
  EXPECT_SAME(0, MinVector(v) + MaxVector(w));
  EXPECT_SAME(0, VectorZero(v) + VectorNonZero(w) + VectorPositive(v) + VectorNonNegative(w));
  EXPECT_SAME(0, Vector2Rank(v, 1, true) + Vector2RankValue(w, 5, false));
  EXPECT_SAME(0, QorPolynomial(v, 0.3L));
  EXPECT_SAME(0, SumSqDiffVectors(v, w));
  EXPECT_SAME(0, DotProdVectors(v, w));
  EXPECT_SAME(0, AngleBetweenVectors(v, w));
  EXPECT_SAME(0, SumSqDiffVectors({1, 2, 3, 4, 5}, w) + DotProdVectors({1, 2, 3, 4, 5}, v));
  EXPECT_SAME(0, AngleBetweenVectors({1, 2, 3, 4, 5}, v));
  EXPECT_SAME(1, AddVectors(v, w));
  EXPECT_SAME(1, AddVectors({1, 2, 3, 4, 5}, v));
  EXPECT_SAME(1, SubtractVectors(v, w));
  EXPECT_SAME(1, SubtractVectors({1, 2, 3, 4, 5}, v));
  EXPECT_SAME(1, CopyVector(v));
  EXPECT_SAME(1, Vector2FloatVector(v));
  EXPECT_SAME(1, ReverseVector(v));
  EXPECT_SAME(1, SortedVector(v));
  EXPECT_SAME(1, SortedVector(v, false));
  EXPECT_SAME(1, MovingAverage(v, 2, 0));
  EXPECT_SAME(2, Vector2RankVector(v, true));  // and its sorted indices

  EXPECT_SAME(0, QorMean(v) + GeometricMean(v) + HarmonicMean(v) + RootMeanSquare(v));
  EXPECT_SAME(0, SampleVariance(v) + PopulationVariance(w));
  EXPECT_SAME(0, SampleStdDev(v) + PopulationStdDev(w));
  EXPECT_SAME(0, MeanDeviation(v, 2) + GeometricStdDev(v, true) + GeometricStdDev(w, 2, false));
  EXPECT_SAME(0, GetSampleSkew(v) + GetPopulationSkew(v, 1, 2));
  EXPECT_SAME(0, GetSampleKurtosis(v) + GetPopulationKurtosis(v, 1, 2));
  EXPECT_SAME(0, GetMedian(v) + TrimmedMean(v, 0.2L) + ExcelTrimmedMean(v, 0.4L));
  EXPECT_SAME(1, GetMostFrequent(v));
  EXPECT_SAME(0, GetSSE(v, w, 1, 2) + CoeffCorrelation(v, w) + CoeffDetermination(w, v));
  EXPECT_SAME(0, Stored<2>([&](auto&... out) { SampleVarianceAndMean(v, out...); }));
  EXPECT_SAME(0, Stored<2>([&](auto&... out) { PopulationVarianceAndMean(v, out...); }));
  EXPECT_SAME(0, Stored<2>([&](auto&... out) { SampleStdDevAndMean(v, out...); }));
  EXPECT_SAME(0, Stored<2>([&](auto&... out) { PopulationStdDevAndMean(v, out...); }));
  EXPECT_SAME(0, Stored<2>([&](auto&... out) { GetQuartiles(v, out...); }));
  EXPECT_SAME(0, Deciles(v));
  EXPECT_SAME(0, Stored<1>([&](auto& mode) { static_cast<void>(GetMode(v, mode)); }));
  EXPECT_SAME(0, Stored<2>([&](auto&... out) { GetRegressionLine(v, w, out...); }));
  EXPECT_SAME(0, Stored<3>([&](auto&... out) { GetQuadraticCurve(v, w, out...); }));

  TQorFloatVector sum = CopyVector(kX);
  AddToVector(sum, y);
  EXPECT_EQ(sum, AddVectors(kX, kY));
  SubtractFromVector(sum, y);
  EXPECT_EQ(sum, SubtractVectors(AddVectors(kX, kY), kY));
  DescriptiveStats stats;
  stats.SetValues(x);
  EXPECT_EQ(stats.Values(), kX);
}

// Views of vectors cannot raise, so they leave a routine's noexcept in effect. Volatile elements
// are refused where they are passed.
static_assert(noexcept(QorPolynomial(kX, 1)) && noexcept(MeanDeviation(kX, 1)));
static_assert(!std::is_convertible_v<std::span<volatile double>, VectorView<double>>);
static_assert(!ContiguousRange<volatile double[1]>);

TEST(Ranges, OfEveryKindAreReadInPlace) {
  const std::vector<Extended> vector(kX.begin(), kX.end());
  const std::array array{0.5L, 3.0L, 0.1L, 7.0L, 7.0L};
  const Extended c_array[] = {0.5L, 3, 0.1L, 7, 7};
  const std::initializer_list<Extended> list = {0.5L, 3, 0.1L, 7, 7};
  const std::vector<Extended> longer{-1, 0.5L, 3, 0.1L, 7, 7, -1};
  const DerivedVector derived{0.5L, 3, 0.1L, 7, 7};
  const std::array other{2.0L, 0.3L, 5.0L, 1.0L, 0.25L};
  ExpectSameAsVectors(vector, kY);
  ExpectSameAsVectors(kX, other);
  ExpectSameAsVectors(vector, other);
  ExpectSameAsVectors(array, std::span(other));
  ExpectSameAsVectors(c_array, other);
  ExpectSameAsVectors(list, kY);
  ExpectSameAsVectors(derived, other);
  ExpectSameAsVectors(VectorView<Extended>(vector), kY);
  ExpectSameAsVectors(VectorView<Extended>(vector), VectorView<Extended>(kY));
  ExpectSameAsVectors(std::span(longer).subspan(1, 5), kY);
}

TEST(Ranges, MayBeElementsInBracesOrOfAnExplicitType) {
  EXPECT_EQ(SumVector<double>({1, 2}), 3);
  EXPECT_EQ(SumSqDiffVector<std::int32_t>({1, 4}, 2), 5);
  EXPECT_EQ(AddVectors(TQorLIntVector{1, 2}, {3, 4}), (TQorLIntVector{4, 6}));
  EXPECT_EQ(SubtractVectors({3, 4}, TQorLIntVector{1, 1}), (TQorLIntVector{2, 3}));
  EXPECT_EQ(DotProdVectors<float>({1, 2}, {3, 4}), 11);
  EXPECT_EQ(Vector2FloatVector<double>({1, 2}), (TQorFloatVector{1, 2}));
  EXPECT_EQ(Vector2Int64Vector<std::int32_t>({1, 2}), (TQorInt64Vector{1, 2}));
  EXPECT_EQ(Vector2LIntVector<std::int32_t>(TQorLIntVector{1}), (TQorLIntVector{1}));
  EXPECT_EQ(GetMedian(SortedVector<Extended>({3, 1, 2})), 2);
  EXPECT_EQ(QorPolynomial({}, 2), 0);
  float least, greatest;
  std::uint32_t first, last;
  bool unique;
  MinMaxVector({3, 1, 2}, least, greatest, first, last, unique, unique);
  EXPECT_TRUE(least == 1 && greatest == 3 && first == 1 && last == 0);
  MinMaxVector(std::array{3.0F, 4.0F}, least, greatest, first, last, unique, unique);
  EXPECT_TRUE(least == 3 && greatest == 4 && first == 0 && last == 1);
}

TEST(Ranges, MayBeFrequencies) {
  const auto figures = [](const auto& f) {
    std::array<Extended, 9> deciles{};
    GetGroupedDeciles(f, 0, 4, deciles);
    Extended q1, q3, sum, sum_sq, mode = 0;
    GroupedQuartiles(f, 0, 4, q1, q3);
    GroupedSums(f, 0, 4, sum, sum_sq);
    static_cast<void>(GroupedMode(f, 0, 4, mode));
    return SumVector(deciles) + q1 + 2 * q3 + sum + sum_sq + mode + GroupedMean(f, 0, 4) +
           GroupedMedian(f, 0, 4) + GroupedSampleVariance(f, 0, 4) +
           GroupedPopulationVariance(f, 0, 4) + GroupedSampleStdDev(f, 0, 4) +
           GroupedPopulationStdDev(f, 0, 4) + GetGroupedMeanDev(f, 0, 4, 5) +
           GetGroupedSampleSkew(f, 0, 4, 5, 2) + GetGroupedPopulationSkew(f, 0, 4, 5, 2) +
           GetGroupedSampleKurtosis(f, 0, 4, 5, 2) + GetGroupedPopulationKurtosis(f, 0, 4, 5, 2);
  };
  const std::uint32_t frequencies[] = {1, 3, 2};
  EXPECT_EQ(figures(frequencies), figures(TQorLWordVector{1, 3, 2}));
  EXPECT_EQ(GroupedMean(frequencies, 0, 4), GroupedMean({1, 3, 2}, 0, 4));
}

TEST(Ranges, RaiseTheErrorsOfVectors) {
  const std::vector<Extended> empty;
  const std::array one{1.0L};
  EXPECT_MATH_ERROR(SumVector(empty), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(QorMean(std::span<Extended>()), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(GeometricMean({}), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(DotProdVectors(empty, kX), rsSameDimensions);
  EXPECT_MATH_ERROR(DotProdVectors(TQorFloatVector(), empty), rsVectorIsEmpty);
  TQorFloatVector sum = CopyVector(kX);
  EXPECT_MATH_ERROR(AddToVector(sum, one), rsSameDimensions);
  EXPECT_EQ(sum, kX);
  EXPECT_MATH_ERROR(SampleVariance(one), rsVectorG1);
}

}  // namespace
}  // namespace qorvex
