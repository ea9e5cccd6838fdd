// Stands in for the functions that are still to be written.

#include <cmath>

#include "qorvex/base/elementary/detail/first_stage.h"
#include "qorvex/base/elementary/detail/over_spans.h"
#include "qorvex/base/elementary/functions.h"

// clang-format off

namespace qorvex::inline QorvexGlobals {

namespace {
template <class Function>
void Provisional(VectorView<Extended> x, std::span<Extended> results, Function function) {
  elementary::OverSpans(x, results, [function](elementary::Binary80 t) { return elementary::BitsOf(function(elementary::FromBits(t))); });
}
}  // namespace

using In = VectorView<Extended>;
using Out = std::span<Extended>;

// Exp, Expm1, Exp2
Extended Expm1(Extended x) noexcept { return std::expm1(x); }
void Expm1(In x, Out y) { Provisional(x, y, [](Extended t) { return Expm1(t); }); }
Extended Exp2(Extended x) noexcept { return std::exp2(x); }
void Exp2(In x, Out y) { Provisional(x, y, [](Extended t) { return Exp2(t); }); }

// ArcCos, ArcSin
Extended ArcCos(Extended x) noexcept { return std::acos(x); }
void ArcCos(In x, Out y) { Provisional(x, y, [](Extended t) { return ArcCos(t); }); }
Extended ArcSin(Extended x) noexcept { return std::asin(x); }
void ArcSin(In x, Out y) { Provisional(x, y, [](Extended t) { return ArcSin(t); }); }

}  // namespace qorvex::inline QorvexGlobals

namespace qorvex::elementary {

// ExpWide, Expm1Wide
Wide Expm1Wide(const Wide& x) { return Wide(std::expm1(Nearest(x))); }


}  // namespace qorvex::elementary
