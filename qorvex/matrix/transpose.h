#pragma once

/// @file
/// The transpose of a matrix.

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexMatrix {

/// A new matrix whose element [j][i] is a bitwise copy of matrix[i][j].
///
/// - EMathError with rsMatrixRect for a ragged or empty matrix. With the shape switch off only if a
///   row is shorter than the first; an empty matrix gives an empty result.
/// - O(number of elements), in blocks that fit the caches. For all element types.
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT TQorMatrix<T> TransposeMatrix(const TQorMatrix<T>& matrix);

}  // namespace qorvex::inline QorvexMatrix
