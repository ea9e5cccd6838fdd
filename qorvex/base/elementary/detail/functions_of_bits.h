#pragma once

// Functions from bits to bits, for chains of functions: their numbers stay in integer registers,
// while those of the public functions pass through memory and the x87 unit, which takes 5 ns.

#include "qorvex/base/elementary/detail/binary80.h"
#include "qorvex/base/export.h"

namespace qorvex::elementary {

/// The bits of Log and Pow.
[[nodiscard]] QORVEX_EXPORT Binary80 LogOfBits(Binary80 x) noexcept;
[[nodiscard]] QORVEX_EXPORT Binary80 PowOfBits(Binary80 x, Binary80 y) noexcept;

}  // namespace qorvex::elementary
