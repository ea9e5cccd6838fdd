#pragma once

/// @file
/// The exact binomial test.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/stats/inference/test_result.h"

namespace qorvex {

/// Whether the probability of success is p, given the successes among independent trials. The
/// statistic is the number of successes.
///
/// - Two-sided p is the probability of all counts that are no more likely than the observed one;
///   counts whose probability exceeds its by at most a factor of 1 + 1e-7 belong to them, so that
///   rounding does not separate counts that are as likely as each other.
/// - No trials: p = 1. A probability of NaN gives NaN.
/// - Errors: rsBinomDistInvalid unless successes <= trials < 2^32 and 0 <= p <= 1.
/// - Cost: two tails, and for two-sided p as many probabilities as the count of trials has binary
///   digits.
/// - Source: Clopper and Pearson (1934), "The use of confidence or fiducial limits illustrated in
///   the case of the binomial".
[[nodiscard]] QORVEX_EXPORT TestResult
BinomialTest(std::uint64_t successes, std::uint64_t trials, Extended p = 0.5L,
             Alternative alternative = Alternative::kTwoSided);

}  // namespace qorvex
