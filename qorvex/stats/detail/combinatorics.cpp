#include "qorvex/stats/detail/combinatorics.h"

#include <array>
#include <cmath>

#include "qorvex/base/errors.h"

namespace qorvex::inline QorvexStatistics::detail {

namespace {

// C(n, k) >= 2^k for k <= n/2, so from this k on it exceeds the extended range.
constexpr std::uint64_t kOverflowFrom = 16384;

// C(n, k), C(n, k + 1), ... for 1 <= k, up to n/2. Products and quotients alternate, which keeps
// the intermediate results small.
template <std::size_t kCount>
void ComputeSideBySide(std::uint64_t n, std::uint64_t k, Extended* coefficients) {
  std::array<Extended, kCount> values;
  values.fill(1);
  const auto step = [&](std::size_t i, std::uint64_t divisor) {
    const auto factor = static_cast<std::int64_t>(n - k - i + divisor - 1);
    values[i] = values[i] * static_cast<Extended>(factor) /
                static_cast<Extended>(static_cast<std::int64_t>(divisor));
  };
  for (std::uint64_t divisor = 2; divisor <= k; ++divisor) {
    for (std::size_t i = 0; i < kCount; ++i) step(i, divisor);
  }
  for (std::size_t i = 0; i < kCount; ++i) {
    for (std::uint64_t divisor = k + 1; divisor <= k + i; ++divisor) step(i, divisor);
    coefficients[i] = std::trunc(values[i] * static_cast<Extended>(n) + 0.5L);
  }
}

// For k <= n/2.
Extended ComputeOne(std::uint64_t n, std::uint64_t k) {
  if (k == 0) return 1;
  Extended coefficient = 0;
  if (k < kOverflowFrom) ComputeSideBySide<1>(n, k, &coefficient);
  if (k >= kOverflowFrom || std::isinf(coefficient)) RaiseMathError(rsBinomOverflowed);
  return coefficient;
}

}  // namespace

Extended BinomialCoefficient(std::uint32_t n, std::uint32_t k) {
  return ComputeOne(n, std::min(k, n - k));
}

BinomialCoefficients::BinomialCoefficients(std::uint32_t n, std::uint64_t first, std::uint64_t end)
    : n_(n) {
  if (first == end) return;
  const std::uint64_t last = end - 1;
  const std::uint64_t middle = n_ / 2;
  const bool has_middle = first <= middle && middle <= last;
  least_ = std::min(Nearer(first), Nearer(last));
  const std::uint64_t greatest = has_middle ? middle : std::max(Nearer(first), Nearer(last));

  // The largest coefficient first: if it is in range, all are.
  const Extended largest = ComputeOne(n_, greatest);
  coefficients_ = TQorFloatVector::ForOverwrite(greatest - least_ + 1);
  Extended* const coefficients = coefficients_.data();
  coefficients[greatest - least_] = largest;

  std::uint64_t k = least_;
  if (k == 0) {
    coefficients[0] = 1;
    ++k;
  }
  constexpr std::size_t side_by_side = 4;
  for (; k + side_by_side <= greatest; k += side_by_side) {
    ComputeSideBySide<side_by_side>(n_, k, coefficients + (k - least_));
  }
  for (; k < greatest; ++k) ComputeSideBySide<1>(n_, k, coefficients + (k - least_));
}

}  // namespace qorvex::inline QorvexStatistics::detail
