#include "qorvex/base/currency_arithmetic.h"

#include <cmath>
#include <limits>

#include "qorvex/base/detail/binary_parts.h"

namespace qorvex::inline QorvexGlobals {

namespace detail {

void RaiseAmountOverflow() {
  throw EOverflow(rsAmountOverflow);
}

void RaiseDivisionByZero() {
  throw EZeroDivide(rsDivideByZero);
}

}  // namespace detail

namespace {

using UInt128 = unsigned __int128;

// The part of a magnitude that rounding drops, in units of the last place that is kept.
enum class Dropped { kNothing, kLessThanHalf, kHalf, kMoreThanHalf };

struct Magnitude {
  UInt128 kept = 0;
  Dropped dropped = Dropped::kNothing;
};

Dropped Compare(UInt128 dropped, UInt128 rest) {
  if (dropped == 0) return Dropped::kNothing;
  if (dropped == rest) return Dropped::kHalf;
  return dropped < rest ? Dropped::kLessThanHalf : Dropped::kMoreThanHalf;
}

Magnitude Divide(UInt128 dividend, std::uint64_t divisor) {
  const UInt128 remainder = dividend % divisor;
  return {dividend / divisor, Compare(remainder, divisor - remainder)};
}

// value * 2^exponent for values below 2^127. What is 2^64 or more is as good as 2^64, which no
// amount can hold.
Magnitude Scale(UInt128 value, int exponent) {
  constexpr UInt128 kTooLarge = UInt128{1} << 64;
  if (value == 0 || exponent <= -128)
    return {0, value == 0 ? Dropped::kNothing : Dropped::kLessThanHalf};
  if (exponent >= 0)
    return {exponent >= 64 || value >= kTooLarge >> exponent ? kTooLarge : value << exponent,
            Dropped::kNothing};
  const UInt128 kept = value >> -exponent;
  const UInt128 dropped = value - (kept << -exponent);
  return {kept, Compare(dropped, (UInt128{1} << -exponent) - dropped)};
}

bool IsIncreased(const Magnitude& magnitude, bool negative, RoundingMode mode) {
  if (magnitude.dropped == Dropped::kNothing) return false;
  switch (mode) {
    case RoundingMode::kToNearestEven:
      return magnitude.dropped == Dropped::kMoreThanHalf ||
             (magnitude.dropped == Dropped::kHalf && magnitude.kept % 2 != 0);
    case RoundingMode::kToNearestAway:
      return magnitude.dropped >= Dropped::kHalf;
    case RoundingMode::kTowardZero:
      return false;
    case RoundingMode::kAwayFromZero:
      return true;
    case RoundingMode::kDown:
      return negative;
    case RoundingMode::kUp:
      return !negative;
  }
  return false;
}

template <CurrencyElement C>
C Round(const Magnitude& magnitude, bool negative, RoundingMode mode) {
  using Stored = typename C::StoredType;
  const UInt128 rounded = magnitude.kept + (IsIncreased(magnitude, negative, mode) ? 1 : 0);
  const UInt128 limit = UInt128{std::numeric_limits<Stored>::max()} + (negative ? 1 : 0);
  if (rounded > limit) detail::RaiseAmountOverflow();
  const auto bits = static_cast<std::uint64_t>(rounded);
  return C(static_cast<Stored>(negative ? 0 - bits : bits));
}

std::uint64_t MagnitudeOf(detail::Int128 x) {
  return static_cast<std::uint64_t>(x < 0 ? -x : x);
}

UInt128 Product(std::uint64_t x, std::uint64_t y) {
  return UInt128{x} * y;
}

// amount * numerator / denominator as an amount of type To. The denominator is not zero.
template <CurrencyElement To>
To RoundRatio(std::int64_t amount, detail::Int128 numerator, detail::Int128 denominator,
              RoundingMode mode) {
  const UInt128 product = Product(MagnitudeOf(amount), MagnitudeOf(numerator));
  const bool negative = ((amount < 0) != (numerator < 0)) != (denominator < 0);
  return Round<To>(Divide(product, MagnitudeOf(denominator)), negative, mode);
}

}  // namespace

namespace detail {

template <CurrencyElement C>
C MultiplyByRatio(C amount, Int128 numerator, Int128 denominator, RoundingMode mode) {
  if (denominator == 0) RaiseDivisionByZero();
  return RoundRatio<C>(amount.stored(), numerator, denominator, mode);
}

}  // namespace detail

template <CurrencyElement C>
C MultiplyAmount(C amount, Extended factor, RoundingMode mode) {
  if (!std::isfinite(factor)) throw EInvalidOp();
  const detail::BinaryParts parts = detail::PartsOf(factor);
  const UInt128 product = Product(MagnitudeOf(amount.stored()), parts.significand);
  return Round<C>(Scale(product, parts.exponent), (amount.stored() < 0) != (factor < 0), mode);
}

template <CurrencyElement To, CurrencyElement From>
To RoundAmount(From amount, RoundingMode mode) {
  return RoundRatio<To>(amount.stored(), To::kScale, From::kScale, mode);
}

#define QORVEX_INSTANTIATE(C)                                                          \
  template C detail::MultiplyByRatio(C, detail::Int128, detail::Int128, RoundingMode); \
  template C MultiplyAmount(C, Extended, RoundingMode);                                \
  template C RoundAmount<C>(Currency, RoundingMode);                                   \
  template C RoundAmount<C>(QorCurrency, RoundingMode);                                \
  template C RoundAmount<C>(QorLongCurrency, RoundingMode);
QORVEX_INSTANTIATE(Currency)
QORVEX_INSTANTIATE(QorCurrency)
QORVEX_INSTANTIATE(QorLongCurrency)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexGlobals
