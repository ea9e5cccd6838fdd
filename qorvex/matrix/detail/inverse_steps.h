#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <utility>
#include <vector>

#include "qorvex/base/vector_types.h"
#include "qorvex/matrix/detail/copy_element.h"
#include "qorvex/matrix/detail/elimination.h"
#include "qorvex/matrix/detail/rounded_products.h"
#include "qorvex/matrix/detail/small_memory.h"

namespace qorvex::inline QorvexMatrix::detail {

// Repeats the steps of an elimination on the identity.
//
// Until row i is a pivot row, the non-zero elements right of those in the columns of earlier pivots
// are a single one. The columns are exchanged along with the rows, so that this is element [i][i]
// and the others are in front. An addition then only concerns the columns up to the pivot's: beyond
// it would add zeros to +0 or to one. This no longer holds from the first factor on that is
// infinite or NaN. The columns are then put in order, and all of them are added.
template <FloatElement T>
class InverseSteps : public Observer {
 public:
  // inverse is the identity, and keeps its row buffers.
  explicit InverseSteps(TQorMatrix<T>& inverse)
      : inverse_(inverse),
        origins_(inverse.size(), memory_.get()),
        scratch_(inverse.size(), memory_.get()) {
    std::iota(origins_.begin(), origins_.end(), std::size_t{0});
  }

  void Swapped(std::size_t pivot_row, std::size_t row) {
    SwapElements(Row(pivot_row), Row(row), is_in_order_ ? Order() : pivot_row);
    if (!is_in_order_) std::swap(origins_[pivot_row], origins_[row]);
  }
  void Scaled(std::size_t row, Extended pivot, Extended factor) {
    pivots_are_finite_ &= std::isfinite(pivot);
    if (!std::isfinite(factor)) PutInOrder();
    const std::size_t width = Width(row);
    ScaleElements(Row(row), width, factor);
    // The others are +0, and keep only the sign of the factor.
    if (std::signbit(factor)) std::fill(Row(row) + width, Row(row) + Order(), T(-0.0));
  }
  void Added(std::size_t target, std::size_t pivot_row, Extended factor) {
    if (!std::isfinite(factor)) PutInOrder();
    AddMultiple(Row(target), Row(pivot_row), Width(pivot_row), factor);
  }
  [[nodiscard]] bool PivotsAreFinite() const { return pivots_are_finite_; }

  // Moves the elements to the columns where they belong. From then on, rows are added in full.
  void PutInOrder() {
    if (std::exchange(is_in_order_, true)) return;
    for (TQorVector<T>& row : inverse_) {
      std::copy_n(row.data(), Order(), scratch_.data());
      for (std::size_t i = 0; i < Order(); ++i) CopyElement(scratch_[i], row[origins_[i]]);
    }
  }

  // Clears the elements of the echelon form above the pivots on the main diagonal. The row
  // additions that this takes are only performed on the inverse, since in the matrix they would add
  // zeros. The columns must be in order.
  void SubstituteBack(TQorMatrix<T>& matrix) {
    for (std::size_t col = matrix.size() - 1; col > 0; --col) {
      for (std::size_t row = col; row-- > 0;) {
        const auto element = static_cast<Extended>(std::exchange(matrix[row][col], T(0)));
        if (FloatIsNotZero(element)) Added(row, col, -element);
      }
    }
  }

 private:
  [[nodiscard]] std::size_t Order() const { return inverse_.size(); }
  [[nodiscard]] T* Row(std::size_t row) { return inverse_[row].data(); }
  // The number of columns in which a pivot row may have elements other than zero.
  [[nodiscard]] std::size_t Width(std::size_t pivot_row) const {
    return is_in_order_ ? Order() : pivot_row + 1;
  }

  TQorMatrix<T>& inverse_;
  SmallMemory memory_;
  // Column i is column origins_[i] of the inverse unless the columns are in order.
  std::pmr::vector<std::size_t> origins_;
  std::pmr::vector<T> scratch_;
  bool is_in_order_ = false;
  bool pivots_are_finite_ = true;
};

}  // namespace qorvex::inline QorvexMatrix::detail
