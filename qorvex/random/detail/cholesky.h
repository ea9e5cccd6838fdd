#pragma once

// Cholesky factors of covariance matrices.

#include <cmath>
#include <cstddef>

#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexRandom::detail {

/// A pointer p such that p[j] is the element (i, j), for j >= i, of a triangle packed by rows.
inline Extended* Row(TQorFloatVector& triangle, std::size_t n, std::size_t i) {
  return triangle.data() + i * (2 * n - i - 1) / 2;
}

/// Factorises a matrix packed by columns into a zeroed triangle packed by rows. Returns false at
/// the first pivot that is not positive.
inline bool Factorise(VectorView<Extended> covariance, std::size_t n, TQorFloatVector& factor) {
  for (std::size_t i = 0; i < n; ++i) {
    Extended* const row = Row(factor, n, i);
    // The row first holds the sums of products. They are independent of one another, so the
    // processor computes several at a time.
    for (std::size_t above = 0; above < i; ++above) {
      const Extended* const other = Row(factor, n, above);
      for (std::size_t j = i; j < n; ++j) row[j] += other[i] * other[j];
    }
    const Extended pivot = covariance[i * (i + 1) / 2 + i] - row[i];
    if (!(pivot > 0)) return false;
    row[i] = std::sqrt(pivot);
    const Extended reciprocal = 1 / row[i];
    for (std::size_t j = i + 1; j < n; ++j)
      row[j] = (covariance[j * (j + 1) / 2 + i] - row[j]) * reciprocal;
  }
  return true;
}

}  // namespace qorvex::inline QorvexRandom::detail
