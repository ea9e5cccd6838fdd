#include "qorvex/base/currency.h"

#include <limits>
#include <utility>

#include "qorvex/base/rounding.h"

namespace qorvex::inline QorvexGlobals {

namespace {

template <CurrencyElement C>
Extended ToFloat(C amount) noexcept {
  return static_cast<Extended>(amount.stored()) / static_cast<Extended>(C::kScale);
}

template <CurrencyElement C>
C FromFloat(Extended value) noexcept {
  return C(RoundProduct<typename C::StoredType>(value, C::kScale));
}

template <CurrencyElement To, CurrencyElement From>
To Rescale(From amount) noexcept {
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

}  // namespace

Extended Currency2Float(Currency amount) noexcept {
  return ToFloat(amount);
}
Extended Currency2Float(QorCurrency amount) noexcept {
  return ToFloat(amount);
}
Extended Currency2Float(QorLongCurrency amount) noexcept {
  return ToFloat(amount);
}

Currency Float2Currency(Extended value) noexcept {
  return FromFloat<Currency>(value);
}
QorCurrency Float2QorCurrency(Extended value) noexcept {
  return FromFloat<QorCurrency>(value);
}
QorLongCurrency Float2QorLongCurrency(Extended value) noexcept {
  return FromFloat<QorLongCurrency>(value);
}

Currency QorCurrency2Currency(QorCurrency amount) noexcept {
  return Rescale<Currency>(amount);
}
Currency QorLongCurrency2Currency(QorLongCurrency amount) noexcept {
  return Rescale<Currency>(amount);
}
QorCurrency Currency2QorCurrency(Currency amount) noexcept {
  return Rescale<QorCurrency>(amount);
}
QorLongCurrency Currency2QorLongCurrency(Currency amount) noexcept {
  return Rescale<QorLongCurrency>(amount);
}
QorLongCurrency QorCurrency2QorLongCurrency(QorCurrency amount) noexcept {
  return Rescale<QorLongCurrency>(amount);
}
QorCurrency QorLongCurrency2QorCurrency(QorLongCurrency amount) noexcept {
  return Rescale<QorCurrency>(amount);
}

}  // namespace qorvex::inline QorvexGlobals
