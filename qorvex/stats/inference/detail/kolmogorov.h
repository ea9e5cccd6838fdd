#pragma once

/// @file
/// Distributions of the statistics of Kolmogorov and Smirnov. D is the two-sided statistic, or the
/// one-sided one for another alternative; both sides have the same distribution.

#include <cstddef>
#include <cstdint>
#include <vector>

#include "qorvex/base/special/tails.h"
#include "qorvex/stats/inference/test_result.h"

namespace qorvex::inference {

/// The tails P(D < d) and P(D >= d) for a sample of n <= 1000 values, 1 / (2n) <= d < 1 for two
/// sides, 0 < d < 1 for one. `rest` is n (1 - d), on which small tails depend.
[[nodiscard]] special::Tails KolmogorovTails(std::size_t n, special::ExtendedPair rest,
                                             Alternative alternative);

/// Their limit for large n. For two samples n is n1 n2 / (n1 + n2).
[[nodiscard]] special::Tails KolmogorovLimit(Extended n, Extended d, Alternative alternative);

/// The probability that a random merge of n1 and n2 values has somewhere i n2 - j n1 >= bound > 0
/// for i values of the first and j of the second sample, or for kTwoSided so large a magnitude.
/// Only places with run_ends[i + j] count, those where a run of equal values ends.
[[nodiscard]] Extended SmirnovTail(std::size_t n1, std::size_t n2, std::int64_t bound,
                                   const std::vector<bool>& run_ends, Alternative alternative);

}  // namespace qorvex::inference
