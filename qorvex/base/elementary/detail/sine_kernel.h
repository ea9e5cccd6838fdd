#pragma once

// The sine and the cosine of an angle r in [0, pi/4].
//
// With a = i/512 nearest to r, h = |r - a| <= 2^-10 and s the sign of r - a:
//
//     sin r = sin a - sin a (1 - cos h) + s cos a sin h
//     cos r = cos a - cos a (1 - cos h) - s sin a sin h
//
// where 1 - cos h = h^2/2 - h^4 (1/24 - h^2/720 + h^4/40320) and
// sin h = h (1 - h^2/6 + h^4 (1/120 - h^2/5040 + h^4/362880)). The terms from h^4 on have 64 bits.
//
// Error: 2^-103.6 from the words of h^4 in 1 - cos h, and 2^-105 in the bracket of sin h, relative
// to the result; r is cut off at 2^-126, which is 2^-116 of a sine above 2^-10. A smaller sine is r
// times the bracket, without a table. In all, the relative error is below 2^-102.

#include "qorvex/base/elementary/detail/wide.h"

namespace qorvex::elementary {

/// sin and cos of i/512, two words each, at scale 2^127.
inline constexpr std::uint64_t kSineTable[403][4] = {
#include "qorvex/base/elementary/detail/tables/sine.inc"
};

/// 1/n at a scale of 2^scale.
constexpr std::uint64_t Inverse(std::uint64_t n, int scale) {
  return Low(((UInt128{1} << scale) + n / 2) / n);
}

/// 1 - cos h and 1 - sin h / h at scale 2^147.
struct SineSeries {
  UInt128 cosine_loss;
  UInt128 sine_loss;
};

/// For h = h_137 2^-137 <= 2^-10.
inline SineSeries SeriesOf(UInt128 h_137) {
  const UInt128 half_square = MultiplyHigh(h_137, h_137);  // h^2/2 at scale 2^147
  const std::uint64_t square = High(half_square);          // h^2 at scale 2^82
  const std::uint64_t fourth = MultiplyHigh(square, square);
  const std::uint64_t cosine_tail = Inverse(24, 68) - MultiplyHigh(square, Inverse(720, 50)) +
                                    MultiplyHigh(fourth, Inverse(40320, 32));
  const std::uint64_t sine_tail = Inverse(120, 70) - MultiplyHigh(square, Inverse(5040, 52)) +
                                  MultiplyHigh(fourth, Inverse(362880, 34));
  constexpr std::uint64_t third = Inverse(3, 64);
  return {half_square - (Multiply(fourth, cosine_tail) >> 21),
          MultiplyHigh(half_square, Join(third, third)) - (Multiply(fourth, sine_tail) >> 23)};
}

/// The angle and its neighbour in the table.
struct SineStep {
  std::size_t row;
  bool below;  // the angle lies below that of the row
  UInt128 h_137;
};

/// For r = r_127 2^-127 <= pi/4.
inline SineStep StepOf(UInt128 r_127) {
  constexpr UInt128 half = UInt128{1} << 117;
  const UInt128 shifted = r_127 + half;
  const UInt128 offset = shifted & (2 * half - 1);  // r - a + 2^-10
  const bool below = offset < half;
  return {static_cast<std::size_t>(shifted >> 118), below,
          (below ? half - offset : offset - half) << 10};
}

/// The cosine (part 1) or the sine (part 0) of the angle at scale 2^127. The sine only if its row
/// is not 0.
inline UInt128 SinePart(const SineStep& step, const SineSeries& series, unsigned part) {
  const std::uint64_t* const row = kSineTable[step.row];
  const UInt128 near = Join(row[2 * part], row[2 * part + 1]);
  const UInt128 other = Join(row[2 - 2 * part], row[3 - 2 * part]);
  const UInt128 sine = step.h_137 - (MultiplyHigh(step.h_137, series.sine_loss) >> 19);
  const UInt128 rest = near - (MultiplyHigh(near, series.cosine_loss) >> 19);
  const UInt128 turn = MultiplyHigh(other, sine) >> 9;
  return step.below == (part == 1) ? rest + turn : rest - turn;
}

/// sin r for 2^-40 < r < 2^-10.
inline Wide SmallSine(const Wide& r) {
  const SineSeries series = SeriesOf(r.mantissa >> (-10 - r.exponent));
  const UInt128 shrink = MultiplyHigh(r.mantissa, series.sine_loss) >> 19;
  return NormalisedWide(r.mantissa - shrink, r.exponent);
}

}  // namespace qorvex::elementary
