#include "qorvex/matrix/shape.h"

#include <mutex>

#include "qorvex/matrix/currency_shape.h"
#include "qorvex/matrix/detail/checks.h"
#include "qorvex/matrix/detail/rectangular_check_pause.h"

namespace qorvex::inline QorvexMatrix {

constinit std::atomic<bool> QorMatrixRectangularCheck = true;

namespace detail {

namespace {

constinit std::mutex pauses_mutex;
constinit int pauses = 0;
constinit bool check_before_pauses = true;

}  // namespace

RectangularCheckPause::RectangularCheckPause() {
  const std::lock_guard lock(pauses_mutex);
  if (pauses++ != 0) return;
  check_before_pauses = QorMatrixRectangularCheck.load(std::memory_order_relaxed);
  QorMatrixRectangularCheck.store(false, std::memory_order_relaxed);
}

RectangularCheckPause::~RectangularCheckPause() {
  const std::lock_guard lock(pauses_mutex);
  if (--pauses == 0) {
    QorMatrixRectangularCheck.store(check_before_pauses, std::memory_order_relaxed);
  }
}

}  // namespace detail

template <NumericElement T>
std::uint32_t MatrixRows(const TQorMatrix<T>& matrix) noexcept {
  return detail::ShapeOf(matrix, false).rows;
}

template <NumericElement T>
std::uint32_t MatrixCols(const TQorMatrix<T>& matrix) noexcept {
  return detail::ShapeOf(matrix, false).cols;
}

template <AnyElement T>
void MatrixDimensions(const TQorMatrix<T>& matrix, std::uint32_t& rows, std::uint32_t& cols,
                      bool& rectangular) noexcept {
  const detail::Shape shape = detail::ShapeOf(matrix);
  rows = shape.rows;
  cols = shape.cols;
  rectangular = shape.rectangular;
}

template <AnyElement T>
bool MatrixIsRectangular(const TQorMatrix<T>& matrix) noexcept {
  return !matrix.empty() && detail::HasRowsOfLength(matrix, matrix[0].size());
}

template <AnyElement T>
bool MatrixIsSquare(const TQorMatrix<T>& matrix) noexcept {
  const detail::Shape shape = detail::ShapeOf(matrix);
  return shape.rectangular && shape.rows == shape.cols;
}

template <AnyElement T>
bool MatricesSameDimensions(const TQorMatrix<T>& a, const TQorMatrix<T>& b) noexcept {
  const detail::Shape shape_a = detail::ShapeOf(a);
  const detail::Shape shape_b = detail::ShapeOf(b);
  return shape_a.rectangular && shape_b.rectangular && shape_a.rows == shape_b.rows &&
         shape_a.cols == shape_b.cols;
}

#define QORVEX_INSTANTIATE(T)                                       \
  template std::uint32_t MatrixRows(const TQorMatrix<T>&) noexcept; \
  template std::uint32_t MatrixCols(const TQorMatrix<T>&) noexcept;
QORVEX_FOR_NUMERIC_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

#define QORVEX_INSTANTIATE(T)                                                          \
  template void MatrixDimensions(const TQorMatrix<T>&, std::uint32_t&, std::uint32_t&, \
                                 bool&) noexcept;                                      \
  template bool MatrixIsRectangular(const TQorMatrix<T>&) noexcept;                    \
  template bool MatrixIsSquare(const TQorMatrix<T>&) noexcept;                         \
  template bool MatricesSameDimensions(const TQorMatrix<T>&, const TQorMatrix<T>&) noexcept;
QORVEX_FOR_ALL_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexMatrix

namespace qorvex::inline QorvexFinMatrix {

constinit std::atomic<bool> QorMatrixRectangularCheck = true;

}  // namespace qorvex::inline QorvexFinMatrix
