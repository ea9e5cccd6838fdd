#pragma once

/// @file
/// p-values from tails.

#include <algorithm>
#include <cmath>

#include "qorvex/base/special/tails.h"
#include "qorvex/base/vector_view.h"
#include "qorvex/stats/inference/test_result.h"

namespace qorvex::inference {

using special::ExtendedPair;
using special::Scaled;
using special::Tail;
using special::Tails;

/// The result with this tail as p, at most 1.
[[nodiscard]] inline TestResult WithTail(TestResult result, const Tails& tails, Tail tail) {
  result.p = tails.Probability(tail);
  result.log_p = tails.LogProbability(tail);
  if (result.p > 1 || result.log_p >= 0) {
    result.p = 1;
    result.log_p = 0;
  }
  return result;
}

/// The result with this p, at most 1.
[[nodiscard]] inline TestResult WithP(const TestResult& result, const Scaled& p) {
  return WithTail(result, {Tail::kUpper, p}, Tail::kUpper);
}

/// The result with the tail or, for kTwoSided, twice the smaller of the tails at the statistic.
[[nodiscard]] inline TestResult WithTails(const TestResult& result, const Tails& tails,
                                          Alternative alternative) {
  if (alternative == Alternative::kTwoSided) {
    const bool is_low = tails.Probability(Tail::kLower) < tails.Probability(Tail::kUpper);
    return WithP(result, tails.ScaledProbability(is_low ? Tail::kLower : Tail::kUpper) * 2);
  }
  return WithTail(result, tails, alternative == Alternative::kLess ? Tail::kLower : Tail::kUpper);
}

/// Whether any of the values is NaN.
[[nodiscard]] inline bool HasNaN(VectorView<Extended> values) {
  return std::any_of(values.begin(), values.end(), [](Extended x) { return std::isnan(x); });
}

}  // namespace qorvex::inference
