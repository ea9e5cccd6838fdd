#pragma once

#include <cmath>
#include <cstdint>

#include "qorvex/base/element_types.h"

namespace qorvex::inline QorvexGlobals::detail {

/// The magnitude of a finite number: significand * 2^exponent.
struct BinaryParts {
  std::uint64_t significand = 0;
  int exponent = 0;
};

inline BinaryParts PartsOf(Extended value) noexcept {
  BinaryParts parts;
  const Extended fraction = std::frexp(std::fabs(value), &parts.exponent);
  parts.significand = static_cast<std::uint64_t>(std::ldexp(fraction, 64));
  parts.exponent -= 64;
  return parts;
}

inline BinaryParts PartsOf(std::int64_t value) noexcept {
  const auto bits = static_cast<std::uint64_t>(value);
  return {value < 0 ? 0 - bits : bits, 0};
}

}  // namespace qorvex::inline QorvexGlobals::detail
