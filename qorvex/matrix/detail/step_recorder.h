#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <utility>
#include <vector>

#include "qorvex/base/comparisons.h"
#include "qorvex/matrix/detail/elimination.h"
#include "qorvex/matrix/detail/right_sides.h"

namespace qorvex::inline QorvexMatrix::detail {

// Records the steps of an elimination, so that they can be repeated on right-hand sides.
class StepRecorder : public Observer {
 public:
  enum class Neglect { kWithinTolerance, kNothing };

  StepRecorder(std::size_t order, Neglect neglect)
      : neglect_(neglect), factors_(order * order), scales_(order, 1), origins_(order) {
    std::iota(origins_.begin(), origins_.end(), std::size_t{0});
  }

  [[nodiscard]] bool IsNegligible(Extended x) {
    if (x == 0) return true;
    const bool negligible = neglect_ == Neglect::kWithinTolerance && FloatIsZero(x);
    has_neglected_ |= negligible;
    return negligible;
  }
  void Swapped(std::size_t row1, std::size_t row2) {
    std::swap_ranges(FactorsOf(row1), FactorsOf(row1 + 1), FactorsOf(row2));
    std::swap(origins_[row1], origins_[row2]);
  }
  void Scaled(std::size_t row, Extended pivot, Extended factor) {
    scales_[row] = factor;
    pivots_are_finite_ &= std::isfinite(pivot);
  }
  void Added(std::size_t target, std::size_t source, Extended factor) {
    FactorsOf(target)[source] = factor;
  }
  [[nodiscard]] bool PivotsAreFinite() const { return pivots_are_finite_; }
  // True if an element that is not zero was treated as zero, or a pivot as one.
  [[nodiscard]] bool HasNeglected() const { return has_neglected_; }

  // Repeats the steps on right-hand sides. Returns false if an element of x cannot be stored.
  template <class Sides>
  [[nodiscard]] bool Repeat(const std::vector<Extended>& b, std::vector<Extended>& x,
                            std::vector<Sides>& stored) const {
    constexpr std::size_t sides = Sides::kCount;
    for (std::size_t i = 0; i < scales_.size(); ++i) {
      Extended* const sums = &x[i * sides];
      std::copy_n(&b[origins_[i] * sides], sides, sums);
      AddProducts(sums, &factors_[i * scales_.size()], stored.data(), i);
      for (std::size_t side = 0; side < sides; ++side) sums[side] *= scales_[i];
      if (!stored[i].Store(sums)) return false;
    }
    return true;
  }

 private:
  Extended* FactorsOf(std::size_t row) { return factors_.data() + row * scales_.size(); }

  Neglect neglect_;
  bool has_neglected_ = false;
  // Row i after all exchanges was row origins_[i] of the given matrix. Row k < i was added to it,
  // multiplied by element [i][k] of factors_, and then it was itself multiplied by scales_[i].
  std::vector<Extended> factors_;
  std::vector<Extended> scales_;
  std::vector<std::size_t> origins_;
  bool pivots_are_finite_ = true;
};

}  // namespace qorvex::inline QorvexMatrix::detail
