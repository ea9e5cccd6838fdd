#pragma once

// The values that count among weighted ones.

#include <cstddef>

#include "qorvex/base/errors.h"
#include "qorvex/vector/detail/checks.h"

namespace qorvex::exact::detail {

/// The values whose weights are positive, and these weights, in their order. Copies them only if a
/// weight is 0. EMathError, in this order: rsSameDimensions, rsVectorIsEmpty, rsInvalidWeight,
/// rsWeightsZero.
class PositiveWeights {
 public:
  PositiveWeights(VectorView<Extended> values, VectorView<Extended> weights)
      : values_(values), weights_(weights) {
    QorvexVector::detail::RequireSameLength(values, weights);
    QorvexVector::detail::RequireElements(values);
    std::size_t positive = 0;
    for (const Extended weight : weights) {
      QorvexVector::detail::RequireWeight(weight);
      if (weight > 0) ++positive;
    }
    if (positive == 0) RaiseMathError(rsWeightsZero);
    if (positive < values.size()) Keep(positive);
  }
  PositiveWeights(const PositiveWeights&) = delete;
  PositiveWeights& operator=(const PositiveWeights&) = delete;

  [[nodiscard]] VectorView<Extended> Values() const { return values_; }
  [[nodiscard]] VectorView<Extended> Weights() const { return weights_; }

 private:
  void Keep(std::size_t positive) {
    kept_values_ = TQorFloatVector::ForOverwrite(positive);
    kept_weights_ = TQorFloatVector::ForOverwrite(positive);
    std::size_t next = 0;
    for (std::size_t i = 0; i < weights_.size(); ++i) {
      if (!(weights_[i] > 0)) continue;
      kept_values_[next] = values_[i];
      kept_weights_[next] = weights_[i];
      ++next;
    }
    values_ = kept_values_;
    weights_ = kept_weights_;
  }

  TQorFloatVector kept_values_;
  TQorFloatVector kept_weights_;
  VectorView<Extended> values_;
  VectorView<Extended> weights_;
};

}  // namespace qorvex::exact::detail
