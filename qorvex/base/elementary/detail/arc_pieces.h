#pragma once

// atan(sqrt z) / sqrt z and asin(sqrt z) / sqrt z by pieces. As functions of the square, both are
// smooth at 0, so that x times their value keeps all bits for the smallest x, without a case.
//
// Error of both, relative: 2^-105 from the interpolation, and at most 1.5 units of the last place
// of the 64-bit coefficients a term, 2^-98.5 in all.

#include <cstddef>

#include "qorvex/base/elementary/detail/wide.h"

namespace qorvex::elementary {

inline constexpr std::uint64_t kArcTanPieces[128][17] = {
#include "qorvex/base/elementary/detail/tables/arctan.inc"
};
inline constexpr std::uint64_t kArcSinePieces[129][14] = {
#include "qorvex/base/elementary/detail/tables/arcsine.inc"
};

/// The polynomial of a row in u = u_128 2^-128 at scale 2^127: kWide coefficients of 128 bits, then
/// those of 64 bits at scale 2^kScale. All are positive.
template <std::size_t kWide, int kScale, std::size_t kWords>
[[gnu::always_inline]] inline UInt128 ValueOfPiece(const std::uint64_t (&row)[kWords],
                                                   UInt128 u_128) {
  const std::uint64_t u = High(u_128);
  std::uint64_t tail = row[kWords - 1];
#pragma GCC unroll 8
  for (std::size_t i = kWords - 2; i >= 2 * kWide; --i) tail = row[i] + MultiplyHigh(tail, u);
  UInt128 sum = ShiftedWord(MultiplyHigh(tail, u), 127 - kScale) +
                Join(row[2 * kWide - 2], row[2 * kWide - 1]);
#pragma GCC unroll 8
  for (std::size_t i = kWide - 1; i > 0; --i)
    sum = MultiplyHigh(sum, u_128) + Join(row[2 * i - 2], row[2 * i - 1]);
  return sum;
}

/// atan(sqrt z) / sqrt z at scale 2^127, for z < 1 at scale 2^128.
[[gnu::always_inline]] inline UInt128 ArcTanQuotient(UInt128 z) {
  return ValueOfPiece<5, 102>(kArcTanPieces[High(z) >> 57], ~(z << 7));
}

/// asin(sqrt z) / sqrt z at scale 2^127, for z <= 1/4 at scale 2^128.
[[gnu::always_inline]] inline UInt128 ArcSineQuotient(UInt128 z) {
  return ValueOfPiece<4, 103>(kArcSinePieces[High(z) >> 55], z << 9);
}

}  // namespace qorvex::elementary
