// The inverse, the determinant, and solutions of linear systems with one right-hand side or with as
// many as the order.

#include <Eigen/LU>
#include <cmath>
#include <utility>

#include "qorvex/base/comparisons.h"
#include "qorvex/matrix/QorvexMatrix.h"
#include "support/compare_matrices.h"

namespace qorvex::benchmarks {
namespace {

// The elimination as loops over rows, with the same rounding as ours.
template <FloatElement T>
class Loops {
 public:
  explicit Loops(const TQorMatrix<T>& matrix) : matrix_(CopyMatrix(matrix)) {}

  TQorMatrix<T> Inverse() {
    inverse_ = CopyMatrix(matrix_);
    for (std::size_t i = 0; i < Order(); ++i) {
      for (std::size_t j = 0; j < Order(); ++j) inverse_[i][j] = i == j ? 1 : 0;
    }
    Eliminate();
    for (std::size_t col = Order() - 1; col > 0; --col) {
      for (std::size_t row = col; row-- > 0;) {
        AddRow(inverse_, row, col, 0, -Extended(matrix_[row][col]));
        matrix_[row][col] = 0;
      }
    }
    return inverse_;
  }

  Extended Determinant() {
    Eliminate();
    return determinant_;
  }

 private:
  std::size_t Order() const { return matrix_.size(); }

  void AddRow(TQorMatrix<T>& m, std::size_t target, std::size_t source, std::size_t from,
              Extended factor) {
    T* const to = m[target].data();
    const T* const added = m[source].data();
    for (std::size_t j = from; j < Order(); ++j) {
      to[j] = static_cast<T>(Extended(added[j]) * factor + Extended(to[j]));
    }
  }

  void Eliminate() {
    for (std::size_t col = 0; col < Order(); ++col) {
      std::size_t best = col;
      for (std::size_t row = col; row < Order(); ++row) {
        if (std::fabs(matrix_[row][col]) > std::fabs(matrix_[best][col])) best = row;
      }
      if (best != col) determinant_ = -determinant_;
      const Extended pivot = matrix_[best][col];
      determinant_ *= pivot;
      for (TQorMatrix<T>* m : {&matrix_, &inverse_}) {
        if (m->empty()) continue;
        std::swap((*m)[best], (*m)[col]);
        for (T& x : (*m)[col]) x = static_cast<T>(Extended(x) * (1 / pivot));
      }
      for (std::size_t row = col + 1; row < Order(); ++row) {
        const Extended factor = -Extended(matrix_[row][col]);
        matrix_[row][col] = 0;
        AddRow(matrix_, row, col, col + 1, factor);
        if (!inverse_.empty()) AddRow(inverse_, row, col, 0, factor);
      }
    }
  }

  TQorMatrix<T> matrix_;
  TQorMatrix<T> inverse_;
  Extended determinant_ = 1;
};

template <FloatElement T>
void RegisterType() {
  using Matrix = TQorMatrix<T>;
  const auto orders = {5UL, 12UL, 50UL, 100UL, 200UL, 400UL};
  CompareMatrices<T>("MatrixInverse", "ours", orders, 3, OurMatrix<T>,
                     [](const Matrix& m) { return Inverse(m); });
  CompareMatrices<T>("MatrixInverse", "loops", orders, 3, OurMatrix<T>,
                     [](const Matrix& m) { return Loops<T>(m).Inverse(); });
  CompareMatrices<T>("MatrixDeterminant", "ours", orders, 3, OurMatrix<T>,
                     [](const Matrix& m) { return Determinant(m); });
  CompareMatrices<T>("MatrixDeterminant", "loops", orders, 3, OurMatrix<T>,
                     [](const Matrix& m) { return Loops<T>(m).Determinant(); });
}

template <FloatElement T>
void RegisterSolve() {
  using Matrix = TQorMatrix<T>;
  const auto orders = {5UL, 12UL, 50UL, 100UL, 200UL, 400UL};
  CompareMatrices<T>("Solve", "ours", orders, 3, OurMatrix<T>,
                     [](const Matrix& m) { return Solve(m, m[0]); });
  CompareMatrices<T>("Solve", "Eigen", orders, 3, EigenMatrix<T>,
                     [](const EigenSquare<T>& m) -> EigenSquare<T> {
                       return m.partialPivLu().solve(m.row(0).transpose());
                     });
  CompareMatrices<T>("Solve, n right-hand sides", "ours", orders, 3, OurMatrix<T>,
                     [](const Matrix& m) { return Solve(m, m); });
  CompareMatrices<T>(
      "Solve, n right-hand sides", "Eigen", orders, 3, EigenMatrix<T>,
      [](const EigenSquare<T>& m) -> EigenSquare<T> { return m.partialPivLu().solve(m); });
}

void RegisterPeers() {
  const auto orders = {5UL, 12UL, 50UL, 100UL, 200UL, 400UL};
  CompareMatrices<Extended>(
      "MatrixInverse", "Eigen", orders, 3, EigenMatrix<Extended>,
      [](const EigenSquare<Extended>& m) -> EigenSquare<Extended> { return m.inverse(); });
  CompareMatrices<Extended>("MatrixInverse", "uBLAS", orders, 3, UblasMatrix,
                            [](const UblasPeer& m) { return m.Inverse(); });
  CompareMatrices<Extended>("MatrixDeterminant", "Eigen", orders, 3, EigenMatrix<Extended>,
                            [](const EigenSquare<Extended>& m) { return m.determinant(); });
  CompareMatrices<Extended>("MatrixDeterminant", "uBLAS", orders, 3, UblasMatrix,
                            [](const UblasPeer& m) { return m.Determinant(); });
}

[[maybe_unused]] const bool registered = [] {
  RegisterType<Extended>();
  RegisterType<double>();
  RegisterType<float>();
  RegisterSolve<Extended>();
  RegisterSolve<double>();
  RegisterPeers();
  return true;
}();

}  // namespace
}  // namespace qorvex::benchmarks
