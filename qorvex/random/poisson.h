#pragma once

/// @file
/// Poisson variates.
///
/// J. H. Ahrens and U. Dieter (1982), "Computer generation of Poisson deviates from modified normal
/// distributions", ACM Transactions on Mathematical Software 8, 163-179.

#include <array>
#include <variant>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// @{
/// A Poisson variate with mean mu.
///
/// - Means from 10 on: a normal variate is rounded down and corrected. The method's constants have
///   seven digits, so the probabilities have relative errors of up to 6E-8, and of 2E-6 at eight
///   standard deviations.
/// - Means below 10: inversion up to 35. Larger variates never occur. Their probability is 1.7E-10
///   just below a mean of 10, and 3.0E-19 at a mean of 5.
/// - EMathError rsInvalidValue unless mu is at least 0 and finite (NaN included).
/// - Draws: one uniform value for means below 10, otherwise 3.1 to 3.3 on average.
/// - Never returns if the source only ever yields NaN, for some means also 1 - 2^-64; for means
///   from 10 on also 0.
[[nodiscard]] QORVEX_EXPORT Extended Random_Poisson(const Extended& mu, UniformSource source);
[[nodiscard]] inline Extended Random_Poisson(const Extended& mu) {
  return Random_Poisson(mu, ClassicRandom);
}
/// @}

/// Random_Poisson for many variates with the same mean; see Fill.
class QORVEX_EXPORT PoissonSampler {
 public:
  /// Raises the error of Random_Poisson.
  explicit PoissonSampler(Extended mu);

  /// A variate.
  [[nodiscard]] Extended operator()(UniformSource source = ClassicRandom) const;

 private:
  // For means from 10 on: a normal variate rounded down. Where its probability exceeds the Poisson
  // probability it is accepted only in part; the rest comes from the difference of the two, drawn
  // under a double exponential hat.
  struct CorrectedNormal {
    explicit CorrectedNormal(Extended mu);
    Extended operator()(UniformSource source) const;

    Extended mu;
    Extended deviation;
    Extended accepted_from;  // whole
  };

  // For smaller means: inversion from 0 upwards.
  struct Inversion {
    explicit Inversion(Extended mu);
    Extended operator()(UniformSource source) const;

    std::array<Extended, 36> sums;  // the probabilities of at most 0, 1, ...
  };

  using Method = std::variant<CorrectedNormal, Inversion>;
  static Method MethodFor(Extended mu);

  Method method_;
};

}  // namespace qorvex::inline QorvexRandom
