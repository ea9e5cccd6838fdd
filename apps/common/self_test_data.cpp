// The figures of samples and matrices for the self-test.

#include <cmath>
#include <vector>

#include "apps/common/self_test.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/matrix/QorvexMatrix.h"
#include "qorvex/random/fill.h"
#include "qorvex/stats/correlation.h"
#include "qorvex/stats/descriptive_stats.h"
#include "qorvex/stats/exact/exact_sample.h"
#include "qorvex/stats/inference/rank_tests.h"
#include "qorvex/stats/inference/t_tests.h"
#include "qorvex/stats/regression/pair_fit.h"
#include "qorvex/vector/QorvexVector.h"

namespace qorvex::apps {

namespace {

void Add(FigureHash& hash, const DescriptiveResults& results) {
  for (const Extended figure :
       {results.sum, results.sum_sq, results.mean, results.variance, results.median, results.skew,
        results.kurtosis, results.quartile_1st, results.quartile_3rd})
    hash.Add(figure);
}

void Add(FigureHash& hash, const TestResult& result) {
  for (const Extended figure :
       {result.statistic, result.degrees_of_freedom, result.p, result.log_p})
    hash.Add(figure);
}

template <class T>
void AddSums(FigureHash& hash, const TQorFloatVector& values) {
  auto elements = TQorVector<T>::WithLength(values.size());
  for (std::size_t i = 0; i < values.size(); ++i) elements[i] = static_cast<T>(values[i]);
  hash.Add(SumVector(elements));
  hash.Add(SumSqVector(elements));
  hash.Add(VectorMagnitude(elements));
  for (const T x : MovingAverage(elements, 5, 2)) hash.Add(x);
}

template <class T>
void AddReductions(FigureHash& hash, RandomStream& stream, std::size_t order) {
  TQorMatrix<T> matrix = TQorMatrix<T>::WithLength(order);
  for (TQorVector<T>& row : matrix) {
    row = TQorVector<T>::WithLength(order);
    for (T& x : row) x = static_cast<T>(UniformValue(stream()) - 0.5L);
  }
  hash.Add(Determinant(matrix));
  const auto inverse = Inverse(matrix);
  if (!inverse) return;
  for (const TQorVector<T>& row : *inverse)
    for (const T x : row) hash.Add(x);
  for (const TQorVector<T>& row : MultiplyMatrices(matrix, matrix))
    for (const T x : row) hash.Add(x);
}

}  // namespace

void AddStatistics(FigureHash& hash, RandomStream& stream) {
  for (const std::size_t n : {5U, 20U, 100U, 1000U, 3000U}) {
    TQorFloatVector x = TQorFloatVector::WithLength(n);
    TQorFloatVector y = TQorFloatVector::WithLength(n);
    FillNormal(x, 10, 3, stream);
    FillGamma(y, 2.5L, stream);
    DescriptiveStats stats;
    for (const TQorFloatVector& values : {x, y}) {
      stats.SetValues(values);
      Add(hash, stats.Results());
      ExactSample<4> sample;
      sample.Add(values);
      for (const Extended figure :
           {sample.Mean(), sample.SampleStdDev(), sample.SampleSkewness(), sample.SampleKurtosis()})
        hash.Add(figure);
      AddSums<Extended>(hash, values);
      AddSums<double>(hash, values);
      AddSums<float>(hash, values);
    }
    Add(hash, WelchTTest(x, y));
    if (n <= 100) Add(hash, MannWhitneyTest(x, y));
    const PairFit fit = FitPairs(x, y, 2);
    for (const FittedCoefficient& b : fit.curve.Coefficients()) {
      hash.Add(b.value);
      hash.Add(b.log_p);
    }
    hash.Add(fit.correlation);
  }
}

void AddMatrices(FigureHash& hash, RandomStream& stream) {
  for (const std::size_t order : {2U, 3U, 7U, 12U, 20U, 33U}) {
    AddReductions<Extended>(hash, stream, order);
    AddReductions<double>(hash, stream, order);
    AddReductions<float>(hash, stream, order);
  }
}

}  // namespace qorvex::apps
