#include "qorvex/matrix/product.h"

#include <algorithm>
#include <memory>

#include "qorvex/matrix/detail/checks.h"
#include "qorvex/matrix/detail/new_matrix.h"
#include "qorvex/matrix/detail/rounded_products.h"
#include "qorvex/matrix/detail/split_pairs.h"

namespace qorvex::inline QorvexMatrix {

namespace {

// Works on eight columns of the right factor at a time, stored as pairs. They stay in the first two
// levels of cache while they are multiplied by all rows of the left factor.
class BlockProduct {
 public:
  static constexpr std::size_t kBlock = 8;

  BlockProduct(const TQorFloatMatrix& a, const TQorFloatMatrix& b, std::size_t inner,
               TQorFloatMatrix& product)
      : a_(a), b_(b), inner_(inner), product_(product) {}

  // Computes the columns from col on, as many as width, at most a block.
  void Compute(std::size_t col, std::size_t width) {
    if (!ComputeWith(split_, col, width)) ComputeWith(plain_, col, width);
  }

 private:
  template <class Pair>
  using Pairs = std::unique_ptr<Pair[]>;

  // Returns false, and computes nothing, if the columns cannot be stored exactly.
  template <class Pair>
  bool ComputeWith(Pairs<Pair>& pairs, std::size_t col, std::size_t width) {
    if (pairs == nullptr) {
      pairs = std::make_unique_for_overwrite<Pair[]>(inner_ * (kBlock / detail::kPair));
    }
    bool exact = true;
    for (std::size_t k = 0; k < inner_; ++k) {
      const Extended* const row = &b_[k][col];
      for (std::size_t j = 0; j < width; j += detail::kPair) {
        const Extended last[detail::kPair] = {row[j]};
        exact &= PairsAt(pairs, j)[k].Store(j + 1 < width ? row + j : last);
      }
    }
    if (!exact) return false;
    for (std::size_t i = 0; i < product_.size(); i += 2) {
      const std::size_t other = std::min(i + 1, product_.size() - 1);
      for (std::size_t j = 0; j < width; j += detail::kPair) {
        Extended sums0[detail::kPair] = {};
        Extended sums1[detail::kPair] = {};
        detail::AddProducts(sums0, sums1, a_[i].data(), a_[other].data(), PairsAt(pairs, j),
                            inner_);
        product_[i][col + j] = sums0[0];
        product_[other][col + j] = sums1[0];
        if (j + 1 < width) {
          product_[i][col + j + 1] = sums0[1];
          product_[other][col + j + 1] = sums1[1];
        }
      }
    }
    return true;
  }

  // The pairs of column j of the block.
  template <class Pair>
  Pair* PairsAt(const Pairs<Pair>& pairs, std::size_t j) const {
    return &pairs[j / detail::kPair * inner_];
  }

  const TQorFloatMatrix& a_;
  const TQorFloatMatrix& b_;
  std::size_t inner_;
  TQorFloatMatrix& product_;
  Pairs<detail::SplitPair> split_;
  Pairs<detail::PlainPair> plain_;
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
    constexpr std::size_t block = BlockProduct::kBlock;
    BlockProduct blocks(a, b, left.cols, product);
    for (std::size_t col = 0; col < right.cols; col += block) {
      blocks.Compute(col, std::min(block, right.cols - col));
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
