#pragma once

// Sums and products of elements. Floating ones are formed in extended precision, each operation
// rounding once, and then rounded to their own type; integers and sums of amounts wrap around;
// products of amounts are rounded to the nearest one. Factors and addends of products are of the
// element's type for integers and extended for the others; what is added to an amount is in units.

#include <type_traits>

#include "qorvex/base/rounding.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/vector/detail/currency_arithmetic.h"
#include "qorvex/vector/detail/integer_arithmetic.h"

namespace qorvex::inline QorvexVector::detail {

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
