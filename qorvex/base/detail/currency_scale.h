#pragma once

// The conversions of currency.h, for inlining into loops.

#include <cstdint>
#include <limits>
#include <utility>

#include "qorvex/base/currency.h"
#include "qorvex/base/rounding.h"

namespace qorvex::inline QorvexGlobals::detail {

template <CurrencyElement C>
[[nodiscard]] inline Extended ToFloat(C amount) noexcept {
  return static_cast<Extended>(amount.stored()) / static_cast<Extended>(C::kScale);
}

template <CurrencyElement C>
[[nodiscard]] inline C FromFloat(Extended value) noexcept {
  return C(RoundProduct<typename C::StoredType>(value, C::kScale));
}

template <CurrencyElement To, CurrencyElement From>
[[nodiscard]] inline To Rescale(From amount) noexcept {
  using Stored = typename To::StoredType;
  constexpr Stored smallest = std::numeric_limits<Stored>::min();
  std::int64_t scaled = amount.stored();
  if constexpr (To::kScale >= From::kScale) {
    if (__builtin_mul_overflow(scaled, To::kScale / From::kScale, &scaled)) return To(smallest);
  } else {
    scaled = DivideHalfEven(scaled, From::kScale / To::kScale);
  }
  return To(std::in_range<Stored>(scaled) ? static_cast<Stored>(scaled) : smallest);
}

}  // namespace qorvex::inline QorvexGlobals::detail
