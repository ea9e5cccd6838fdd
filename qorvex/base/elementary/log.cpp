// The natural logarithm.
//
// Only ln 1 = 0 is a midpoint or an extended number: e^y is transcendental for every rational y but
// 0 (Lindemann 1882, "Ueber die Zahl pi").

#include "qorvex/base/elementary/detail/first_stage.h"
#include "qorvex/base/elementary/detail/functions_of_bits.h"
#include "qorvex/base/elementary/detail/log256.h"
#include "qorvex/base/elementary/detail/log_domain.h"
#include "qorvex/base/elementary/detail/log_kernel.h"
#include "qorvex/base/elementary/detail/over_spans.h"
#include "qorvex/base/elementary/detail/ziv.h"
#include "qorvex/base/elementary/functions.h"

namespace qorvex::inline QorvexGlobals {

namespace {

using namespace elementary;

[[gnu::noinline]] Wide256 LogInDoubt(Normalised x) {
  return elementary::Log(Wide256(WideOf(x)));
}

[[gnu::always_inline]] inline Binary80 LogKernel(Binary80 x) {
  Normalised number{x.significand, x.sign_exponent - kExponentBias};
  if (!IsPositiveNormal(x)) [[unlikely]] {
    if (!IsPositive(x)) return LogOfSpecial(x);
    number = Normalise(x);
  }
  return FinishLog(number, [number](const Wide& log) {
    if (log.IsZero()) return SignedZero(false);
    return CorrectlyRounded(log, kLogHalfWidth, [number] { return LogInDoubt(number); });
  });
}

}  // namespace

Extended Log(Extended x) noexcept {
  return FromBits(LogKernel(BitsOf(x)));
}

void Log(VectorView<Extended> x, std::span<Extended> results) {
  OverSpans(x, results, [](Binary80 t) { return LogKernel(t); });
}

}  // namespace qorvex::inline QorvexGlobals

namespace qorvex::elementary {

Binary80 LogOfBits(Binary80 x) noexcept {
  return LogKernel(x);
}

Wide LogWide(Extended x) {
  return FinishLog(Normalise(BitsOf(x)), [](const Wide& log) { return log; });
}

Wide LogWide(const Wide& x) {
  constexpr std::int64_t most = 20000;
  if (x.exponent > most || x.exponent < -most) {
    const bool negative = x.exponent < 0;
    const auto magnitude = static_cast<std::uint64_t>(negative ? -x.exponent : x.exponent);
    return LogWide(Wide{x.mantissa, 0}) + NormalisedWide(magnitude, 127, negative) * kLn2;
  }
  if (IsBeside1(High(x.mantissa), x.exponent)) return LogBeside1(x.mantissa, x.exponent);
  return Floating(LogByTables(x.mantissa, x.exponent));
}

}  // namespace qorvex::elementary
