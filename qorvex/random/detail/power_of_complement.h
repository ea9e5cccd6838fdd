#pragma once

#include <cmath>

#include "qorvex/base/elementary.h"

namespace qorvex::inline QorvexRandom::detail {

// (1 - p)^n. 1 - p has lost the digits of a small p, and a large n would show it.
inline Extended PowerOfComplement(Extended p, Extended n) {
  constexpr Extended small = 0x1p-32L;
  return p < small ? std::exp(n * std::log1p(-p)) : XtoY(1 - p, n);
}

}  // namespace qorvex::inline QorvexRandom::detail
