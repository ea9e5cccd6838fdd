#include "qorvex/matrix/solve.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <span>
#include <utility>
#include <vector>

#include "qorvex/base/special/extended_pair.h"
#include "qorvex/matrix/arithmetic.h"
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
  enum class Neglect { kWithinTolerance, kNothing };

  StepRecorder(std::size_t order, Neglect neglect)
      : neglect_(neglect), factors_(order * order), scales_(order, 1), origins_(order) {
    std::iota(origins_.begin(), origins_.end(), std::size_t{0});
  }

  [[nodiscard]] bool IsNegligible(Extended x) {
    if (x == 0) return true;
    const bool negligible = neglect_ == Neglect::kWithinTolerance && FloatIsZero(x);
    has_neglected_ |= negligible;
    return negligible;
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
  // True if an element that is not zero was treated as zero, or a pivot as one.
  [[nodiscard]] bool HasNeglected() const { return has_neglected_; }

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

  Neglect neglect_;
  bool has_neglected_ = false;
  // Row i after all exchanges was row origins_[i] of the given matrix. Row k < i was added to it,
  // multiplied by element [i][k] of factors_, and then it was itself multiplied by scales_[i].
  Floats factors_;
  Floats scales_;
  std::vector<std::size_t> origins_;
  bool pivots_are_finite_ = true;
};

// A power of two that makes room for the splitting of factors in ExactProduct, which would overflow
// near the end of the range.
template <FloatElement T>
Extended SplittingScale(std::span<const T> values) {
  const bool large = std::ranges::any_of(
      values, [](T x) { return std::fabs(static_cast<Extended>(x)) > 0x1p16300L; });
  return large ? 0x1p-100L : 1;
}

template <FloatElement T>
class Solver {
  using Neglect = StepRecorder::Neglect;

 public:
  // An elimination that neglects what the inverse neglects shows whether there is a solution. If it
  // neglected anything, every element is eliminated in a second one, however small, because its
  // right-hand sides may be large.
  explicit Solver(const TQorMatrix<T>& matrix)
      : matrix_(matrix),
        order_(matrix.size()),
        echelon_(ConvertMatrix<Extended>(matrix)),
        steps_(order_, Neglect::kWithinTolerance),
        regular_(Eliminate()) {
    if (regular_ && steps_.HasNeglected()) {
      echelon_ = ConvertMatrix<Extended>(matrix);
      steps_ = StepRecorder(order_, Neglect::kNothing);
      regular_ = Eliminate();
    }
    for (const TQorVector<T>& row : matrix) scale_ = std::min(scale_, SplittingScale<T>(row));
    if (scale_ != 1) matrix_ = MultiplyMatrixByConst(matrix, scale_);
  }

  // Calls store(i, x[i]) for each element of the solution. Returns false without a finite solution.
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
  // Returns whether every column has a finite pivot.
  bool Eliminate() {
    const std::size_t rank = detail::WithRows(echelon_, order_, [&](auto rows) {
      return detail::Eliminate(rows, order_, order_, steps_);
    });
    return rank == order_ && steps_.PivotsAreFinite();
  }

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

  // b less the given matrix times x. Every product and every rounding error of the sums is taken
  // into account.
  Floats Residual(const Floats& b, Floats x) const {
    const Extended x_scale = SplittingScale<Extended>(x);
    for (Extended& element : x) element *= -x_scale;
    const Extended scale = scale_ * x_scale;
    const Extended inverse_scale = 1 / scale;
    Floats residual(order_);
    for (std::size_t i = 0; i < order_; ++i) {
      const T* const row = matrix_[i].data();
      Extended sum = b[i] * scale;
      Extended errors = 0;
      for (std::size_t j = 0; j < order_; ++j) {
        const auto product = special::ExactProduct(static_cast<Extended>(row[j]), x[j]);
        const auto partial = special::ExactSum(sum, product.hi);
        sum = partial.hi;
        errors += partial.lo + product.lo;
      }
      residual[i] = (sum + errors) * inverse_scale;
    }
    return residual;
  }

  // The matrix times scale_, for residuals. Shares its rows with the given one if scale_ is 1.
  TQorMatrix<T> matrix_;
  Extended scale_ = 1;
  std::size_t order_;
  TQorFloatMatrix echelon_;
  StepRecorder steps_;
  bool regular_;
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
