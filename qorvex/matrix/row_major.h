#pragma once

/// @file
/// Matrices as flat arrays in row-major order, the layout of C arrays and of most other libraries.
///
/// - Element [i][j] of a matrix with `cols` columns is element i * cols + j of the array.
/// - The results share no buffers with any other vector or matrix.
/// - A matrix that is stored by columns, as Eigen's are by default, is the transpose of one that is
///   stored by rows: TransposeMatrix(MatrixFromRowMajor(elements, rows)).
/// - O(number of elements). For all element types.

#include <cstddef>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexMatrix {

/// @{
/// A matrix with `cols` columns, filled row by row.
///
/// - No elements give an empty matrix, for any number of columns.
/// - EMathError with rsMatrixRect if the last row would be incomplete, or if there are elements but
///   no columns.
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT TQorMatrix<T> MatrixFromRowMajor(VectorView<T> elements,
                                                             WholeNumber<std::size_t> cols);
template <ContiguousRange Range>
requires AnyElement<ElementOf<Range>>
[[nodiscard]] inline TQorMatrix<ElementOf<Range>> MatrixFromRowMajor(
    const Range& elements, WholeNumber<std::size_t> cols) {
  return MatrixFromRowMajor<ElementOf<Range>>(elements, cols);
}
/// @}

/// The elements row by row.
///
/// - A matrix without elements gives an empty vector.
/// - EMathError with rsMatrixRect for a ragged matrix, also with the shape switch off, because the
///   matrix could not be restored from its elements.
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT TQorVector<T> MatrixToRowMajor(const TQorMatrix<T>& matrix);

}  // namespace qorvex::inline QorvexMatrix
