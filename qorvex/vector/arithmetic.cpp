#include "qorvex/vector/arithmetic.h"

#include <algorithm>

#include "qorvex/base/elementary.h"
#include "qorvex/vector/aggregates.h"
#include "qorvex/vector/detail/checks.h"
#include "qorvex/vector/detail/element_arithmetic.h"
#include "qorvex/vector/detail/integer_arithmetic.h"

namespace qorvex::inline QorvexVector {

namespace {

// Writes operation(a[i], b[i]) to result, which may be a itself.
template <class T>
void Combine(const TQorVector<T>& a, const TQorVector<T>& b, T* result, T (*operation)(T, T)) {
  std::transform(a.begin(), a.end(), b.begin(), result, operation);
}

}  // namespace

template <AdditiveElement T>
TQorVector<T> AddVectors(const TQorVector<T>& a, const TQorVector<T>& b) {
  detail::RequireSameLength(a, b);
  auto result = TQorVector<T>::ForOverwrite(a.size());
  Combine(a, b, result.data(), detail::Sum<T>);
  return result;
}

template <AdditiveElement T>
TQorVector<T> SubtractVectors(const TQorVector<T>& a, const TQorVector<T>& b) {
  detail::RequireSameLength(a, b);
  auto result = TQorVector<T>::ForOverwrite(a.size());
  Combine(a, b, result.data(), detail::Difference<T>);
  return result;
}

template <AdditiveElement T>
void AddToVector(TQorVector<T>& a, const TQorVector<T>& b) {
  detail::RequireSameLength(a, b);
  Combine(a, b, a.data(), detail::Sum<T>);
}

template <AdditiveElement T>
void SubtractFromVector(TQorVector<T>& a, const TQorVector<T>& b) {
  detail::RequireSameLength(a, b);
  Combine(a, b, a.data(), detail::Difference<T>);
}

template <WideNumericElement T>
SumOf<T> DotProdVectors(const TQorVector<T>& a, const TQorVector<T>& b) {
  detail::RequireSameLength(a, b);
  detail::RequireElements(a);
  if constexpr (FloatElement<T>) {
    Extended sum = 0;
    for (std::size_t i = 0; i < a.size(); ++i) {
      sum += static_cast<Extended>(a[i]) * static_cast<Extended>(b[i]);
    }
    return sum;
  } else {
    detail::Int64Sum sum;
    for (std::size_t i = 0; i < a.size(); ++i) sum.Add(detail::WrappingMultiply(a[i], b[i]));
    return sum.Value();
  }
}

template <WideNumericElement T>
Extended AngleBetweenVectors(const TQorVector<T>& a, const TQorVector<T>& b) {
  const Extended magnitude_a = VectorMagnitude(a);
  const Extended magnitude_b = VectorMagnitude(b);
  if (magnitude_a == 0 || magnitude_b == 0) RaiseMathError(rsMagZero);
  return QorArcCos(static_cast<Extended>(DotProdVectors(a, b)) / (magnitude_a * magnitude_b));
}

#define QORVEX_INSTANTIATE(T)                                                         \
  template TQorVector<T> AddVectors(const TQorVector<T>&, const TQorVector<T>&);      \
  template TQorVector<T> SubtractVectors(const TQorVector<T>&, const TQorVector<T>&); \
  template void AddToVector(TQorVector<T>&, const TQorVector<T>&);                    \
  template void SubtractFromVector(TQorVector<T>&, const TQorVector<T>&);
QORVEX_FOR_ADDITIVE_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

#define QORVEX_INSTANTIATE(T)                                                   \
  template SumOf<T> DotProdVectors(const TQorVector<T>&, const TQorVector<T>&); \
  template Extended AngleBetweenVectors(const TQorVector<T>&, const TQorVector<T>&);
QORVEX_FOR_WIDE_NUMERIC_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexVector
