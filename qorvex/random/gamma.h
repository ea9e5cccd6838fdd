#pragma once

/// @file
/// Gamma variates by rejection.
///
/// Shapes above 1: George Marsaglia and Wai Wan Tsang (2000), "A simple method for generating gamma
/// variables", ACM Transactions on Mathematical Software 26, 363-372. A normal variate is cubed,
/// and one more uniform value decides whether it is accepted; at most 5 % are rejected.
///
/// Shapes below 1: J. H. Ahrens and U. Dieter (1974), "Computer methods for sampling from gamma,
/// beta, Poisson and binomial distributions", Computing 12, 223-246.
///
/// Shape 1: Random_Exponential.

#include <variant>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// @{
/// A gamma variate with scale 1. The shape is both its mean and its variance.
///
/// - An infinite shape gives infinity.
/// - For shapes below 1, variates below about 5E-324 become 0. With a shape of 0.001 that is every
///   second variate, and with much smaller shapes nearly every one.
/// - EMathError: rsInvalidShape unless shape > 0 (NaN included); then rsShapeTooSmall if shape <
///   5E-324.
/// - Draws: 3.7 to 3.9 uniform values on average for shapes above 1, 1 to 2.6 for shapes below 1.
/// - Never returns if the source only ever yields 0 or NaN (shapes from 1 on), or 1 - 2^-64 (all
///   shapes but 1).
[[nodiscard]] QORVEX_EXPORT Extended Random_Gamma(Extended shape, UniformSource source);
[[nodiscard]] inline Extended Random_Gamma(Extended shape) {
  return Random_Gamma(shape, ClassicRandom);
}
/// @}

/// Random_Gamma for many variates of one shape; see Fill.
class QORVEX_EXPORT GammaSampler {
 public:
  /// Raises the errors of Random_Gamma.
  explicit GammaSampler(Extended shape);

  /// A variate.
  [[nodiscard]] Extended operator()(UniformSource source = ClassicRandom) const;

 private:
  // For shapes above 1: Marsaglia and Tsang (2000).
  struct CubedNormal {
    explicit CubedNormal(Extended shape);
    Extended operator()(UniformSource source) const;

    Extended d;
    Extended c;
  };

  // For shapes below 1: Ahrens and Dieter (1974). A power near 0 and an exponential tail cover the
  // density.
  struct PowerAndTail {
    explicit PowerAndTail(Extended shape);
    Extended operator()(UniformSource source) const;

    Extended shape;
    Extended a;
    Extended reciprocal_shape;
    Extended power_share;
    // Only draws up to this bound can give a variate that becomes 0, so the power that decides it
    // is rarely computed.
    Extended zero_bound;
    Extended d;
  };

  struct Exponential {
    Extended operator()(UniformSource source) const;
  };

  using Method = std::variant<CubedNormal, PowerAndTail, Exponential>;
  static Method MethodFor(Extended shape);

  Method method_;
};

}  // namespace qorvex::inline QorvexRandom
