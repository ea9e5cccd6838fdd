#pragma once

/// @file
/// The transpose of a matrix.

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexMatrix {

/// A new matrix whose element [j][i] has the bits of matrix[i][j]. EMathError with rsMatrixRect for
/// a ragged or empty matrix; with the shape switch off an empty one gives an empty result, and one
/// with a row shorter than the first raises. For all elements. O(elements), in blocks that
/// suit the caches.
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT TQorMatrix<T> TransposeMatrix(const TQorMatrix<T>& matrix);

}  // namespace qorvex::inline QorvexMatrix
