// The element types that each routine accepts. Other types must not compile, so that no call
// converts or rounds its arguments implicitly.

#include <functional>
#include <type_traits>

#include "qorvex/base/elementary.h"
#include "qorvex/stats/QorvexPairStats.h"
#include "qorvex/stats/QorvexStatistics.h"
#include "qorvex/vector/QorvexVector.h"
#include "support/element_probe.h"
#include "support/test.h"

namespace qorvex {

TEST(ElementTables, Building) {
  ExpectTypes("gdfjuiCSL", {TYPES_OF(AppendValue2Vector(v, x)), TYPES_OF(AddValue2Vector(v, x, 0)),
                            TYPES_OF(DeleteValueFromVector(v, 0))});
  ExpectTypes("gdfjuiwsbtCSL", {TYPES_OF(FillVector(v, x)), TYPES_OF(ClearVector(v)),
                                TYPES_READ_BY(CopyVector(v)), TYPES_READ_BY(ReverseVector(v))});
  ExpectTypes("gdfjuiwsbt", {TYPES_OF(Vector2FloatVector(v)), TYPES_OF(FillVector(v, 1)),
                             TYPES_READ_BY(Array2FloatVector(v))});
  ExpectTypes("juiwsbt", {TYPES_OF(Vector2Int64Vector(v)), TYPES_READ_BY(Array2Int64Vector(v))});
  ExpectTypes("iwsbt", {TYPES_OF(Vector2LIntVector(v)), TYPES_READ_BY(Array2LIntVector(v))});
}

TEST(ElementTables, Aggregates) {
  ExpectTypes("gdfjuiwsbtCSL",
              {TYPES_READ_BY(MinVector(v)), TYPES_READ_BY(MaxVector(v)),
               TYPES_READ_BY(MinMaxVector(v, x, x, i, i, b, b)), TYPES_READ_BY(SumVector(v))});
  ExpectTypes("gdfjuiwsbt", {TYPES_READ_BY(SumSqVector(v)), TYPES_READ_BY(VectorMagnitude(v))});
  ExpectTypes("gdfjui",
              {TYPES_READ_BY(SumSqDiffVector(v, 2)), TYPES_READ_BY(SumSqDiffVector(v, 2.0)),
               TYPES_READ_BY(SumSqDiffVectors(v, w)), TYPES_READ_BY(SumSqDiffVectors(w, v))});
  ExpectTypes("gdfjCSL", {TYPES_READ_BY(VectorZero(v)), TYPES_READ_BY(VectorNonZero(v)),
                          TYPES_READ_BY(VectorPositive(v)), TYPES_READ_BY(VectorNonNegative(v))});

  static_assert(std::is_same_v<decltype(SumVector(TQorSingleVector())), Extended>);
  static_assert(std::is_same_v<decltype(SumVector(TQorByteVector())), std::int64_t>);
  static_assert(std::is_same_v<decltype(SumSqDiffVector(TQorLWordVector(), 2)), std::int64_t>);
  static_assert(std::is_same_v<decltype(SumSqDiffVector(TQorLWordVector(), 2.0)), Extended>);
  static_assert(std::is_same_v<decltype(SumSqDiffVector(TQorDoubleVector(), 2)), Extended>);
}

TEST(ElementTables, SortingAndArithmetic) {
  ExpectTypes("gdfjuiwsbtCSL",
              {TYPES_OF(QSortVector(v, true)), TYPES_READ_BY(SortedVector(v)),
               TYPES_READ_BY(Vector2RankVector(v, true)), TYPES_READ_BY(Vector2Rank(v, 0, true)),
               TYPES_READ_BY(Vector2RankValue(v, x, true))});
  ExpectTypes("gdfjiCSL",
              {TYPES_READ_BY(AddVectors(v, w)), TYPES_READ_BY(SubtractVectors(w, v)),
               TYPES_READ_BY(AddToVector(w, v)), TYPES_READ_BY(SubtractFromVector(w, v))});
  ExpectTypes("gdfjui", {TYPES_READ_BY(DotProdVectors(v, w)),
                         TYPES_READ_BY(AngleBetweenVectors(w, v)), TYPES_OF(SquareVector(v))});
  ExpectTypes("gdf", {TYPES_OF(SqrtVector(v)), TYPES_OF(InvVector(v)), TYPES_OF(LnVector(v)),
                      TYPES_OF(Log10Vector(v)), TYPES_OF(Log2Vector(v)),
                      TYPES_OF(TransformVector(v, std::negate<>())),
                      TYPES_READ_BY(MovingAverage(v, 1, 0))});
  EXPECT_EQ(TYPES_OF(LinearTransformVector(v, 1, 0)), "gdfjCSL");
  EXPECT_EQ(TYPES_READ_BY(QorPolynomial(v, 1)), "g");
}

TEST(ElementTables, FunctionsOfElements) {
  constexpr auto types = [](auto function) {
    return Exists([]<class T>(std::type_identity<T>) {
      return requires(TQorVector<T> & v, decltype(function)& f) {
        TransformVector(v, f);
      };
    });
  };
  double (*const plain)(double) = nullptr;
  EXPECT_EQ(types(plain), "d") << "no rounding";
  ExpectTypes("gdf", {types([](double x) { return x; }), types([](const auto& x) { return -x; }),
                      types([](float x) mutable { return x += 1; })});
  ExpectTypes(
      "", {types([](int x) { return 0.5 * x; }), types([](double) { return 1; }),
           types([](double& x) { return x = 1; }), types([](const std::string&) { return 1.0; }),
           types(std::function<double(const int&)>()), types(nullptr)});
}

// Floating-point factors and elements would be truncated.
TEST(ElementTables, IntegersTakeNoFloatingPointValues) {
  ExpectTypes("gdf", {TYPES_OF(AppendValue2Vector(v, 0.5)), TYPES_OF(AddValue2Vector(v, 0.5L, 0)),
                      TYPES_OF(FillVector(v, 0.5F)), TYPES_READ_BY(Vector2RankValue(v, 0.5, true)),
                      TYPES_OF(MinXY(x, 0.5))});
  ExpectTypes("gdfCSL", {TYPES_OF(LinearTransformVector(v, 0.5, 1)),
                         TYPES_OF(LinearTransformVector(v, 1, 0.5))});
}

TEST(ElementTables, Estimators) {
  ExpectTypes("gdfjui",
              {TYPES_READ_BY(QorMean(v)), TYPES_READ_BY(SampleVariance(v)),
               TYPES_READ_BY(PopulationVariance(v)), TYPES_READ_BY(SampleStdDev(v)),
               TYPES_READ_BY(PopulationStdDev(v)), TYPES_READ_BY(SampleVarianceAndMean(v, e, e)),
               TYPES_READ_BY(PopulationVarianceAndMean(v, e, e)),
               TYPES_READ_BY(SampleStdDevAndMean(v, e, e)),
               TYPES_READ_BY(PopulationStdDevAndMean(v, e, e)), TYPES_READ_BY(GetMedian(v)),
               TYPES_READ_BY(TrimmedMean(v, 0)), TYPES_READ_BY(ExcelTrimmedMean(v, 0))});
  ExpectTypes("gdfjuiwsbt",
              {TYPES_READ_BY(GetQuantile(v, 1)), TYPES_READ_BY(MedianAbsoluteDeviation(v)),
               TYPES_READ_BY(ClassFrequencies(v, 0, 1, 2)), TYPES_READ_BY(DoubledMidranks(v)),
               TYPES_READ_BY(KendallTau(v, w)), TYPES_READ_BY(SpearmanRho(w, v)),
               TYPES_OF(CovarianceMatrix(m)), TYPES_OF(CorrelationMatrix(m))});
  ExpectTypes("g", {TYPES_READ_BY(GetMode(v, e)),
                    TYPES_READ_BY(GetMostFrequent(v)),
                    TYPES_READ_BY(GetQuartiles(v, e, e)),
                    TYPES_READ_BY(GetDeciles(v, std::span<Extended, 9>(&e, 9))),
                    TYPES_READ_BY(GetSampleSkew(v)),
                    TYPES_READ_BY(GetSampleSkew(v, 0, 1)),
                    TYPES_READ_BY(GetPopulationSkew(v)),
                    TYPES_READ_BY(GetSampleKurtosis(v)),
                    TYPES_READ_BY(GetPopulationKurtosis(v, 0, 1)),
                    TYPES_OF(Standardise(v, 0, 1, true)),
                    TYPES_OF(Standardise(v, 0, 1, 0, 1)),
                    TYPES_READ_BY(GeometricMean(v)),
                    TYPES_READ_BY(GeometricStdDev(v, true)),
                    TYPES_READ_BY(HarmonicMean(v)),
                    TYPES_READ_BY(RootMeanSquare(v)),
                    TYPES_READ_BY(MeanDeviation(v, 0)),
                    TYPES_READ_BY(GetRegressionLine(v, w, e, e)),
                    TYPES_READ_BY(GetQuadraticCurve(w, v, e, e, e)),
                    TYPES_READ_BY(GetSSE(v, w, 0, 1)),
                    TYPES_READ_BY(CoeffCorrelation(w, v)),
                    TYPES_READ_BY(CoeffDetermination(v, w))});
  ExpectTypes("u",
              {TYPES_READ_BY(GroupedMean(v, 0, 1)), TYPES_READ_BY(GroupedMedian(v, 0, 1)),
               TYPES_READ_BY(GroupedMode(v, 0, 1, e)), TYPES_READ_BY(GroupedSums(v, 0, 1, e, e))});
  EXPECT_EQ(TYPES_OF(Standardise(v, 0, 1, 1.0L)), "") << "a number is not a flag";
  EXPECT_EQ(TYPES_READ_BY(GeometricStdDev(v, 1.0L)), "") << "a number is not a flag";
}

}  // namespace qorvex
