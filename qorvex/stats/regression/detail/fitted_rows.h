#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "qorvex/stats/regression/columns.h"
#include "qorvex/stats/regression/detail/solution.h"

namespace qorvex::regression {

/// Fitted values and their variances for rows of predictors.
class FittedRows {
 public:
  /// EMathError rsSameDimensions for a wrong number of columns, or for one without `count`
  /// elements.
  FittedRows(const Solution& solution, const Columns& predictors, std::size_t count);

  [[nodiscard]] std::size_t Count() const { return count_; }
  /// The columns of the coefficients in a row, with a common scale. EInvalidOp for a value that is
  /// not finite.
  [[nodiscard]] std::vector<exact::Dyadic> Row(std::size_t i) const;
  /// The fitted value.
  [[nodiscard]] exact::Rational Fitted(std::span<const exact::Dyadic> row) const;
  /// x' (X' W X)^-1 x
  [[nodiscard]] exact::Rational Leverage(std::span<const exact::Dyadic> row) const;

 private:
  const Solution& solution_;
  std::size_t count_;
  std::vector<std::vector<Extended>> buffers_;
  std::vector<std::span<const Extended>> columns_;
  std::vector<exact::Dyadic> scales_;  // of the columns of the coefficients
  exact::Rational fitted_unit_;
  exact::Rational leverage_unit_;
};

}  // namespace qorvex::regression
