#pragma once

// Binomial coefficients, for combinatorics and the discrete distributions.

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics::detail {

/// The largest n for which n! is in the extended range.
inline constexpr std::uint32_t kLargestFactorial = 1754;

/// C(n, k) for k <= n, with C(0, 0) = 1. EMathError rsBinomOverflowed if it exceeds the extended
/// range. At most 16384 steps.
[[nodiscard]] Extended BinomialCoefficient(std::uint32_t n, std::uint32_t k);

/// The coefficients C(n, k) for consecutive k, with the bits of BinomialCoefficient. Several are
/// computed side by side, because each one waits for its own divisions. C(n, k) and C(n, n - k)
/// share an element, and there are at most 16384 elements.
class BinomialCoefficients {
 public:
  /// For first <= k < end, where end <= n + 1. EMathError rsBinomOverflowed if one of them exceeds
  /// the extended range, before the others are computed.
  BinomialCoefficients(std::uint32_t n, std::uint64_t first, std::uint64_t end);

  [[nodiscard]] Extended operator[](std::uint64_t k) const noexcept {
    return coefficients_[Nearer(k) - least_];
  }

 private:
  // The distance to the nearer end of the row.
  [[nodiscard]] std::uint64_t Nearer(std::uint64_t k) const noexcept { return std::min(k, n_ - k); }

  std::uint64_t n_;
  std::uint64_t least_ = 0;
  TQorFloatVector coefficients_;
};

}  // namespace qorvex::inline QorvexStatistics::detail
