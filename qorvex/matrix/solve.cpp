#include "qorvex/matrix/solve.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <utility>
#include <vector>

#include "qorvex/base/special/extended_pair.h"
#include "qorvex/matrix/conversion.h"
#include "qorvex/matrix/detail/checks.h"
#include "qorvex/matrix/detail/elimination.h"
#include "qorvex/matrix/detail/new_matrix.h"
#include "qorvex/matrix/detail/with_rows.h"

namespace qorvex::inline QorvexMatrix {

namespace {

using Floats = std::vector<Extended>;

// Records the steps of an elimination, so that they can be repeated on right-hand sides.
class StepRecorder : public detail::Observer {
 public:
  // Every element is eliminated, however small, because its right-hand sides may be large.
  [[nodiscard]] static bool IsNegligible(Extended x) { return x == 0; }

  explicit StepRecorder(std::size_t order)
      : factors_(order * order), scales_(order, 1), origins_(order) {
    std::iota(origins_.begin(), origins_.end(), std::size_t{0});
  }

  void Swapped(std::size_t row1, std::size_t row2) {
    std::swap_ranges(FactorsOf(row1), FactorsOf(row1 + 1), FactorsOf(row2));
    std::swap(origins_[row1], origins_[row2]);
  }
  void Scaled(std::size_t row, Extended pivot, Extended factor) {
    scales_[row] = factor;
    pivots_are_finite_ &= std::isfinite(pivot);
  }
  void Added(std::size_t target, std::size_t source, Extended factor) {
    FactorsOf(target)[source] = factor;
  }
  [[nodiscard]] bool PivotsAreFinite() const { return pivots_are_finite_; }

  [[nodiscard]] Floats Repeat(const Floats& b) const {
    Floats result(b.size());
    for (std::size_t i = 0; i < b.size(); ++i) {
      const Extended* const factors = &factors_[i * b.size()];
      Extended sum = b[origins_[i]];
      for (std::size_t k = 0; k < i; ++k) sum += factors[k] * result[k];
      result[i] = sum * scales_[i];
    }
    return result;
  }

 private:
  Extended* FactorsOf(std::size_t row) { return factors_.data() + row * scales_.size(); }

  // Row i after all exchanges was row origins_[i] of the given matrix. Row k < i was added to it,
  // multiplied by element [i][k] of factors_, and then it was itself multiplied by scales_[i].
  Floats factors_;
  Floats scales_;
  std::vector<std::size_t> origins_;
  bool pivots_are_finite_ = true;
};

template <FloatElement T>
class Solver {
 public:
  explicit Solver(const TQorMatrix<T>& matrix)
      : matrix_(matrix),
        order_(matrix.size()),
        echelon_(ConvertMatrix<Extended>(matrix)),
        steps_(order_) {
    const std::size_t rank = detail::WithRows(echelon_, order_, [&](auto rows) {
      return detail::Eliminate(rows, order_, order_, steps_);
    });
    regular_ = rank == order_ && steps_.PivotsAreFinite();
  }

  // Calls store(i, x[i]) for the elements of the solution. Returns false if there is none.
  template <class Store>
  bool Solve(const Floats& b, Store store) const {
    if (!regular_) return false;
    const Floats x = Solved(b);
    const Floats correction = Solved(Residual(b, x));
    bool finite = true;
    for (std::size_t i = 0; i < order_; ++i) {
      const Extended refined = x[i] + correction[i];
      const auto rounded = static_cast<T>(std::isfinite(refined) ? refined : x[i]);
      finite &= std::isfinite(rounded);
      store(i, rounded);
    }
    return finite;
  }

 private:
  Floats Solved(const Floats& b) const {
    Floats x = steps_.Repeat(b);
    for (std::size_t i = order_; i-- > 0;) {
      const Extended* const row = echelon_[i].data();
      Extended sum = x[i];
      for (std::size_t j = i + 1; j < order_; ++j) sum -= row[j] * x[j];
      x[i] = sum / row[i];
    }
    return x;
  }

  // b - matrix * x. Every product and every rounding error of the sums is taken into account.
  Floats Residual(const Floats& b, const Floats& x) const {
    Floats residual(order_);
    for (std::size_t i = 0; i < order_; ++i) {
      const T* const row = matrix_[i].data();
      Extended sum = b[i];
      Extended errors = 0;
      for (std::size_t j = 0; j < order_; ++j) {
        const auto product = special::ExactProduct(-static_cast<Extended>(row[j]), x[j]);
        const auto partial = special::ExactSum(sum, product.hi);
        sum = partial.hi;
        errors += partial.lo + product.lo;
      }
      residual[i] = sum + errors;
    }
    return residual;
  }

  const TQorMatrix<T>& matrix_;
  std::size_t order_;
  TQorFloatMatrix echelon_;
  StepRecorder steps_;
  bool regular_ = false;
};

}  // namespace

template <FloatElement T>
std::optional<TQorVector<T>> Solve(const TQorMatrix<T>& a, VectorView<std::type_identity_t<T>> b) {
  const std::size_t order = detail::RequireSquareMatrix(a).rows;
  if (b.size() != order) RaiseMathError(rsSameDimensions);
  auto x = TQorVector<T>::ForOverwrite(order);
  const Floats right_side(b.begin(), b.end());
  if (!Solver(a).Solve(right_side, [&](std::size_t i, T value) { x[i] = value; })) {
    return std::nullopt;
  }
  return x;
}

template <FloatElement T>
std::optional<TQorMatrix<T>> Solve(const TQorMatrix<T>& a, const TQorMatrix<T>& b) {
  const std::size_t order = detail::RequireSquareMatrix(a).rows;
  const detail::Shape shape = detail::RequireRectangularMatrix(b);
  if (shape.rows != order) RaiseMathError(rsSameDimensions);
  auto x = detail::NewMatrixForOverwrite<T>(order, shape.cols);
  const Solver solver(a);
  Floats right_side(order);
  for (std::size_t col = 0; col < shape.cols; ++col) {
    for (std::size_t i = 0; i < order; ++i) right_side[i] = static_cast<Extended>(b[i][col]);
    if (!solver.Solve(right_side, [&](std::size_t i, T value) { x[i][col] = value; })) {
      return std::nullopt;
    }
  }
  return x;
}

#define QORVEX_INSTANTIATE(T)                                                       \
  template std::optional<TQorVector<T>> Solve(const TQorMatrix<T>&, VectorView<T>); \
  template std::optional<TQorMatrix<T>> Solve(const TQorMatrix<T>&, const TQorMatrix<T>&);
QORVEX_FOR_FLOAT_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexMatrix
