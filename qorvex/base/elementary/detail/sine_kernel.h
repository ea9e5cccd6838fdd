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
// The scales are such that hardly anything is shifted: shifts of 128 bits cost more than products.
//
// Error: 2^-104.4 from the words of h^4 in 1 - cos h, which counts up to twice, as sin a may be
// twice the result, and 2^-106 in the bracket of sin h. All else, r included, is cut off below
// 2^-122, which is 2^-112 of a sine above 2^-10. A smaller sine is r times the bracket, without a
// table. In all, the relative error is below 2^-103.

#include "qorvex/base/elementary/detail/wide.h"

namespace qorvex::elementary {

/// sin and cos of i/512, two words each, at scale 2^127.
inline constexpr std::uint64_t kSineTable[403][4] = {
#include "qorvex/base/elementary/detail/tables/sine.inc"
};

/// a/b at scale 2^scale.
constexpr std::uint64_t Ratio(std::uint64_t a, std::uint64_t b, int scale) {
  return Low(((UInt128{a} << scale) + b / 2) / b);
}

/// 1 - cos h and 1 - sin h / h at scale 2^128.
struct SineSeries {
  UInt128 cosine_loss;
  UInt128 sine_loss;
};

/// h^2/2 at scale 2^128, h^2 at scale 2^83 and h^4 at scale 2^102.
struct PowersOfStep {
  UInt128 half_square;
  std::uint64_t square;
  std::uint64_t fourth;

  /// For h <= 2^-10 at scale 2^127.
  explicit PowersOfStep(UInt128 h)
      : half_square(MultiplyHighOfSmall(h, h + h)),
        square(Low(ShiftedRight(half_square, 44))),
        fourth(MultiplyHigh(square, square)) {}
};

/// For h <= 2^-10 at scale 2^127.
inline SineSeries SeriesOf(UInt128 h) {
  const auto [half_square, square, fourth] = PowersOfStep(h);
  const std::uint64_t cosine_tail = Ratio(1, 24, 68) - MultiplyHigh(square, Ratio(1, 720, 49)) +
                                    MultiplyHigh(fourth, Ratio(1, 40320, 30));
  const std::uint64_t sine_tail = Ratio(1, 120, 70) - MultiplyHigh(square, Ratio(1, 5040, 51)) +
                                  MultiplyHigh(fourth, Ratio(1, 362880, 32));
  constexpr std::uint64_t third = Ratio(1, 3, 64);
  return {half_square - ShiftedLeft(MultiplyHigh(fourth, cosine_tail), 22),
          MultiplyHighOfSmall(half_square, Join(third, third)) -
              ShiftedLeft(MultiplyHigh(fourth, sine_tail), 20)};
}

/// The nearest angle of the table, and the way to it.
struct SineStep {
  std::size_t row;
  bool below;  // r lies below it
  UInt128 h;   // at scale 2^127, up to the last bit
};

/// For r <= pi/4 at scale 2^127.
inline SineStep StepOf(UInt128 r) {
  const std::uint64_t row = (High(r) + (std::uint64_t{1} << 53)) >> 54;
  const UInt128 difference = r - Join(row << 54, 0);
  const std::uint64_t mask = 0 - (High(difference) >> 63);
  return {row, mask != 0, difference ^ Join(mask, mask)};
}

/// The cosine (part 1) or the sine (part 0) of the angle at scale 2^127. The sine only if its row
/// is not 0.
inline UInt128 SinePart(const SineStep& step, const SineSeries& series, unsigned part) {
  const std::uint64_t* const row = kSineTable[step.row];
  const UInt128 near = Join(row[2 * part], row[2 * part + 1]);
  const UInt128 other = Join(row[2 - 2 * part], row[3 - 2 * part]);
  const UInt128 h_128 = step.h + step.h;
  const UInt128 turn =
      MultiplyHighOfSmall(other, h_128 - MultiplyHighOfSmall(h_128, series.sine_loss));
  const std::uint64_t mask = 0 - std::uint64_t{step.below != (part == 1)};
  return near - MultiplyHighOfSmall(near, series.cosine_loss) + (turn ^ Join(mask, mask));
}

/// sin r for r < 2^-10.
inline Wide SmallSine(const Wide& r) {
  const SineSeries series = SeriesOf(r.mantissa >> -r.exponent);
  return NormalisedTop(r.mantissa - MultiplyHigh(r.mantissa, series.sine_loss), r.exponent);
}

}  // namespace qorvex::elementary
