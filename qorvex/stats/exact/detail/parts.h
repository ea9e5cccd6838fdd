#pragma once

// Numbers taken apart into integers.

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "qorvex/base/element_types.h"
#include "qorvex/stats/exact/detail/words.h"

namespace qorvex::exact::detail {

// The weight of the lowest bit of an extended value with the biased exponent e is
// 2^(e - kExponentBias). The exponent 0 weighs like 1.
inline constexpr int kExponentBias = 16'383 + 63;

// Set in the exponent of an infinity or NaN.
inline constexpr std::uint32_t kSpecialBit = 0x8000;

// (-1)^sign * product of kFactors mantissas * 2^(exponent - kFactors * kExponentBias).
template <std::size_t kFactors>
struct Parts {
  Words<kFactors> mantissa;
  std::uint32_t exponent;  // the sum of the exponents
  std::uint32_t sign;      // 0 or 1
  std::uint32_t special;   // kSpecialBit if a factor is not finite, or 0
};

inline Parts<1> PartsOf(const Extended& value) noexcept {
  std::uint64_t mantissa = 0;
  std::uint16_t high = 0;
  std::memcpy(&mantissa, &value, sizeof mantissa);
  std::memcpy(&high, reinterpret_cast<const char*>(&value) + sizeof mantissa, sizeof high);
  const std::uint32_t exponent = high & 0x7FFFU;
  return {{mantissa},
          exponent + (exponent == 0 ? 1 : 0),
          std::uint32_t{high} >> 15,
          (exponent + 1) & kSpecialBit};
}

inline Parts<1> PartsOf(double value) noexcept {
  // The weight of the lowest bit of a double with the biased exponent e is 2^(e - 1075).
  constexpr std::uint32_t kShift = kExponentBias - 1'075;
  constexpr Word kHiddenBit = Word{1} << 52;
  const auto bits = std::bit_cast<Word>(value);
  const auto exponent = static_cast<std::uint32_t>(bits >> 52) & 0x7FFU;
  const bool normal = exponent != 0;
  return {{(bits & (kHiddenBit - 1)) | (normal ? kHiddenBit : 0)},
          exponent + (normal ? 0 : 1) + kShift,
          static_cast<std::uint32_t>(bits >> 63),
          ((exponent + 1) << 4) & kSpecialBit};
}

inline Parts<1> PartsOf(float value) noexcept {
  return PartsOf(double{value});
}

template <IntegerElement T>
inline Parts<1> PartsOf(T value) noexcept {
  const auto bits = static_cast<Word>(value);
  return {{value < 0 ? 0 - bits : bits}, kExponentBias, value < 0, 0};
}

template <std::size_t kFactors>
inline Parts<kFactors + 1> Multiply(const Parts<kFactors>& x, const Parts<1>& y) noexcept {
  return {Multiply(x.mantissa, y.mantissa[0]), x.exponent + y.exponent, x.sign ^ y.sign,
          x.special | y.special};
}

}  // namespace qorvex::exact::detail
