#include "qorvex/matrix/reduction.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "qorvex/matrix/building.h"
#include "qorvex/matrix/detail/checks.h"
#include "qorvex/matrix/detail/elimination.h"
#include "qorvex/matrix/detail/float_inverse.h"
#include "qorvex/matrix/detail/inverse_steps.h"
#include "qorvex/matrix/detail/new_matrix.h"
#include "qorvex/matrix/detail/rectangular_check_pause.h"
#include "qorvex/matrix/detail/with_rows.h"

namespace qorvex::inline QorvexMatrix {

namespace {

template <FloatElement T>
std::size_t ReduceToEchelonForm(TQorMatrix<T>& matrix) {
  const detail::Shape shape = detail::RequireRectangularMatrix(matrix);
  const detail::RectangularCheckPause pause;
  detail::Observer observer;
  return detail::WithRows(matrix, shape.cols, [&](auto rows) {
    return detail::Eliminate(rows, shape.rows, shape.cols, observer);
  });
}

template <FloatElement T>
bool IsFinite(const TQorMatrix<T>& matrix) {
  return std::ranges::all_of(matrix, [](const TQorVector<T>& row) {
    return std::ranges::all_of(row, [](T x) { return std::isfinite(x); });
  });
}

// The result is at first the identity.
template <FloatElement T>
bool Invert(TQorMatrix<T>& matrix, TQorMatrix<T>& result) {
  if constexpr (std::same_as<T, Extended>) {
    if (matrix.size() >= detail::kLeastPanelRows) return detail::InvertFloats(matrix, result);
  }
  const std::size_t order = matrix.size();
  detail::DirectRows<T> rows(matrix, order);
  detail::InverseSteps<T> steps(result);
  const std::size_t rank = detail::Eliminate(rows, order, order, steps);
  steps.PutInOrder();
  if (rank < order || !steps.PivotsAreFinite()) return false;
  steps.SubstituteBack(matrix);
  return IsFinite(result);
}

class DeterminantObserver : public detail::Observer {
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
  const std::size_t order = detail::RequireSquareMatrix(matrix);
  const detail::RectangularCheckPause pause;
  // The inverse is assigned last, since it may be the matrix itself.
  auto result = detail::NewIdentityMatrix<T>(order);
  detail::SeparateRows(matrix);
  const bool regular = Invert(matrix, result);
  inverse = std::move(result);
  return regular;
}

template <FloatElement T>
Extended MatrixDeterminant(TQorMatrix<T>& matrix) {
  const std::size_t order = detail::RequireSquareMatrix(matrix);
  const detail::RectangularCheckPause pause;
  DeterminantObserver observer;
  detail::WithRows(matrix, order,
                   [&](auto rows) { detail::Eliminate(rows, order, order, observer); });
  Extended determinant = observer.Determinant();
  for (std::size_t i = 0; i < order; ++i) determinant *= static_cast<Extended>(matrix[i][i]);
  return determinant;
}

template <FloatElement T>
std::optional<TQorMatrix<T>> Inverse(const TQorMatrix<T>& matrix) {
  auto work = CopyMatrix(matrix);
  if (!MatrixInverse(work, work)) return std::nullopt;
  return work;
}

template <FloatElement T>
Extended Determinant(const TQorMatrix<T>& matrix) {
  auto work = CopyMatrix(matrix);
  return MatrixDeterminant(work);
}

template <FloatElement T>
std::uint32_t Rank(const TQorMatrix<T>& matrix) {
  auto work = CopyMatrix(matrix);
  std::uint32_t rank = 0;
  RowEchelonFormRank(work, rank);
  return rank;
}

template <FloatElement T>
TQorMatrix<T> RowEchelon(const TQorMatrix<T>& matrix) {
  auto work = CopyMatrix(matrix);
  RowEchelonForm(work);
  return work;
}

#define QORVEX_INSTANTIATE(T)                                          \
  template void RowEchelonForm(TQorMatrix<T>&);                        \
  template void RowEchelonFormRank(TQorMatrix<T>&, std::uint32_t&);    \
  template bool MatrixInverse(TQorMatrix<T>&, TQorMatrix<T>&);         \
  template Extended MatrixDeterminant(TQorMatrix<T>&);                 \
  template std::optional<TQorMatrix<T>> Inverse(const TQorMatrix<T>&); \
  template Extended Determinant(const TQorMatrix<T>&);                 \
  template std::uint32_t Rank(const TQorMatrix<T>&);                   \
  template TQorMatrix<T> RowEchelon(const TQorMatrix<T>&);
QORVEX_FOR_FLOAT_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexMatrix
