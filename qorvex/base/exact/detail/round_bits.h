#pragma once

/// @file
/// The one place where exact values are rounded.

#include <cstdint>

#include "qorvex/base/element_types.h"
#include "qorvex/base/exact/big_integer.h"

namespace qorvex::exact::detail {

/// The extended value nearest to mantissa * 2^exponent, ties to even.
///
/// - `inexact`: the magnitude is greater than that by less than 1 in the last bit of the mantissa,
///   which then has at least 66 bits.
/// - Subnormal values are rounded once, at their own last bit. Infinite beyond the format.
[[nodiscard]] Extended RoundBits(const BigInteger& mantissa, std::int64_t exponent, bool inexact);

}  // namespace qorvex::exact::detail
