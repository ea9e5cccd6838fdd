#pragma once

// Sums of the probabilities of counts, and the rule for the probability between two of them.

#include <algorithm>
#include <cstdint>

#include "qorvex/base/element_types.h"

namespace qorvex::inline QorvexStatistics::detail {

/// The sum, and on it term(first), ..., term(end - 1) in this order.
template <class Term>
Extended AddTerms(Extended sum, std::uint64_t first, std::uint64_t end, Term& term) {
  for (std::uint64_t count = first; count < end; ++count) sum += term(count);
  return sum;
}

/// P(X < end), the sum of all terms of terms_below(end). Counts below the least one are impossible.
template <class TermsBelow>
Extended LowerProbability(std::uint64_t least, std::uint64_t end, TermsBelow terms_below) {
  auto term = terms_below(end);
  return AddTerms(0, least, end, term);
}

/// P(X < k2) - P(X < k1 + 1), negated when k1 > k2, for different counts: P(k1 < X < k2), or
/// P(k2 <= X <= k1). The one sum is the beginning of the other.
///
/// terms_below(end) gives a function of the counts below end, which is called for the least count
/// and then for one after the other.
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
