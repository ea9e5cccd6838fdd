#pragma once

/// @file
/// Multivariate normal variates of any covariance matrix.

#include <cstddef>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// A multivariate normal distribution to draw from. It accepts what Random_MVNorm refuses: a
/// covariance matrix that is singular, such as that of variables of which one is the sum of others,
/// or that rounding has made slightly indefinite. The matrix is factorised once, and not for every
/// variate.
///
/// - If the matrix is positive definite beyond rounding, the variates have the bits of
///   Random_MVNorm.
/// - Otherwise the matrix is factorised with pivots: the variates depend on Rank() normal ones. Its
///   factor differs from it by some units in the last place of the standard deviations.
///   Source: Higham (1990), "Analysis of the Cholesky decomposition of a semi-definite matrix".
/// - Cost: O(n^3) to factorise, O(n^2) for a variate.
class QORVEX_EXPORT MultivariateNormal {
 public:
  /// `covariance` is the upper triangle packed by columns, as for Random_MVNorm and from
  /// PackedUpperTriangle.
  ///
  /// EMathError, in this order: rsVectorEmpty if `mean` is empty; rsVectorTooSmall if `covariance`
  /// has fewer than n(n+1)/2 elements; rsCovariance if an element is not finite, or if no
  /// distribution has this matrix, not even after changes of 4 n units in the last place of the
  /// standard deviations.
  MultivariateNormal(VectorView<Extended> mean, VectorView<Extended> covariance);

  /// The number of components.
  [[nodiscard]] std::size_t Size() const noexcept { return mean_.size(); }
  /// The number of normal variates that a variate is made of: the rank of the covariance matrix
  /// within rounding.
  [[nodiscard]] std::size_t Rank() const noexcept { return rows_.size() / mean_.size(); }

  /// A variate. Draws Rank() normal variates, with the errors of Random_Normal.
  [[nodiscard]] TQorFloatVector Draw(UniformSource source = ClassicRandom) const;

 private:
  [[nodiscard]] bool FactoriseDefinite(VectorView<Extended> covariance);

  TQorFloatVector mean_;
  TQorFloatVector rows_;  // of the factor, each as long as the mean
};

}  // namespace qorvex::inline QorvexRandom
