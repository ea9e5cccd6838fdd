#include <limits>

#include "qorvex/base/errors.h"
#include "qorvex/stats/detail/exact_moments.h"
#include "qorvex/stats/exact/exact_sample.h"

namespace qorvex {

namespace {

using exact::BigInteger;
using exact::Dyadic;
using exact::Rational;
using exact::detail::PowerSums;

constexpr Extended kNaN = std::numeric_limits<Extended>::quiet_NaN();
constexpr Extended kInfinity = std::numeric_limits<Extended>::infinity();

}  // namespace

template <int kPowerSums>
void ExactSample<kPowerSums>::RequireCount(std::uint64_t least, MessageId error) const {
  if (Count() == 0) RaiseMathError(rsVectorIsEmpty);
  if (Count() < least) RaiseMathError(error);
}

template <int kPowerSums>
void ExactSample<kPowerSums>::RequireFinite() const {
  if (!IsFinite()) throw EInvalidOp();
}

template <int kPowerSums>
Dyadic ExactSample<kPowerSums>::Unit(int k) const {
  return Dyadic(BigInteger::PowerOfTen(static_cast<unsigned>(k * decimals_)));
}

template <int kPowerSums>
PowerSums ExactSample<kPowerSums>::Powers() const {
  PowerSums powers{finite_, sums_[0].Value(), sums_[1].Value(), {}, {}};
  if constexpr (kPowerSums == 4) {
    powers.third = sums_[2].Value();
    powers.fourth = sums_[3].Value();
  }
  return powers;
}

template <int kPowerSums>
Rational ExactSample<kPowerSums>::PowerSum(int k) const {
  if (k < 1 || k > kPowerSums) RaiseMathError(rsInvalidValue);
  RequireFinite();
  return {sums_[static_cast<std::size_t>(k - 1)].Value(), Unit(k)};
}

template <int kPowerSums>
Rational ExactSample<kPowerSums>::ExactMean() const {
  RequireCount(1, rsVectorIsEmpty);
  RequireFinite();
  return {sums_[0].Value(), Dyadic(finite_) * Unit(1)};
}

template <int kPowerSums>
Rational ExactSample<kPowerSums>::ExactSumOfSquaredDeviations() const {
  RequireCount(1, rsVectorIsEmpty);
  RequireFinite();
  return {Powers().SecondMoment(), Dyadic(finite_) * Unit(2)};
}

template <int kPowerSums>
Rational ExactSample<kPowerSums>::Variance(std::uint64_t divisor) const {
  return {Powers().SecondMoment(), Dyadic(finite_) * Dyadic(divisor) * Unit(2)};
}

template <int kPowerSums>
Extended ExactSample<kPowerSums>::Sum() const {
  return IsFinite() ? PowerSum(1).Round() : special_.Sum();
}

template <int kPowerSums>
Extended ExactSample<kPowerSums>::SumOfSquares() const {
  if (IsFinite()) return PowerSum(2).Round();
  return special_.nan != 0 ? kNaN : kInfinity;
}

template <int kPowerSums>
Extended ExactSample<kPowerSums>::Mean() const {
  RequireCount(1, rsVectorIsEmpty);
  return IsFinite() ? ExactMean().Round() : special_.Sum();
}

template <int kPowerSums>
Extended ExactSample<kPowerSums>::SampleVariance() const {
  RequireCount(2, rsVectorG1);
  return IsFinite() ? Variance(finite_ - 1).Round() : kNaN;
}

template <int kPowerSums>
Extended ExactSample<kPowerSums>::PopulationVariance() const {
  RequireCount(1, rsVectorIsEmpty);
  return IsFinite() ? Variance(finite_).Round() : kNaN;
}

template <int kPowerSums>
Extended ExactSample<kPowerSums>::SampleStdDev() const {
  RequireCount(2, rsVectorG1);
  return IsFinite() ? Variance(finite_ - 1).RoundRoot() : kNaN;
}

template <int kPowerSums>
Extended ExactSample<kPowerSums>::PopulationStdDev() const {
  RequireCount(1, rsVectorIsEmpty);
  return IsFinite() ? Variance(finite_).RoundRoot() : kNaN;
}

template <int kPowerSums>
Extended ExactSample<kPowerSums>::SampleSkewness() const requires(kPowerSums == 4) {
  RequireCount(3, rsVectorG2);
  return IsFinite() ? Skewness(Powers(), Estimate::kSample) : kNaN;
}

template <int kPowerSums>
Extended ExactSample<kPowerSums>::PopulationSkewness() const requires(kPowerSums == 4) {
  RequireCount(3, rsVectorG2);
  return IsFinite() ? Skewness(Powers(), Estimate::kPopulation) : kNaN;
}

template <int kPowerSums>
Extended ExactSample<kPowerSums>::SampleKurtosis() const requires(kPowerSums == 4) {
  RequireCount(4, rsVectorG3);
  return IsFinite() ? Kurtosis(Powers(), Estimate::kSample) : kNaN;
}

template <int kPowerSums>
Extended ExactSample<kPowerSums>::PopulationKurtosis() const requires(kPowerSums == 4) {
  RequireCount(4, rsVectorG3);
  return IsFinite() ? Kurtosis(Powers(), Estimate::kPopulation) : kNaN;
}

template <int kPowerSums>
std::optional<Extended> ExactSample<kPowerSums>::Minimum() const {
  if (special_.nan != 0) return kNaN;
  if (special_.negative_infinity != 0) return -kInfinity;
  if (finite_ == 0 && special_.positive_infinity != 0) return kInfinity;
  return minimum_;
}

template <int kPowerSums>
std::optional<Extended> ExactSample<kPowerSums>::Maximum() const {
  if (special_.nan != 0) return kNaN;
  if (special_.positive_infinity != 0) return kInfinity;
  if (finite_ == 0 && special_.negative_infinity != 0) return -kInfinity;
  return maximum_;
}

// One by one, because Clang 14 would instantiate the shape of two power sums too.
#define QORVEX_INSTANTIATE(kPowerSums)                                                   \
  template Extended ExactSample<kPowerSums>::Sum() const;                                \
  template Extended ExactSample<kPowerSums>::SumOfSquares() const;                       \
  template Extended ExactSample<kPowerSums>::Mean() const;                               \
  template Extended ExactSample<kPowerSums>::SampleVariance() const;                     \
  template Extended ExactSample<kPowerSums>::PopulationVariance() const;                 \
  template Extended ExactSample<kPowerSums>::SampleStdDev() const;                       \
  template Extended ExactSample<kPowerSums>::PopulationStdDev() const;                   \
  template std::optional<Extended> ExactSample<kPowerSums>::Minimum() const;             \
  template std::optional<Extended> ExactSample<kPowerSums>::Maximum() const;             \
  template exact::Rational ExactSample<kPowerSums>::ExactMean() const;                   \
  template exact::Rational ExactSample<kPowerSums>::ExactSumOfSquaredDeviations() const; \
  template exact::Rational ExactSample<kPowerSums>::PowerSum(int) const;                 \
  template Dyadic ExactSample<kPowerSums>::Unit(int) const;                              \
  template PowerSums ExactSample<kPowerSums>::Powers() const;
QORVEX_INSTANTIATE(2)
QORVEX_INSTANTIATE(4)
#undef QORVEX_INSTANTIATE
template Extended ExactSample<4>::SampleSkewness() const;
template Extended ExactSample<4>::PopulationSkewness() const;
template Extended ExactSample<4>::SampleKurtosis() const;
template Extended ExactSample<4>::PopulationKurtosis() const;

}  // namespace qorvex
