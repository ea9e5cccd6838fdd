#pragma once

// Sums and products of elements.
//
// - Floating elements are computed in extended precision and then rounded to their type.
// - Integers and sums of amounts wrap around. Products of amounts are rounded to the nearest
//   amount.
// - Factors and addends are of the element type for integers and extended otherwise. The addend of
//   an amount is in units.

#include <type_traits>

#include "qorvex/base/detail/currency_scale.h"
#include "qorvex/base/rounding.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/vector/detail/integer_arithmetic.h"

namespace qorvex::inline QorvexVector::detail {

// slope * amount + intercept in units.
template <OneOf<QorCurrency, QorLongCurrency> T>
[[nodiscard]] inline T LinearTransform(T x, Extended slope, Extended intercept) noexcept {
  return QorvexGlobals::detail::FromFloat<T>(slope * QorvexGlobals::detail::ToFloat(x) + intercept);
}
[[nodiscard]] inline Currency LinearTransform(Currency x, Extended slope,
                                              Extended intercept) noexcept {
  return Currency(
      RoundToInteger<std::int64_t>(slope * static_cast<Extended>(x.stored()) +
                                   intercept * static_cast<Extended>(Currency::kScale)));
}

template <AdditiveElement T>
constexpr T Sum(T x, T y) noexcept {
  if constexpr (FloatElement<T>) {
    return static_cast<T>(static_cast<Extended>(x) + static_cast<Extended>(y));
  } else if constexpr (CurrencyElement<T>) {
    return x + y;
  } else {
    return WrappingAdd(x, y);
  }
}

template <AdditiveElement T>
constexpr T Difference(T x, T y) noexcept {
  if constexpr (FloatElement<T>) {
    return static_cast<T>(static_cast<Extended>(x) - static_cast<Extended>(y));
  } else if constexpr (CurrencyElement<T>) {
    return x - y;
  } else {
    return WrappingSubtract(x, y);
  }
}

template <AdditiveElement T, class Factor>
constexpr T Product(T x, Factor factor) noexcept {
  if constexpr (FloatElement<T>) {
    return static_cast<T>(static_cast<Extended>(x) * factor);
  } else if constexpr (CurrencyElement<T>) {
    return T(RoundToInteger<typename T::StoredType>(static_cast<Extended>(x.stored()) * factor));
  } else {
    return WrappingMultiply<T>(x, factor);
  }
}

template <AdditiveElement T, class Factor>
constexpr T ProductPlus(T x, Factor factor, std::type_identity_t<Factor> addend) noexcept {
  if constexpr (FloatElement<T>) {
    return static_cast<T>(static_cast<Extended>(x) * factor + addend);
  } else if constexpr (CurrencyElement<T>) {
    return LinearTransform(x, factor, addend);
  } else {
    return WrappingAdd<T>(WrappingMultiply<T>(x, factor), addend);
  }
}

}  // namespace qorvex::inline QorvexVector::detail
