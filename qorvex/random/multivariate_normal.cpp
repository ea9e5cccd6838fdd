#include "qorvex/random/multivariate_normal.h"

#include <cstddef>
#include <utility>

#include "qorvex/base/errors.h"
#include "qorvex/random/detail/cholesky.h"
#include "qorvex/random/normal.h"

namespace qorvex::inline QorvexRandom {

using detail::Factorise;
using detail::Row;

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
