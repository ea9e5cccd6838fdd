#include "qorvex/matrix/transpose.h"

#include <algorithm>
#include <array>

#include "qorvex/matrix/detail/checks.h"
#include "qorvex/matrix/detail/copy_element.h"
#include "qorvex/matrix/detail/new_matrix.h"

namespace qorvex::inline QorvexMatrix {

namespace {

// The size of a block of the source. Its rows and those of the result fit the first-level cache
// together, even for extended elements, so that each cache line is loaded only once.
constexpr std::size_t kBlockRows = 16;
constexpr std::size_t kBlockCols = 32;

}  // namespace

template <AnyElement T>
TQorMatrix<T> TransposeMatrix(const TQorMatrix<T>& matrix) {
  const detail::Shape shape = detail::ShapeOf(matrix);
  detail::RequireRectangular(shape);
  detail::RequireLengths(matrix, shape.cols);
  auto result = detail::NewMatrixForOverwrite<T>(shape.cols, shape.rows);
  std::array<const T*, kBlockRows> from;
  for (std::size_t first_col = 0; first_col < shape.cols; first_col += kBlockCols) {
    const std::size_t end_col = std::min<std::size_t>(first_col + kBlockCols, shape.cols);
    for (std::size_t first_row = 0; first_row < shape.rows; first_row += kBlockRows) {
      const std::size_t height = std::min<std::size_t>(kBlockRows, shape.rows - first_row);
      for (std::size_t i = 0; i < height; ++i) from[i] = matrix[first_row + i].data();
      for (std::size_t j = first_col; j < end_col; ++j) {
        T* const to = result[j].data() + first_row;
        for (std::size_t i = 0; i < height; ++i) detail::CopyElement(from[i][j], to[i]);
      }
    }
  }
  return result;
}

#define QORVEX_INSTANTIATE(T) template TQorMatrix<T> TransposeMatrix(const TQorMatrix<T>&);
QORVEX_FOR_ALL_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexMatrix
