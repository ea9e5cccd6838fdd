#include "qorvex/base/checked_math.h"

#include <cmath>

#include "qorvex/base/elementary.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"

namespace qorvex::inline QorvexGlobals {

Extended CheckedDivide(Extended x, Extended y) {
  if (std::isnan(x) || std::isnan(y)) return x + y;
  if (y == 0) {
    if (x == 0) throw EInvalidOp();
    throw EZeroDivide();
  }
  if (std::isinf(y)) {
    if (std::isinf(x)) throw EInvalidOp();
    return x / y;
  }
  const Extended quotient = x / y;
  if (std::isinf(quotient) && !std::isinf(x)) throw EOverflow();
  return quotient;
}

Extended CheckedSqrt(Extended x) {
  if (x < 0) throw EInvalidOp();
  return std::sqrt(x);
}

Extended CheckedLn(Extended x) {
  if (x < 0) throw EInvalidOp();
  if (x == 0) throw EZeroDivide();
  return Log(x);
}

Extended CheckedExp(Extended x) {
  // The result is not looked at where the argument decides: a caller need not wait for it then.
  constexpr Extended certainly_finite = 11356;
  if (x <= certainly_finite) return Exp(x);
  const Extended result = Exp(x);
  if (std::isinf(result) && !std::isinf(x)) throw EOverflow();
  return result;
}

Extended CheckedXtoY(Extended x, Extended y) {
  // Below 2^(60 * 256).
  if (x > 0x1p-60L && x < 0x1p60L && std::fabs(y) <= 256) return XtoY(x, y);
  const Extended power = XtoY(x, y);
  if (std::isfinite(power) || !std::isfinite(x) || !std::isfinite(y)) return power;
  if (x == 0) throw EZeroDivide();
  return CheckedFinite(power);
}

Extended CheckedFinite(Extended result) {
  if (std::isnan(result)) throw EInvalidOp();
  if (std::isinf(result)) throw EOverflow();
  return result;
}

}  // namespace qorvex::inline QorvexGlobals
