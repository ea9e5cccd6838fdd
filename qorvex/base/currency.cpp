#include "qorvex/base/currency.h"

#include "qorvex/base/detail/currency_scale.h"

namespace qorvex::inline QorvexGlobals {

using detail::FromFloat;
using detail::Rescale;
using detail::ToFloat;

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
