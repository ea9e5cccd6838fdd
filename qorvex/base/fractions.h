#pragma once

/// @file
/// Mixed fractions: a whole part, a numerator and a denominator.

#include <cstdint>
#include <string>
#include <string_view>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"

namespace qorvex::inline QorvexGlobals {

/// whole + numerator / denominator. In the fractions that the library returns, whole and numerator
/// have the sign of the value, the denominator is positive and greater than the magnitude of the
/// numerator, and the fraction is in lowest terms.
struct TQorMixedFraction {
  /// The whole part; NaN or infinite if the value is. It is extended because an integer type could
  /// not hold the whole part of every value.
  Extended whole = 0;
  /// The part above the fraction bar.
  std::int64_t numerator = 0;
  /// The part below the fraction bar.
  std::int64_t denominator = 1;

  /// Compares the parts, not the values.
  friend bool operator==(const TQorMixedFraction&, const TQorMixedFraction&) = default;
};

/// How a fraction is shown.
enum TQorFractionDisplay {
  fdMixed,    ///< "2 1/3"
  fdImproper  ///< "7/3"
};

/// The largest number of decimals for Float2MixedFraction.
inline constexpr int kMostFractionDecimals = 18;

/// A simple fraction that agrees with the value to a number of decimals.
///
/// - The fraction is the first convergent of the continued fraction of the fractional part that is
///   within half a unit of the last decimal. The remainders are exact, so no rounding errors occur
///   (Hardy and Wright 1979, "An introduction to the theory of numbers", chapter X).
/// - decimals is clamped to 0 to kMostFractionDecimals.
/// - NaN and infinities become the whole part of the result.
[[nodiscard]] QORVEX_EXPORT TQorMixedFraction Float2MixedFraction(Extended value,
                                                                  int decimals) noexcept;

/// The fraction's value: the extended number nearest to whole + numerator / denominator.
///
/// - If whole is not an integer, it is added after the division, with a second rounding.
/// - If whole is NaN or infinite, so is the result.
/// - A denominator of 0 raises EZeroDivide, or EInvalidOp if the numerator is 0 too.
[[nodiscard]] QORVEX_EXPORT Extended Fraction2Float(const TQorMixedFraction& fraction);

/// The fraction as text, without the fraction part if the numerator is 0. The mixed form is used
/// instead of fdImproper if the numerator would need more than 64 bits.
[[nodiscard]] QORVEX_EXPORT std::string Fraction2Str(const TQorMixedFraction& fraction,
                                                     TQorFractionDisplay display);

/// The fraction that a text such as "3", "-7/5" or "2 1/3" represents, exactly and in lowest terms.
///
/// - Accepts surrounding blanks and one leading sign.
/// - EConvertError, which quotes the text: rsNotAFraction for any other text and for a denominator
///   of 0, rsNumberTooLarge if a part does not fit int64.
[[nodiscard]] QORVEX_EXPORT TQorMixedFraction Str2Fraction(std::string_view text);

}  // namespace qorvex::inline QorvexGlobals
