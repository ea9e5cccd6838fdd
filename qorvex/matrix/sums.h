#pragma once

/// @file
/// Sums of rows and columns, and the mean of all elements.
///
/// Floating elements are summed in extended precision, in ascending order of their indices: the
/// order is part of the result. NaN gives NaN, infinities what the processor makes of them. Nothing
/// is written.

#include <concepts>
#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexMatrix {

/// The mean of all elements in extended precision, row by row; integers are converted before they
/// are added. Rows may differ in length. count receives the number of elements, of which there must
/// be fewer than 2^32. EMathError with rsMatrixIsEmpty for a matrix without rows, which leaves
/// count as it is, and for one whose rows are all empty, which sets it to 0. For floating elements,
/// Int64 and LInt. O(elements).
template <SignedArithmeticElement T>
[[nodiscard]] QORVEX_EXPORT Extended GrandMean(const TQorMatrix<T>& matrix, std::uint32_t& count);

/// The mean of all amounts: the sum of their stored integers, which wraps around at 64 bits,
/// divided by their number and rounded to the nearest amount, ties to even. Errors and count as
/// above. For the currencies. O(elements).
template <CurrencyElement T>
[[nodiscard]] QORVEX_EXPORT T GrandMean(const TQorMatrix<T>& matrix, std::uint32_t& count);

/// @{
/// The sum of one row or one column: extended for floating elements; int64, which wraps around
/// silently, for integers. EMathError: rsMatrixIsEmpty for a matrix without rows or columns, or a
/// ragged one; rsInvalidRow or rsInvalidCol for an index beyond the last; then rsMatrixRect when,
/// with the shape switch off, a row that is read is shorter than the first. For all numeric
/// elements but LInt. O(rows + columns); a row with the shape switch off O(columns).
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
