#pragma once

#include <cstddef>
#include <memory>

namespace qorvex::benchmarks {

/// A square matrix of long double in Boost uBLAS. The headers of uBLAS do not compile as C++20, so
/// only the source of this class, which is compiled with an older standard, includes them.
class UblasPeer {
 public:
  /// The elements are given row by row.
  UblasPeer(const long double* elements, std::size_t order);
  ~UblasPeer();
  UblasPeer(UblasPeer&&) noexcept;

  /// Each returns one element of the result, so that the compiler cannot omit the computation.
  /// Product multiplies the matrix by itself.
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
