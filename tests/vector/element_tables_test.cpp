// Which element types each routine exists for. What a table leaves out must not compile, so that no
// call converts, rounds or squares in a width that nobody chose.

#include <array>
#include <type_traits>

#include "qorvex/stats/QorvexStatistics.h"
#include "qorvex/vector/QorvexVector.h"
#include "support/element_probe.h"
#include "support/test.h"

namespace qorvex {

TEST(ElementTables, Building) {
  EXPECT_EQ(TYPES_OF(AppendValue2Vector(v, 1)), "gdfjui");
  EXPECT_EQ(TYPES_OF(AddValue2Vector(v, 1, 0)), "gdfjui");
  EXPECT_EQ(TYPES_OF(DeleteValueFromVector(v, 0)), "gdfjui");
  EXPECT_EQ(TYPES_OF(FillVector(v, 1)), "gdfjuiwsbt");
  EXPECT_EQ(TYPES_OF(ClearVector(v)), "gdfjuiwsbt");
  EXPECT_EQ(TYPES_OF(CopyVector(v)), "gdfjuiwsbt");
  EXPECT_EQ(TYPES_OF(ReverseVector(v)), "gdfjuiwsbt");
  EXPECT_EQ(TYPES_OF(Vector2FloatVector(v)), "gdfjuiwsbt");
  EXPECT_EQ(TYPES_OF(Vector2Int64Vector(v)), "juiwsbt");
  EXPECT_EQ(TYPES_OF(Vector2LIntVector(v)), "iwsbt");
  EXPECT_EQ(TYPES_OF(Array2FloatVector(std::array{v[0]})), "gdfjuiwsbt");
  EXPECT_EQ(TYPES_OF(Array2Int64Vector(std::array{v[0]})), "juiwsbt");
  EXPECT_EQ(TYPES_OF(Array2LIntVector(std::array{v[0]})), "iwsbt");
}

TEST(ElementTables, Aggregates) {
  EXPECT_EQ(TYPES_OF(MinVector(v)), "gdfjuiwsbt");
  EXPECT_EQ(TYPES_OF(MaxVector(v)), "gdfjuiwsbt");
  EXPECT_EQ(TYPES_OF(SumVector(v)), "gdfjuiwsbt");
  EXPECT_EQ(TYPES_OF(SumSqVector(v)), "gdfjuiwsbt");
  EXPECT_EQ(TYPES_OF(VectorMagnitude(v)), "gdfjuiwsbt");
  EXPECT_EQ(TYPES_OF(SumSqDiffVector(v, 2)), "gdfjui");
  EXPECT_EQ(TYPES_OF(SumSqDiffVector(v, 2.0)), "gdfjui");
  EXPECT_EQ(TYPES_OF(SumSqDiffVectors(v, v)), "gdfjui");
  EXPECT_EQ(TYPES_OF(VectorZero(v)), "gdfj");
  EXPECT_EQ(TYPES_OF(VectorNonZero(v)), "gdfj");
  EXPECT_EQ(TYPES_OF(VectorPositive(v)), "gdfj");
  EXPECT_EQ(TYPES_OF(VectorNonNegative(v)), "gdfj");
  EXPECT_EQ(TYPES_OF(MinMaxVector(v, x, x, i, i, b, b)), "gdfjuiwsbt");

  static_assert(std::is_same_v<decltype(SumVector(TQorSingleVector())), Extended>);
  static_assert(std::is_same_v<decltype(SumVector(TQorByteVector())), std::int64_t>);
  static_assert(std::is_same_v<decltype(SumSqDiffVector(TQorLWordVector(), 2)), std::int64_t>);
  static_assert(std::is_same_v<decltype(SumSqDiffVector(TQorLWordVector(), 2.0)), Extended>);
  static_assert(std::is_same_v<decltype(SumSqDiffVector(TQorDoubleVector(), 2)), Extended>);
}

TEST(ElementTables, SortingAndArithmetic) {
  EXPECT_EQ(TYPES_OF(QSortVector(v, true)), "gdfjuiwsbt");
  EXPECT_EQ(TYPES_OF(Vector2RankVector(v, true)), "gdfjuiwsbt");
  EXPECT_EQ(TYPES_OF(Vector2Rank(v, 0, true)), "gdfjuiwsbt");
  EXPECT_EQ(TYPES_OF(Vector2RankValue(v, 0, true)), "gdfjuiwsbt");
  EXPECT_EQ(TYPES_OF(AddVectors(v, v)), "gdfji");
  EXPECT_EQ(TYPES_OF(SubtractVectors(v, v)), "gdfji");
  EXPECT_EQ(TYPES_OF(AddToVector(v, v)), "gdfji");
  EXPECT_EQ(TYPES_OF(SubtractFromVector(v, v)), "gdfji");
  EXPECT_EQ(TYPES_OF(DotProdVectors(v, v)), "gdfjui");
  EXPECT_EQ(TYPES_OF(AngleBetweenVectors(v, v)), "gdfjui");
  EXPECT_EQ(TYPES_OF(SquareVector(v)), "gdfjui");
  EXPECT_EQ(TYPES_OF(SqrtVector(v)), "gdf");
  EXPECT_EQ(TYPES_OF(InvVector(v)), "gdf");
  EXPECT_EQ(TYPES_OF(LnVector(v)), "gdf");
  EXPECT_EQ(TYPES_OF(Log10Vector(v)), "gdf");
  EXPECT_EQ(TYPES_OF(Log2Vector(v)), "gdf");
  EXPECT_EQ(TYPES_OF(TransformVector(v, nullptr)), "gdf");
  EXPECT_EQ(TYPES_OF(MovingAverage(v, 1, 0)), "gdf");
  EXPECT_EQ(TYPES_OF(LinearTransformVector(v, 1, 0)), "gdfj");
  EXPECT_EQ(TYPES_OF(QorPolynomial(v, 1)), "g");
}

TEST(ElementTables, Estimators) {
  EXPECT_EQ(TYPES_OF(QorMean(v)), "gdfjui");
  EXPECT_EQ(TYPES_OF(SampleVariance(v)), "gdfjui");
  EXPECT_EQ(TYPES_OF(PopulationVariance(v)), "gdfjui");
  EXPECT_EQ(TYPES_OF(SampleStdDev(v)), "gdfjui");
  EXPECT_EQ(TYPES_OF(PopulationStdDev(v)), "gdfjui");
  EXPECT_EQ(TYPES_OF(SampleVarianceAndMean(v, e, e)), "gdfjui");
  EXPECT_EQ(TYPES_OF(PopulationVarianceAndMean(v, e, e)), "gdfjui");
  EXPECT_EQ(TYPES_OF(SampleStdDevAndMean(v, e, e)), "gdfjui");
  EXPECT_EQ(TYPES_OF(PopulationStdDevAndMean(v, e, e)), "gdfjui");
  EXPECT_EQ(TYPES_OF(GetMedian(v)), "gdfjui");
  EXPECT_EQ(TYPES_OF(TrimmedMean(v, 0)), "gdfjui");
  EXPECT_EQ(TYPES_OF(ExcelTrimmedMean(v, 0)), "gdfjui");
  EXPECT_EQ(TYPES_OF(GetMode(v, e)), "g");
  EXPECT_EQ(TYPES_OF(GetMostFrequent(v)), "g");
  EXPECT_EQ(TYPES_OF(GetQuartiles(v, e, e)), "g");
  EXPECT_EQ(TYPES_OF(GetDeciles(v, std::span<Extended, 9>(&e, 9))), "g");
  EXPECT_EQ(TYPES_OF(GetSampleSkew(v)), "g");
  EXPECT_EQ(TYPES_OF(GetSampleSkew(v, 0, 1)), "g");
  EXPECT_EQ(TYPES_OF(GetPopulationSkew(v)), "g");
  EXPECT_EQ(TYPES_OF(GetSampleKurtosis(v)), "g");
  EXPECT_EQ(TYPES_OF(GetPopulationKurtosis(v, 0, 1)), "g");
  EXPECT_EQ(TYPES_OF(Standardise(v, 0, 1, true)), "g");
  EXPECT_EQ(TYPES_OF(Standardise(v, 0, 1, 0, 1)), "g");
  EXPECT_EQ(TYPES_OF(Standardise(v, 0, 1, 1.0L)), "") << "a figure is no flag";
  EXPECT_EQ(TYPES_OF(GeometricStdDev(v, 1.0L)), "") << "a figure is no flag";
  EXPECT_EQ(TYPES_OF(GeometricMean(v)), "g");
  EXPECT_EQ(TYPES_OF(GeometricStdDev(v, true)), "g");
  EXPECT_EQ(TYPES_OF(HarmonicMean(v)), "g");
  EXPECT_EQ(TYPES_OF(RootMeanSquare(v)), "g");
  EXPECT_EQ(TYPES_OF(MeanDeviation(v, 0)), "g");
}

}  // namespace qorvex
