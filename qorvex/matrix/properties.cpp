#include "qorvex/matrix/properties.h"

#include <algorithm>

#include "qorvex/base/comparisons.h"
#include "qorvex/matrix/detail/checks.h"

namespace qorvex::inline QorvexMatrix {

template <FloatElement T>
std::uint32_t MatrixZeroRows(const TQorMatrix<T>& matrix) {
  detail::RequireRectangularMatrix(matrix);
  const auto is_zero = [](const TQorVector<T>& row) {
    return std::ranges::all_of(row, [](T x) { return FloatIsZero(x); });
  };
  return static_cast<std::uint32_t>(std::ranges::count_if(matrix, is_zero));
}

template <FloatElement T>
bool MatrixIsIdentity(const TQorMatrix<T>& matrix) {
  const std::size_t order = detail::RequireSquareMatrix(matrix);
  for (std::size_t i = 0; i < order; ++i) {
    const T* const row = matrix[i].data();
    for (std::size_t j = 0; j < order; ++j) {
      const Extended expected = i == j ? 1 : 0;
      if (FloatIsNotZero(static_cast<Extended>(row[j]) - expected)) return false;
    }
  }
  return true;
}

#define QORVEX_INSTANTIATE(T)                                  \
  template std::uint32_t MatrixZeroRows(const TQorMatrix<T>&); \
  template bool MatrixIsIdentity(const TQorMatrix<T>&);
QORVEX_FOR_FLOAT_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexMatrix
