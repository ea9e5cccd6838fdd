#pragma once

#include "qorvex/base/elementary.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/random/detail/floor.h"

namespace qorvex::inline QorvexRandom::detail {

// (1 - p)^n. For small whole exponents XtoY multiplies. Otherwise 1 - p would lose digits of a
// small p, and a large n would magnify the error.
inline Extended PowerOfComplement(Extended p, Extended n) {
  return n <= 8 && n == Floor(n) ? XtoY(1 - p, n) : Exp(n * Log1p(-p));
}

}  // namespace qorvex::inline QorvexRandom::detail
