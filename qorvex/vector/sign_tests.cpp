#include "qorvex/vector/sign_tests.h"

#include <algorithm>

#include "qorvex/base/comparisons.h"
#include "qorvex/vector/detail/checks.h"

namespace qorvex::inline QorvexVector {

namespace {

// How the sign of one element is judged.
template <SignTestElement T>
struct Sign {
  static bool IsZero(T x) { return FloatIsZero(x); }
  static bool IsExcludedZero(T x) { return FloatIsZero(x); }
  static bool IsPositive(T x) { return FloatIsPositive(x); }
  static bool IsNegative(T x) { return FloatIsNegative(x); }
};

template <>
bool Sign<float>::IsExcludedZero(float x) {
  return x == 0;
}

template <>
struct Sign<std::int64_t> {
  static bool IsZero(std::int64_t x) { return x == 0; }
  static bool IsExcludedZero(std::int64_t x) { return x == 0; }
  static bool IsPositive(std::int64_t x) { return x > 0; }
  static bool IsNegative(std::int64_t x) { return x < 0; }
};

}  // namespace

template <SignTestElement T>
bool VectorZero(const TQorVector<T>& vector) {
  detail::RequireElements(vector);
  return std::ranges::all_of(vector, Sign<T>::IsZero);
}

template <SignTestElement T>
bool VectorNonZero(const TQorVector<T>& vector) {
  detail::RequireElements(vector);
  return std::ranges::none_of(vector, Sign<T>::IsExcludedZero);
}

template <SignTestElement T>
bool VectorPositive(const TQorVector<T>& vector) {
  detail::RequireElements(vector);
  return std::ranges::all_of(vector, Sign<T>::IsPositive);
}

template <SignTestElement T>
bool VectorNonNegative(const TQorVector<T>& vector) {
  detail::RequireElements(vector);
  return std::ranges::none_of(vector, Sign<T>::IsNegative);
}

#define QORVEX_INSTANTIATE(T)                         \
  template bool VectorZero(const TQorVector<T>&);     \
  template bool VectorNonZero(const TQorVector<T>&);  \
  template bool VectorPositive(const TQorVector<T>&); \
  template bool VectorNonNegative(const TQorVector<T>&);
QORVEX_FOR_FLOAT_ELEMENTS(QORVEX_INSTANTIATE)
QORVEX_INSTANTIATE(std::int64_t)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexVector
