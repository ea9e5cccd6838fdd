#pragma once

/// @file
/// Binomial probabilities and beta distributions where few products of pairs give them. What has 64
/// bits, such as C(4, 2) / 2^4, then comes out without any error.

#include <cstdint>

#include "qorvex/stats/full_precision/detail/shared.h"

namespace qorvex::full_precision::detail {

/// C(n, k) p^k q^(n - k) for k <= n, and q = 1 - p above 0.
[[nodiscard]] Scaled BinomialProbability(std::uint32_t n, std::uint32_t k, ExtendedPair p,
                                         ExtendedPair q);

/// C(n, k) for k <= n.
[[nodiscard]] Scaled Coefficient(std::int64_t n, std::int64_t k);

/// As RegularisedBeta(a, b).At(odds), with closed forms for shapes of 1 and for equal shapes at
/// equal odds, and with sums of up to 16 terms for whole shapes that add up to 256 at most.
/// Exchanged shapes and odds give exchanged tails.
[[nodiscard]] Tails BetaTails(Extended a, Extended b, const Odds& odds);

/// The density of the beta distribution at x = in_favour of odds that add up to 1.
[[nodiscard]] Extended BetaDensity(Extended a, Extended b, const Odds& odds);

}  // namespace qorvex::full_precision::detail
