#include "qorvex/matrix/reduction.h"

#include <algorithm>
#include <cmath>
#include <concepts>
#include <utility>
#include <vector>

#include "qorvex/matrix/detail/checks.h"
#include "qorvex/matrix/detail/deferred_rows.h"
#include "qorvex/matrix/detail/direct_rows.h"
#include "qorvex/matrix/detail/elimination.h"
#include "qorvex/matrix/detail/new_matrix.h"
#include "qorvex/matrix/detail/rectangular_check_pause.h"
#include "qorvex/vector/building.h"

namespace qorvex::inline QorvexMatrix {

namespace {

// From this many rows on, deferring additions saves more time than it costs.
constexpr std::size_t kLeastDeferredRows = 14;

// Gives rows that share a buffer with an earlier row of the matrix their own buffer, because
// reduced rows differ.
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

// Calls reduce with the rows of the matrix as DirectRows or DeferredRows, whichever is faster.
template <FloatElement T, class Reduce>
auto WithRows(TQorMatrix<T>& matrix, std::size_t cols, Reduce reduce) {
  SeparateRows(matrix);
  if constexpr (std::same_as<T, Extended>) {
    if (matrix.size() >= kLeastDeferredRows) return reduce(detail::DeferredRows(matrix, cols));
  }
  return reduce(detail::DirectRows<T>(matrix, cols));
}

template <FloatElement T>
std::size_t ReduceToEchelonForm(TQorMatrix<T>& matrix) {
  const detail::Shape shape = detail::RequireRectangularMatrix(matrix);
  const detail::RectangularCheckPause pause;
  return WithRows(matrix, shape.cols, [&](auto rows) {
    return detail::Eliminate(rows, shape.rows, shape.cols, detail::NoObserver());
  });
}

// Repeats the steps on the rows of the inverse.
template <class Rows>
class InverseObserver {
 public:
  explicit InverseObserver(Rows& rows) : rows_(rows) {}
  void Swapped(std::size_t row1, std::size_t row2) { rows_.Swap(row1, row2); }
  void Scaled(std::size_t row, Extended pivot, Extended factor) {
    rows_.Scale(row, factor);
    pivots_are_finite_ &= std::isfinite(pivot);
  }
  void Added(std::size_t target, std::size_t source, Extended factor) {
    rows_.Add(target, source, factor);
  }
  [[nodiscard]] bool PivotsAreFinite() const { return pivots_are_finite_; }

 private:
  Rows& rows_;
  bool pivots_are_finite_ = true;
};

// Clears the elements above the pivots on the main diagonal. The row additions that this takes are
// only performed on the inverse, since in the matrix they would add zeros.
template <FloatElement T, class Rows>
void SubstituteBack(TQorMatrix<T>& matrix, Rows& inverse_rows) {
  for (std::size_t col = matrix.size() - 1; col > 0; --col) {
    for (std::size_t row = col; row-- > 0;) {
      const auto element = static_cast<Extended>(std::exchange(matrix[row][col], T(0)));
      if (FloatIsNotZero(element)) inverse_rows.Add(row, col, -element);
    }
  }
  inverse_rows.Flush();
}

template <FloatElement T>
bool IsFinite(const TQorMatrix<T>& matrix) {
  return std::ranges::all_of(matrix, [](const TQorVector<T>& row) {
    return std::ranges::all_of(row, [](T x) { return std::isfinite(x); });
  });
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
  ReduceToEchelonForm(matrix);
}

template <FloatElement T>
void RowEchelonFormRank(TQorMatrix<T>& matrix, std::uint32_t& rank) {
  rank = 0;
  rank = static_cast<std::uint32_t>(ReduceToEchelonForm(matrix));
}

template <FloatElement T>
bool MatrixInverse(TQorMatrix<T>& matrix, TQorMatrix<T>& inverse) {
  const std::size_t order = detail::RequireSquareMatrix(matrix).rows;
  const detail::RectangularCheckPause pause;
  // The inverse is assigned last, since it may be the matrix itself.
  auto result = detail::NewIdentityMatrix<T>(order);
  const bool regular = WithRows(matrix, order, [&]<class Rows>(Rows rows) {
    Rows result_rows(result, order);
    InverseObserver observer(result_rows);
    const std::size_t rank = detail::Eliminate(rows, order, order, observer);
    result_rows.Flush();
    if (rank < order || !observer.PivotsAreFinite()) return false;
    SubstituteBack(matrix, result_rows);
    return IsFinite(result);
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
