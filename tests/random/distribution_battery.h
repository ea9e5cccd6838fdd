#pragma once

/// @file
/// Statistical tests of variates against the distributions that they should have.

#include <functional>

#include "qorvex/stats/distributions/figures.h"
#include "random/variates.h"
#include "support/environment.h"
#include "support/test.h"

namespace qorvex::testing {

/// The distribution that variates should have.
struct Reference {
  /// P(X <= x).
  std::function<Extended(Extended)> lower;
  /// The point with a lower probability. It only chooses the cells and may be inexact.
  std::function<Extended(Extended)> quantile;
  /// NaN for moments that are not tested: the test of the mean needs a finite variance, the test of
  /// the variance a finite fourth moment.
  Extended mean, variance;
  /// The support.
  Extended least, greatest;
  bool whole;
};

/// A distribution of the library. The variance is not tested if a few variates dominate it, or if
/// the fourth moment is infinite.
template <Distribution D>
Reference ReferenceOf(const D& d, bool test_variance = true) {
  const auto support = d.Support();
  const bool whole = DiscreteDistribution<D>;
  const bool bounded = !whole || support.greatest < 0xFFFFFFFF;
  const bool has_variance = std::isfinite(d.Variance());
  return {[d](Extended x) { return Lower(d, static_cast<typename D::Point>(x)); },
          [d](Extended p) { return static_cast<Extended>(Quantile(d, p)); },
          has_variance ? d.Mean() : kNaN,
          test_variance ? d.Variance() : kNaN,
          static_cast<Extended>(support.least),
          bounded ? static_cast<Extended>(support.greatest) : kInfinity,
          whole};
}

/// The result of the battery: whether all variates are in the support, and the p-values of its four
/// checks; 1 for moments that are not tested.
struct Verdict {
  bool in_support = true;
  Extended chi_square = 1;
  Extended kolmogorov_smirnov = 1;
  Extended mean = 1;
  Extended variance = 1;

  /// Smaller p-values are failures.
  static constexpr Extended limit = 1e-6L;
  [[nodiscard]] bool IsGood() const;
};

/// 100,000 in the fast tests, which is enough to find errors of 1 %; 1,000,000 in the slow ones.
inline int UsualDraws() {
  return FromEnvironment("QORVEX_BATTERY_DRAWS", 100'000);
}

/// Tests the given number of variates, drawn from an engine with a fixed seed.
Verdict Judge(const Draw& draw, const Reference& reference, int draws = UsualDraws());

/// Expects that all checks pass.
void ExpectAgreement(const Draw& draw, const Reference& reference, int draws = UsualDraws());

}  // namespace qorvex::testing
