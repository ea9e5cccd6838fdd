#include "qorvex/stats/dispersion.h"

#include <cmath>
#include <concepts>
#include <cstddef>

#include "qorvex/base/checked_math.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"
#include "qorvex/stats/location.h"
#include "qorvex/vector/aggregates.h"
#include "qorvex/vector/detail/checks.h"
#include "qorvex/vector/detail/integer_arithmetic.h"
#include "qorvex/vector/detail/ordered_sum.h"
#include "qorvex/vector/sign_tests.h"

namespace qorvex::inline QorvexStatistics {

namespace {

enum class Divisor { kSample, kPopulation };

// n - 1 or n. Raises an error if the vector has too few elements.
template <class T>
Extended CheckedDivisor(VectorView<T> vector, Divisor kind) {
  QorvexVector::detail::RequireElements(vector);
  const auto count = static_cast<Extended>(vector.size());
  if (kind == Divisor::kPopulation) return count;
  if (vector.size() == 1) RaiseMathError(rsVectorG1);
  return count - 1;
}

template <WideNumericElement T>
Extended TwoPassVariance(VectorView<T> vector, Divisor kind) {
  const Extended divisor = CheckedDivisor(vector, kind);
  // The mean is extended: rounded to a single, it would add its rounding error to the variance.
  return QorvexVector::detail::SumSqDiffFromExtended(vector, QorMean(vector)) / divisor;
}

struct VarianceAndMean {
  Extended variance;
  Extended mean;
};

template <WideNumericElement T>
VarianceAndMean SinglePassVariance(VectorView<T> vector, Divisor kind) {
  const Extended divisor = CheckedDivisor(vector, kind);
  Extended sum = 0;
  Extended sum_sq = 0;
  if constexpr (std::same_as<T, Extended>) {
    for (const Extended x : vector) {
      sum += x;
      sum_sq += x * x;
    }
  } else if constexpr (FloatElement<T>) {
    sum = QorvexVector::detail::AddValues(sum, vector);
    sum_sq = QorvexVector::detail::AddSquares(sum_sq, vector);
  } else {
    QorvexVector::detail::Int64Sum exact_sum;
    QorvexVector::detail::Int64Sum exact_sum_sq;
    for (const std::int64_t x : vector) {
      exact_sum.Add(x);
      exact_sum_sq.Add(QorvexVector::detail::WrappingMultiply(x, x));
    }
    sum = static_cast<Extended>(exact_sum.Value());
    sum_sq = static_cast<Extended>(exact_sum_sq.Value());
  }
  const auto count = static_cast<Extended>(vector.size());
  return {(sum_sq - sum * sum / count) / divisor, sum / count};
}

template <WideNumericElement T>
void StoreVariance(VectorView<T> vector, Divisor kind, Extended& variance, Extended& mean) {
  const VarianceAndMean result = SinglePassVariance(vector, kind);
  variance = result.variance;
  mean = result.mean;
}

template <WideNumericElement T>
void StoreStdDev(VectorView<T> vector, Divisor kind, Extended& std_dev, Extended& mean) {
  const VarianceAndMean result = SinglePassVariance(vector, kind);
  std_dev = CheckedSqrt(result.variance);
  mean = result.mean;
}

}  // namespace

template <WideNumericElement T>
Extended SampleVariance(VectorView<T> vector) {
  return TwoPassVariance(vector, Divisor::kSample);
}

template <WideNumericElement T>
Extended PopulationVariance(VectorView<T> vector) {
  return TwoPassVariance(vector, Divisor::kPopulation);
}

template <WideNumericElement T>
Extended SampleStdDev(VectorView<T> vector) {
  return std::sqrt(SampleVariance(vector));
}

template <WideNumericElement T>
Extended PopulationStdDev(VectorView<T> vector) {
  return std::sqrt(PopulationVariance(vector));
}

template <WideNumericElement T>
void SampleVarianceAndMean(VectorView<T> vector, Extended& variance, Extended& mean) {
  StoreVariance(vector, Divisor::kSample, variance, mean);
}

template <WideNumericElement T>
void PopulationVarianceAndMean(VectorView<T> vector, Extended& variance, Extended& mean) {
  StoreVariance(vector, Divisor::kPopulation, variance, mean);
}

template <WideNumericElement T>
void SampleStdDevAndMean(VectorView<T> vector, Extended& std_dev, Extended& mean) {
  StoreStdDev(vector, Divisor::kSample, std_dev, mean);
}

template <WideNumericElement T>
void PopulationStdDevAndMean(VectorView<T> vector, Extended& std_dev, Extended& mean) {
  StoreStdDev(vector, Divisor::kPopulation, std_dev, mean);
}

Extended MeanDeviation(VectorView<Extended> vector, Extended mean) noexcept {
  if (vector.empty()) return 0;
  Extended sum = 0;
  for (const Extended x : vector) sum += std::fabs(x - mean);
  return sum / static_cast<Extended>(vector.size());
}

Extended GeometricStdDev(VectorView<Extended> vector, Extended mean, bool sample) {
  const Extended divisor = CheckedDivisor(vector, sample ? Divisor::kSample : Divisor::kPopulation);
  if (!VectorPositive(vector)) RaiseMathError(rsVectorNotPos);
  const Extended ln_mean = CheckedLn(mean);
  Extended sum = 0;
  for (const Extended x : vector) {
    const Extended difference = Log(x) - ln_mean;
    sum += difference * difference;
  }
  return Exp(std::sqrt(sum / divisor));
}

Extended GeometricStdDev(VectorView<Extended> vector, bool sample) {
  return GeometricStdDev(vector, GeometricMean(vector), sample);
}

void Standardise(TQorFloatVector& vector, Extended mean, Extended std_dev, Extended new_mean,
                 Extended new_std_dev) {
  QorvexVector::detail::RequireElements(vector);
  if (std_dev == 0) RaiseMathError(rsStdDev);
  for (Extended& x : vector) x = ((x - mean) / std_dev) * new_std_dev + new_mean;
}

void Standardise(TQorFloatVector& vector, Extended new_mean, Extended new_std_dev,
                 bool population) {
  Extended std_dev = 0;
  Extended mean = 0;
  if (population) {
    PopulationStdDevAndMean(vector, std_dev, mean);
  } else {
    SampleStdDevAndMean(vector, std_dev, mean);
  }
  Standardise(vector, mean, std_dev, new_mean, new_std_dev);
}

#define QORVEX_INSTANTIATE(T)                                                   \
  template Extended SampleVariance(VectorView<T>);                              \
  template Extended PopulationVariance(VectorView<T>);                          \
  template Extended SampleStdDev(VectorView<T>);                                \
  template Extended PopulationStdDev(VectorView<T>);                            \
  template void SampleVarianceAndMean(VectorView<T>, Extended&, Extended&);     \
  template void PopulationVarianceAndMean(VectorView<T>, Extended&, Extended&); \
  template void SampleStdDevAndMean(VectorView<T>, Extended&, Extended&);       \
  template void PopulationStdDevAndMean(VectorView<T>, Extended&, Extended&);
QORVEX_FOR_WIDE_NUMERIC_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexStatistics
