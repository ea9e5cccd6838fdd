#include "qorvex/matrix/reduction.h"

#include <algorithm>
#include <concepts>
#include <utility>
#include <vector>

#include "qorvex/matrix/detail/checks.h"
#include "qorvex/matrix/detail/deferred_rows.h"
#include "qorvex/matrix/detail/direct_rows.h"
#include "qorvex/matrix/detail/elimination.h"
#include "qorvex/matrix/detail/new_matrix.h"
#include "qorvex/matrix/detail/rectangular_check_pause.h"
#include "qorvex/matrix/properties.h"
#include "qorvex/vector/building.h"

namespace qorvex::inline QorvexMatrix {

namespace {

// From this many rows on, additions that wait for one another save more than keeping them costs.
constexpr std::size_t kLeastDeferredRows = 14;

// Gives rows that share a buffer with an earlier row of the matrix one of their own: reduced rows
// differ.
template <FloatElement T>
void SeparateRows(TQorMatrix<T>& matrix) {
  std::vector<TQorVector<T>*> shared;
  for (TQorVector<T>& row : matrix) {
    if (row.IsShared()) shared.push_back(&row);
  }
  std::ranges::sort(shared, {}, [](TQorVector<T>* row) { return std::pair(row->data(), row); });
  const T* kept = nullptr;
  for (TQorVector<T>* const row : shared) {
    if (row->data() == kept) {
      *row = CopyVector(*row);
    } else {
      kept = row->data();
    }
  }
}

// Calls reduce with the rows of the matrix in the form that suits them.
template <FloatElement T, class Reduce>
auto WithRows(TQorMatrix<T>& matrix, std::size_t cols, Reduce reduce) {
  SeparateRows(matrix);
  if constexpr (std::same_as<T, Extended>) {
    if (matrix.size() >= kLeastDeferredRows) return reduce(detail::DeferredRows(matrix, cols));
  }
  return reduce(detail::DirectRows<T>(matrix, cols));
}

// Repeats the steps on the rows of the inverse.
template <class Rows>
class InverseObserver {
 public:
  explicit InverseObserver(Rows& rows) : rows_(rows) {}
  void Swapped(std::size_t row1, std::size_t row2) { rows_.Swap(row1, row2); }
  void Scaled(std::size_t row, Extended /*pivot*/, Extended factor) { rows_.Scale(row, 0, factor); }
  void Added(std::size_t target, std::size_t source, Extended factor) {
    rows_.Add(target, source, factor);
  }

 private:
  Rows& rows_;
};

// Clears what is above the ones of the main diagonal, with the same steps on the inverse.
template <class Rows>
void SubstituteBack(Rows& rows, std::size_t order, Rows& inverse_rows) {
  for (std::size_t col = order - 1; col > 0; --col) {
    for (std::size_t row = col; row-- > 0;) {
      const Extended element = rows.At(row, col);
      if (FloatIsZero(element)) continue;
      rows.Add(row, col, -element);
      inverse_rows.Add(row, col, -element);
    }
  }
  rows.Settle();
  inverse_rows.Settle();
}

class DeterminantObserver {
 public:
  void Swapped(std::size_t, std::size_t) { determinant_ = -determinant_; }
  void Scaled(std::size_t, Extended pivot, Extended /*factor*/) { determinant_ *= pivot; }
  void Added(std::size_t, std::size_t, Extended) {}
  [[nodiscard]] Extended Determinant() const { return determinant_; }

 private:
  Extended determinant_ = 1;
};

}  // namespace

template <FloatElement T>
void RowEchelonForm(TQorMatrix<T>& matrix) {
  const detail::Shape shape = detail::RequireRectangularMatrix(matrix);
  const detail::RectangularCheckPause pause;
  WithRows(matrix, shape.cols, [&](auto rows) {
    detail::Eliminate(rows, shape.rows, shape.cols, detail::NoObserver());
  });
}

template <FloatElement T>
void RowEchelonFormRank(TQorMatrix<T>& matrix, std::uint32_t& rank) {
  rank = 0;
  RowEchelonForm(matrix);
  rank = MatrixRows(matrix) - MatrixZeroRows(matrix);
}

template <FloatElement T>
bool MatrixInverse(TQorMatrix<T>& matrix, TQorMatrix<T>& inverse) {
  const std::size_t order = detail::RequireSquareMatrix(matrix).rows;
  const detail::RectangularCheckPause pause;
  // The inverse is assigned last, since it may be the matrix itself.
  auto result = detail::NewIdentityMatrix<T>(order);
  const bool regular = WithRows(matrix, order, [&]<class Rows>(Rows rows) {
    Rows result_rows(result, order);
    detail::Eliminate(rows, order, order, InverseObserver(result_rows));
    result_rows.Settle();
    if (MatrixZeroRows(matrix) != 0) return false;
    SubstituteBack(rows, order, result_rows);
    return true;
  });
  inverse = std::move(result);
  return regular;
}

template <FloatElement T>
Extended MatrixDeterminant(TQorMatrix<T>& matrix) {
  const std::size_t order = detail::RequireSquareMatrix(matrix).rows;
  const detail::RectangularCheckPause pause;
  DeterminantObserver observer;
  WithRows(matrix, order, [&](auto rows) { detail::Eliminate(rows, order, order, observer); });
  Extended determinant = observer.Determinant();
  for (std::size_t i = 0; i < order; ++i) determinant *= static_cast<Extended>(matrix[i][i]);
  return determinant;
}

#define QORVEX_INSTANTIATE(T)                                       \
  template void RowEchelonForm(TQorMatrix<T>&);                     \
  template void RowEchelonFormRank(TQorMatrix<T>&, std::uint32_t&); \
  template bool MatrixInverse(TQorMatrix<T>&, TQorMatrix<T>&);      \
  template Extended MatrixDeterminant(TQorMatrix<T>&);
QORVEX_FOR_FLOAT_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexMatrix
