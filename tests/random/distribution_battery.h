#pragma once

/// @file
/// Statistical tests of variates against the distributions that they should have.

#include <functional>
#include <utility>
#include <vector>

#include "qorvex/random/uniform_source.h"
#include "qorvex/stats/distributions/figures.h"
#include "support/environment.h"
#include "support/test.h"

namespace qorvex::testing {

/// NaN where they do not exist. The mean is tested if it is given, which takes a finite variance;
/// the variance takes a finite fourth moment.
struct Moments {
  Extended mean = kNaN;
  Extended variance = kNaN;
};

struct Support {
  Extended least;
  Extended largest;
  bool whole = false;
};

/// A distribution to hold variates against.
struct Reference {
  /// The probability of at most x.
  std::function<Extended(Extended)> lower;
  /// Where about a probability is reached. It chooses the cells and need not be exact.
  std::function<Extended(Extended)> quantile;
  Moments moments;
  Support support;
};

/// A distribution of the library; without its variance where the fourth moment is infinite.
template <Distribution D>
Reference ReferenceOf(const D& d, bool has_fourth_moment = true) {
  const auto [least, greatest] = d.Support();
  const bool has_variance = std::isfinite(d.Variance());
  return {[d](Extended x) { return Lower(d, static_cast<typename D::Point>(x)); },
          [d](Extended p) { return static_cast<Extended>(Quantile(d, p)); },
          {has_variance ? d.Mean() : kNaN, has_fourth_moment ? d.Variance() : kNaN},
          {static_cast<Extended>(least), static_cast<Extended>(greatest), DiscreteDistribution<D>}};
}

/// The distribution with the probabilities of at most points[i], given up to a common factor.
Reference Tabulated(std::vector<Extended> points, std::vector<Extended> cumulative, Moments moments,
                    Support support);

/// The distribution of map(t), map being increasing, for t in [lo, hi] with a density proportional
/// to exp(log_density(t)): integrated over 8192 intervals by a Gauss rule. The moments take the
/// middle of an interval for its mean, which is off by a millionth.
Reference Integrated(const std::function<Extended(Extended)>& log_density,
                     const std::function<Extended(Extended)>& map, Extended lo, Extended hi,
                     Support support);

using Draw = std::function<Extended(UniformSource)>;

/// What the battery found: whether all variates are in the support, and the p-values of its four
/// checks, 1 for those that the moments do not permit.
struct Verdict {
  bool in_support = true;
  Extended chi_square = 1;
  Extended kolmogorov_smirnov = 1;
  Extended mean = 1;
  Extended variance = 1;

  /// A p-value below this one is a failure.
  static constexpr Extended limit = 1e-6L;
  [[nodiscard]] bool IsGood() const;
};

/// 100,000 in the fast tests, which see an error of 1 %; 1,000,000 in the slow ones.
inline int UsualDraws() {
  return FromEnvironment("QORVEX_BATTERY_DRAWS", 100'000);
}

/// Judges so many variates, drawn from an engine with a fixed seed.
Verdict Judge(const Draw& draw, const Reference& reference, int draws = UsualDraws());

/// Expects a good verdict.
void ExpectAgreement(const Draw& draw, const Reference& reference, int draws = UsualDraws());

}  // namespace qorvex::testing
