#include "qorvex/vector/arithmetic.h"

#include <algorithm>

#include "qorvex/base/elementary.h"
#include "qorvex/vector/aggregates.h"
#include "qorvex/vector/detail/checks.h"
#include "qorvex/vector/detail/element_arithmetic.h"
#include "qorvex/vector/detail/integer_sum.h"
#include "qorvex/vector/detail/ordered_sum.h"

namespace qorvex::inline QorvexVector {

namespace {

// Writes operation(a[i], b[i]) to result, which may be a itself.
template <class T>
void Combine(VectorView<T> a, VectorView<T> b, T* result, T (*operation)(T, T)) {
  std::transform(a.begin(), a.end(), b.begin(), result, operation);
}

}  // namespace

template <AdditiveElement T>
TQorVector<T> AddVectors(VectorView<T> a, VectorView<T> b) {
  detail::RequireSameLength(a, b);
  auto result = TQorVector<T>::ForOverwrite(a.size());
  Combine(a, b, result.data(), detail::Sum<T>);
  return result;
}

template <AdditiveElement T>
TQorVector<T> SubtractVectors(VectorView<T> a, VectorView<T> b) {
  detail::RequireSameLength(a, b);
  auto result = TQorVector<T>::ForOverwrite(a.size());
  Combine(a, b, result.data(), detail::Difference<T>);
  return result;
}

template <AdditiveElement T>
void AddToVector(TQorVector<T>& a, std::type_identity_t<VectorView<T>> b) {
  detail::RequireSameLength(a, b);
  Combine<T>(a, b, a.data(), detail::Sum);
}

template <AdditiveElement T>
void SubtractFromVector(TQorVector<T>& a, std::type_identity_t<VectorView<T>> b) {
  detail::RequireSameLength(a, b);
  Combine<T>(a, b, a.data(), detail::Difference);
}

template <WideNumericElement T>
SumOf<T> DotProdVectors(VectorView<T> a, VectorView<T> b) {
  detail::RequireSameLength(a, b);
  detail::RequireElements(a);
  if constexpr (FloatElement<T>) {
    return detail::AddProducts(0, a, b);
  } else {
    return detail::IntegerProductSum<T>(a, b);
  }
}

template <WideNumericElement T>
Extended AngleBetweenVectors(VectorView<T> a, VectorView<T> b) {
  const Extended magnitude_a = VectorMagnitude(a);
  const Extended magnitude_b = VectorMagnitude(b);
  if (magnitude_a == 0 || magnitude_b == 0) RaiseMathError(rsMagZero);
  return QorArcCos(static_cast<Extended>(DotProdVectors(a, b)) / (magnitude_a * magnitude_b));
}

#define QORVEX_INSTANTIATE(T)                                           \
  template TQorVector<T> AddVectors(VectorView<T>, VectorView<T>);      \
  template TQorVector<T> SubtractVectors(VectorView<T>, VectorView<T>); \
  template void AddToVector(TQorVector<T>&, VectorView<T>);             \
  template void SubtractFromVector(TQorVector<T>&, VectorView<T>);
QORVEX_FOR_ADDITIVE_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

#define QORVEX_INSTANTIATE(T)                                     \
  template SumOf<T> DotProdVectors(VectorView<T>, VectorView<T>); \
  template Extended AngleBetweenVectors(VectorView<T>, VectorView<T>);
QORVEX_FOR_WIDE_NUMERIC_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexVector
