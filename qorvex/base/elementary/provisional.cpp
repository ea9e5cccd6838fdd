// Stands in for the functions that are still to be written.

#include <cmath>

#include "qorvex/base/elementary/detail/first_stage.h"
#include "qorvex/base/elementary/functions.h"

namespace qorvex::inline QorvexGlobals {

Extended Exp(Extended x) noexcept { return std::exp(x); }
Extended Expm1(Extended x) noexcept { return std::expm1(x); }
Extended Exp2(Extended x) noexcept { return std::exp2(x); }
Extended Log(Extended x) noexcept { return std::log(x); }
Extended Log1p(Extended x) noexcept { return std::log1p(x); }
Extended Log2(Extended x) noexcept { return std::log2(x); }
Extended Log10(Extended x) noexcept { return std::log10(x); }
Extended Pow(Extended x, Extended y) noexcept { return std::pow(x, y); }
Extended Sin(Extended x) noexcept { return std::sin(x); }
Extended Cos(Extended x) noexcept { return std::cos(x); }
Extended Tan(Extended x) noexcept { return std::tan(x); }
Extended ArcCos(Extended x) noexcept { return std::acos(x); }
Extended ArcSin(Extended x) noexcept { return std::asin(x); }
Extended ArcTan(Extended x) noexcept { return std::atan(x); }
Extended Cbrt(Extended x) noexcept { return std::cbrt(x); }
Extended Erf(Extended x) noexcept { return std::erf(x); }
Extended Erfc(Extended x) noexcept { return std::erfc(x); }

}  // namespace qorvex::inline QorvexGlobals

namespace qorvex::elementary {

Wide LogWide(Extended x) { return Wide(special::Ln(special::ExtendedPair(x))); }
Wide LogWide(const Wide& x) {
  constexpr Extended ln2 = 0.693147180559945309417232121458L;
  const Wide mantissa{x.mantissa, 0, false};
  return Wide(special::Ln(PairOf(mantissa)) + special::ExtendedPair(ln2) * special::ExtendedPair(static_cast<Extended>(x.exponent)));
}
Wide Log1pWide(Extended x) { return Wide(special::Ln(special::ExactSum(1, x))); }
Wide Log1pWide(const Wide& x) { return LogWide(Wide(1.0L) + x); }
Wide ExpWide(const Wide& x) { return Wide(special::Exp(PairOf(x))); }
Wide Expm1Wide(const Wide& x) { return Wide(std::expm1(Nearest(x))); }
SineAndCosine SinCosWide(Extended x) { return {Wide(std::sin(x)), Wide(std::cos(x))}; }
Wide ArcTanWide(const Wide& y, const Wide& x) { return Wide(std::atan2(Nearest(y), Nearest(x))); }

}  // namespace qorvex::elementary
