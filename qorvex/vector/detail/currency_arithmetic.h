#pragma once

// Arithmetic on amounts that rounds.

#include "qorvex/base/currency.h"
#include "qorvex/base/rounding.h"

namespace qorvex::inline QorvexVector::detail {

// slope * amount + intercept.
inline QorCurrency LinearTransform(QorCurrency x, Extended slope, Extended intercept) noexcept {
  return Float2QorCurrency(slope * Currency2Float(x) + intercept);
}
inline QorLongCurrency LinearTransform(QorLongCurrency x, Extended slope,
                                       Extended intercept) noexcept {
  return Float2QorLongCurrency(slope * Currency2Float(x) + intercept);
}
inline Currency LinearTransform(Currency x, Extended slope, Extended intercept) noexcept {
  return Currency(
      RoundToInteger<std::int64_t>(slope * static_cast<Extended>(x.stored()) +
                                   intercept * static_cast<Extended>(Currency::kScale)));
}

}  // namespace qorvex::inline QorvexVector::detail
