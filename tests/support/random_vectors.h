#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <random>

#include "qorvex/base/vector_types.h"

namespace qorvex::testing {

using Engine = std::mt19937_64;

/// A vector of n random elements: floating ones with random signs and exponents; integers and
/// stored integers of amounts over the whole range.
template <AnyElement T>
TQorVector<T> RandomVector(Engine& engine, std::size_t n) {
  auto vector = TQorVector<T>::WithLength(n);
  for (T& x : vector) {
    if constexpr (FloatElement<T>) {
      const auto mantissa = static_cast<Extended>(static_cast<std::int64_t>(engine())) * 0x1p-63L;
      x = static_cast<T>(std::ldexp(mantissa, static_cast<int>(engine() % 40) - 20));
    } else if constexpr (CurrencyElement<T>) {
      x = T(static_cast<typename T::StoredType>(engine()));
    } else {
      x = static_cast<T>(engine());
    }
  }
  return vector;
}

/// True if the values and the signs of zeros are equal, or if both are NaN.
template <FloatElement T>
bool SameBits(T a, T b) {
  return (a == b && std::signbit(a) == std::signbit(b)) || (a != a && b != b);
}

template <class Element>
bool SameBits(const DynArray<Element>& a, const DynArray<Element>& b) {
  return std::ranges::equal(a, b,
                            [](const Element& x, const Element& y) { return SameBits(x, y); });
}

}  // namespace qorvex::testing
