#pragma once

/// @file
/// Numbers as texts with as many digits as are wanted, or as there is room for.

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"

namespace qorvex::inline QorvexGlobals {

/// The digits that a number is written with.
struct FloatDigits {
  int decimals = 4;   ///< Decimals of fixed notation; negative counts as 0.
  bool all = false;   ///< All digits in place of them: as many as Float2Str gives.
  bool trim = false;  ///< Without the zeroes that end the decimals.
};

/// The number with these digits, correctly rounded. From 2^63 on, where it has no decimals, it is
/// written with all its digits, in exponent form, "1.2e300", where that is shorter. Zero has no
/// sign. NaN is "nan", the infinities are "inf" and "-inf".
[[nodiscard]] QORVEX_EXPORT std::string FloatText(Extended value, const FloatDigits& digits);

/// What stands for a number that has no room.
inline constexpr std::string_view kNoRoom = "####";

/// Whether a text has room. Where one has, the same with fewer digits is expected to have room too.
using TextFits = std::function<bool(std::string_view text)>;

/// The number in a text that fits. The first of these that does:
/// - FloatText;
/// - fixed notation with as many of its decimals as fit, but no fewer than it takes to show the
///   first digit that is not 0: a number does not turn into zero;
/// - exponent form, "-1.2e-5", with as many of its digits as fit;
/// - kNoRoom, or as many of its characters as fit.
///
/// Each text is rounded correctly from the value itself, ties to even, and no number is cut off:
/// what is not kNoRoom is within half a unit of the last digit shown. NaN and the infinities have
/// no shorter form. Asks fits about the binary logarithm of the number of digits.
[[nodiscard]] QORVEX_EXPORT std::string FittedFloatText(Extended value, const FloatDigits& digits,
                                                        const TextFits& fits);

/// The same in at most this many characters.
[[nodiscard]] QORVEX_EXPORT std::string FittedFloatText(Extended value, const FloatDigits& digits,
                                                        std::size_t length);

}  // namespace qorvex::inline QorvexGlobals
