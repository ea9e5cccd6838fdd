#pragma once

/// @file
/// Binomial variates by acceptance and rejection.
///
/// Voratas Kachitvichyanukul and Bruce W. Schmeiser (1988), "Binomial random variate generation",
/// Communications of the ACM 31, 216-222: a triangle, two parallelograms and two exponential tails
/// cover the probabilities. The last two of the four Stirling corrections in the acceptance test
/// are subtracted here; the article adds them by mistake.

#include <cstdint>
#include <variant>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// @{
/// The number of successes in n trials, each with probability p.
///
/// - Certain outcomes are exact: 0 for p = 0 or n = 0, and n for p = 1.
/// - EMathError rsInvalidValue unless n >= 0 and 0 <= p <= 1 (NaN included).
/// - Method: inversion from 0 upwards if n min(p, 1-p) < 30, otherwise rejection.
/// - Draws: one uniform value for the inversion. Rejection takes two an attempt, and 1.1 to 1.8
///   attempts on average.
/// - Cost: does not grow with n.
/// - Never returns if the source only ever yields NaN; for some parameters also if it only ever
///   yields 1/2 or 1 - 2^-64.
[[nodiscard]] QORVEX_EXPORT Extended Random_Binomial2(std::int64_t n, Extended p,
                                                      UniformSource source);
[[nodiscard]] inline Extended Random_Binomial2(std::int64_t n, Extended p) {
  return Random_Binomial2(n, p, ClassicRandom);
}
/// @}

/// Random_Binomial2 for many variates with the same parameters; see Fill.
class QORVEX_EXPORT BinomialSampler {
 public:
  /// Raises the error of Random_Binomial2.
  BinomialSampler(std::int64_t n, Extended p);

  /// A variate.
  [[nodiscard]] Extended operator()(UniformSource source = ClassicRandom) const;

 private:
  // Inversion from 0 upwards, for n p < 30.
  struct Inversion {
    Inversion(Extended n, Extended p);
    Extended operator()(UniformSource source) const;

    Extended last;
    Extended at_zero;
    Extended odds;
    Extended a;
  };

  // The regions that cover the probabilities, for p <= 1/2 and n p >= 30.
  struct Regions {
    Regions(Extended n, Extended p);
    Extended operator()(UniformSource source) const;
    bool IsAccepted(Extended v, Extended y) const;

    Extended n;
    Extended p;
    Extended q;
    Extended mode;
    Extended variance;
    // The triangle: its half width, middle and ends.
    Extended triangle;
    Extended middle;
    Extended left;
    Extended right;
    Extended slope;
    Extended left_rate;
    Extended right_rate;
    // The cumulative area at the end of each region. The area of the triangle is its half width.
    Extended parallelograms;
    Extended left_tail;
    Extended right_tail;
  };

  using Method = std::variant<Inversion, Regions>;
  static Method MethodFor(Extended n, Extended p);

  Extended trials_;
  bool counts_failures_;
  Method method_;
};

}  // namespace qorvex::inline QorvexRandom
