#pragma once

// What counting and the discrete distributions share.

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics::detail {

/// The largest number whose factorial is in the extended range.
inline constexpr std::uint32_t kLargestFactorial = 1754;

/// C(n, k) for k <= n, where C(0, 0) = 1. Raises EMathError with rsBinomOverflowed beyond the
/// extended range, after at most 16384 steps.
[[nodiscard]] Extended BinomialCoefficient(std::uint32_t n, std::uint32_t k);

/// The coefficients C(n, k) for a run of k, with the bits of BinomialCoefficient. Several are
/// computed side by side, since each waits for its own divisions, and C(n, k) is the same as
/// C(n, n - k). At most 16384 elements.
class BinomialCoefficients {
 public:
  /// For first <= k < end, where end <= n + 1. Raises EMathError with rsBinomOverflowed when one of
  /// them is beyond the extended range, before computing the others.
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
