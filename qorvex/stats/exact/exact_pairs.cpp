#include "qorvex/stats/exact/exact_pairs.h"

#include <limits>

#include "qorvex/base/errors.h"
#include "qorvex/base/exact/rational.h"
#include "qorvex/stats/detail/deviations.h"
#include "qorvex/stats/estimate.h"
#include "qorvex/vector/detail/checks.h"

namespace qorvex {

using exact::Dyadic;
using exact::Rational;
using exact::detail::MeanOfDeviations;

namespace {

constexpr Extended kNaN = std::numeric_limits<Extended>::quiet_NaN();

void RequireCount(std::uint64_t count, std::uint64_t least) {
  if (count == 0) RaiseMathError(rsVectorIsEmpty);
  if (count < least) RaiseMathError(rsVectorG1);
}

// The mean of n values.
Extended Mean(std::uint64_t n, const ExactSum& sum) {
  RequireCount(n, 1);
  // A sum of zeros keeps its sign.
  if (!sum.IsFinite() || sum.Value().Sign() == 0) return sum.Round();
  return Rational(sum.Value(), n).Round();
}

// The variance of one variable, or its root.
Extended Spread(std::uint64_t n, Estimate estimate, const ExactSum& squares, const ExactSum& sum,
                Extended (Rational::*round)() const) {
  RequireCount(n, estimate == Estimate::kSample ? 2 : 1);
  if (!sum.IsFinite()) return kNaN;
  return (MeanOfDeviations(n, estimate, squares, sum, sum).*round)();
}

void RequireSpread(const Dyadic& squares) {
  if (squares.Sign() == 0) RaiseMathError(rsSameValue);
}

}  // namespace

void ExactPairs::Add(Extended x, Extended y) {
  ++count_;
  x_.Add(x);
  y_.Add(y);
  xx_.AddSquare(x);
  xy_.AddProduct(x, y);
  yy_.AddSquare(y);
}

void ExactPairs::Add(VectorView<Extended> x, VectorView<Extended> y) {
  QorvexVector::detail::RequireSameLength(x, y);
  count_ += x.size();
  x_.Add(x);
  y_.Add(y);
  xx_.AddSquare(x);
  xy_.AddProduct(x, y);
  yy_.AddSquare(y);
}

void ExactPairs::Merge(const ExactPairs& other) {
  count_ += other.count_;
  x_.Merge(other.x_);
  y_.Merge(other.y_);
  xx_.Merge(other.xx_);
  xy_.Merge(other.xy_);
  yy_.Merge(other.yy_);
}

void ExactPairs::Remove(const ExactPairs& other) {
  if (other.count_ > count_) RaiseMathError(rsInvalidValue);
  count_ -= other.count_;
  x_.Remove(other.x_);
  y_.Remove(other.y_);
  xx_.Remove(other.xx_);
  xy_.Remove(other.xy_);
  yy_.Remove(other.yy_);
}

Extended ExactPairs::MeanX() const {
  return Mean(count_, x_);
}

Extended ExactPairs::MeanY() const {
  return Mean(count_, y_);
}

Extended ExactPairs::SampleVarianceX() const {
  return Spread(count_, Estimate::kSample, xx_, x_, &Rational::Round);
}

Extended ExactPairs::SampleVarianceY() const {
  return Spread(count_, Estimate::kSample, yy_, y_, &Rational::Round);
}

Extended ExactPairs::PopulationVarianceX() const {
  return Spread(count_, Estimate::kPopulation, xx_, x_, &Rational::Round);
}

Extended ExactPairs::PopulationVarianceY() const {
  return Spread(count_, Estimate::kPopulation, yy_, y_, &Rational::Round);
}

Extended ExactPairs::SampleStdDevX() const {
  return Spread(count_, Estimate::kSample, xx_, x_, &Rational::RoundRoot);
}

Extended ExactPairs::SampleStdDevY() const {
  return Spread(count_, Estimate::kSample, yy_, y_, &Rational::RoundRoot);
}

Extended ExactPairs::PopulationStdDevX() const {
  return Spread(count_, Estimate::kPopulation, xx_, x_, &Rational::RoundRoot);
}

Extended ExactPairs::PopulationStdDevY() const {
  return Spread(count_, Estimate::kPopulation, yy_, y_, &Rational::RoundRoot);
}

Extended ExactPairs::SampleCovariance() const {
  RequireCount(count_, 2);
  return IsFinite() ? MeanOfDeviations(count_, Estimate::kSample, xy_, x_, y_).Round() : kNaN;
}

Extended ExactPairs::PopulationCovariance() const {
  RequireCount(count_, 1);
  return IsFinite() ? MeanOfDeviations(count_, Estimate::kPopulation, xy_, x_, y_).Round() : kNaN;
}

ExactPairs::Deviations ExactPairs::ScaledDeviations() const {
  return {exact::detail::ScaledDeviations(count_, xx_, x_, x_),
          exact::detail::ScaledDeviations(count_, xy_, x_, y_),
          exact::detail::ScaledDeviations(count_, yy_, y_, y_)};
}

template <class Figure>
Extended ExactPairs::OfLine(Figure figure) const {
  RequireCount(count_, 2);
  if (!IsFinite()) return kNaN;
  const Deviations sums = ScaledDeviations();
  RequireSpread(sums.xx);
  return figure(sums);
}

Extended ExactPairs::Correlation() const {
  return OfLine([](const Deviations& sums) {
    RequireSpread(sums.yy);
    return exact::detail::CorrelationOf(sums.xx, sums.xy, sums.yy);
  });
}

Extended ExactPairs::Determination() const {
  return OfLine([](const Deviations& sums) {
    RequireSpread(sums.yy);
    return Rational(sums.xy * sums.xy, sums.xx * sums.yy).Round();
  });
}

Extended ExactPairs::Slope() const {
  return OfLine([](const Deviations& sums) { return Rational(sums.xy, sums.xx).Round(); });
}

Extended ExactPairs::Intercept() const {
  return OfLine([this](const Deviations& sums) {
    const Dyadic numerator = y_.Value() * sums.xx - x_.Value() * sums.xy;
    return Rational(numerator, Dyadic(count_) * sums.xx).Round();
  });
}

Extended ExactPairs::SumOfSquaredErrors() const {
  return OfLine([this](const Deviations& sums) {
    const Dyadic numerator = sums.xx * sums.yy - sums.xy * sums.xy;
    return Rational(numerator, Dyadic(count_) * sums.xx).Round();
  });
}

Extended ExactPairs::RegressionSumOfSquares() const {
  return OfLine([this](const Deviations& sums) {
    return Rational(sums.xy * sums.xy, Dyadic(count_) * sums.xx).Round();
  });
}

}  // namespace qorvex
