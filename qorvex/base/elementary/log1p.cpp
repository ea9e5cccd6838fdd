// The logarithm of 1 + x.
//
// Only ln(1 + 0) is a midpoint or an extended number, as for the logarithm of x.

#include "qorvex/base/elementary/detail/first_stage.h"
#include "qorvex/base/elementary/detail/log256.h"
#include "qorvex/base/elementary/detail/log_kernel.h"
#include "qorvex/base/elementary/detail/over_spans.h"
#include "qorvex/base/elementary/detail/ziv.h"
#include "qorvex/base/elementary/functions.h"

namespace qorvex {

namespace elementary {

namespace {

// 1 + x for x > -1 with an exponent from -12 to 126: exact.
[[gnu::always_inline]] inline Wide OnePlus(Normalised x, bool negative) {
  // The larger exponent comes to bit 126.
  const int exponent = x.exponent > 0 ? x.exponent : 0;
  const UInt128 one = UInt128{1} << (126 - exponent);
  const UInt128 part = Join(x.significand, 0) >> (1 + exponent - x.exponent);
  return NormalisedWide(negative ? one - part : one + part, exponent + 1);
}

// ln(1 + x) for x > -1 but 0; relative error below kLogHalfWidth 2^-127.
[[gnu::always_inline]] inline Wide Log1pOf(Normalised x, bool negative) {
  if (x.exponent < -12) return Log1pOfSmall(WideOf(x, negative));
  // Now 1 / x is below 2^-126, too small to be seen in 128 bits of the logarithm.
  if (x.exponent > 126) [[unlikely]]
    return LogByTables(x.significand, x.exponent);
  const Wide sum = OnePlus(x, negative);
  return LogByTables(sum.mantissa, sum.exponent);
}

// The values that are x itself, infinite or NaN.
Binary80 Log1pOfSpecial(Binary80 x) {
  if (IsNaN(x)) return QuietNaN();
  if (x.Exponent() < kExponentBias) return x;
  if (!x.IsNegative()) return x;
  return x.significand == kTopBit && x.Exponent() == kExponentBias ? SignedInfinity(true)
                                                                   : QuietNaN();
}

[[gnu::always_inline]] inline Binary80 Log1pKernel(Binary80 x) {
  const Normalised number{x.significand, x.Exponent() - kExponentBias};
  const bool negative = x.IsNegative();
  // |x| < 2^-66: x (1 - x/2 + ...) is x, since the next numbers differ by 2^-64 of x or more.
  if (!IsNormal(x) || number.exponent < -66 || (negative && number.exponent >= 0)) [[unlikely]]
    return Log1pOfSpecial(x);
  return CorrectlyRounded(Log1pOf(number, negative), kLogHalfWidth,
                          [=] { return Log(Wide256(WideOf(number, negative)) + 1); });
}

}  // namespace

Wide Log1pWide(Extended x) {
  const Binary80 bits = BitsOf(x);
  return IsZero(bits) ? Wide() : Log1pOf(Normalise(bits), bits.IsNegative());
}

Wide Log1pWide(const Wide& x) {
  if (x.exponent < -12 || x.IsZero()) return Log1pOfSmall(x);
  // 1 - |x| is exact here, which matters beside -1.
  if (x.negative && x.exponent == -1) return LogWide(NormalisedWide(-x.mantissa, -1));
  return LogWide(Wide(1.0L) + x);
}

}  // namespace elementary

inline namespace QorvexGlobals {

Extended Log1p(Extended x) noexcept {
  return FromBits(elementary::Log1pKernel(elementary::BitsOf(x)));
}

void Log1p(VectorView<Extended> x, std::span<Extended> results) {
  elementary::OverSpans(x, results,
                        [](elementary::Binary80 t) { return elementary::Log1pKernel(t); });
}

}  // namespace QorvexGlobals

}  // namespace qorvex
