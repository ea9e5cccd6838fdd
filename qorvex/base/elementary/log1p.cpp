// The logarithm of 1 + x.
//
// Only ln(1 + 0) is a midpoint or an extended number, as for the logarithm of x.

#include "qorvex/base/elementary/detail/first_stage.h"
#include "qorvex/base/elementary/detail/log256.h"
#include "qorvex/base/elementary/detail/log_kernel.h"
#include "qorvex/base/elementary/detail/over_spans.h"
#include "qorvex/base/elementary/detail/ziv.h"
#include "qorvex/base/elementary/functions.h"

namespace qorvex::inline QorvexGlobals {

namespace {

using namespace elementary;

// finish(ln(1 + x)) for x > -1 but 0, of a logarithm with a relative error below 2^-97: where |x|
// is small, and of the others.
template <class Finish>
[[gnu::noinline]] auto FinishLog1pOfSmall(Normalised x, bool negative, Finish finish) {
  return finish(Log1pOfSmall(WideOf(x, negative)));
}
template <class Finish>
[[gnu::noinline]] auto FinishLog1pOfOther(Normalised x, bool negative, Finish finish) {
  return finish(Log1pWide(WideOf(x, negative)));
}
template <class Finish>
[[gnu::always_inline]] inline auto FinishLog1p(Normalised x, bool negative, Finish finish) {
  if (x.exponent < -12) return FinishLog1pOfSmall(x, negative, finish);
  // 1 + x, exactly, with the larger exponent at bit 126 and above.
  const int exponent = x.exponent > 0 ? x.exponent : 0;
  const UInt128 one = Join(kTopBit >> 1 >> (exponent & 63), 0);
  const UInt128 part = ShiftedLeft(x.significand, 63 - exponent + x.exponent);
  const UInt128 sum = negative ? one - part : one + part;
  if (x.exponent > 62 || High(sum) == 0) [[unlikely]]
    return FinishLog1pOfOther(x, negative, finish);
  const Wide normalised = NormalisedTop(sum, exponent + 1);
  return finish(Floating(LogByTables(normalised.mantissa, normalised.exponent)));
}

// The values that are x itself, infinite or NaN.
Binary80 Log1pOfSpecial(Binary80 x) {
  if (IsNaN(x)) return QuietNaN();
  if (x.Exponent() < kExponentBias || !x.IsNegative()) return Canonical(x);
  return x.significand == kTopBit && x.Exponent() == kExponentBias ? SignedInfinity(true)
                                                                   : QuietNaN();
}

[[gnu::noinline]] Wide256 Log1pInDoubt(Normalised x, bool negative) {
  return elementary::Log(Wide256(WideOf(x, negative)) + 1);
}

[[gnu::always_inline]] inline Binary80 Log1pKernel(Binary80 x) {
  const Normalised number{x.significand, x.Exponent() - kExponentBias};
  const bool negative = x.IsNegative();
  // |x| < 2^-66: x (1 - x/2 + ...) is rounded to x, whose midpoints are 2^-65 x away or more.
  if (!IsNormal(x) || number.exponent < -66 || (negative && number.exponent >= 0)) [[unlikely]]
    return Log1pOfSpecial(x);
  return FinishLog1p(number, negative, [=](const Wide& log) {
    return CorrectlyRounded(log, kLogHalfWidth, [=] { return Log1pInDoubt(number, negative); });
  });
}

}  // namespace

Extended Log1p(Extended x) noexcept {
  return FromBits(Log1pKernel(BitsOf(x)));
}

void Log1p(VectorView<Extended> x, std::span<Extended> results) {
  OverSpans(x, results, [](Binary80 t) { return Log1pKernel(t); });
}

}  // namespace qorvex::inline QorvexGlobals

namespace qorvex::elementary {

Wide Log1pWide(Extended x) {
  const Binary80 bits = BitsOf(x);
  if (IsZero(bits)) return {};
  return FinishLog1p(Normalise(bits), bits.IsNegative(), [](const Wide& log) { return log; });
}

Wide Log1pWide(const Wide& x) {
  if (x.exponent < -12 || x.IsZero()) return Log1pOfSmall(x);
  // 1 - |x| is exact here, which matters beside -1.
  if (x.negative && x.exponent == -1) return LogWide(NormalisedWide(-x.mantissa, -1));
  return LogWide(kOne + x);
}

}  // namespace qorvex::elementary
