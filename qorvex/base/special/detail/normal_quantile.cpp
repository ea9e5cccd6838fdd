#include "qorvex/base/elementary/detail/first_stage.h"
#include "qorvex/base/elementary/detail/monotone_piece.h"
#include "qorvex/base/special/detail/normal_wide.h"

namespace qorvex::special {

using elementary::FractionOf;
using elementary::High;
using elementary::MonotonePiece;
using elementary::MultiplyHigh;
using elementary::NormalisedWide;
using elementary::UInt128;
using elementary::Wide;

namespace {

// - From 0: z / (4 q) in -q^2, for q^2 from 0 to 9/64, pieces of 1/64.
// - From kTailPieces: 1 - z / 2^s in L, from 2 to 2^14, eight pieces between powers of two.
constexpr std::size_t kTailPieces = 9;
alignas(64) constexpr MonotonePiece<84> kPieces[] = {
#include "qorvex/base/elementary/detail/tables/normal_quantile_pieces.inc"
};

// The quantile for the upper tail 1/2 - q, with q at scale 2^128, below 3/8.
Wide CentralQuantile(UInt128 q, bool negative) {
  // 64 q^2 has the number of the piece in front of the point.
  const UInt128 square = MultiplyHigh(q, q);
  const auto number = static_cast<std::size_t>(High(square) >> 58);
  return NormalisedWide(q, -1, negative) * NormalisedWide(kPieces[number].At(~(square << 6)), 1);
}

// The quantile for an upper tail of e^-L, 2 <= L < 2^14.
Wide TailQuantile(const Wide& log) {
  const auto binade = static_cast<std::size_t>(log.exponent);
  const std::size_t number = kTailPieces + 8 * (binade - 1) + (High(log.mantissa) >> 60 & 7);
  const UInt128 rest = kPieces[number].At(log.mantissa << 4);
  return NormalisedWide(UInt128{0} - rest, static_cast<std::int64_t>((binade + 3) / 2) - 1);
}

}  // namespace

// In the middle the quantile is q = 1/2 - p times a function of q^2, in the tails a function of L =
// -ln p. The polynomials have errors of 2^-83; those of L and q^2 are smaller.
Wide NormalUpperQuantile(const Wide& p) {
  // |1/2 - p|, exact for the numbers that are used as such.
  constexpr UInt128 half = UInt128{1} << 127;
  const UInt128 fixed = FractionOf(p);
  const UInt128 above = UInt128{0} - (fixed >> 127);  // all bits if p >= 1/2
  const UInt128 q = ((half - fixed) ^ above) - above;
  const bool negative = above != 0;
  if (q < half / 4 * 3) return CentralQuantile(q, negative);
  const Wide z = TailQuantile(-elementary::LogWide(negative ? Wide{half, 0} - p : p));
  return {z.mantissa, z.exponent, negative};
}

}  // namespace qorvex::special
