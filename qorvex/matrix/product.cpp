#include "qorvex/matrix/product.h"

#include <algorithm>
#include <memory>

#include "qorvex/matrix/detail/checks.h"
#include "qorvex/matrix/detail/new_matrix.h"
#include "qorvex/matrix/detail/rounded_products.h"
#include "qorvex/matrix/detail/split_quads.h"

namespace qorvex::inline QorvexMatrix {

namespace {

// Works on four columns of the right factor at a time. They stay in the first-level cache while
// they are multiplied by all rows of the left factor.
class QuadProduct {
 public:
  QuadProduct(const TQorFloatMatrix& a, const TQorFloatMatrix& b, std::size_t inner)
      : a_(a),
        b_(b),
        inner_(inner),
        split_(std::make_unique_for_overwrite<detail::SplitQuad[]>(inner)) {}

  // Computes the columns from col on, as many as width, at most four.
  void AddTo(TQorFloatMatrix& product, std::size_t col, std::size_t width) {
    bool exact = true;
    for (std::size_t k = 0; k < inner_; ++k) exact &= split_[k].Store(&b_[k][col], width);
    if (exact) {
      AddColumns(product, col, width, split_.get());
      return;
    }
    if (plain_ == nullptr) plain_ = std::make_unique_for_overwrite<detail::PlainQuad[]>(inner_);
    for (std::size_t k = 0; k < inner_; ++k) plain_[k].Store(&b_[k][col], width);
    AddColumns(product, col, width, plain_.get());
  }

 private:
  template <class Quad>
  void AddColumns(TQorFloatMatrix& product, std::size_t col, std::size_t width,
                  const Quad* quads) const {
    for (std::size_t i = 0; i < product.size(); ++i) {
      detail::AddProducts(&product[i][col], a_[i].data(), quads, inner_, width);
    }
  }

  const TQorFloatMatrix& a_;
  const TQorFloatMatrix& b_;
  std::size_t inner_;
  std::unique_ptr<detail::SplitQuad[]> split_;
  std::unique_ptr<detail::PlainQuad[]> plain_;
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
    QuadProduct quads(a, b, left.cols);
    for (std::size_t col = 0; col < right.cols; col += detail::kQuad) {
      quads.AddTo(product, col, std::min(detail::kQuad, right.cols - col));
    }
  } else {
    // Row by row: the sums of a row are independent of one another, so that no addition waits for
    // the one before.
    for (std::size_t i = 0; i < left.rows; ++i) {
      for (std::size_t k = 0; k < left.cols; ++k) {
        detail::AddMultiple(product[i].data(), b[k].data(), right.cols,
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
