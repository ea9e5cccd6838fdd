#pragma once

#include <cmath>
#include <cstdint>

#include "qorvex/base/element_types.h"

namespace qorvex::testing {

/// C(n, r), transcribed: products and quotients in turn, one quotient a step at most.
inline Extended PlainCoefficient(std::uint32_t n, std::uint32_t r) {
  if (r == 0 || r >= n) return 1;
  const std::uint32_t k = r <= n / 2 ? r : n - r;
  Extended value = 1;
  std::uint32_t divisor = 2;
  for (std::uint64_t i = std::uint64_t{n} - k + 1; i <= n; ++i) {
    value *= static_cast<Extended>(i);
    if (divisor <= k) value /= divisor++;
  }
  return std::trunc(value + 0.5L);
}

}  // namespace qorvex::testing
