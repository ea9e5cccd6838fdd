#include "qorvex/base/elementary.h"

#include <cmath>

#include "qorvex/base/comparisons.h"
#include "qorvex/base/elementary/detail/binary80.h"
#include "qorvex/base/elementary/functions.h"

namespace qorvex::inline QorvexGlobals {

namespace {

// y if it is an integer from 0 to 8, else -1. The bits decide, which is quicker than rounding y.
int NumberOfFactors(elementary::Binary80 y) {
  if (elementary::IsZero(y)) return 0;
  const int exponent = y.sign_exponent - elementary::kExponentBias;
  if (exponent < 0 || exponent > 3 || y.significand << (exponent + 1) != 0) return -1;
  const auto factors = static_cast<int>(y.significand >> (63 - exponent));
  return factors <= 8 ? factors : -1;
}

}  // namespace

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
  const int factors = NumberOfFactors(elementary::BitsOf(y));
  if (factors < 0) return Pow(x, y);
  Extended product = 1;
  for (int i = 0; i < factors; ++i) product *= x;
  return product;
}

}  // namespace qorvex::inline QorvexGlobals
