#include <limits>

#include "qorvex/base/errors.h"
#include "qorvex/stats/exact/exact_sample.h"

namespace qorvex {

namespace {

using exact::BigInteger;
using exact::Dyadic;
using exact::Rational;

constexpr Extended kNan = std::numeric_limits<Extended>::quiet_NaN();
constexpr Extended kInfinity = std::numeric_limits<Extended>::infinity();

Dyadic Square(const Dyadic& x) {
  return x * x;
}

// The root of a square, with a sign.
Extended SignedRoot(const Rational& square, int sign) {
  const Extended root = square.RoundRoot();
  return sign < 0 ? -root : root;
}

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

// n P2 - P1^2, for the sums P of powers.
template <int kPowerSums>
Dyadic ExactSample<kPowerSums>::SecondMoment() const {
  return Dyadic(finite_) * sums_[1].Value() - Square(sums_[0].Value());
}

// n^2 P3 - 3n P1 P2 + 2 P1^3.
template <int kPowerSums>
Dyadic ExactSample<kPowerSums>::ThirdMoment() const requires(kPowerSums == 4) {
  const Dyadic n = finite_;
  const Dyadic p1 = sums_[0].Value();
  return Square(n) * sums_[2].Value() +
         p1 * (Dyadic(2) * Square(p1) - Dyadic(3) * n * sums_[1].Value());
}

// n^3 P4 - 4n^2 P1 P3 + 6n P1^2 P2 - 3 P1^4.
template <int kPowerSums>
Dyadic ExactSample<kPowerSums>::FourthMoment() const requires(kPowerSums == 4) {
  const Dyadic n = finite_;
  const Dyadic p1 = sums_[0].Value();
  return Square(n) * (n * sums_[3].Value() - Dyadic(4) * p1 * sums_[2].Value()) +
         Dyadic(3) * Square(p1) * (Dyadic(2) * n * sums_[1].Value() - Square(p1));
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
  return {SecondMoment(), Dyadic(finite_) * Unit(2)};
}

template <int kPowerSums>
Rational ExactSample<kPowerSums>::Variance(std::uint64_t divisor) const {
  return {SecondMoment(), Dyadic(finite_) * Dyadic(divisor) * Unit(2)};
}

template <int kPowerSums>
Extended ExactSample<kPowerSums>::Sum() const {
  return IsFinite() ? PowerSum(1).Round() : special_.Sum();
}

template <int kPowerSums>
Extended ExactSample<kPowerSums>::SumOfSquares() const {
  if (IsFinite()) return PowerSum(2).Round();
  return special_.nan != 0 ? kNan : kInfinity;
}

template <int kPowerSums>
Extended ExactSample<kPowerSums>::Mean() const {
  RequireCount(1, rsVectorIsEmpty);
  return IsFinite() ? ExactMean().Round() : special_.Sum();
}

template <int kPowerSums>
Extended ExactSample<kPowerSums>::SampleVariance() const {
  RequireCount(2, rsVectorG1);
  return IsFinite() ? Variance(finite_ - 1).Round() : kNan;
}

template <int kPowerSums>
Extended ExactSample<kPowerSums>::PopulationVariance() const {
  RequireCount(1, rsVectorIsEmpty);
  return IsFinite() ? Variance(finite_).Round() : kNan;
}

template <int kPowerSums>
Extended ExactSample<kPowerSums>::SampleStdDev() const {
  RequireCount(2, rsVectorG1);
  return IsFinite() ? Variance(finite_ - 1).RoundRoot() : kNan;
}

template <int kPowerSums>
Extended ExactSample<kPowerSums>::PopulationStdDev() const {
  RequireCount(1, rsVectorIsEmpty);
  return IsFinite() ? Variance(finite_).RoundRoot() : kNan;
}

template <int kPowerSums>
Dyadic ExactSample<kPowerSums>::Spread() const {
  const Dyadic spread = SecondMoment();
  if (spread.Sign() == 0) RaiseMathError(rsStdDev);
  return spread;
}

template <int kPowerSums>
Extended ExactSample<kPowerSums>::SampleSkewness() const requires(kPowerSums == 4) {
  RequireCount(3, rsVectorG2);
  if (!IsFinite()) return kNan;
  const Dyadic n = finite_;
  const Dyadic spread = Spread();
  const Dyadic third = ThirdMoment();
  return SignedRoot({Square(third) * n * (n - 1), Square(n - 2) * spread * Square(spread)},
                    third.Sign());
}

template <int kPowerSums>
Extended ExactSample<kPowerSums>::PopulationSkewness() const requires(kPowerSums == 4) {
  RequireCount(3, rsVectorG2);
  if (!IsFinite()) return kNan;
  const Dyadic spread = Spread();
  const Dyadic third = ThirdMoment();
  return SignedRoot({Square(third), spread * Square(spread)}, third.Sign());
}

template <int kPowerSums>
Extended ExactSample<kPowerSums>::SampleKurtosis() const requires(kPowerSums == 4) {
  RequireCount(4, rsVectorG3);
  if (!IsFinite()) return kNan;
  const Dyadic n = finite_;
  const Dyadic square = Square(Spread());
  return Rational((n - 1) * ((n + 1) * FourthMoment() - Dyadic(3) * (n - 1) * square),
                  (n - 2) * (n - 3) * square)
      .Round();
}

template <int kPowerSums>
Extended ExactSample<kPowerSums>::PopulationKurtosis() const requires(kPowerSums == 4) {
  RequireCount(4, rsVectorG3);
  if (!IsFinite()) return kNan;
  const Dyadic square = Square(Spread());
  return Rational(FourthMoment() - Dyadic(3) * square, square).Round();
}

template <int kPowerSums>
std::optional<Extended> ExactSample<kPowerSums>::Minimum() const {
  if (special_.nan != 0) return kNan;
  if (special_.negative_infinity != 0) return -kInfinity;
  if (finite_ == 0 && special_.positive_infinity != 0) return kInfinity;
  return minimum_;
}

template <int kPowerSums>
std::optional<Extended> ExactSample<kPowerSums>::Maximum() const {
  if (special_.nan != 0) return kNan;
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
  template Dyadic ExactSample<kPowerSums>::SecondMoment() const;
QORVEX_INSTANTIATE(2)
QORVEX_INSTANTIATE(4)
#undef QORVEX_INSTANTIATE
template Extended ExactSample<4>::SampleSkewness() const;
template Extended ExactSample<4>::PopulationSkewness() const;
template Extended ExactSample<4>::SampleKurtosis() const;
template Extended ExactSample<4>::PopulationKurtosis() const;
template Dyadic ExactSample<4>::ThirdMoment() const;
template Dyadic ExactSample<4>::FourthMoment() const;

}  // namespace qorvex
