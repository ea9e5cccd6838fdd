// The element types that each routine accepts. Other types must not compile, so that no call
// converts or rounds its arguments implicitly.

#include <array>
#include <type_traits>

#include "qorvex/base/elementary.h"
#include "qorvex/stats/QorvexStatistics.h"
#include "qorvex/vector/QorvexVector.h"
#include "support/element_probe.h"
#include "support/test.h"

namespace qorvex {

TEST(ElementTables, Building) {
  ExpectTypes("gdfjuiCSL", {TYPES_OF(AppendValue2Vector(v, x)), TYPES_OF(AddValue2Vector(v, x, 0)),
                            TYPES_OF(DeleteValueFromVector(v, 0))});
  ExpectTypes("gdfjuiwsbtCSL", {TYPES_OF(FillVector(v, x)), TYPES_OF(ClearVector(v)),
                                TYPES_OF(CopyVector(v)), TYPES_OF(ReverseVector(v))});
  ExpectTypes("gdfjuiwsbt", {TYPES_OF(Vector2FloatVector(v)), TYPES_OF(FillVector(v, 1)),
                             TYPES_OF(Array2FloatVector(std::array{v[0]}))});
  ExpectTypes("juiwsbt",
              {TYPES_OF(Vector2Int64Vector(v)), TYPES_OF(Array2Int64Vector(std::array{v[0]}))});
  ExpectTypes("iwsbt",
              {TYPES_OF(Vector2LIntVector(v)), TYPES_OF(Array2LIntVector(std::array{v[0]}))});
}

TEST(ElementTables, Aggregates) {
  ExpectTypes("gdfjuiwsbtCSL",
              {TYPES_OF(MinVector(v)), TYPES_OF(MaxVector(v)),
               TYPES_OF(MinMaxVector(v, x, x, i, i, b, b)), TYPES_OF(SumVector(v))});
  ExpectTypes("gdfjuiwsbt", {TYPES_OF(SumSqVector(v)), TYPES_OF(VectorMagnitude(v))});
  ExpectTypes("gdfjui", {TYPES_OF(SumSqDiffVector(v, 2)), TYPES_OF(SumSqDiffVector(v, 2.0)),
                         TYPES_OF(SumSqDiffVectors(v, v))});
  ExpectTypes("gdfjCSL", {TYPES_OF(VectorZero(v)), TYPES_OF(VectorNonZero(v)),
                          TYPES_OF(VectorPositive(v)), TYPES_OF(VectorNonNegative(v))});

  static_assert(std::is_same_v<decltype(SumVector(TQorSingleVector())), Extended>);
  static_assert(std::is_same_v<decltype(SumVector(TQorByteVector())), std::int64_t>);
  static_assert(std::is_same_v<decltype(SumSqDiffVector(TQorLWordVector(), 2)), std::int64_t>);
  static_assert(std::is_same_v<decltype(SumSqDiffVector(TQorLWordVector(), 2.0)), Extended>);
  static_assert(std::is_same_v<decltype(SumSqDiffVector(TQorDoubleVector(), 2)), Extended>);
}

TEST(ElementTables, SortingAndArithmetic) {
  ExpectTypes("gdfjuiwsbtCSL",
              {TYPES_OF(QSortVector(v, true)), TYPES_OF(Vector2RankVector(v, true)),
               TYPES_OF(Vector2Rank(v, 0, true)), TYPES_OF(Vector2RankValue(v, x, true))});
  ExpectTypes("gdfjiCSL", {TYPES_OF(AddVectors(v, v)), TYPES_OF(SubtractVectors(v, v)),
                           TYPES_OF(AddToVector(v, v)), TYPES_OF(SubtractFromVector(v, v))});
  ExpectTypes("gdfjui", {TYPES_OF(DotProdVectors(v, v)), TYPES_OF(AngleBetweenVectors(v, v)),
                         TYPES_OF(SquareVector(v))});
  ExpectTypes("gdf", {TYPES_OF(SqrtVector(v)), TYPES_OF(InvVector(v)), TYPES_OF(LnVector(v)),
                      TYPES_OF(Log10Vector(v)), TYPES_OF(Log2Vector(v)),
                      TYPES_OF(TransformVector(v, nullptr)), TYPES_OF(MovingAverage(v, 1, 0))});
  EXPECT_EQ(TYPES_OF(LinearTransformVector(v, 1, 0)), "gdfjCSL");
  EXPECT_EQ(TYPES_OF(QorPolynomial(v, 1)), "g");
}

// Floating-point factors and elements would be truncated.
TEST(ElementTables, IntegersTakeNoFloatingPointValues) {
  ExpectTypes("gdf", {TYPES_OF(AppendValue2Vector(v, 0.5)), TYPES_OF(AddValue2Vector(v, 0.5L, 0)),
                      TYPES_OF(FillVector(v, 0.5F)), TYPES_OF(Vector2RankValue(v, 0.5, true)),
                      TYPES_OF(MinXY(x, 0.5))});
  ExpectTypes("gdfCSL", {TYPES_OF(LinearTransformVector(v, 0.5, 1)),
                         TYPES_OF(LinearTransformVector(v, 1, 0.5))});
}

TEST(ElementTables, Estimators) {
  ExpectTypes(
      "gdfjui",
      {TYPES_OF(QorMean(v)), TYPES_OF(SampleVariance(v)), TYPES_OF(PopulationVariance(v)),
       TYPES_OF(SampleStdDev(v)), TYPES_OF(PopulationStdDev(v)),
       TYPES_OF(SampleVarianceAndMean(v, e, e)), TYPES_OF(PopulationVarianceAndMean(v, e, e)),
       TYPES_OF(SampleStdDevAndMean(v, e, e)), TYPES_OF(PopulationStdDevAndMean(v, e, e)),
       TYPES_OF(GetMedian(v)), TYPES_OF(TrimmedMean(v, 0)), TYPES_OF(ExcelTrimmedMean(v, 0))});
  ExpectTypes(
      "g", {TYPES_OF(GetMode(v, e)), TYPES_OF(GetMostFrequent(v)), TYPES_OF(GetQuartiles(v, e, e)),
            TYPES_OF(GetDeciles(v, std::span<Extended, 9>(&e, 9))), TYPES_OF(GetSampleSkew(v)),
            TYPES_OF(GetSampleSkew(v, 0, 1)), TYPES_OF(GetPopulationSkew(v)),
            TYPES_OF(GetSampleKurtosis(v)), TYPES_OF(GetPopulationKurtosis(v, 0, 1)),
            TYPES_OF(Standardise(v, 0, 1, true)), TYPES_OF(Standardise(v, 0, 1, 0, 1)),
            TYPES_OF(GeometricMean(v)), TYPES_OF(GeometricStdDev(v, true)),
            TYPES_OF(HarmonicMean(v)), TYPES_OF(RootMeanSquare(v)), TYPES_OF(MeanDeviation(v, 0))});
  EXPECT_EQ(TYPES_OF(Standardise(v, 0, 1, 1.0L)), "") << "a number is not a flag";
  EXPECT_EQ(TYPES_OF(GeometricStdDev(v, 1.0L)), "") << "a number is not a flag";
}

}  // namespace qorvex
