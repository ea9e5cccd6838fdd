#pragma once

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

}  // namespace qorvex::testing
