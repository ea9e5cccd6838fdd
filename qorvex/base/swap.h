#pragma once

/// @file
/// SwapXY, the exchange of two elements.

#include <cstring>
#include <type_traits>

#include "qorvex/base/currency.h"
#include "qorvex/base/element_types.h"

namespace qorvex::inline QorvexGlobals {

/// Exchanges two elements bit by bit, so that NaN payloads and signed zeros are kept. x and y may
/// be the same object. Extended values move through integer registers, which is several times
/// faster than through the x87 register stack.
template <class T>
requires NumericElement<T> || CurrencyElement<T>
inline void SwapXY(T& x, T& y) noexcept {
  struct alignas(T) Bits {
    unsigned char bytes[sizeof(T)];
  };
  Bits bits_of_x;
  Bits bits_of_y;
  std::memcpy(&bits_of_x, &x, sizeof(T));
  std::memcpy(&bits_of_y, &y, sizeof(T));
  std::memcpy(static_cast<void*>(&x), &bits_of_y, sizeof(T));
  std::memcpy(static_cast<void*>(&y), &bits_of_x, sizeof(T));
}

}  // namespace qorvex::inline QorvexGlobals
