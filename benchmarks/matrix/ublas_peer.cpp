#include "matrix/ublas_peer.h"

#include <algorithm>
#include <boost/numeric/ublas/lu.hpp>
#include <boost/numeric/ublas/matrix.hpp>
#include <boost/numeric/ublas/matrix_proxy.hpp>

namespace qorvex::benchmarks {

namespace ublas = boost::numeric::ublas;

struct UblasPeer::Matrix : ublas::matrix<long double> {
  using ublas::matrix<long double>::matrix;
};

UblasPeer::UblasPeer(const long double* elements, std::size_t order)
    : matrix_(std::make_unique<Matrix>(order, order)) {
  std::copy(elements, elements + order * order, matrix_->data().begin());
}

UblasPeer::~UblasPeer() = default;
UblasPeer::UblasPeer(UblasPeer&&) noexcept = default;

long double UblasPeer::Product() const {
  ublas::matrix<long double> result(matrix_->size1(), matrix_->size2());
  ublas::noalias(result) = ublas::prod(*matrix_, *matrix_);
  return result(0, 0);
}

long double UblasPeer::Inverse() const {
  ublas::matrix<long double> factors(*matrix_);
  ublas::permutation_matrix<std::size_t> permutation(factors.size1());
  ublas::lu_factorize(factors, permutation);
  ublas::matrix<long double> inverse = ublas::identity_matrix<long double>(factors.size1());
  ublas::lu_substitute(factors, permutation, inverse);
  return inverse(0, 0);
}

long double UblasPeer::Determinant() const {
  ublas::matrix<long double> factors(*matrix_);
  ublas::permutation_matrix<std::size_t> permutation(factors.size1());
  ublas::lu_factorize(factors, permutation);
  long double determinant = 1;
  for (std::size_t i = 0; i < factors.size1(); ++i) {
    determinant *= permutation(i) == i ? factors(i, i) : -factors(i, i);
  }
  return determinant;
}

long double UblasPeer::Transpose() const {
  const ublas::matrix<long double> result = ublas::trans(*matrix_);
  return result(0, 0);
}

void UblasPeer::SwapRows(std::size_t row1, std::size_t row2) {
  ublas::matrix_row<ublas::matrix<long double>> a(*matrix_, row1);
  ublas::matrix_row<ublas::matrix<long double>> b(*matrix_, row2);
  a.swap(b);
}

void UblasPeer::ScaleRow(std::size_t row, long double factor) {
  ublas::row(*matrix_, row) *= factor;
}

void UblasPeer::AddRows(std::size_t target, std::size_t source, long double factor) {
  ublas::noalias(ublas::row(*matrix_, target)) += factor * ublas::row(*matrix_, source);
}

}  // namespace qorvex::benchmarks
