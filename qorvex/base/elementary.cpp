#include "qorvex/base/elementary.h"

#include <cmath>

#include "qorvex/base/comparisons.h"
#include "qorvex/base/elementary/functions.h"

namespace qorvex::inline QorvexGlobals {

Extended QorLog2(Extended x) noexcept {
  return Log2(x);
}

Extended QorLog10(Extended x) noexcept {
  return Log10(x);
}

Extended QorArcCos(Extended x) noexcept {
  if (std::fabs(x) > 1 && std::fabs(x) - 1 <= QorTolerance) return x > 0 ? 0 : QorPi;
  return ArcCos(x);
}

Extended XtoY(Extended x, Extended y) noexcept {
  constexpr Extended most_factors = 8;
  if (!(y >= 0 && y <= most_factors) || y != std::trunc(y)) return Pow(x, y);
  Extended product = 1;
  for (int factors = static_cast<int>(y); factors > 0; --factors) product *= x;
  return product;
}

}  // namespace qorvex::inline QorvexGlobals
