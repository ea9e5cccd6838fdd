#pragma once

/// @file
/// Functions applied to every element of a vector in place, seen through every handle of its
/// buffer.
///
/// Floating elements are computed in extended precision and rounded to their type when stored. A
/// check that fails raises before anything has changed. NaN elements pass the checks for zero and
/// for negative values but not the one for positive values; infinite elements give what the
/// processor makes of them. O(n).

#include <concepts>
#include <cstdint>
#include <type_traits>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexVector {

/// Squares each element. Int64 elements square their low 32 bits and keep the 32-bit product,
/// sign-extended; LInt and LWord keep the low 32 bits. An empty vector raises EMathError with
/// rsVectorIsEmpty. For the six elements of at least 32 bits.
template <WideNumericElement T>
QORVEX_EXPORT void SquareVector(TQorVector<T>& vector);

/// Replaces each element by its square root. EMathError: rsVectorIsEmpty, then rsVectorNeg when an
/// element is negative by more than QorTolerance; one that is negative within it becomes NaN. For
/// floating elements.
template <FloatElement T>
QORVEX_EXPORT void SqrtVector(TQorVector<T>& vector);

/// Replaces each element by its reciprocal. EMathError: rsVectorIsEmpty, then rsVectorZero when an
/// element is zero within QorTolerance (exactly zero in a Single vector). For floating elements.
template <FloatElement T>
QORVEX_EXPORT void InvVector(TQorVector<T>& vector);

/// @{
/// Replaces each element by its natural, base-10 or base-2 logarithm. EMathError: rsVectorIsEmpty,
/// then rsVectorNotPos when an element is not greater than QorTolerance (NaN is not). For floating
/// elements.
template <FloatElement T>
QORVEX_EXPORT void LnVector(TQorVector<T>& vector);
template <FloatElement T>
QORVEX_EXPORT void Log10Vector(TQorVector<T>& vector);
template <FloatElement T>
QORVEX_EXPORT void Log2Vector(TQorVector<T>& vector);
/// @}

/// Replaces each element x by slope * x + intercept: two roundings in extended precision for
/// floating elements, wrapping arithmetic for Int64. An empty vector raises EMathError with
/// rsVectorIsEmpty. For floating elements and Int64.
template <class T>
requires FloatElement<T> || std::same_as<T, std::int64_t> QORVEX_EXPORT void LinearTransformVector(
    TQorVector<T>& vector, ScalarOf<T> slope, ScalarOf<T> intercept);

/// Replaces each amount by slope * amount + intercept in units, computed in extended precision and
/// rounded to the nearest amount, ties to even; what does not fit becomes the smallest amount. For
/// QorCurrency and QorLongCurrency the amount is divided by its scale first; Currency elements
/// compute slope * stored + intercept * 10,000. An empty vector raises EMathError with
/// rsVectorIsEmpty. For the currencies.
template <CurrencyElement T>
QORVEX_EXPORT void LinearTransformVector(TQorVector<T>& vector, Extended slope, Extended intercept);

/// Replaces each element x by func(x), once an element in ascending order. What func throws passes
/// through, with the earlier elements already replaced; func must not be null nor change the
/// vector's length. An empty vector raises EMathError with rsVectorIsEmpty. For floating elements.
template <FloatElement T>
QORVEX_EXPORT void TransformVector(TQorVector<T>& vector, std::type_identity_t<T (*)(T)> func);

}  // namespace qorvex::inline QorvexVector
