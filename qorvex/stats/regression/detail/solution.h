#pragma once

#include <cstddef>
#include <vector>

#include "qorvex/base/exact/rational.h"
#include "qorvex/stats/regression/gram_matrix.h"

namespace qorvex::regression {

/// What a regression is solved for, without any rounding, or to within `precision` bits. The scale
/// of decimal data is put in where a value is read.
struct Solution {
  ModelForm form;
  std::size_t rows = 0;
  std::vector<int> decimals;  ///< Of the columns, the response being the last.
  int weight_decimals = 0;
  /// The determinant of the matrix G of the predictors.
  exact::Dyadic determinant;
  /// The solution of G b = c, times the determinant.
  std::vector<exact::Dyadic> coefficients;
  /// The rows of G^-1 from the diagonal on, times the determinant.
  std::vector<std::vector<exact::Dyadic>> inverse;
  /// The sum of squares that the first k columns leave, for k from 0 on.
  std::vector<exact::Rational> residual;
  Extended condition_bits = 0;
  std::size_t precision = 0;

  [[nodiscard]] std::size_t Size() const { return coefficients.size(); }
  /// A coefficient.
  [[nodiscard]] exact::Rational Coefficient(std::size_t i) const;
  /// An element of (X' W X)^-1.
  [[nodiscard]] exact::Rational Inverse(std::size_t i, std::size_t j) const;
  /// The sum of squares that the first k columns leave.
  [[nodiscard]] exact::Rational ResidualAfter(std::size_t k) const;
  /// The sum of squares that all columns leave.
  [[nodiscard]] exact::Rational Residual() const { return ResidualAfter(Size()); }
  /// The sum of squares that the constant leaves.
  [[nodiscard]] exact::Rational Total() const { return ResidualAfter(form.Constants()); }
  /// The residual sum of squares over its degrees of freedom, of which there must be some.
  [[nodiscard]] exact::Rational Variance() const { return Residual() / (rows - Size()); }
};

/// Solves the normal equations: exactly where that is cheap, otherwise with as many bits as their
/// condition asks for, and exactly if that would take longer. Figures of 0 are exact. Errors as for
/// LinearModel::Fit.
[[nodiscard]] Solution Solve(const GramMatrix& gram);

}  // namespace qorvex::regression
