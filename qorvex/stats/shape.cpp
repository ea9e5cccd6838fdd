#include "qorvex/stats/shape.h"

#include <cstddef>

#include "qorvex/base/errors.h"
#include "qorvex/stats/detail/moments.h"
#include "qorvex/stats/dispersion.h"
#include "qorvex/vector/detail/checks.h"

namespace qorvex::inline QorvexStatistics {

using detail::Cube;
using detail::FourthPower;
using detail::RequireSpread;

namespace {

void RequireForSkew(VectorView<Extended> vector) {
  QorvexVector::detail::RequireElements(vector);
  if (vector.size() < detail::kMinCountForSkew) RaiseMathError(rsVectorG2);
}

void RequireForKurtosis(VectorView<Extended> vector) {
  QorvexVector::detail::RequireElements(vector);
  if (vector.size() < detail::kMinCountForKurtosis) RaiseMathError(rsVectorG3);
}

Extended Count(VectorView<Extended> vector) {
  return static_cast<Extended>(vector.size());
}

Extended SumOfCubes(VectorView<Extended> vector, Extended mean) {
  Extended sum = 0;
  for (const Extended x : vector) sum += Cube(x - mean);
  return sum;
}

Extended SumOfFourthPowers(VectorView<Extended> vector, Extended mean) {
  Extended sum = 0;
  for (const Extended x : vector) sum += FourthPower(x - mean);
  return sum;
}

using MomentsRoutine = void (*)(VectorView<Extended>, Extended& std_dev, Extended& mean);
using ShapeRoutine = Extended (*)(VectorView<Extended>, Extended mean, Extended std_dev);

Extended WithOwnMoments(VectorView<Extended> vector, MomentsRoutine moments, ShapeRoutine shape) {
  Extended std_dev = 0;
  Extended mean = 0;
  moments(vector, std_dev, mean);
  return shape(vector, mean, std_dev);
}

}  // namespace

Extended GetSampleSkew(VectorView<Extended> vector, Extended mean, Extended std_dev) {
  RequireForSkew(vector);
  RequireSpread(std_dev);
  return detail::SampleSkew(Count(vector), SumOfCubes(vector, mean), std_dev);
}

Extended GetSampleSkew(VectorView<Extended> vector) {
  RequireForSkew(vector);
  return WithOwnMoments(vector, SampleStdDevAndMean<Extended>, GetSampleSkew);
}

Extended GetPopulationSkew(VectorView<Extended> vector, Extended mean, Extended std_dev) {
  RequireForSkew(vector);
  RequireSpread(std_dev);
  return detail::PopulationSkew(Count(vector), SumOfCubes(vector, mean), std_dev);
}

Extended GetPopulationSkew(VectorView<Extended> vector) {
  RequireForSkew(vector);
  return WithOwnMoments(vector, PopulationStdDevAndMean<Extended>, GetPopulationSkew);
}

Extended GetSampleKurtosis(VectorView<Extended> vector, Extended mean, Extended std_dev) {
  RequireForKurtosis(vector);
  RequireSpread(std_dev);
  return detail::SampleKurtosis(Count(vector), SumOfFourthPowers(vector, mean), std_dev);
}

Extended GetSampleKurtosis(VectorView<Extended> vector) {
  RequireForKurtosis(vector);
  return WithOwnMoments(vector, SampleStdDevAndMean<Extended>, GetSampleKurtosis);
}

Extended GetPopulationKurtosis(VectorView<Extended> vector, Extended mean, Extended std_dev) {
  RequireForKurtosis(vector);
  RequireSpread(std_dev);
  return detail::PopulationKurtosis(Count(vector), SumOfFourthPowers(vector, mean), std_dev);
}

Extended GetPopulationKurtosis(VectorView<Extended> vector) {
  RequireForKurtosis(vector);
  return WithOwnMoments(vector, PopulationStdDevAndMean<Extended>, GetPopulationKurtosis);
}

}  // namespace qorvex::inline QorvexStatistics
