#pragma once

/// @file
/// GramMatrix: the exact sums of products that determine a linear regression.

#include <cstddef>
#include <cstdint>
#include <vector>

#include "qorvex/base/exact/dyadic.h"
#include "qorvex/base/export.h"
#include "qorvex/stats/regression/columns.h"

namespace qorvex {

/// Whether a model has a constant term.
enum class Intercept : std::uint8_t {
  kIncluded,  ///< The first coefficient is the constant term.
  kOmitted    ///< The curve passes through the origin.
};

/// The form of a linear model: its coefficients are those of the constant 1, if there is an
/// intercept, and of its terms.
struct ModelForm {
  /// Predictors, or powers of the one predictor of a polynomial.
  std::size_t terms;
  /// The terms are x, x^2, x^3 and so on.
  bool is_polynomial;
  /// The constant term.
  Intercept intercept;

  /// 1 for a constant term, otherwise 0.
  [[nodiscard]] std::size_t Constants() const { return intercept == Intercept::kIncluded ? 1 : 0; }
  /// The number of coefficients.
  [[nodiscard]] std::size_t Coefficients() const { return Constants() + terms; }
  /// The number of columns of predictors in the data.
  [[nodiscard]] std::size_t Predictors() const { return is_polynomial ? 1 : terms; }
  /// The same form.
  friend bool operator==(const ModelForm&, const ModelForm&) = default;
};

/// The sums of w z_i z_j over the rows of a linear model, without any rounding. The columns z are
/// those of the coefficients, and the response as the last one; w is the weight, or 1.
///
/// - Powers are formed exactly.
/// - Of decimal data the sums are those of their integers; Decimals() tells the scale.
class QORVEX_EXPORT GramMatrix {
 public:
  /// No rows.
  explicit GramMatrix(const ModelForm& form);

  /// Adds rows; `weights` may be null. Errors as for LinearModel::Add.
  void Add(const Columns& predictors, const ColumnView& response, const ColumnView* weights);
  /// Takes rows back. EMathError rsInvalidValue if there are not that many.
  void Remove(const Columns& predictors, const ColumnView& response, const ColumnView* weights);
  /// Adds the rows of another matrix. EMathError rsSameDimensions for another form.
  void Merge(const GramMatrix& other);

  /// The form of the model.
  [[nodiscard]] const ModelForm& Form() const { return form_; }
  /// The number of rows whose weight is not 0.
  [[nodiscard]] std::size_t Rows() const { return rows_; }
  /// The number of columns: the coefficients and the response.
  [[nodiscard]] std::size_t Size() const { return form_.Coefficients() + 1; }
  /// The sum of w z_i z_j, times 10^(Decimals(i) + Decimals(j) + WeightDecimals()).
  [[nodiscard]] const exact::Dyadic& Sum(std::size_t i, std::size_t j) const {
    return sums_[Slot(i, j)];
  }
  /// The decimals of a column.
  [[nodiscard]] int Decimals(std::size_t i) const;
  /// The decimals of the weights.
  [[nodiscard]] int WeightDecimals() const { return decimals_.back(); }

 private:
  // The sums of one batch of rows.
  struct Batch;

  [[nodiscard]] Batch SumsOf(const Columns& predictors, const ColumnView& response,
                             const ColumnView* weights) const;
  // The sums of a polynomial depend on i + j only, so there are fewer.
  [[nodiscard]] std::size_t Slot(std::size_t i, std::size_t j) const;
  // Adds the sums, or subtracts them.
  void Combine(Batch batch, bool subtract);
  // Changes the decimals to these, which are not fewer.
  void Rescale(const std::vector<int>& decimals);

  ModelForm form_;
  std::size_t rows_ = 0;
  std::vector<exact::Dyadic> sums_;
  std::vector<int> decimals_;  // of the predictors in the data, the response and the weights
};

}  // namespace qorvex
