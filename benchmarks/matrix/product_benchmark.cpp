// The products and the transpose.

#include <algorithm>
#include <concepts>
#include <vector>

#include "qorvex/matrix/QorvexMatrix.h"
#include "qorvex/vector/building.h"
#include "support/compare_matrices.h"

namespace qorvex::benchmarks {
namespace {

constexpr std::initializer_list<std::size_t> kProductOrders = {4, 8, 16, 32, 64, 128, 256, 512};

// Adds a product as ours does.
template <FloatElement T>
void AddProduct(T& sum, T x, T y) {
  sum = static_cast<T>(static_cast<Extended>(sum) +
                       static_cast<Extended>(x) * static_cast<Extended>(y));
}

// The textbook loops in their faster order, with the same rounding as ours: extended sums stay in a
// register; those that each addition rounds to T would wait for one another, unlike those of a row.
template <FloatElement T>
TQorMatrix<T> LoopProduct(const TQorMatrix<T>& a, const TQorMatrix<T>& b) {
  const std::size_t order = a.size();
  auto product = TQorMatrix<T>::WithLength(order);
  std::vector<const T*> rows_of_b(order);
  std::ranges::transform(b, rows_of_b.begin(), [](const auto& row) { return row.data(); });
  for (std::size_t i = 0; i < order; ++i) {
    product[i] = TQorVector<T>::WithLength(order);
    const T* const row = a[i].data();
    T* const sums = product[i].data();
    if constexpr (std::same_as<T, Extended>) {
      for (std::size_t j = 0; j < order; ++j) {
        T sum = 0;
        for (std::size_t k = 0; k < order; ++k) AddProduct(sum, row[k], rows_of_b[k][j]);
        sums[j] = sum;
      }
    } else {
      for (std::size_t k = 0; k < order; ++k) {
        for (std::size_t j = 0; j < order; ++j) AddProduct(sums[j], row[k], rows_of_b[k][j]);
      }
    }
  }
  return product;
}

template <FloatElement T>
TQorMatrix<T> LoopTranspose(const TQorMatrix<T>& a) {
  auto result = CopyMatrix(a);
  for (std::size_t i = 0; i < a.size(); ++i) {
    for (std::size_t j = 0; j < a.size(); ++j) result[j][i] = a[i][j];
  }
  return result;
}

template <FloatElement T>
TQorVector<T> LoopMatrixByVector(const TQorMatrix<T>& a, const TQorVector<T>& b) {
  auto product = CopyVector(b);
  for (std::size_t i = 0; i < a.size(); ++i) {
    T sum = 0;
    const T* const row = a[i].data();
    for (std::size_t k = 0; k < b.size(); ++k) AddProduct(sum, row[k], b[k]);
    product[i] = sum;
  }
  return product;
}

template <FloatElement T>
void RegisterType() {
  using Matrix = TQorMatrix<T>;
  const auto orders = {64UL, 256UL, 512UL};
  CompareMatrices<T>("MultiplyMatrices", "ours", kProductOrders, 3, OurMatrix<T>,
                     [](const Matrix& m) { return MultiplyMatrices(m, m); });
  CompareMatrices<T>("MultiplyMatrices", "loops", kProductOrders, 3, OurMatrix<T>,
                     [](const Matrix& m) { return LoopProduct(m, m); });
  CompareMatrices<T>("MultiplyMatrixByVector", "ours", orders, 2, OurMatrix<T>,
                     [](const Matrix& m) { return MultiplyMatrixByVector(m, m[0]); });
  CompareMatrices<T>("MultiplyMatrixByVector", "loops", orders, 2, OurMatrix<T>,
                     [](const Matrix& m) { return LoopMatrixByVector(m, m[0]); });
  CompareMatrices<T>("MultiplyVectorByMatrix", "ours", orders, 2, OurMatrix<T>,
                     [](const Matrix& m) { return MultiplyVectorByMatrix(m[0], m); });
  CompareMatrices<T>("TransposeMatrix", "ours", orders, 2, OurMatrix<T>,
                     [](const Matrix& m) { return TransposeMatrix(m); });
  CompareMatrices<T>("TransposeMatrix", "loops", orders, 2, OurMatrix<T>,
                     [](const Matrix& m) { return LoopTranspose(m); });
  CompareMatrices<T>("TransposeMatrix", "Eigen", orders, 2, EigenMatrix<T>,
                     [](const EigenSquare<T>& m) -> EigenSquare<T> { return m.transpose(); });
}

void RegisterPeers() {
  const auto orders = {64UL, 256UL, 512UL};
  using Row = Eigen::Matrix<Extended, 1, Eigen::Dynamic>;
  CompareMatrices<Extended>(
      "MultiplyMatrixByVector", "Eigen", orders, 2, EigenMatrix<Extended>,
      [](const EigenSquare<Extended>& m) -> Row { return (m * m.row(0).transpose()).transpose(); });
  CompareMatrices<Extended>("MultiplyVectorByMatrix", "Eigen", orders, 2, EigenMatrix<Extended>,
                            [](const EigenSquare<Extended>& m) -> Row { return m.row(0) * m; });
  CompareMatrices<Extended>(
      "MultiplyMatrices", "Eigen", kProductOrders, 3, EigenMatrix<Extended>,
      [](const EigenSquare<Extended>& m) -> EigenSquare<Extended> { return m * m; });
  CompareMatrices<Extended>("MultiplyMatrices", "uBLAS", kProductOrders, 3, UblasMatrix,
                            [](const UblasPeer& m) { return m.Product(); });
  CompareMatrices<Extended>("TransposeMatrix", "uBLAS", orders, 2, UblasMatrix,
                            [](const UblasPeer& m) { return m.Transpose(); });
}

[[maybe_unused]] const bool registered = [] {
  RegisterType<Extended>();
  RegisterType<double>();
  RegisterType<float>();
  RegisterPeers();
  return true;
}();

}  // namespace
}  // namespace qorvex::benchmarks
