#include "qorvex/vector/sign_tests.h"

#include <algorithm>

#include "qorvex/base/comparisons.h"
#include "qorvex/vector/detail/checks.h"

namespace qorvex::inline QorvexVector {

namespace {

// The value that is compared with the tolerance: the element, or the amount in units.
template <class T>
T ComparedValue(T x) {
  return x;
}
Extended ComparedValue(Currency x) {
  return Currency2Float(x);
}

// The sign of one element.
template <SignTestElement T>
struct Sign {
  static bool IsZero(T x) { return FloatIsZero(ComparedValue(x)); }
  static bool IsExcludedZero(T x) { return FloatIsZero(ComparedValue(x)); }
  static bool IsPositive(T x) { return FloatIsPositive(ComparedValue(x)); }
  static bool IsNegative(T x) { return FloatIsNegative(ComparedValue(x)); }
};

template <>
bool Sign<float>::IsExcludedZero(float x) {
  return x == 0;
}

template <class T>
struct ExactSign {
  static bool IsZero(T x) { return x == T(); }
  static bool IsExcludedZero(T x) { return x == T(); }
  static bool IsPositive(T x) { return x > T(); }
  static bool IsNegative(T x) { return x < T(); }
};

template <>
struct Sign<std::int64_t> : ExactSign<std::int64_t> {};
template <>
struct Sign<QorCurrency> : ExactSign<QorCurrency> {};
template <>
struct Sign<QorLongCurrency> : ExactSign<QorLongCurrency> {};

}  // namespace

template <SignTestElement T>
bool VectorZero(VectorView<T> vector) {
  detail::RequireElements(vector);
  return std::ranges::all_of(vector, Sign<T>::IsZero);
}

template <SignTestElement T>
bool VectorNonZero(VectorView<T> vector) {
  detail::RequireElements(vector);
  return std::ranges::none_of(vector, Sign<T>::IsExcludedZero);
}

template <SignTestElement T>
bool VectorPositive(VectorView<T> vector) {
  detail::RequireElements(vector);
  return std::ranges::all_of(vector, Sign<T>::IsPositive);
}

template <SignTestElement T>
bool VectorNonNegative(VectorView<T> vector) {
  detail::RequireElements(vector);
  return std::ranges::none_of(vector, Sign<T>::IsNegative);
}

#define QORVEX_INSTANTIATE(T)                  \
  template bool VectorZero(VectorView<T>);     \
  template bool VectorNonZero(VectorView<T>);  \
  template bool VectorPositive(VectorView<T>); \
  template bool VectorNonNegative(VectorView<T>);
QORVEX_FOR_FLOAT_ELEMENTS(QORVEX_INSTANTIATE)
QORVEX_INSTANTIATE(std::int64_t)
QORVEX_FOR_CURRENCY_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexVector
