#pragma once

/// @file
/// Arithmetic of amounts that shows its remainder, names its rounding, or raises where the
/// operators of currency.h wrap around.
///
/// - Everything is computed exactly in integers of 128 bits; only what states a rounding mode
///   rounds, once.
/// - Errors, in this order: EZeroDivide with rsDivideByZero for a divisor of zero, whatever is
///   divided; EOverflow with rsAmountOverflow if the result is out of range.
/// - O(1).

#include <concepts>
#include <cstdint>

#include "qorvex/base/currency.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/export.h"

namespace qorvex::inline QorvexGlobals {

/// @cond internal
namespace detail {
__extension__ typedef __int128 Int128;
[[noreturn]] QORVEX_EXPORT void RaiseAmountOverflow();
[[noreturn]] QORVEX_EXPORT void RaiseDivisionByZero();
}  // namespace detail
/// @endcond

/// @{
/// The sum, the difference and the product with an integer. EOverflow if it is out of range.
template <CurrencyElement C>
[[nodiscard]] constexpr C CheckedAdd(C x, C y) {
  typename C::StoredType sum = 0;
  if (__builtin_add_overflow(x.stored(), y.stored(), &sum)) detail::RaiseAmountOverflow();
  return C(sum);
}
template <CurrencyElement C>
[[nodiscard]] constexpr C CheckedSubtract(C x, C y) {
  typename C::StoredType difference = 0;
  if (__builtin_sub_overflow(x.stored(), y.stored(), &difference)) detail::RaiseAmountOverflow();
  return C(difference);
}
template <CurrencyElement C>
[[nodiscard]] constexpr C CheckedMultiply(C amount, std::integral auto factor) {
  typename C::StoredType product = 0;
  if (__builtin_mul_overflow(amount.stored(), factor, &product)) detail::RaiseAmountOverflow();
  return C(product);
}
/// @}

/// A quotient, rounded toward zero, and what remains: dividend = quotient * divisor + remainder.
/// The remainder is smaller than the divisor and has the sign of the dividend, unless it is zero.
template <class Quotient, CurrencyElement C>
struct AmountDivision {
  /// How often the divisor is contained in the dividend, or one of equal parts.
  Quotient quotient;
  /// What the quotient leaves.
  C remainder;
  /// Compares both members.
  friend constexpr bool operator==(const AmountDivision&, const AmountDivision&) = default;
};

/// Divides an amount into equal parts: 10.00 / 3 is 3.33, and 0.01 remains. EOverflow for the
/// smallest amount divided by -1. Allocate distributes the remainder.
template <CurrencyElement C>
[[nodiscard]] constexpr AmountDivision<C, C> DivideAmount(C dividend, std::integral auto divisor) {
  if (divisor == 0) detail::RaiseDivisionByZero();
  const detail::Int128 exact = detail::Int128{dividend.stored()} / detail::Int128{divisor};
  const C quotient(static_cast<typename C::StoredType>(exact));
  if (quotient.stored() != exact) detail::RaiseAmountOverflow();
  return {quotient, dividend - quotient * divisor};
}

/// How often one amount is contained in another: 10.00 / 3.00 is 3, and 1.00 remains. EOverflow for
/// the smallest amount divided by minus the resolution, whose quotient is beyond int64 (for
/// Currency and QorLongCurrency).
template <CurrencyElement C>
[[nodiscard]] constexpr AmountDivision<std::int64_t, C> DivideAmount(C dividend, C divisor) {
  if (divisor == C()) detail::RaiseDivisionByZero();
  const detail::Int128 exact = detail::Int128{dividend.stored()} / divisor.stored();
  const auto quotient = static_cast<std::int64_t>(exact);
  if (quotient != exact) detail::RaiseAmountOverflow();
  return {quotient, dividend - divisor * quotient};
}

/// Which of the two neighbouring amounts is taken for a value between them.
enum class RoundingMode : std::uint8_t {
  kToNearestEven,  ///< the nearer one; of two equally near the one with an even stored integer
  kToNearestAway,  ///< the nearer one; of two equally near the one away from zero (commercial)
  kTowardZero,     ///< the one with the smaller magnitude: cuts the rest off
  kAwayFromZero,   ///< the one with the larger magnitude
  kDown,           ///< the smaller one
  kUp,             ///< the larger one
};

/// @cond internal
namespace detail {
// Numerator and denominator have magnitudes below 2^64.
template <CurrencyElement C>
QORVEX_EXPORT C MultiplyByRatio(C amount, Int128 numerator, Int128 denominator, RoundingMode mode);
}  // namespace detail
/// @endcond

/// amount * numerator / denominator, rounded once: MultiplyAmount(price, 19, 100, mode) is 19 % of
/// a price. The integers may have any type of up to 64 bits.
template <CurrencyElement C>
[[nodiscard]] C MultiplyAmount(C amount, std::integral auto numerator,
                               std::integral auto denominator, RoundingMode mode) {
  static_assert(sizeof numerator <= 8 && sizeof denominator <= 8, "integers of up to 64 bits");
  return detail::MultiplyByRatio(amount, {numerator}, {denominator}, mode);
}

/// amount * factor, rounded once from the exact product.
///
/// - Most decimal factors are not exact in binary: 0.19L is a little less than 19 %, which decides
///   where 19 % of the amount would be a tie. Give such factors as ratios.
/// - A factor that is infinite or NaN: EInvalidOp.
template <CurrencyElement C>
[[nodiscard]] QORVEX_EXPORT C MultiplyAmount(C amount, Extended factor, RoundingMode mode);

/// The amount in another currency type: RoundAmount<QorCurrency>(12.345_currency, mode) has two
/// decimals. EOverflow if the type cannot hold it.
template <CurrencyElement To, CurrencyElement From>
[[nodiscard]] QORVEX_EXPORT To RoundAmount(From amount, RoundingMode mode);

}  // namespace qorvex::inline QorvexGlobals
