#pragma once

/// @file
/// Uniform random numbers.

#include <cstdint>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"

namespace qorvex::inline QorvexGlobals {

/// The uniform value in [0, 1) that 64 random bits stand for: the integer times 2^-64, exactly.
[[nodiscard]] constexpr Extended UniformValue(std::uint64_t bits) noexcept {
  // Converting a signed integer and adding 0.5 avoids a branch that half of all values would take.
  const auto centred = static_cast<std::int64_t>(bits ^ std::uint64_t{1} << 63);
  return static_cast<Extended>(centred) * 0x1p-64L + 0.5L;
}

/// The next uniform value in [0, 1): a 64-bit integer times 2^-64, exact in extended precision.
///
/// - The program has one generator: the 64-bit Mersenne twister MT19937-64 (Matsumoto and Nishimura
///   1998, "Mersenne twister: a 623-dimensionally equidistributed uniform pseudo-random number
///   generator"; Nishimura 2000, "Tables of 64-bit Mersenne twisters").
/// - A seed gives the same stream on every machine and with every compiler. The initial seed is
///   5489.
/// - Not thread-safe: calls on several threads need a lock.
QORVEX_EXPORT Extended Random() noexcept;

/// Restarts the stream with the given seed.
QORVEX_EXPORT void SetRandSeed(std::uint64_t seed) noexcept;

/// Restarts the stream with a seed from the operating system.
QORVEX_EXPORT void Randomize();

}  // namespace qorvex::inline QorvexGlobals
