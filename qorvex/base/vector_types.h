#pragma once

/// @file
/// The thirteen vector types and the thirteen matrix types.

#include <iosfwd>

#include "qorvex/base/currency.h"
#include "qorvex/base/dyn_array.h"
#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/base/vector_view.h"

namespace qorvex {

/// All thirteen elements of vectors and matrices.
template <class T>
concept AnyElement =
    OneOf<T, Extended, double, float, std::int64_t, std::uint32_t, std::int32_t, std::uint16_t,
          std::int16_t, std::uint8_t, std::int8_t, Currency, QorCurrency, QorLongCurrency>;

/// The elements of at least 32 bits: six numeric ones and the currencies.
template <class T>
concept WideElement = OneOf<T, Extended, double, float, std::int64_t, std::uint32_t, std::int32_t,
                            Currency, QorCurrency, QorLongCurrency>;

/// The elements with addition and subtraction: the floating ones, int64, int32 and the currencies.
template <class T>
concept AdditiveElement = OneOf<T, Extended, double, float, std::int64_t, std::int32_t, Currency,
                                QorCurrency, QorLongCurrency>;

/// A vector: a dynamic array of one element type.
template <class T>
using TQorVector = DynArray<T>;

/// A matrix: a dynamic array of rows, row index first. Rows may differ in length.
template <class T>
using TQorMatrix = DynArray<DynArray<T>>;

/// @{
/// The vector type of one element type.
using TQorFloatVector = TQorVector<Extended>;
using TQorDoubleVector = TQorVector<double>;
using TQorSingleVector = TQorVector<float>;
using TQorInt64Vector = TQorVector<std::int64_t>;
using TQorLWordVector = TQorVector<std::uint32_t>;
using TQorLIntVector = TQorVector<std::int32_t>;
using TQorWordVector = TQorVector<std::uint16_t>;
using TQorSmallIntVector = TQorVector<std::int16_t>;
using TQorByteVector = TQorVector<std::uint8_t>;
using TQorSIntVector = TQorVector<std::int8_t>;
using TQorCurrencyVector = TQorVector<Currency>;
using TQorCurrVector = TQorVector<QorCurrency>;
using TQorLongCurrVector = TQorVector<QorLongCurrency>;
/// @}

/// @{
/// The matrix type of one element type.
using TQorFloatMatrix = TQorMatrix<Extended>;
using TQorDoubleMatrix = TQorMatrix<double>;
using TQorSingleMatrix = TQorMatrix<float>;
using TQorInt64Matrix = TQorMatrix<std::int64_t>;
using TQorLWordMatrix = TQorMatrix<std::uint32_t>;
using TQorLIntMatrix = TQorMatrix<std::int32_t>;
using TQorWordMatrix = TQorMatrix<std::uint16_t>;
using TQorSmallIntMatrix = TQorMatrix<std::int16_t>;
using TQorByteMatrix = TQorMatrix<std::uint8_t>;
using TQorSIntMatrix = TQorMatrix<std::int8_t>;
using TQorCurrencyMatrix = TQorMatrix<Currency>;
using TQorCurrMatrix = TQorMatrix<QorCurrency>;
using TQorLongCurrMatrix = TQorMatrix<QorLongCurrency>;
/// @}

/// @{
/// Writes [1, 2.5, -3], or the rows of a matrix one below the other, as vector_text.h describes.
///
/// - The text is exact unless std::fixed, std::scientific or a precision other than 6 is set. A new
///   stream has the precision 6; std::hexfloat counts as not set. Vector2Str with kGeneral writes
///   six significant digits.
/// - Every element has the stream's width and fill. The columns of a matrix are aligned at the
///   decimal point, or with std::left and std::right at their sides. std::showpos adds plus signs.
/// - The width becomes 0. Locales and the other settings, such as std::internal, have no effect.
/// - Running out of memory sets badbit, and is raised only if exceptions() contains badbit.
template <AnyElement T>
QORVEX_EXPORT std::ostream& operator<<(std::ostream& out, const TQorVector<T>& vector);
template <AnyElement T>
QORVEX_EXPORT std::ostream& operator<<(std::ostream& out, const TQorMatrix<T>& matrix);
/// @}

/// @{
/// Lets GoogleTest print what operator<< writes. It would print six digits of each element.
template <AnyElement T>
inline void PrintTo(const TQorVector<T>& vector, std::ostream* out) {
  operator<<(*out, vector);
}
template <AnyElement T>
inline void PrintTo(const TQorMatrix<T>& matrix, std::ostream* out) {
  operator<<(*out, matrix);
}
/// @}

}  // namespace qorvex

/// @cond internal
// Lists for explicit instantiation: X is applied to each element type of the family.
#define QORVEX_FOR_CURRENCY_ELEMENTS(X) \
  X(qorvex::Currency) X(qorvex::QorCurrency) X(qorvex::QorLongCurrency)
#define QORVEX_FOR_WIDE_ELEMENTS(X) \
  QORVEX_FOR_WIDE_NUMERIC_ELEMENTS(X) QORVEX_FOR_CURRENCY_ELEMENTS(X)
#define QORVEX_FOR_ADDITIVE_ELEMENTS(X) \
  QORVEX_FOR_SIGNED_ARITHMETIC_ELEMENTS(X) QORVEX_FOR_CURRENCY_ELEMENTS(X)
#define QORVEX_FOR_ALL_ELEMENTS(X) QORVEX_FOR_NUMERIC_ELEMENTS(X) QORVEX_FOR_CURRENCY_ELEMENTS(X)
/// @endcond
