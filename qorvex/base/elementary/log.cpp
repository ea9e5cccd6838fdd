// The natural logarithm.
//
// Only ln 1 = 0 is a midpoint or an extended number: e^y is transcendental for every rational y but
// 0 (Lindemann 1882, "Ueber die Zahl pi").

#include "qorvex/base/elementary/detail/first_stage.h"
#include "qorvex/base/elementary/detail/log256.h"
#include "qorvex/base/elementary/detail/log_domain.h"
#include "qorvex/base/elementary/detail/log_kernel.h"
#include "qorvex/base/elementary/detail/over_spans.h"
#include "qorvex/base/elementary/detail/ziv.h"
#include "qorvex/base/elementary/functions.h"

namespace qorvex {

namespace elementary {

namespace {

[[gnu::always_inline]] inline Binary80 LogKernel(Binary80 x) {
  return LogOverAll(x, [](Normalised number) {
    return CorrectlyRounded(LogOf(number), kLogHalfWidth,
                            [number] { return Log(Wide256(WideOf(number))); });
  });
}

// ln 2, cut off.
constexpr Wide kLn2{Join(0xb17217f7d1cf79ab, 0xc9e3b39803f2f6af), -1};

}  // namespace

Wide LogWide(Extended x) {
  return LogOf(Normalise(BitsOf(x)));
}

Wide LogWide(const Wide& x) {
  constexpr std::int64_t most = 20000;
  if (x.exponent > most || x.exponent < -most) {
    const bool negative = x.exponent < 0;
    const auto magnitude = static_cast<std::uint64_t>(negative ? -x.exponent : x.exponent);
    return LogWide(Wide{x.mantissa, 0}) + NormalisedWide(magnitude, 127, negative) * kLn2;
  }
  if (IsBeside1(High(x.mantissa), x.exponent)) return LogBeside1(x.mantissa, x.exponent);
  return LogByTables(x.mantissa, x.exponent);
}

}  // namespace elementary

inline namespace QorvexGlobals {

Extended Log(Extended x) noexcept {
  return FromBits(elementary::LogKernel(elementary::BitsOf(x)));
}

void Log(VectorView<Extended> x, std::span<Extended> results) {
  elementary::OverSpans(x, results,
                        [](elementary::Binary80 t) { return elementary::LogKernel(t); });
}

}  // namespace QorvexGlobals

}  // namespace qorvex
