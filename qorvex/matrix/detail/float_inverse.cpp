#include "qorvex/matrix/detail/float_inverse.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <numeric>
#include <utility>

#include "qorvex/base/comparisons.h"
#include "qorvex/base/swap.h"
#include "qorvex/matrix/detail/copy_element.h"
#include "qorvex/matrix/detail/elimination.h"
#include "qorvex/matrix/detail/panel_rows.h"

namespace qorvex::inline QorvexMatrix::detail {

namespace {

// Follows where the rows go, and whether all numbers are finite.
struct InversionObserver : Observer {
  explicit InversionObserver(std::span<std::size_t> rows) : origins(rows) {
    std::iota(origins.begin(), origins.end(), std::size_t{0});
  }
  void Swapped(std::size_t row1, std::size_t row2) { std::swap(origins[row1], origins[row2]); }
  void Scaled(std::size_t, Extended pivot, Extended factor) {
    pivots_are_finite &= std::isfinite(pivot);
    factors_are_finite &= std::isfinite(factor);
  }

  // Row i was row origins[i] of the given matrix.
  std::span<std::size_t> origins;
  bool pivots_are_finite = true;
  bool factors_are_finite = true;
};

// The rows of the matrix and of the result, which is at first an identity matrix.
//
// The identity is not exchanged along with the rows of the matrix. Instead, its columns are at
// first in the order in which the exchanges have put the rows, so that the forward steps make it a
// lower triangular matrix.
class InversionRows : public PanelRows {
 public:
  InversionRows(TQorFloatMatrix& matrix, TQorFloatMatrix& result)
      : PanelRows(matrix, matrix.size()),
        order_(matrix.size()),
        words_(WordsFor(order_)),
        forward_(order_, Memory()),
        backward_(order_, Memory()),
        subtracted_(order_ * words_, Memory()),
        origins_(order_, Memory()),
        row_(order_, Memory()) {
    for (std::size_t i = 0; i < order_; ++i) forward_[i].elements = result[i].data();
  }

  // Hides the function that clears the factors, which Eliminate calls at its end.
  void Flush() {}

  // Returns true if the result is the inverse.
  bool Invert() {
    InversionObserver observer(origins_);
    const std::size_t rank = Eliminate(*this, order_, order_, observer);
    const bool regular = rank == order_ && observer.pivots_are_finite;
    PrepareForward(observer.factors_are_finite && observer.pivots_are_finite);
    if (regular) PrepareBackward();
    for (std::size_t col = 0; col < order_; col += kPair) {
      Columns().Compute(forward_, skips_zeros_ ? col : 0, order_, col, order_);
      if (regular) Columns().Compute(backward_, 0, order_, col, order_);
    }
    PanelRows::Flush();
    for (std::size_t i = 0; i < order_; ++i) {
      if (regular) std::fill_n(Rows()[i].elements + i + 1, order_ - 1 - i, Extended(0));
      RestoreColumns(forward_[i].elements);
    }
    return regular && IsFinite();
  }

 private:
  // If all factors are finite, products with the zeros above the diagonal are zeros that are added
  // to +0, and can be left out. Only the sign of the scale remains.
  void PrepareForward(bool finite) {
    skips_zeros_ = finite;
    for (std::size_t i = 0; i < order_; ++i) {
      forward_[i].factors = Rows()[i].factors;
      forward_[i].added = Rows()[i].added;
      forward_[i].is_source = Rows()[i].is_source;
      forward_[i].scale = Rows()[i].scale;
      if (skips_zeros_ && std::signbit(forward_[i].scale)) {
        const std::size_t computed = std::min((i / kPair + 1) * kPair, order_);
        std::fill(forward_[i].elements + computed, forward_[i].elements + order_, -0.0L);
      }
    }
  }

  // The substitution starts with the last row. The elements of the matrix right of the diagonal
  // become the factors, in the order in which they are used.
  void PrepareBackward() {
    for (std::size_t i = 0; i < order_; ++i) {
      const std::size_t row = order_ - 1 - i;
      Extended* const factors = Rows()[row].elements + row + 1;
      for (std::size_t k = 0; k < i / 2; ++k) SwapXY(factors[k], factors[i - 1 - k]);
      backward_[i] = {.elements = forward_[row].elements,
                      .factors = factors,
                      .added = &subtracted_[i * words_]};
      for (std::size_t k = 0; k < i; ++k) {
        if (FloatIsNotZero(factors[k])) {
          factors[k] = -factors[k];
          Insert(backward_[i].added, k);
          backward_[k].is_source = true;
        }
      }
    }
  }

  void RestoreColumns(Extended* elements) {
    for (std::size_t j = 0; j < order_; ++j) CopyElement(elements[j], row_[origins_[j]]);
    std::memcpy(elements, row_.data(), order_ * sizeof(Extended));
  }

  [[nodiscard]] bool IsFinite() const {
    return std::ranges::all_of(forward_, [this](const RecurrentRow& row) {
      return std::all_of(row.elements, row.elements + order_,
                         [](Extended x) { return std::isfinite(x); });
    });
  }

  std::size_t order_;
  std::size_t words_;
  bool skips_zeros_ = true;
  std::pmr::vector<RecurrentRow> forward_;
  // In reverse order.
  std::pmr::vector<RecurrentRow> backward_;
  std::pmr::vector<Bits> subtracted_;
  std::pmr::vector<std::size_t> origins_;
  std::pmr::vector<Extended> row_;
};

}  // namespace

bool InvertFloats(TQorFloatMatrix& matrix, TQorFloatMatrix& result) {
  return InversionRows(matrix, result).Invert();
}

}  // namespace qorvex::inline QorvexMatrix::detail
