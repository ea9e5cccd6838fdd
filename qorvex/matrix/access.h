#pragma once

/// @file
/// Copying single rows and columns between a matrix and a vector.
///
/// - If MatrixDimensions reports at most one row or at most one column, nothing is written, the
///   extracted vector is empty and no error is raised, for any index. With the shape switch on this
///   includes ragged matrices, which count as having no columns.
/// - Otherwise EMathError, in this order and before anything is written: rsInvalidRow or
///   rsInvalidCol if the index is out of range; with the shape switch off rsMatrixRect if a row
///   that is read or written is shorter than the first.
/// - For all element types.

#include <cstdint>
#include <type_traits>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexMatrix {

/// @{
/// A copy of one row or one column. O(rows + columns).
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT TQorVector<T> ExtractMatrixRow(const TQorMatrix<T>& matrix,
                                                           std::uint32_t row);
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT TQorVector<T> ExtractMatrixCol(const TQorMatrix<T>& matrix,
                                                           std::uint32_t col);
/// @}

/// @{
/// Overwrites one row or one column with the elements of a contiguous range of the element type. If
/// there are fewer, the others are set to the fill value; excess elements are ignored. The change
/// is seen through every handle of a row's buffer. O(rows + columns).
template <AnyElement T>
QORVEX_EXPORT void OverwriteMatrixRow(TQorMatrix<T>& matrix, std::uint32_t row,
                                      VectorView<std::type_identity_t<T>> vector, ScalarOf<T> fill);
template <AnyElement T>
QORVEX_EXPORT void OverwriteMatrixCol(TQorMatrix<T>& matrix, std::uint32_t col,
                                      VectorView<std::type_identity_t<T>> vector, ScalarOf<T> fill);
/// @}

}  // namespace qorvex::inline QorvexMatrix
