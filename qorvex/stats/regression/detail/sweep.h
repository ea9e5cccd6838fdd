#pragma once

#include <cstddef>
#include <vector>

#include "qorvex/base/exact/dyadic.h"

namespace qorvex::regression {

/// A symmetric matrix on which columns are swept one after the other.
///
/// With S the columns swept so far, G_SS their block and d its determinant, the elements are d
/// times those of: G_SS^-1 for two columns in S; G_SS^-1 G_Sj for a column in S and one j outside;
/// and G_ij - G_iS G_SS^-1 G_Sj outside. All these are minors of G, so in integers every division
/// is exact: Bareiss (1968), "Sylvester's identity and multistep integer-preserving Gaussian
/// elimination".
class SweptMatrix {
 public:
  /// `bits` of the quotients are kept; all if it is 0.
  SweptMatrix(std::size_t size, std::size_t bits);

  /// The element in row i and column j, in either order.
  [[nodiscard]] exact::Dyadic& At(std::size_t i, std::size_t j);
  [[nodiscard]] const exact::Dyadic& At(std::size_t i, std::size_t j) const;
  /// The determinant of the columns swept so far; 1 for none.
  [[nodiscard]] const exact::Dyadic& Determinant() const { return determinant_; }

  /// Sweeps the next column. Its diagonal element must not be 0: it becomes the determinant.
  void SweepNext();

 private:
  std::size_t size_;
  std::size_t bits_;
  std::size_t swept_ = 0;
  exact::Dyadic determinant_ = 1;
  std::vector<exact::Dyadic> elements_;  // the rows from the diagonal on
};

}  // namespace qorvex::regression
