#include "qorvex/stats/combinatorics.h"

#include <cmath>

#include "qorvex/base/errors.h"
#include "qorvex/stats/detail/combinatorics.h"

namespace qorvex::inline QorvexStatistics {

Extended Factorial(std::uint32_t n) {
  if (n > detail::kLargestFactorial) RaiseMathError(rsFactOverflow);
  Extended product = 1;
  for (std::uint32_t factor = 2; factor <= n; ++factor) product *= static_cast<Extended>(factor);
  return product;
}

Extended Permutation(std::uint32_t n, std::uint32_t r) {
  if (n < r) RaiseMathError(rsPermInvalid);
  if (n == 0) return 0;
  // A product of r factors is at least r!.
  if (r > detail::kLargestFactorial) RaiseMathError(rsPermOverflowed);
  Extended product = 1;
  for (std::uint32_t i = 0; i < r; ++i) product *= static_cast<Extended>(n - i);
  if (std::isinf(product)) RaiseMathError(rsPermOverflowed);
  return std::trunc(product + 0.5L);
}

Extended BinomialCoeff(std::uint32_t n, std::uint32_t r) {
  if (n < r) RaiseMathError(rsBinomInvalid);
  if (n == 0) return 0;
  return detail::BinomialCoefficient(n, r);
}

}  // namespace qorvex::inline QorvexStatistics
