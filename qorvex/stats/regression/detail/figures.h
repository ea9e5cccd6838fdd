#pragma once

#include <cstddef>

#include "qorvex/base/exact/rational.h"
#include "qorvex/stats/regression/anova.h"

namespace qorvex::regression {

/// A statistic, the probability of one at least as large, and its logarithm.
struct Significance {
  Extended statistic;
  Extended p;
  Extended log_p;
};

/// t = estimate / sqrt(squared_error) and its two-sided probability, from t before it is rounded.
[[nodiscard]] Significance StudentSignificance(const exact::Rational& estimate,
                                               const exact::Rational& squared_error,
                                               std::size_t degrees_of_freedom);

/// The nearest extended value to a / b; infinite for b = 0, NaN for 0 / 0.
[[nodiscard]] Extended RoundRatio(const exact::Rational& a, const exact::Rational& b);

/// A row of a table without a test.
[[nodiscard]] AnovaRow RowOf(const exact::Rational& sum_of_squares, std::size_t degrees_of_freedom);
/// A row and its F test.
[[nodiscard]] AnovaTest TestOf(const exact::Rational& sum_of_squares,
                               std::size_t degrees_of_freedom, const exact::Rational& residual,
                               std::size_t residual_degrees_of_freedom);

}  // namespace qorvex::regression
