#pragma once

// atan(sqrt z) / sqrt z and asin(sqrt z) / sqrt z by pieces. As functions of the square, both are
// smooth at 0, so that x times their value keeps all bits for the smallest x, without a case.
//
// Error: 2^-105 from the interpolation. A step with coefficients of 64 bits loses at most 1.5 units
// of their scale, and every later step halves that: 2.5 units of 2^-97 become 2^-99.7 for atan, and
// of 2^-99 become 2^-100.7 for asin. In all, the relative error is below 2^-99.3 for atan, whose
// value is at least pi/4, and below 2^-100.6 for asin.

#include <cstddef>

#include "qorvex/base/elementary/detail/wide.h"

namespace qorvex::elementary {

inline constexpr std::uint64_t kArcTanPieces[128][17] = {
#include "qorvex/base/elementary/detail/tables/arctan.inc"
};
inline constexpr std::uint64_t kArcSinePieces[129][14] = {
#include "qorvex/base/elementary/detail/tables/arcsine.inc"
};

/// The fraction of 2^n z as half of it, for z at scale 2^128.
template <int n>
constexpr UInt128 HalfFraction(UInt128 z) {
  const UInt128 shifted = ShiftedLeft(z, n - 1);
  return Join(High(shifted) & (kTopBit - 1), Low(shifted));
}

/// The polynomial of a row in u <= 1/2, which is at scale 2^128, at scale 2^127: kWide coefficients
/// of 128 bits, then those of 64 bits at scale 2^kScale. All are positive.
template <std::size_t kWide, int kScale, std::size_t kWords>
[[gnu::always_inline]] inline UInt128 ValueOfPiece(const std::uint64_t (&row)[kWords], UInt128 u) {
  std::uint64_t tail = row[kWords - 1];
#pragma GCC unroll 8
  for (std::size_t i = kWords - 2; i >= 2 * kWide; --i) tail = row[i] + MultiplyHigh(tail, High(u));
  UInt128 sum = ShiftedLeft(MultiplyHigh(tail, High(u)), 127 - kScale) +
                Join(row[2 * kWide - 2], row[2 * kWide - 1]);
#pragma GCC unroll 8
  for (std::size_t i = kWide - 1; i > 0; --i)
    sum = MultiplyHighOfSmall(sum, u) + Join(row[2 * i - 2], row[2 * i - 1]);
  return sum;
}

/// atan(sqrt z) / sqrt z at scale 2^127, for z < 1 at scale 2^128.
[[gnu::always_inline]] inline UInt128 ArcTanQuotient(UInt128 z) {
  return ValueOfPiece<5, 97>(kArcTanPieces[High(z) >> 57], HalfFraction<7>(~z));
}

/// asin(sqrt z) / sqrt z at scale 2^127, for z <= 1/4 at scale 2^128.
[[gnu::always_inline]] inline UInt128 ArcSineQuotient(UInt128 z) {
  return ValueOfPiece<4, 99>(kArcSinePieces[High(z) >> 55], HalfFraction<9>(z));
}

}  // namespace qorvex::elementary
