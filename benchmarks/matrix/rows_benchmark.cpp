// The elementary row operations, and sorting rows.

#include <algorithm>
#include <utility>

#include "qorvex/matrix/QorvexMatrix.h"
#include "support/compare_matrices.h"

namespace qorvex::benchmarks {
namespace {

// A row operation, with and without the comparison of the lengths of all rows.
template <FloatElement T, class Operation>
void RegisterOurs(const std::string& routine, Operation operation) {
  const auto orders = {64UL, 1000UL};
  CompareMatrices<T>(routine, "ours", orders, 1, OurMatrix<T>, [=](TQorMatrix<T>& m) {
    operation(m);
    return m[0][0];
  });
  CompareMatrices<T>(routine, "switch off", orders, 1, OurMatrix<T>, [=](TQorMatrix<T>& m) {
    QorMatrixRectangularCheck = false;
    operation(m);
    QorMatrixRectangularCheck = true;
    return m[0][0];
  });
}

// Operations on one or two rows. An item is an element; the factors keep the elements in range.
template <FloatElement T>
void RegisterOperations() {
  using Matrix = TQorMatrix<T>;
  const auto orders = {64UL, 1000UL};
  const auto first = [](const auto& m) { return m[0][0]; };
  RegisterOurs<T>("SwapMatrixRows", [](Matrix& m) { SwapMatrixRows(m, 1, 2); });
  CompareMatrices<T>("SwapMatrixRows", "loop", orders, 1, OurMatrix<T>, [=](Matrix& m) {
    for (std::size_t j = 0; j < m.size(); ++j) std::swap(m[1][j], m[2][j]);
    return first(m);
  });
  CompareMatrices<T>("SwapMatrixRows", "Eigen", orders, 1, EigenMatrix<T>, [](EigenSquare<T>& m) {
    m.row(1).swap(m.row(2));
    return m(0, 0);
  });
  RegisterOurs<T>("ScaleMatrixRow", [](Matrix& m) { ScaleMatrixRow(m, 1, -1); });
  CompareMatrices<T>("ScaleMatrixRow", "loop", orders, 1, OurMatrix<T>, [=](Matrix& m) {
    for (T& x : m[1]) x = static_cast<T>(Extended(x) * -1);
    return first(m);
  });
  CompareMatrices<T>("ScaleMatrixRow", "Eigen", orders, 1, EigenMatrix<T>, [](EigenSquare<T>& m) {
    m.row(1) *= T(-1);
    return m(0, 0);
  });
  RegisterOurs<T>("AddMatrixRows", [](Matrix& m) { AddMatrixRows(m, 1, 2, 1e-6L); });
  CompareMatrices<T>("AddMatrixRows", "loop", orders, 1, OurMatrix<T>, [=](Matrix& m) {
    for (std::size_t j = 0; j < m.size(); ++j) {
      m[1][j] = static_cast<T>(Extended(m[2][j]) * 1e-6L + Extended(m[1][j]));
    }
    return first(m);
  });
  CompareMatrices<T>("AddMatrixRows", "Eigen", orders, 1, EigenMatrix<T>, [](EigenSquare<T>& m) {
    m.row(1) += T(1e-6L) * m.row(2);
    return m(0, 0);
  });
}

void RegisterUblas() {
  const auto orders = {64UL, 1000UL};
  CompareMatrices<Extended>("SwapMatrixRows", "uBLAS", orders, 1, UblasMatrix, [](UblasPeer& m) {
    m.SwapRows(1, 2);
    return 0;
  });
  CompareMatrices<Extended>("ScaleMatrixRow", "uBLAS", orders, 1, UblasMatrix, [](UblasPeer& m) {
    m.ScaleRow(1, -1);
    return 0;
  });
  CompareMatrices<Extended>("AddMatrixRows", "uBLAS", orders, 1, UblasMatrix, [](UblasPeer& m) {
    m.AddRows(1, 2, 1e-6L);
    return 0;
  });
}

// Sorts by each column in turn, so that the rows are never already in order. std::sort sorts
// handles of rows, which is less work: no element is moved.
template <FloatElement T>
void RegisterSort() {
  const auto orders = {100UL, 1000UL};
  struct Turn {
    TQorMatrix<T> matrix;
    std::uint32_t col = 0;
  };
  const auto make = [](std::size_t order) { return Turn{OurMatrix<T>(order)}; };
  const auto next = [](Turn& turn) {
    turn.col = (turn.col + 1) % static_cast<std::uint32_t>(turn.matrix.size());
    return turn.col;
  };
  CompareMatrices<T>("QSortMatrixRowsOnCol", "ours", orders, 2, make, [=](Turn& turn) {
    QSortMatrixRowsOnCol(turn.matrix, next(turn), true);
    return turn.matrix[0][0];
  });
  CompareMatrices<T>(
      "QSortMatrixRowsOnCol", "std::sort of handles", orders, 2, make, [=](Turn& turn) {
        const std::uint32_t col = next(turn);
        std::sort(turn.matrix.begin(), turn.matrix.end(),
                  [=](const TQorVector<T>& a, const TQorVector<T>& b) { return a[col] < b[col]; });
        return turn.matrix[0][0];
      });
  // What any method must do that leaves every row in its buffer: read and write each element.
  struct Copied {
    TQorMatrix<T> matrix;
    TQorMatrix<T> copy;
  };
  CompareMatrices<T>(
      "QSortMatrixRowsOnCol", "copying", orders, 2,
      [](std::size_t order) {
        return Copied{OurMatrix<T>(order), OurMatrix<T>(order)};
      },
      [](Copied& copied) {
        for (std::size_t i = 0; i < copied.matrix.size(); ++i) {
          std::ranges::copy(copied.matrix[i], copied.copy[i].begin());
        }
        return copied.copy[0][0];
      });
}

[[maybe_unused]] const bool registered = [] {
  RegisterOperations<Extended>();
  RegisterOperations<double>();
  RegisterOperations<float>();
  RegisterUblas();
  RegisterSort<Extended>();
  RegisterSort<double>();
  return true;
}();

}  // namespace
}  // namespace qorvex::benchmarks
