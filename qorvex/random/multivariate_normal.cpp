#include "qorvex/random/multivariate_normal.h"

#include <cmath>
#include <cstddef>
#include <utility>

#include "qorvex/base/errors.h"
#include "qorvex/random/normal.h"

namespace qorvex::inline QorvexRandom {

namespace {

// A pointer p such that p[j] is the element (i, j), for j >= i, of a triangle packed by rows.
Extended* Row(TQorFloatVector& triangle, std::size_t n, std::size_t i) {
  return triangle.data() + i * (2 * n - i - 1) / 2;
}

// Factorises a matrix packed by columns into a zeroed triangle packed by rows. Returns false at the
// first pivot that is not positive.
bool Factorise(VectorView<Extended> covariance, std::size_t n, TQorFloatVector& factor) {
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

}  // namespace

void Random_MVNorm(VectorView<Extended> mean, VectorView<Extended> covariance,
                   TQorFloatVector& factor, TQorFloatVector& variate, std::int32_t& error,
                   UniformSource source) {
  const std::size_t n = mean.size();
  if (n == 0) RaiseMathError(rsVectorEmpty);
  const std::size_t triangle_size = n * (n + 1) / 2;
  if (covariance.size() < triangle_size) RaiseMathError(rsVectorTooSmall);
  auto triangle = TQorFloatVector::WithLength(triangle_size);
  if (!Factorise(covariance, n, triangle)) {
    factor = std::move(triangle);
    error = 1;
    return;
  }
  auto sums = TQorFloatVector::ForOverwrite(n);
  for (std::size_t i = 0; i < n; ++i) sums[i] = mean[i];
  for (std::size_t i = 0; i < n; ++i) {
    const Extended z = Random_Normal(source);
    const Extended* const row = Row(triangle, n, i);
    for (std::size_t j = i; j < n; ++j) sums[j] += row[j] * z;
  }
  factor = std::move(triangle);
  variate = std::move(sums);
  error = 0;
}

}  // namespace qorvex::inline QorvexRandom
