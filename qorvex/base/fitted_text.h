#pragma once

/// @file
/// Numbers as text with a given number of digits, or with as many digits as fit.

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"

namespace qorvex::inline QorvexGlobals {

/// The notation of a number.
enum TQorNumberFormat {
  nfFixed,        ///< With a number of decimals: "1234.5000".
  nfSignificant,  ///< With a number of significant digits: "1234.50", or "1.23450e10" if need be.
  nfScientific,   ///< With a number of significant digits, in exponent form: "1.23450e3".
  nfGeneral       ///< As nfSignificant, but without trailing zeros: "1234.5".
};

/// How many digits of a number are shown.
struct FloatDigits {
  int decimals = 4;   ///< Decimals of nfFixed; negative values count as 0.
  bool all = false;   ///< Show the digits of Float2Str instead of a number of digits.
  bool trim = false;  ///< Remove trailing zeros after the decimal point.
  TQorNumberFormat format = nfFixed;  ///< The notation.
  int significant = 6;  ///< Significant digits of the other formats; less than 1 counts as 1.
};

/// The number with these digits, correctly rounded.
///
/// - nfFixed: from 2^63 on, where a number has no decimals, all its digits are shown, in exponent
///   form ("1.2e300") if that is shorter.
/// - nfSignificant and nfGeneral: exponent form below 0.0001, and for numbers with more digits
///   before the decimal point than are shown.
/// - All digits: the shorter of plain notation and exponent form, but always the latter for
///   nfScientific.
/// - Zero has no sign.
/// - NaN is "nan", the infinities are "inf" and "-inf".
[[nodiscard]] QORVEX_EXPORT std::string FloatText(Extended value, const FloatDigits& digits);

/// Shown instead of a number that does not fit.
inline constexpr std::string_view kNoRoom = "####";

/// Whether a text fits. If a text fits, the same number with fewer digits must fit too.
using TextFits = std::function<bool(std::string_view text)>;

/// The number as a text that fits: the first of the following that does.
///
/// - FloatText.
/// - Fixed notation with fewer decimals, as many as fit, but at least enough to show the first
///   non-zero digit, so that no number is shown as zero.
/// - Exponent form, "-1.2e-5", with as many digits as fit.
/// - kNoRoom, shortened to as many characters as fit.
///
/// Every number is correctly rounded from the value itself, ties to even, and never truncated. NaN
/// and the infinities have no shorter form. Calls fits O(log(number of digits)) times.
[[nodiscard]] QORVEX_EXPORT std::string FittedFloatText(Extended value, const FloatDigits& digits,
                                                        const TextFits& fits);

/// The same with at most this many characters.
[[nodiscard]] QORVEX_EXPORT std::string FittedFloatText(Extended value, const FloatDigits& digits,
                                                        std::size_t length);

}  // namespace qorvex::inline QorvexGlobals
