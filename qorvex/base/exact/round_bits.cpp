#include "qorvex/base/exact/detail/round_bits.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace qorvex::exact::detail {

namespace {

constexpr std::int64_t kDigits = std::numeric_limits<Extended>::digits;
constexpr std::int64_t kLeastExponent = -16445;  // of the smallest subnormal number
constexpr std::int64_t kBeyond = 16384;

}  // namespace

Extended RoundBits(const BigInteger& mantissa, std::int64_t exponent, bool inexact) {
  if (mantissa.Sign() == 0) return 0;
  const Extended sign = mantissa.Sign() < 0 ? -1 : 1;
  const auto length = static_cast<std::int64_t>(mantissa.BitLength());
  if (exponent + length > kBeyond) return sign * std::numeric_limits<Extended>::infinity();
  const std::int64_t dropped = std::max(length - kDigits, kLeastExponent - exponent);
  if (dropped <= 0) {
    const auto magnitude = static_cast<Extended>(mantissa.Magnitude()[0]);
    return sign * std::scalbln(magnitude, static_cast<long>(exponent));
  }
  if (dropped > length) return sign * 0.0L;  // below half of the smallest number
  const auto half = static_cast<std::size_t>(dropped - 1);
  const BigInteger top = mantissa >> half;  // and one bit more than is kept
  const bool round_bit = top.Magnitude()[0] % 2 != 0;
  const bool below = inexact || mantissa.TrailingZeros() < half;
  const BigInteger kept = top >> 1;
  const std::uint64_t bits = kept.Sign() == 0 ? 0 : kept.Magnitude()[0];
  auto magnitude = static_cast<Extended>(bits);
  // 2^64, the only carry into a 65th bit, is exact too.
  if (round_bit && (below || bits % 2 != 0)) magnitude += 1;
  return sign * std::scalbln(magnitude, static_cast<long>(exponent + dropped));
}

}  // namespace qorvex::exact::detail
