#pragma once

// The values of decimal numbers, correctly rounded.

#include <array>
#include <concepts>
#include <cstdint>
#include <cstring>
#include <limits>
#include <optional>

#include "qorvex/base/detail/decimal_text.h"
#include "qorvex/base/element_types.h"

namespace qorvex::inline QorvexGlobals::detail {

// 10^27 is the largest power of ten that 64 bits of mantissa hold exactly.
inline constexpr auto kPowersOfTen = [] {
  std::array<Extended, 28> powers{};
  powers[0] = 1;
  for (std::size_t i = 1; i < powers.size(); ++i) powers[i] = powers[i - 1] * 10;
  return powers;
}();

/// The value, if a single operation yields it: both operands are exact, so that it is correctly
/// rounded (Clinger 1990, "How to read floating point numbers accurately").
inline std::optional<Extended> ValueInOneOperation(const DecimalText& number) {
  constexpr std::int64_t limit = kPowersOfTen.size() - 1;
  if (!number.HasSignificand() || number.exponent < -limit || number.exponent > limit)
    return std::nullopt;
  const auto value = static_cast<Extended>(number.significand);
  return number.exponent < 0 ? value / kPowersOfTen[static_cast<std::size_t>(-number.exponent)]
                             : value * kPowersOfTen[static_cast<std::size_t>(number.exponent)];
}

/// The value as a shorter type. It is rounded twice, which is the same as once unless the first
/// result is halfway between two numbers of the type.
template <std::floating_point T>
requires(!std::same_as<T, Extended>) inline std::optional<T> ShortValueInOneOperation(
    const DecimalText& number) {
  const std::optional<Extended> value = ValueInOneOperation(number);
  if (!value || *value > std::numeric_limits<T>::max()) return std::nullopt;
  std::uint64_t mantissa;
  std::memcpy(&mantissa, &*value, sizeof mantissa);
  constexpr std::uint64_t half = std::uint64_t{1} << (63 - std::numeric_limits<T>::digits);
  if ((mantissa & (2 * half - 1)) == half) return std::nullopt;
  return static_cast<T>(*value);
}

/// The value of a number of up to 38 significant digits, from its product with a power of ten that
/// is rounded to 128 bits. Nothing if there are more digits, if the product is too close to the
/// middle between two values, if the exponent is not from -54 to 54, or for 0.
[[nodiscard]] std::optional<Extended> ValueOfLongNumber(const DecimalText& number);

}  // namespace qorvex::inline QorvexGlobals::detail
