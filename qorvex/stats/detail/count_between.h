#pragma once

// Sums of the probabilities of counts, for all discrete distributions.

#include <algorithm>
#include <cstdint>

#include "qorvex/base/element_types.h"

namespace qorvex::inline QorvexStatistics::detail {

/// Adds term(first), ..., term(end - 1) to the sum, in this order.
template <class Term>
Extended AddTerms(Extended sum, std::uint64_t first, std::uint64_t end, Term& term) {
  for (std::uint64_t count = first; count < end; ++count) sum += term(count);
  return sum;
}

/// P(X < end). Counts below `least` are impossible. See CountBetween for terms_below.
template <class TermsBelow>
Extended LowerProbability(std::uint64_t least, std::uint64_t end, TermsBelow terms_below) {
  auto term = terms_below(end);
  return AddTerms(0, least, end, term);
}

/// For k1 < k2, P(X < k2) - P(X < k1 + 1) = P(k1 < X < k2). For k1 > k2, its negative, which is
/// P(k2 <= X <= k1). The shorter sum is the beginning of the longer one.
///
/// terms_below(end) returns a function that gives the probability of a count below `end`. It is
/// called for consecutive counts, starting with `least`.
template <class TermsBelow>
Extended CountBetween(std::uint64_t least, std::uint32_t k1, std::uint32_t k2,
                      TermsBelow terms_below) {
  const std::uint64_t after_k1 = std::uint64_t{k1} + 1;
  const std::uint64_t first = std::min<std::uint64_t>(after_k1, k2);
  const std::uint64_t end = std::max<std::uint64_t>(after_k1, k2);
  auto term = terms_below(end);
  const Extended below = AddTerms(0, least, first, term);
  return AddTerms(below, std::max(least, first), end, term) - below;
}

}  // namespace qorvex::inline QorvexStatistics::detail
