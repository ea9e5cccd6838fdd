#pragma once

/// @file
/// Mixed fractions: a whole part, a numerator and a denominator.

#include <cstdint>
#include <string>
#include <string_view>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"

namespace qorvex::inline QorvexGlobals {

/// whole + numerator / denominator. In the fractions that the library makes, whole and numerator
/// carry the sign of the value, the numerator is smaller than the denominator, the denominator is
/// positive and the fraction is in lowest terms.
struct TQorMixedFraction {
  /// The whole part is extended so that every value has one; it is NaN or infinite for such a
  /// value.
  Extended whole = 0;
  /// The part above the fraction bar.
  std::int64_t numerator = 0;
  /// The part below the fraction bar.
  std::int64_t denominator = 1;

  /// Equal part by part, not by value.
  friend bool operator==(const TQorMixedFraction&, const TQorMixedFraction&) = default;
};

/// How a fraction is shown.
enum TQorFractionDisplay {
  fdMixed,    ///< "2 1/3"
  fdImproper  ///< "7/3"
};

/// A simple fraction that agrees with the value to the given number of decimals (0 to 18; others
/// are clamped): the first convergent of the continued fraction of its fractional part within half
/// a unit of the last decimal. NaN and the infinities become the whole part.
///
/// The convergents are found with exact remainders, so no rounding enters (Hardy and Wright 1979,
/// "An introduction to the theory of numbers", chapter X).
[[nodiscard]] QORVEX_EXPORT TQorMixedFraction Float2MixedFraction(Extended value,
                                                                  int decimals) noexcept;

/// The fraction's value: the extended number nearest to whole + numerator / denominator. NaN or an
/// infinity in whole is the result, and a whole that is no integer is added after the division. A
/// denominator of 0 raises EZeroDivide, or EInvalidOp when the numerator is 0 too.
[[nodiscard]] QORVEX_EXPORT Extended Fraction2Float(const TQorMixedFraction& fraction);

/// The fraction's text; a whole number shows no fraction. fdImproper falls back to the mixed form
/// where the numerator would need more than 64 bits.
[[nodiscard]] QORVEX_EXPORT std::string Fraction2Str(const TQorMixedFraction& fraction,
                                                     TQorFractionDisplay display);

/// The fraction that a text such as "3", "-7/5" or "2 1/3" names, exactly, in lowest terms.
/// Surrounding blanks and one leading sign are accepted. Raises EConvertError: rsNotAFraction for
/// other texts and for a denominator of 0, rsNumberTooLarge for parts beyond int64.
[[nodiscard]] QORVEX_EXPORT TQorMixedFraction Str2Fraction(std::string_view text);

}  // namespace qorvex::inline QorvexGlobals
