#pragma once

#include <cstddef>
#include <memory>

namespace qorvex::benchmarks {

/// Boost uBLAS on square matrices of long double. Its headers do not compile as C++20, so they stay
/// behind this class, in a source of an older standard.
class UblasPeer {
 public:
  /// elements: row by row.
  UblasPeer(const long double* elements, std::size_t order);
  ~UblasPeer();
  UblasPeer(UblasPeer&&) noexcept;

  /// The product with itself. Each gives one element, so that nothing is left out.
  long double Product() const;
  long double Inverse() const;
  long double Determinant() const;
  long double Transpose() const;
  void SwapRows(std::size_t row1, std::size_t row2);
  void ScaleRow(std::size_t row, long double factor);
  void AddRows(std::size_t target, std::size_t source, long double factor);

 private:
  struct Matrix;
  std::unique_ptr<Matrix> matrix_;
};

}  // namespace qorvex::benchmarks
