#include "qorvex/vector/currency_sums.h"

#include "qorvex/base/currency_arithmetic.h"

namespace qorvex::inline QorvexFinVector {

template <CurrencyElement T>
T CheckedSum(VectorView<T> amounts) {
  if (amounts.empty()) RaiseMathError(rsVectorIsEmpty);
  __int128 sum = 0;
  for (const T x : amounts) sum += x.stored();
  const auto stored = static_cast<typename T::StoredType>(sum);
  if (stored != sum) QorvexGlobals::detail::RaiseAmountOverflow();
  return T(stored);
}

#define QORVEX_INSTANTIATE(T) template T CheckedSum(VectorView<T>);
QORVEX_FOR_CURRENCY_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexFinVector
