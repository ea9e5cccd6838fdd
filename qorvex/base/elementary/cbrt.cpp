// The cube root.
//
// x = s 2^e with s in [1, 2), e = 3 k + j. With y below s^(-1/3) in 32 bits and d = 1 - s y^3:
//
//     s^(1/3) = s y^2 (1 - d)^(-2/3) = s y^2 (1 + 2/3 d + 5/9 d^2 + 40/81 d^3 + ...)
//     x^(1/3) = s^(1/3) 2^(j/3) 2^k
//
// s y^2 is exact in 128 bits, and d < 2^-29.3. What is left out from d^3 on is below 2^-88.9, and
// 2^-89.6 are added for it: with the last bits of d, 2^-93, the relative error is below 2^-89, and
// the root of a power of 8 comes out above the power of 2.
//
// The middle of two numbers of the format is never a root: it has 65 significant bits, the last of
// them a 1, and so its cube has more than 190.

#include "qorvex/base/elementary/detail/over_spans.h"
#include "qorvex/base/elementary/detail/ziv.h"
#include "qorvex/base/elementary/functions.h"

namespace qorvex::elementary {

namespace {

// Four times the error of the first stage, 2^-89 of the result.
constexpr std::uint64_t kHalfWidth = std::uint64_t{1} << 41;

constexpr std::uint64_t kInverseRoots[64][4] = {
#include "qorvex/base/elementary/detail/tables/inverse_cube_root.inc"
};

// 2^(j/3) at scale 2^127.
constexpr std::uint64_t kRootsOfPowers[3][2] = {
#include "qorvex/base/elementary/detail/tables/roots_of_powers.inc"
};

// y 2^32.
inline std::uint64_t InverseRoot(std::uint64_t significand) {
  const std::uint64_t* const c = kInverseRoots[significand >> 57 & 63];
  const std::uint64_t u = ~(significand << 7);
  std::uint64_t sum = c[2] + MultiplyHigh(c[3], u);
  sum = c[1] + MultiplyHigh(sum, u);
  sum = c[0] + MultiplyHigh(sum, u);
  return sum >> 32;
}

// s^(1/3) at scale 2^127.
inline UInt128 RootOfSignificand(std::uint64_t significand) {
  const std::uint64_t y = InverseRoot(significand);
  const UInt128 base = Multiply(significand, y * y);
  const UInt128 d_95 = (UInt128{1} << 95) - MultiplyHigh(base, y);
  const auto d = Low(ShiftedRight(d_95, 2));  // at scale 2^93
  constexpr std::uint64_t two_thirds = 0xaaaaaaaaaaaaaaab;
  constexpr std::uint64_t five_ninths = 0x8e38e38e38e38e39;
  const std::uint64_t bracket =
      MultiplyHigh(d, two_thirds) + (MultiplyHigh(MultiplyHigh(d, d), five_ninths) >> 29);
  constexpr std::uint64_t added = 11;  // 2^-89.6
  return base + ShiftedRight(Multiply(High(base), bracket + added), 29);
}

[[gnu::noinline]] Wide256 SecondStage(const Wide& x, const Wide& root) {
  // Halley's step, which triples the number of correct bits.
  const Wide256 y = root;
  const Wide256 cube = y * y * y;
  return y * (cube + ScaledBy(Wide256(x), 1)) / (ScaledBy(cube, 1) + x);
}

[[gnu::always_inline]] inline Binary80 RootOf(Normalised x, bool negative) {
  // A multiple of 3 makes the dividend positive.
  constexpr unsigned offset = 3 * 5500;
  const unsigned shifted = static_cast<unsigned>(x.exponent) + offset;
  const std::uint64_t* const power = kRootsOfPowers[shifted % 3];
  const UInt128 half = MultiplyHigh(RootOfSignificand(x.significand), Join(power[0], power[1]));
  const Wide root{half + half, std::int64_t{shifted / 3} - std::int64_t{offset / 3}, negative};
  return CorrectlyRounded(root, kHalfWidth, [&] {
    return SecondStage({Join(x.significand, 0), x.exponent, negative}, root);
  });
}

[[gnu::noinline]] Binary80 SpecialRoot(Binary80 x) {
  if (IsNaN(x)) return QuietNaN();
  if (IsZero(x) || IsInfinity(x)) return x;
  return RootOf(Normalise(x), x.IsNegative());
}

[[gnu::always_inline]] inline Binary80 CbrtKernel(Binary80 x) {
  if (!IsNormal(x)) [[unlikely]]
    return SpecialRoot(x);
  return RootOf({x.significand, x.Exponent() - kExponentBias}, x.IsNegative());
}

}  // namespace

}  // namespace qorvex::elementary

namespace qorvex::inline QorvexGlobals {

Extended Cbrt(Extended x) noexcept {
  return elementary::FromBits(elementary::CbrtKernel(elementary::BitsOf(x)));
}
void Cbrt(VectorView<Extended> x, std::span<Extended> results) {
  elementary::OverSpans(x, results,
                        [](elementary::Binary80 t) { return elementary::CbrtKernel(t); });
}

}  // namespace qorvex::inline QorvexGlobals
