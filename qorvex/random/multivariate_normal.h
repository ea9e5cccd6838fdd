#pragma once

/// @file
/// Multivariate normal variates by the Cholesky factor of the covariance matrix.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// @{
/// A vector of n normal variates with the given means and covariances, where n is the length of
/// `mean`.
///
/// - `covariance` is the upper triangle of the matrix, packed by columns: the element in row r and
///   column c, counted from 1, is at position c(c-1)/2 + r. Elements beyond the first n(n+1)/2 are
///   ignored.
/// - `factor` receives the upper triangular matrix U with U^T U = covariance, packed by rows:
///   element (r, c) is at position (r-1)(2n-r)/2 + c.
/// - `variate` receives mean + U^T z. The n standard normal variates z are drawn in the order of
///   the components.
/// - `error` receives 0; or 1 if the matrix is not positive definite within rounding or contains
///   NaN. Then `factor` is complete only up to the failing row, nothing is drawn, and `variate`
///   keeps its value.
/// - EMathError: rsVectorEmpty if `mean` is empty; rsVectorTooSmall if `covariance` has fewer than
///   n(n+1)/2 elements. No output changes after an error, including errors of the source.
/// - Cost: O(n^3).
/// - Never returns if the source only ever yields 0, 1 - 2^-64 or NaN.
QORVEX_EXPORT void Random_MVNorm(VectorView<Extended> mean, VectorView<Extended> covariance,
                                 TQorFloatVector& factor, TQorFloatVector& variate,
                                 std::int32_t& error, UniformSource source);
inline void Random_MVNorm(VectorView<Extended> mean, VectorView<Extended> covariance,
                          TQorFloatVector& factor, TQorFloatVector& variate, std::int32_t& error) {
  Random_MVNorm(mean, covariance, factor, variate, error, ClassicRandom);
}
/// @}

}  // namespace qorvex::inline QorvexRandom
