#pragma once

#include <cstddef>

#include "qorvex/base/exact/rational.h"
#include "qorvex/stats/regression/anova.h"

namespace qorvex::detail {

/// A probability and its logarithm.
struct Probability {
  Extended p;
  Extended log_p;
};

/// The probability of a t of at least this magnitude, on either side.
[[nodiscard]] Probability TwoSided(Extended t, std::size_t degrees_of_freedom);

/// The nearest extended value to a / b; infinite for b = 0, NaN for 0 / 0.
[[nodiscard]] Extended RoundRatio(const exact::Rational& a, const exact::Rational& b);
/// The square root of a / b, likewise.
[[nodiscard]] Extended RoundRatioRoot(const exact::Rational& a, const exact::Rational& b);

/// A row of a table without a test.
[[nodiscard]] AnovaRow RowOf(const exact::Rational& sum_of_squares, std::size_t degrees_of_freedom);
/// A row and its F test.
[[nodiscard]] AnovaTest TestOf(const exact::Rational& sum_of_squares,
                               std::size_t degrees_of_freedom, const exact::Rational& residual,
                               std::size_t residual_degrees_of_freedom);

}  // namespace qorvex::detail
