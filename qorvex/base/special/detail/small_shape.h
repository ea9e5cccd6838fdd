#pragma once

// The tails at the end of a distribution where its density is about x^(a - 1) with a small a.

#include <cstdint>

#include "qorvex/base/elementary/detail/first_stage.h"
#include "qorvex/base/elementary/detail/quotient.h"
#include "qorvex/base/special/detail/wide_constants.h"
#include "qorvex/base/special/detail/wide_scaled.h"
#include "qorvex/base/special/tails.h"

namespace qorvex::special {

/// The tails of a distribution whose lower tail is e^leading (1 + s) with s = a sum over n >= 1 of
/// t(n) / (a + n), where t(0) = 1 and t(n) = factor(n) / n t(n - 1).
///
/// The smaller tail is computed: where it is the upper one, 1 - e^leading (1 + s) would lose all
/// its digits for small a, but neither part of (1 - e^leading) - e^leading s does. The sum has some
/// hundred terms at most if factor(n) / n is below 1/2 from some n on.
template <class Factor>
[[nodiscard]] Tails SmallShapeTails(const Wide& a, const Wide& leading, Factor factor) {
  Wide sum;
  Wide term = kOne;
  constexpr std::int64_t negligible = 90;
  for (std::uint64_t n = 1;; ++n) {
    const Wide whole = WholeNumber(n);
    const Wide multiple = term * factor(whole);
    if (multiple.IsZero()) break;
    term = elementary::QuickQuotient(multiple, whole);
    const Wide part = elementary::QuickQuotient(term, a + whole);
    sum = sum + part;
    if (part.exponent < sum.exponent - negligible) break;
  }
  const Wide power = elementary::ExpWide(leading);
  const Wide rest = power * (a * sum);
  const Wide lower = power + rest;
  if (IsSmaller(lower, kHalf)) return {Tail::kLower, MakeScaled(lower)};
  return {Tail::kUpper, MakeScaled(-elementary::Expm1Wide(leading) - rest)};
}

}  // namespace qorvex::special
