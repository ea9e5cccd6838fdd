#include "qorvex/vector/transforms.h"

#include <cmath>
#include <concepts>
#include <span>

#include "qorvex/base/elementary/functions.h"
#include "qorvex/vector/detail/amount_transform.h"
#include "qorvex/vector/detail/checks.h"
#include "qorvex/vector/detail/element_arithmetic.h"
#include "qorvex/vector/detail/integer_arithmetic.h"
#include "qorvex/vector/sign_tests.h"

namespace qorvex::inline QorvexVector {

namespace {

// Replaces each element by function(element), computed in extended precision.
template <FloatElement T, class Function>
void Replace(TQorVector<T>& vector, Function function) {
  for (T& x : vector) x = static_cast<T>(function(static_cast<Extended>(x)));
}

// The same with one of the elementary functions. Extended elements need no conversion, so the form
// over a range takes all of them at once, which is quicker.
template <FloatElement T>
void Replace(TQorVector<T>& vector, Extended (*function)(Extended),
             void (*over_range)(VectorView<Extended>, std::span<Extended>)) {
  if constexpr (std::same_as<T, Extended>) {
    over_range(vector, vector);
  } else {
    Replace(vector, function);
  }
}

}  // namespace

template <WideNumericElement T>
void SquareVector(TQorVector<T>& vector) {
  detail::RequireElements(vector);
  if constexpr (FloatElement<T>) {
    Replace(vector, [](Extended x) { return x * x; });
  } else {
    for (T& x : vector) x = static_cast<T>(detail::NarrowSquare(x));
  }
}

template <FloatElement T>
void SqrtVector(TQorVector<T>& vector) {
  if (!VectorNonNegative(vector)) RaiseMathError(rsVectorNeg);
  Replace(vector, [](Extended x) { return std::sqrt(x); });
}

template <FloatElement T>
void InvVector(TQorVector<T>& vector) {
  if (!VectorNonZero(vector)) RaiseMathError(rsVectorZero);
  Replace(vector, [](Extended x) { return 1 / x; });
}

template <FloatElement T>
void LnVector(TQorVector<T>& vector) {
  if (!VectorPositive(vector)) RaiseMathError(rsVectorNotPos);
  Replace(vector, Log, Log);
}

template <FloatElement T>
void Log10Vector(TQorVector<T>& vector) {
  if (!VectorPositive(vector)) RaiseMathError(rsVectorNotPos);
  Replace(vector, Log10, Log10);
}

template <FloatElement T>
void Log2Vector(TQorVector<T>& vector) {
  if (!VectorPositive(vector)) RaiseMathError(rsVectorNotPos);
  Replace(vector, Log2, Log2);
}

template <class T>
requires FloatElement<T> || std::same_as<T, std::int64_t>
void LinearTransformVector(TQorVector<T>& vector, ScalarOf<T> slope, ScalarOf<T> intercept) {
  detail::RequireElements(vector);
  using Constant = std::conditional_t<FloatElement<T>, Extended, T>;
  for (T& x : vector) x = detail::ProductPlus<T, Constant>(x, slope, intercept);
}

template <CurrencyElement T>
void LinearTransformVector(TQorVector<T>& vector, Extended slope, Extended intercept) {
  detail::RequireElements(vector);
  detail::TransformAmounts<T>(vector, slope, intercept);
}

template <FloatElement T>
void TransformVector(TQorVector<T>& vector, std::type_identity_t<T (*)(T)> func) {
  detail::RequireElements(vector);
  for (T& x : vector) x = func(x);
}

#define QORVEX_INSTANTIATE(T)                \
  template void SqrtVector(TQorVector<T>&);  \
  template void InvVector(TQorVector<T>&);   \
  template void LnVector(TQorVector<T>&);    \
  template void Log10Vector(TQorVector<T>&); \
  template void Log2Vector(TQorVector<T>&);  \
  template void TransformVector(TQorVector<T>&, T (*)(T));
QORVEX_FOR_FLOAT_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

#define QORVEX_INSTANTIATE(T) template void SquareVector(TQorVector<T>&);
QORVEX_FOR_WIDE_NUMERIC_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

#define QORVEX_INSTANTIATE(T) \
  template void LinearTransformVector(TQorVector<T>&, Extended, Extended);
QORVEX_FOR_CURRENCY_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

#define QORVEX_INSTANTIATE(T) \
  template void LinearTransformVector(TQorVector<T>&, ScalarOf<T>, ScalarOf<T>);
QORVEX_FOR_FLOAT_ELEMENTS(QORVEX_INSTANTIATE)
QORVEX_INSTANTIATE(std::int64_t)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexVector
