#pragma once

/// @file
/// The runtime's uniform random numbers.

#include <cstdint>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"

namespace qorvex::inline QorvexGlobals {

/// The next uniform value in [0, 1): a 64-bit integer times 2^-64, exact in extended precision.
///
/// One generator serves the whole program: the 64-bit Mersenne twister MT19937-64 (Matsumoto and
/// Nishimura 1998, "Mersenne twister: a 623-dimensionally equidistributed uniform pseudo-random
/// number generator"; Nishimura 2000, "Tables of 64-bit Mersenne twisters"). A seed's stream does
/// not depend on the machine or the compiler. Calls from several threads need the caller's own
/// lock. Before any seed is set, the stream is that of SetRandSeed(5489).
QORVEX_EXPORT Extended Random() noexcept;

/// Starts the stream of the given seed.
QORVEX_EXPORT void SetRandSeed(std::uint64_t seed) noexcept;

/// Starts a stream from a seed that the operating system supplies.
QORVEX_EXPORT void Randomize();

}  // namespace qorvex::inline QorvexGlobals
