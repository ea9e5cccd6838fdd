#pragma once

/// @file
/// How figures are written: with all their bits, with significant digits or with decimals.

#include <cstdint>
#include <string>

#include "apps/common/column_numbers.h"
#include "qorvex/base/currency.h"
#include "qorvex/base/element_types.h"

namespace qorvex::apps {

/// A probability and its natural logarithm, which also exists where the probability is below the
/// range of the format.
struct Probability {
  Extended p = 0;
  Extended log_p = 0;
};

/// How the figures of a result are written.
struct FigureFormat {
  enum class Kind : std::uint8_t {
    kAllBits,   ///< the shortest text that keeps all 80 bits
    kDigits,    ///< significant digits, without trailing zeros
    kDecimals,  ///< fixed notation
  };
  Kind kind = Kind::kAllBits;
  /// Of significant digits or of decimals.
  int count = 0;
  /// Whether a blank separates the digits in threes; not those of up to four decimals.
  bool grouped = false;

  /// The text of a figure; "Not available" for NaN.
  ///
  /// - With significant digits, the whole part is never cut, and exponent form is only used below
  ///   0.0001 and from 1e19 on. A figure that is not 0 is not shown as 0.
  /// - With decimals, a figure below half a unit of the last one is shown as 0.
  [[nodiscard]] std::string Text(Extended figure) const;
  /// The text of a probability, however small: with decimals, in exponent form below their reach;
  /// below the range of the format, from the logarithm.
  [[nodiscard]] std::string Text(const Probability& probability) const;
  /// @{
  /// The text of a number of things, which has no decimals, and of an amount with all of its own.
  [[nodiscard]] std::string Text(std::uint64_t number) const;
  [[nodiscard]] std::string Text(Currency amount) const;
  /// @}
};

/// Figures of a report on such numbers have at least 7 significant digits, and one more than the
/// numbers.
[[nodiscard]] FigureFormat FormatFor(int significant_digits);

/// @{
/// The significant digits of the shortest text of a figure, or of the numbers of a column: from the
/// first of the largest to the last decimal; of numbers without a common unit, the most that one
/// of about fifty has. 0 without numbers.
[[nodiscard]] int SignificantDigits(Extended figure);
[[nodiscard]] int SignificantDigits(const ColumnNumbers& numbers);
/// @}

}  // namespace qorvex::apps
