#pragma once

/// @file
/// Texts of probabilities, however small.

#include <optional>
#include <string>

#include "qorvex/base/element_types.h"

namespace qorvex::apps {

/// The text of a probability, from itself and its natural logarithm.
///
/// - Without decimals the shortest text that keeps all 80 bits.
/// - With decimals in fixed notation, but 1.5376e-11 below 10^-decimals.
/// - Below the range of the format, 1.5376e-6000 from the logarithm, with at most as many decimals
///   as that determines; exp(-5e+19) if it determines none.
/// - Not negative, or NaN.
[[nodiscard]] std::string ProbabilityText(Extended p, Extended log_p, std::optional<int> decimals);

/// The same to four significant digits: 0.02432, 1.538e-6000.
[[nodiscard]] std::string RoundedProbabilityText(Extended p, Extended log_p);

}  // namespace qorvex::apps
