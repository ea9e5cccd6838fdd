#include "qorvex/matrix/product.h"

#include <algorithm>
#include <memory>

#include "qorvex/matrix/detail/checks.h"
#include "qorvex/matrix/detail/new_matrix.h"
#include "qorvex/matrix/detail/row_kernels.h"
#include "qorvex/matrix/detail/split_pairs.h"

namespace qorvex::inline QorvexMatrix {

namespace {

// Works on two columns of the right factor at a time. They stay in the first-level cache while
// they are multiplied by all rows of the left factor.
class PairProduct {
 public:
  PairProduct(const TQorFloatMatrix& a, const TQorFloatMatrix& b, std::size_t inner)
      : a_(a),
        b_(b),
        inner_(inner),
        split_(std::make_unique_for_overwrite<detail::SplitPair[]>(inner)) {}

  // Computes the columns from col on, as many as width, at most two.
  void AddTo(TQorFloatMatrix& product, std::size_t col, std::size_t width) {
    if (Store(split_.get(), col, width)) {
      AddColumns(product, col, width, split_.get());
      return;
    }
    if (plain_ == nullptr) plain_ = std::make_unique_for_overwrite<detail::PlainPair[]>(inner_);
    Store(plain_.get(), col, width);
    AddColumns(product, col, width, plain_.get());
  }

 private:
  template <class Pair>
  bool Store(Pair* pairs, std::size_t col, std::size_t width) const {
    bool exact = true;
    for (std::size_t k = 0; k < inner_; ++k) {
      const Extended* const elements = &b_[k][col];
      const Extended padded[detail::kPair] = {elements[0]};
      exact &= pairs[k].Store(width == detail::kPair ? elements : padded);
    }
    return exact;
  }

  template <class Pair>
  void AddColumns(TQorFloatMatrix& product, std::size_t col, std::size_t width,
                  const Pair* pairs) const {
    const std::size_t rows = product.size();
    for (std::size_t i = 0; i < rows; i += 2) {
      const std::size_t other = std::min(i + 1, rows - 1);
      Extended sums0[detail::kPair] = {};
      Extended sums1[detail::kPair] = {};
      detail::AddProducts(sums0, sums1, a_[i].data(), a_[other].data(), pairs, inner_);
      std::copy_n(sums0, width, &product[i][col]);
      std::copy_n(sums1, width, &product[other][col]);
    }
  }

  const TQorFloatMatrix& a_;
  const TQorFloatMatrix& b_;
  std::size_t inner_;
  std::unique_ptr<detail::SplitPair[]> split_;
  std::unique_ptr<detail::PlainPair[]> plain_;
};

}  // namespace

template <FloatElement T>
TQorMatrix<T> MultiplyMatrices(const TQorMatrix<T>& a, const TQorMatrix<T>& b) {
  const detail::Shape left = detail::ShapeOf(a);
  const detail::Shape right = detail::ShapeOf(b);
  detail::RequireRectangular(left);
  detail::RequireRectangular(right);
  if (left.rows == 0 || right.rows == 0) RaiseMathError(rsMatrixIsEmpty);
  if (left.cols != right.rows) RaiseMathError(rsMatrixMult);
  detail::RequireLengths(a, left.cols);
  detail::RequireLengths(b, right.cols);

  auto product = detail::NewMatrix<T>(left.rows, right.cols);
  if constexpr (std::same_as<T, Extended>) {
    PairProduct pairs(a, b, left.cols);
    for (std::size_t col = 0; col < right.cols; col += detail::kPair) {
      pairs.AddTo(product, col, std::min(detail::kPair, right.cols - col));
    }
  } else {
    // Row by row: the sums of a row are independent of one another, so that no addition waits for
    // the one before.
    for (std::size_t i = 0; i < left.rows; ++i) {
      for (std::size_t k = 0; k < left.cols; ++k) {
        detail::AddElements(product[i].data(), b[k].data(), right.cols,
                            static_cast<Extended>(a[i][k]));
      }
    }
  }
  return product;
}

#define QORVEX_INSTANTIATE(T) \
  template TQorMatrix<T> MultiplyMatrices(const TQorMatrix<T>&, const TQorMatrix<T>&);
QORVEX_FOR_FLOAT_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexMatrix
