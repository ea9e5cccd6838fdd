#pragma once

/// @file
/// Sums of rows and columns, and the mean of all elements.
///
/// - Floating elements are summed in extended precision, in ascending order of their indices. The
///   order is part of the result.
/// - NaN and infinities propagate as in IEEE 754 arithmetic.

#include <concepts>
#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexMatrix {

/// The mean of all elements in extended precision, added row by row. Integers are converted before
/// they are added.
///
/// - count receives the number of elements, which must be less than 2^32. Rows may differ in
///   length.
/// - EMathError with rsMatrixIsEmpty for a matrix without rows, which leaves count unchanged, and
///   for a matrix whose rows are all empty, which sets count to 0.
/// - O(number of elements). For floating elements, int64 and int32.
template <SignedArithmeticElement T>
[[nodiscard]] QORVEX_EXPORT Extended GrandMean(const TQorMatrix<T>& matrix, std::uint32_t& count);

/// The mean of all amounts: the sum of their stored integers, which wraps around at 64 bits,
/// divided by their number and rounded to the nearest amount, ties to even. Errors, count and cost
/// are those of the other overload. For the currencies.
template <CurrencyElement T>
[[nodiscard]] QORVEX_EXPORT T GrandMean(const TQorMatrix<T>& matrix, std::uint32_t& count);

/// @{
/// The sum of one row or one column: Extended for floating elements; int64, which wraps around
/// silently, for integers.
///
/// - EMathError, in this order: rsMatrixIsEmpty for a matrix without rows or columns, or a ragged
///   one; rsInvalidRow or rsInvalidCol if the index is out of range; with the shape switch off
///   rsMatrixRect if a row that is read is shorter than the first.
/// - O(rows + columns); a row with the shape switch off O(columns).
/// - For all numeric element types except int32.
template <NumericElement T>
requires(!std::same_as<T, std::int32_t>)
    [[nodiscard]] QORVEX_EXPORT SumOf<T> SumMatrixRow(const TQorMatrix<T>& matrix,
                                                      std::uint32_t row);
template <NumericElement T>
requires(!std::same_as<T, std::int32_t>)
    [[nodiscard]] QORVEX_EXPORT SumOf<T> SumMatrixCol(const TQorMatrix<T>& matrix,
                                                      std::uint32_t col);
/// @}

}  // namespace qorvex::inline QorvexMatrix
