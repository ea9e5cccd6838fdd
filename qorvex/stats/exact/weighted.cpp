#include "qorvex/stats/exact/weighted.h"

#include <limits>

#include "qorvex/base/errors.h"
#include "qorvex/base/exact/rational.h"
#include "qorvex/stats/exact/detail/positive_weights.h"
#include "qorvex/stats/exact/exact_sum.h"

namespace qorvex {

using exact::Dyadic;
using exact::Rational;

namespace {

// What the sum of weight * (value - mean)^2 is divided by, times the sum V1 of the weights.
Dyadic Divisor(VectorView<Extended> weights, const Dyadic& v1, WeightKind kind) {
  if (kind == WeightKind::kFrequency) {
    if (v1 <= Dyadic(1)) RaiseMathError(rsWeightSum);
    return v1 * (v1 - Dyadic(1));
  }
  if (kind == WeightKind::kReliability) {
    if (weights.size() == 1) RaiseMathError(rsOneWeight);
    ExactSum v2;
    v2.AddSquare(weights);
    return v1 * v1 - v2.Value();
  }
  return v1 * v1;
}

// The variance, or its root.
Extended Spread(VectorView<Extended> values, VectorView<Extended> weights, WeightKind kind,
                Extended (Rational::*round)() const) {
  const exact::detail::PositiveWeights pairs(values, weights);
  ExactSum v1;
  v1.Add(pairs.Weights());
  const Dyadic divisor = Divisor(pairs.Weights(), v1.Value(), kind);
  ExactSum products;
  products.AddProduct(pairs.Values(), pairs.Weights());
  if (!products.IsFinite()) return std::numeric_limits<Extended>::quiet_NaN();
  ExactSum squares;
  squares.AddProduct(pairs.Values(), pairs.Values(), pairs.Weights());
  const Dyadic sum = products.Value();
  return (Rational(v1.Value() * squares.Value() - sum * sum, divisor).*round)();
}

}  // namespace

Extended WeightedMean(VectorView<Extended> values, VectorView<Extended> weights) {
  const exact::detail::PositiveWeights pairs(values, weights);
  ExactSum products;
  products.AddProduct(pairs.Values(), pairs.Weights());
  // A sum of zeros keeps its sign.
  if (!products.IsFinite() || products.Value().Sign() == 0) return products.Round();
  ExactSum v1;
  v1.Add(pairs.Weights());
  return Rational(products.Value(), v1.Value()).Round();
}

Extended WeightedVariance(VectorView<Extended> values, VectorView<Extended> weights,
                          WeightKind kind) {
  return Spread(values, weights, kind, &Rational::Round);
}

Extended WeightedStdDev(VectorView<Extended> values, VectorView<Extended> weights,
                        WeightKind kind) {
  return Spread(values, weights, kind, &Rational::RoundRoot);
}

}  // namespace qorvex
