#include "qorvex/matrix/solve.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

#include "qorvex/base/special/extended_pair.h"
#include "qorvex/matrix/arithmetic.h"
#include "qorvex/matrix/conversion.h"
#include "qorvex/matrix/detail/checks.h"
#include "qorvex/matrix/detail/elimination.h"
#include "qorvex/matrix/detail/new_matrix.h"
#include "qorvex/matrix/detail/right_sides.h"
#include "qorvex/matrix/detail/step_recorder.h"
#include "qorvex/matrix/detail/with_rows.h"

namespace qorvex::inline QorvexMatrix {

namespace {

using Floats = std::vector<Extended>;

// A power of two that makes room for the splitting of factors in ExactProduct, which would overflow
// near the end of the range.
template <class Values>
Extended SplittingScale(const Values& values) {
  const bool large = std::ranges::any_of(
      values, [](auto x) { return std::fabs(static_cast<Extended>(x)) > 0x1p16300L; });
  return large ? 0x1p-100L : 1;
}

// A factor of every product of a row or of a right-hand side.
class ExactFactors {
 public:
  explicit ExactFactors(std::size_t count) : values_(count), halves_(count) {}

  template <class ValueOf>
  void Assign(ValueOf value_of) {
    are_split_ = true;
    for (std::size_t j = 0; j < values_.size(); ++j) {
      values_[j] = value_of(j);
      are_split_ &= halves_[j].Store(values_[j]);
    }
  }

  // sum plus the products with x. Every product and every rounding error of the sums is taken into
  // account.
  [[nodiscard]] Extended SumOfProducts(Extended sum, const ExactFactors& x) const {
    Extended errors = 0;
    if (are_split_ && x.are_split_) {
      detail::AddExactProducts(sum, errors, halves_.data(), x.halves_.data(), values_.size());
      return sum + errors;
    }
    for (std::size_t j = 0; j < values_.size(); ++j) {
      const auto product = special::ExactProduct(values_[j], x.values_[j]);
      const auto partial = special::ExactSum(sum, product.hi);
      sum = partial.hi;
      errors += partial.lo + product.lo;
    }
    return sum + errors;
  }

 private:
  Floats values_;
  std::vector<detail::Halves> halves_;
  bool are_split_ = false;
};

template <FloatElement T>
class Solver {
  using Neglect = detail::StepRecorder::Neglect;

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
      steps_ = detail::StepRecorder(order_, Neglect::kNothing);
      regular_ = Eliminate();
    }
    for (const TQorVector<T>& row : matrix) scale_ = std::min(scale_, SplittingScale(row));
    if (scale_ != 1) matrix_ = MultiplyMatrixByConst(matrix, scale_);
  }

  // Solves for kSides right-hand sides, which are stored side by side: element i of a side is
  // b[i * kSides + side]. Calls store(i, side, x[i]) for each element of the first `count`
  // solutions. Returns false if one of them is not finite, or without solutions.
  template <std::size_t kSides, class Store>
  bool Solve(const Floats& b, std::size_t count, Store store) const {
    if (!regular_) return false;
    const Floats x = Solved<kSides>(b);
    const Floats correction = Solved<kSides>(Residual<kSides>(b, x));
    bool finite = true;
    for (std::size_t i = 0; i < order_; ++i) {
      for (std::size_t side = 0; side < count; ++side) {
        const std::size_t k = i * kSides + side;
        const Extended refined = x[k] + correction[k];
        const auto rounded = static_cast<T>(std::isfinite(refined) ? refined : x[k]);
        finite &= std::isfinite(rounded);
        store(i, side, rounded);
      }
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

  template <std::size_t kSides>
  Floats Solved(const Floats& b) const {
    Floats x(b.size());
    if constexpr (kSides == 1) {
      SolveInto<detail::OneSide>(b, x);
    } else {
      static_assert(kSides == 4);
      if (!SolveInto<detail::FourSides<detail::SplitPair>>(b, x)) {
        SolveInto<detail::FourSides<detail::PlainPair>>(b, x);
      }
    }
    return x;
  }

  // Returns false if an element cannot be stored.
  template <class Sides>
  bool SolveInto(const Floats& b, Floats& x) const {
    constexpr std::size_t sides = Sides::kCount;
    std::vector<Sides> stored(order_);
    if (!steps_.Repeat(b, x, stored)) return false;
    for (std::size_t i = order_; i-- > 0;) {
      const Extended* const row = echelon_[i].data();
      Extended* const sums = &x[i * sides];
      // The elements after this one are stored with the opposite sign.
      detail::AddProducts(sums, row + i + 1, stored.data() + i + 1, order_ - i - 1);
      Extended opposite[sides];
      for (std::size_t side = 0; side < sides; ++side) {
        sums[side] /= row[i];
        opposite[side] = -sums[side];
      }
      if (!stored[i].Store(opposite)) return false;
    }
    return true;
  }

  // b less the given matrix times x.
  template <std::size_t kSides>
  Floats Residual(const Floats& b, const Floats& x) const {
    std::array<Extended, kSides> scales;
    std::vector<ExactFactors> columns(kSides, ExactFactors(order_));
    for (std::size_t side = 0; side < kSides; ++side) {
      Floats column(order_);
      for (std::size_t i = 0; i < order_; ++i) column[i] = x[i * kSides + side];
      const Extended x_scale = SplittingScale(column);
      scales[side] = scale_ * x_scale;
      columns[side].Assign([&](std::size_t i) { return column[i] * -x_scale; });
    }
    Floats residual(b.size());
    ExactFactors row(order_);
    for (std::size_t i = 0; i < order_; ++i) {
      const T* const elements = matrix_[i].data();
      row.Assign([&](std::size_t j) { return static_cast<Extended>(elements[j]); });
      for (std::size_t side = 0; side < kSides; ++side) {
        const std::size_t k = i * kSides + side;
        residual[k] = row.SumOfProducts(b[k] * scales[side], columns[side]) * (1 / scales[side]);
      }
    }
    return residual;
  }

  // The matrix times scale_, for residuals. Shares its rows with the given one if scale_ is 1.
  TQorMatrix<T> matrix_;
  Extended scale_ = 1;
  std::size_t order_;
  TQorFloatMatrix echelon_;
  detail::StepRecorder steps_;
  bool regular_;
};

}  // namespace

template <FloatElement T>
std::optional<TQorVector<T>> Solve(const TQorMatrix<T>& a, VectorView<std::type_identity_t<T>> b) {
  const std::size_t order = detail::RequireSquareMatrix(a);
  if (b.size() != order) RaiseMathError(rsSameDimensions);
  auto x = TQorVector<T>::ForOverwrite(order);
  const Floats right_side(b.begin(), b.end());
  const auto store = [&](std::size_t i, std::size_t, T value) { x[i] = value; };
  if (!Solver(a).template Solve<1>(right_side, 1, store)) return std::nullopt;
  return x;
}

template <FloatElement T>
std::optional<TQorMatrix<T>> Solve(const TQorMatrix<T>& a, const TQorMatrix<T>& b) {
  const std::size_t order = detail::RequireSquareMatrix(a);
  const detail::Shape shape = detail::RequireRectangularMatrix(b);
  if (shape.rows != order) RaiseMathError(rsSameDimensions);
  auto x = detail::NewMatrixForOverwrite<T>(order, shape.cols);
  const Solver solver(a);
  // The columns from col on. Those beyond the last column are zero.
  const auto solve = [&]<std::size_t kSides>(std::size_t col) {
    const std::size_t width = std::min<std::size_t>(kSides, shape.cols - col);
    Floats right_sides(order * kSides);
    for (std::size_t i = 0; i < order; ++i) {
      for (std::size_t side = 0; side < width; ++side) {
        right_sides[i * kSides + side] = static_cast<Extended>(b[i][col + side]);
      }
    }
    return solver.template Solve<kSides>(
        right_sides, width,
        [&](std::size_t i, std::size_t side, T value) { x[i][col + side] = value; });
  };
  for (std::size_t col = 0; col < shape.cols; col += 4) {
    const bool single = shape.cols - col == 1;
    if (!(single ? solve.template operator()<1>(col) : solve.template operator()<4>(col))) {
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
