#pragma once

/// @file
/// Functions applied to every element of a vector in place.
///
/// - The change is seen through every handle of the buffer.
/// - Floating elements are computed in extended precision and rounded to their type when stored.
/// - Elements are checked before anything is changed. NaN passes the checks for zero and for
///   negative elements, but not the check for positive elements.
/// - NaN and infinities propagate as in IEEE 754 arithmetic.
/// - O(n).

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "qorvex/base/errors.h"
#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexVector {

/// Squares each element. Of an int64 element the low 32 bits are squared and the low 32 bits of the
/// product are sign-extended; int32 and uint32 elements keep the low 32 bits. n = 0 raises
/// EMathError with rsVectorIsEmpty. For the six numeric element types of at least 32 bits.
template <WideNumericElement T>
QORVEX_EXPORT void SquareVector(TQorVector<T>& vector);

/// Replaces each element by its square root.
///
/// - EMathError, in this order: rsVectorIsEmpty for n = 0, rsVectorNeg if an element is less than
///   -QorTolerance. Negative elements within the tolerance become NaN.
/// - For floating elements.
template <FloatElement T>
QORVEX_EXPORT void SqrtVector(TQorVector<T>& vector);

/// Replaces each element by its reciprocal.
///
/// - EMathError, in this order: rsVectorIsEmpty for n = 0, rsVectorZero if an element is zero
///   within QorTolerance, or exactly zero in a Single vector.
/// - For floating elements.
template <FloatElement T>
QORVEX_EXPORT void InvVector(TQorVector<T>& vector);

/// @{
/// Replaces each element by its natural, base-10 or base-2 logarithm.
///
/// - EMathError, in this order: rsVectorIsEmpty for n = 0, rsVectorNotPos if an element is NaN or
///   not greater than QorTolerance.
/// - For floating elements.
template <FloatElement T>
QORVEX_EXPORT void LnVector(TQorVector<T>& vector);
template <FloatElement T>
QORVEX_EXPORT void Log10Vector(TQorVector<T>& vector);
template <FloatElement T>
QORVEX_EXPORT void Log2Vector(TQorVector<T>& vector);
/// @}

/// Replaces each element x by slope * x + intercept. The product and the sum are each rounded to
/// extended precision for floating elements; int64 arithmetic wraps around. n = 0 raises EMathError
/// with rsVectorIsEmpty. For floating elements and int64.
template <class T>
requires FloatElement<T> || std::same_as<T, std::int64_t> QORVEX_EXPORT void LinearTransformVector(
    TQorVector<T>& vector, ScalarOf<T> slope, ScalarOf<T> intercept);

/// Replaces each amount by slope * amount + intercept in units, computed in extended precision.
///
/// - The result is rounded to the nearest amount, ties to even. Values out of range become the
///   smallest amount.
/// - QorCurrency and QorLongCurrency amounts are divided by their scale first. For Currency the
///   stored integer becomes slope * stored + intercept * 10,000.
/// - n = 0: EMathError with rsVectorIsEmpty.
template <CurrencyElement T>
QORVEX_EXPORT void LinearTransformVector(TQorVector<T>& vector, Extended slope, Extended intercept);

/// @cond internal
namespace detail {

// The parameter of a call operator that is not a template.
template <class Class, class Result, class Parameter>
Parameter ParameterOf(Result (Class::*)(Parameter));
template <class Class, class Result, class Parameter>
Parameter ParameterOf(Result (Class::*)(Parameter) const);

// A parameter that would truncate its argument.
template <class Function>
concept HasIntegerParameter =
    std::integral<std::remove_cvref_t<decltype(ParameterOf(&Function::operator()))>>;

// A function object for elements of T. Plain functions have the exported form.
template <class Function, class T>
concept ElementFunction =
    std::is_class_v<Function> && !HasIntegerParameter<Function> &&
    std::floating_point<std::remove_cvref_t<std::invoke_result_t<Function&, const T&>>>;

}  // namespace detail
/// @endcond

/// @{
/// Replaces each element x by func(x), which is called once for each element in ascending order.
///
/// - func is a plain function T(T), or any function object, such as a lambda with captures, that
///   takes a floating value and returns one. The object is called by reference, not copied.
/// - func must not be null, and must not change the length of the vector.
/// - Exceptions from func are passed on; the elements before are already replaced then.
/// - n = 0: EMathError with rsVectorIsEmpty.
/// - For floating elements.
template <FloatElement T>
QORVEX_EXPORT void TransformVector(TQorVector<T>& vector, std::type_identity_t<T (*)(T)> func);
template <FloatElement T>
void TransformVector(TQorVector<T>& vector, std::nullptr_t func) = delete;
template <FloatElement T, class Function>
requires detail::ElementFunction<std::remove_reference_t<Function>, T>
void TransformVector(TQorVector<T>& vector, Function&& func) {
  if (vector.empty()) RaiseMathError(rsVectorIsEmpty);
  for (T& x : vector) x = static_cast<T>(func(static_cast<const T&>(x)));
}
/// @}

}  // namespace qorvex::inline QorvexVector
