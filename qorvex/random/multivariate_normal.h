#pragma once

/// @file
/// Multivariate normal variates by the Cholesky factor of the covariance matrix.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom {

/// @{
/// A vector of n normal variates with the given means and covariances, n being the length of mean.
///
/// `covariance` is the upper triangle of the matrix, packed by columns: the element of row r and
/// column c, counted from 1, is the c(c-1)/2 + r-th; elements beyond the first n(n+1)/2 are not
/// read. `factor` receives the upper triangular U with U^T U = covariance, packed by rows: element
/// (r, c) is the (r-1)(2n-r)/2 + c-th. `variate` receives mean + U^T z for n standard normal
/// variates z, which are drawn in the order of the components. `error` becomes 0; or 1 when the
/// matrix is not positive definite within rounding or holds NaN, and then `factor` is finished only
/// up to the failing row, nothing is drawn and `variate` stays as it was.
///
/// EMathError: rsVectorEmpty for an empty mean; rsVectorTooSmall for a covariance with fewer than
/// n(n+1)/2 elements. After an error, the source's own included, nothing has changed. O(n^3). Stuck
/// on 0, 1 - 2^-64 and NaN.
QORVEX_EXPORT void Random_MVNorm(const TQorFloatVector& mean, const TQorFloatVector& covariance,
                                 TQorFloatVector& factor, TQorFloatVector& variate,
                                 std::int32_t& error, UniformSource source);
inline void Random_MVNorm(const TQorFloatVector& mean, const TQorFloatVector& covariance,
                          TQorFloatVector& factor, TQorFloatVector& variate, std::int32_t& error) {
  Random_MVNorm(mean, covariance, factor, variate, error, ClassicRandom);
}
/// @}

}  // namespace qorvex::inline QorvexRandom
