#pragma once

/// @file
/// LinearFit: the results of a linear regression.

#include <cstddef>
#include <memory>
#include <vector>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/stats/distributions/distribution.h"
#include "qorvex/stats/exact/extended_view.h"
#include "qorvex/stats/regression/anova.h"
#include "qorvex/stats/regression/columns.h"

namespace qorvex {

/// @cond internal
namespace regression {
struct Solution;
}
/// @endcond

/// A coefficient of a fit, and its test against 0.
struct FittedCoefficient {
  /// The estimate b.
  Extended value;
  /// Its standard error s.
  Extended standard_error;
  /// t = b / s.
  Extended t;
  /// The two-sided probability of a t at least as large.
  Extended p;
  /// ln(p), also where p underflows.
  Extended log_p;
};

/// A value of the fitted curve, and intervals that contain the mean response and a single response
/// at that place with the given probability.
struct Prediction {
  /// The fitted value.
  Extended value;
  /// The standard error of the fitted value.
  Extended standard_error;
  /// Of the mean response.
  Interval<Extended> confidence;
  /// Of one more response, of weight 1.
  Interval<Extended> prediction;
};

/// The results of LinearModel::Fit. n rows, p coefficients.
///
/// - Coefficients, standard errors, t, sums of squares, F and determination are rational numbers of
///   the data, or roots of such, and each is rounded once: the extended number nearest to the exact
///   value. So are covariances, fitted values, residuals and leverages.
/// - Where Precision() is not 0, figures have so many right bits before they are rounded;
///   covariances, fitted values, residuals and leverages have them relative to their terms, so that
///   a residual of 0 can come out as 1e-50. Other figures of 0 are exact.
/// - p comes from the tails of Student's and the F distribution at the statistic before it is
///   rounded, intervals from the quantiles of Student's.
/// - n = p: no degrees of freedom are left. What needs the residual variance is NaN.
/// - A perfect fit (residuals of 0): standard errors are 0, t and F infinite, p 0. A statistic that
///   is 0 / 0 is NaN.
/// - `confidence` is the probability of an interval, half of the rest on each side. EMathError
///   rsValue01 unless 0 < confidence < 1; NaN gives intervals of NaN.
/// - Each figure is computed when it is asked for: some microseconds.
class QORVEX_EXPORT LinearFit {
 public:
  /// @cond internal
  explicit LinearFit(std::shared_ptr<const regression::Solution> solution);
  /// @endcond

  /// The number of rows n.
  [[nodiscard]] std::size_t Count() const;
  /// n - p.
  [[nodiscard]] std::size_t DegreesOfFreedom() const;
  /// The number of coefficients p.
  [[nodiscard]] std::size_t Size() const;
  /// A coefficient: the intercept first, if there is one, then those of the predictors or powers.
  /// EMathError rsInvalidCol for an index from Size() on, here and below.
  [[nodiscard]] FittedCoefficient Coefficient(std::size_t i) const;
  /// All coefficients.
  [[nodiscard]] std::vector<FittedCoefficient> Coefficients() const;
  /// The values of all coefficients.
  [[nodiscard]] TQorFloatVector Values() const;
  /// The interval b -+ t s that contains the true coefficient with the given probability.
  [[nodiscard]] Interval<Extended> ConfidenceInterval(std::size_t i,
                                                      Extended confidence = 0.95L) const;
  /// The covariance of two coefficients: the variance of one for i = j.
  [[nodiscard]] Extended Covariance(std::size_t i, std::size_t j) const;

  /// The sum of the squared residuals, with their weights.
  [[nodiscard]] Extended ResidualSumOfSquares() const;
  /// The sum of squares about the weighted mean of the response; about 0 without an intercept.
  [[nodiscard]] Extended TotalSumOfSquares() const;
  /// The residual sum of squares over n - p.
  [[nodiscard]] Extended ResidualVariance() const;
  /// The root of ResidualVariance().
  [[nodiscard]] Extended ResidualStdDev() const;
  /// R squared: the part of the total sum of squares that the fit explains. NaN if that is 0.
  [[nodiscard]] Extended Determination() const;
  /// 1 - (1 - R squared) (n - 1) / (n - p), with n in place of n - 1 without an intercept.
  [[nodiscard]] Extended AdjustedDetermination() const;
  /// The analysis of variance: its regression row has the F test of the whole fit, and its terms
  /// what each predictor adds to those before it.
  [[nodiscard]] RegressionAnova Anova() const;

  /// @{
  /// The fitted value and its intervals for one value of each predictor, or for one x of a
  /// polynomial. EMathError rsSameDimensions for another number of values, EInvalidOp for a value
  /// that is not finite. For all numeric elements.
  [[nodiscard]] Prediction Predict(VectorView<Extended> predictors,
                                   Extended confidence = 0.95L) const;
  template <ContiguousRange Range>
  requires NumericElement<ElementOf<Range>>
  [[nodiscard]] Prediction Predict(const Range& predictors, Extended confidence = 0.95L) const {
    return Predict(VectorView<Extended>(AsExtended(predictors)), confidence);
  }
  /// @}

  /// @{
  /// The fitted value of each row; what the response exceeds it by; and the leverage, w x' (X' W
  /// X)^-1 x, for weights of 1 or the given ones; 0 for weights of 0. Errors as for
  /// LinearModel::Add. O(p), and O(p^2) for the leverage, products of long integers a row.
  [[nodiscard]] TQorFloatVector FittedValues(const Columns& predictors) const;
  [[nodiscard]] TQorFloatVector Residuals(const Columns& predictors,
                                          const ColumnView& response) const;
  [[nodiscard]] TQorFloatVector Leverages(const Columns& predictors) const;
  [[nodiscard]] TQorFloatVector Leverages(const Columns& predictors,
                                          const ColumnView& weights) const;
  /// @}

  /// The condition of the problem in bits: the logarithm to base 2 of the greatest (X'WX)_jj
  /// (X'WX)^-1_jj. It costs no digits here, but relative errors of the data are multiplied by up to
  /// the root of that number: from 106 on the rounding of doubles decides the coefficients, from
  /// 128 on that of extended numbers.
  [[nodiscard]] Extended ConditionBits() const;
  /// The right bits of the figures before they are rounded; 0 if they are exact.
  [[nodiscard]] std::size_t Precision() const;

 private:
  void RequireIndex(std::size_t i) const;

  std::shared_ptr<const regression::Solution> solution_;
};

}  // namespace qorvex
