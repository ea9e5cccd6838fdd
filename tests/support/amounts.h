#pragma once

#include <limits>

#include "qorvex/base/vector_types.h"

namespace qorvex::testing {

__extension__ typedef __int128 Int128;

/// The amount whose stored integer is dividend / divisor, rounded to nearest, ties to even; the
/// smallest amount if that is out of range. For positive divisors.
template <CurrencyElement T>
T NearestAmount(Int128 dividend, Int128 divisor) {
  using Stored = typename T::StoredType;
  Int128 quotient = dividend / divisor;
  const Int128 twice = 2 * (dividend % divisor);
  const Int128 magnitude = twice < 0 ? -twice : twice;
  if (magnitude > divisor || (magnitude == divisor && quotient % 2 != 0))
    quotient += dividend < 0 ? -1 : 1;
  const auto stored = static_cast<Stored>(quotient);
  return T(stored == quotient ? stored : std::numeric_limits<Stored>::min());
}

/// The stored integers of a vector or a matrix of amounts.
template <CurrencyElement T>
TQorVector<typename T::StoredType> Stored(const TQorVector<T>& amounts) {
  TQorVector<typename T::StoredType> stored;
  for (const T x : amounts) stored.Append(x.stored());
  return stored;
}
template <CurrencyElement T>
TQorMatrix<typename T::StoredType> Stored(const TQorMatrix<T>& amounts) {
  TQorMatrix<typename T::StoredType> stored;
  for (const TQorVector<T>& row : amounts) stored.Append(Stored(row));
  return stored;
}

}  // namespace qorvex::testing
