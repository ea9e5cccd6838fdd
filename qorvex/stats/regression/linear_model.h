#pragma once

/// @file
/// LinearModel: linear least squares without rounding before the results.

#include <cstddef>

#include "qorvex/base/errors.h"
#include "qorvex/base/export.h"
#include "qorvex/stats/regression/columns.h"
#include "qorvex/stats/regression/gram_matrix.h"
#include "qorvex/stats/regression/linear_fit.h"

namespace qorvex {

/// Raised where a predictor depends linearly on the intercept and the predictors before it, so that
/// the coefficients are not determined.
class QORVEX_EXPORT CollinearityError : public EMathError {
 public:
  /// For the predictor with this index, from 0; of a polynomial, the power of x less one. The
  /// identifier is rsCollinear, rsCollinearOrigin without an intercept, and rsCollinearPower for a
  /// polynomial.
  CollinearityError(const ModelForm& form, std::size_t predictor);
  ~CollinearityError() override;
  /// The index of the predictor, from 0; of a polynomial, the power of x less one.
  [[nodiscard]] std::size_t Predictor() const { return predictor_; }

 private:
  std::size_t predictor_;
};

/// The rows of a linear regression, as the exact sums of their products.
///
/// - Add, Remove and Merge lose nothing: whatever the order of the rows, and however they are split
///   over models that are merged, a fit has the same bits. The object holds p (p + 1) / 2 sums for
///   p columns, no rows.
/// - Every call adds as many values of each predictor and of the response. Columns of different
///   element types and decimals can be mixed.
/// - Powers of a polynomial are exact, so the fit is that for x itself.
/// - A weight multiplies the squared residual of its row, so that the variance of a response is
///   inverse to it: the sums are those of w x y, exactly. Degrees of freedom count rows. Rows of
///   weight 0 do not count, whatever their values.
/// - Errors, in this order: EMathError rsSameDimensions for a wrong number of predictors or columns
///   of different lengths; rsInvalidWeight for a weight that is negative or not finite; EInvalidOp
///   for a value that is not finite. The model then keeps its state.
/// - Cost: for a row some 2 ns a pair of columns, twice that with weights; 70 ns for a parabola. A
///   call takes some microseconds more, so add many rows at a time.
class QORVEX_EXPORT LinearModel {
 public:
  /// A model of this many predictors: y = b0 + b1 x1 + b2 x2 + ...
  explicit LinearModel(std::size_t predictors = 1, Intercept intercept = Intercept::kIncluded);
  /// A polynomial: y = b0 + b1 x + b2 x^2 + ... + bd x^d. Its one predictor is x.
  [[nodiscard]] static LinearModel Polynomial(std::size_t degree,
                                              Intercept intercept = Intercept::kIncluded);

  /// Adds rows.
  void Add(const Columns& predictors, const ColumnView& response);
  /// Adds rows with weights.
  void AddWeighted(const Columns& predictors, const ColumnView& response,
                   const ColumnView& weights);
  /// @{
  /// Take back rows that have been added. The caller makes sure that they have; EMathError
  /// rsInvalidValue if there are not that many.
  void Remove(const Columns& predictors, const ColumnView& response);
  void RemoveWeighted(const Columns& predictors, const ColumnView& response,
                      const ColumnView& weights);
  /// @}
  /// Adds the rows of another model. EMathError rsSameDimensions for a model of another form.
  void Merge(const LinearModel& other);

  /// The number of rows whose weight is not 0.
  [[nodiscard]] std::size_t Count() const { return gram_.Rows(); }

  /// The sums that the fit is computed from.
  [[nodiscard]] const GramMatrix& Gram() const { return gram_; }

  /// The least-squares fit.
  ///
  /// - Errors, in this order: EMathError rsVectorTooSmall for fewer rows than coefficients;
  ///   CollinearityError for the first predictor that depends on those before it, exactly;
  ///   EInvalidOp if the sums are impossible, because rows were removed that had not been added.
  /// - Solved in integers, by the fraction-free elimination of Bareiss (1968), "Sylvester's
  ///   identity and multistep integer-preserving Gaussian elimination", as a sweep of the symmetric
  ///   matrix; where its numbers would get long, first with 256 bits or more, as many as the
  ///   condition of the matrix asks for.
  /// - Which figures are exactly 0 is proved modulo primes where the numbers would get long.
  /// - Cost: O(p^3) operations on integers of up to p times the length of a sum, or, from 13
  ///   coefficients on, mostly of 256 bits: 0.7 ms for 14 predictors, 0.2 s for 100.
  [[nodiscard]] LinearFit Fit() const;

 private:
  explicit LinearModel(const ModelForm& form) : gram_(form) {}

  GramMatrix gram_;
};

}  // namespace qorvex
