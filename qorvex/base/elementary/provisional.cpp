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



}  // namespace qorvex::inline QorvexGlobals

namespace qorvex::elementary {



}  // namespace qorvex::elementary
