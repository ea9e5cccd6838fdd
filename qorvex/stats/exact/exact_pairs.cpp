#include "qorvex/stats/exact/exact_pairs.h"

#include <limits>
#include <utility>

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

// A number of units of 10^-decimals.
Rational InUnits(const Rational& number, int decimals) {
  return decimals == 0 ? number : number * Rational::PowerOfTen(-decimals);
}

// The sum over n.
Extended Quotient(const ExactSum& sum, std::uint64_t n, int decimals) {
  if (!sum.IsFinite()) return sum.Round();
  return InUnits(Rational(sum.Value(), n), decimals).Round();
}

void RequireSpread(const Dyadic& squares) {
  if (squares.Sign() == 0) RaiseMathError(rsSameValue);
}

}  // namespace

ExactPairs::ExactPairs(int x_decimals, int y_decimals)
    : x_decimals_(x_decimals), y_decimals_(y_decimals) {
  for (const int decimals : {x_decimals, y_decimals}) {
    if (decimals < 0 || decimals > kMaxDecimals) RaiseMathError(rsInvalidValue);
  }
}

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
  RequireDecimalsOf(other);
  ExactPairs merged = *this;
  merged.count_ += other.count_;
  merged.x_.Merge(other.x_);
  merged.y_.Merge(other.y_);
  merged.xx_.Merge(other.xx_);
  merged.xy_.Merge(other.xy_);
  merged.yy_.Merge(other.yy_);
  *this = std::move(merged);
}

void ExactPairs::RequireDecimalsOf(const ExactPairs& other) const {
  if (other.x_decimals_ != x_decimals_ || other.y_decimals_ != y_decimals_) {
    RaiseMathError(rsInvalidValue);
  }
}

void ExactPairs::Remove(const ExactPairs& other) {
  RequireDecimalsOf(other);
  if (other.count_ > count_) RaiseMathError(rsInvalidValue);
  ExactPairs rest = *this;
  rest.count_ -= other.count_;
  rest.x_.Remove(other.x_);
  rest.y_.Remove(other.y_);
  rest.xx_.Remove(other.xx_);
  rest.xy_.Remove(other.xy_);
  rest.yy_.Remove(other.yy_);
  *this = std::move(rest);
}

Extended ExactPairs::SumX() const {
  return Quotient(x_, 1, x_decimals_);
}

Extended ExactPairs::SumY() const {
  return Quotient(y_, 1, y_decimals_);
}

Extended ExactPairs::SumOfSquaresX() const {
  return Quotient(xx_, 1, 2 * x_decimals_);
}

Extended ExactPairs::SumOfSquaresY() const {
  return Quotient(yy_, 1, 2 * y_decimals_);
}

Extended ExactPairs::SumOfProducts() const {
  return Quotient(xy_, 1, x_decimals_ + y_decimals_);
}

Extended ExactPairs::MeanX() const {
  RequireCount(count_, 1);
  return Quotient(x_, count_, x_decimals_);
}

Extended ExactPairs::MeanY() const {
  RequireCount(count_, 1);
  return Quotient(y_, count_, y_decimals_);
}

Extended ExactPairs::Moment(const ExactSum& products, const Variable& a, const Variable& b,
                            Estimate estimate, Extended (Rational::*round)() const) const {
  RequireCount(count_, estimate == Estimate::kSample ? 2 : 1);
  if (!a.sum.IsFinite() || !b.sum.IsFinite()) return kNaN;
  const Rational moment = MeanOfDeviations(count_, estimate, products, a.sum, b.sum);
  return (InUnits(moment, a.decimals + b.decimals).*round)();
}

Extended ExactPairs::SampleVarianceX() const {
  return Moment(xx_, X(), X(), Estimate::kSample, &Rational::Round);
}

Extended ExactPairs::SampleVarianceY() const {
  return Moment(yy_, Y(), Y(), Estimate::kSample, &Rational::Round);
}

Extended ExactPairs::SampleStdDevX() const {
  return Moment(xx_, X(), X(), Estimate::kSample, &Rational::RoundRoot);
}

Extended ExactPairs::SampleStdDevY() const {
  return Moment(yy_, Y(), Y(), Estimate::kSample, &Rational::RoundRoot);
}

Extended ExactPairs::SampleCovariance() const {
  return Moment(xy_, X(), Y(), Estimate::kSample, &Rational::Round);
}

Extended ExactPairs::PopulationVarianceX() const {
  return Moment(xx_, X(), X(), Estimate::kPopulation, &Rational::Round);
}

Extended ExactPairs::PopulationVarianceY() const {
  return Moment(yy_, Y(), Y(), Estimate::kPopulation, &Rational::Round);
}

Extended ExactPairs::PopulationStdDevX() const {
  return Moment(xx_, X(), X(), Estimate::kPopulation, &Rational::RoundRoot);
}

Extended ExactPairs::PopulationStdDevY() const {
  return Moment(yy_, Y(), Y(), Estimate::kPopulation, &Rational::RoundRoot);
}

Extended ExactPairs::PopulationCovariance() const {
  return Moment(xy_, X(), Y(), Estimate::kPopulation, &Rational::Round);
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
  return OfLine([this](const Deviations& sums) {
    return InUnits(Rational(sums.xy, sums.xx), y_decimals_ - x_decimals_).Round();
  });
}

Extended ExactPairs::Intercept() const {
  return OfLine([this](const Deviations& sums) {
    const Dyadic numerator = y_.Value() * sums.xx - x_.Value() * sums.xy;
    return InUnits(Rational(numerator, Dyadic(count_) * sums.xx), y_decimals_).Round();
  });
}

Extended ExactPairs::SumOfSquaredErrors() const {
  return OfLine([this](const Deviations& sums) {
    const Dyadic numerator = sums.xx * sums.yy - sums.xy * sums.xy;
    return InUnits(Rational(numerator, Dyadic(count_) * sums.xx), 2 * y_decimals_).Round();
  });
}

Extended ExactPairs::RegressionSumOfSquares() const {
  return OfLine([this](const Deviations& sums) {
    const Dyadic numerator = sums.xy * sums.xy;
    return InUnits(Rational(numerator, Dyadic(count_) * sums.xx), 2 * y_decimals_).Round();
  });
}

}  // namespace qorvex
