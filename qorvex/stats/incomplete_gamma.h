#pragma once

/// @file
/// The incomplete gamma function by series, continued fraction and normal approximation.
///
/// - The series and the fraction end when a term, or the change of the fraction, is at most
///   QorTolerance, so the absolute error is up to 2e-15.
/// - A tolerance that is not positive, or NaN, counts as 4 eps, because the loops would not end.
///   Every positive tolerance is reached: by the series within about 8000 steps, because its terms
///   underflow, and by the fraction within 200 steps, as measured over its whole domain.
/// - Results below exp(-88) = 6e-39 become 0, those as close to 1 become 1, and x <= QorTolerance
///   gives 0.
/// - For shapes above 1000, the normal approximation of Wilson and Hilferty is used, with the
///   domain of NormalLess: points below the centre raise rsValueGZero. Just above 1000, P has a
///   relative error of up to 5e-6, and the upper tail 1 - P one of 5e-4 at three standard
///   deviations and 4e-3 at five. Larger shapes have proportionally smaller errors. From nine
///   standard deviations on the tail is meaningless, and from ten on P is 0.5.
/// - GammaDistribution (with scale 1) has none of these limits.

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"

namespace qorvex::inline QorvexStatistics {

/// P(a, x), the regularised lower incomplete gamma function with shape a.
///
/// - x > 1e8 and a <= 1000: 1.
/// - EMathError: rsValueGEZero if x < 0; then rsValueGZero if a <= 0, or if a > 1000 and x is below
///   the centre. Then NaN gives NaN.
/// - Cost: up to 300 steps at the default tolerance.
/// - Sources: Shea (1988), "Algorithm AS 239: chi-squared and incomplete gamma integral", Applied
///   Statistics 37, 466-473; Wilson and Hilferty (1931), "The distribution of chi-square", PNAS 17,
///   684-688.
[[nodiscard]] QORVEX_EXPORT Extended IncompleteGamma(Extended a, Extended x);

/// The upper incomplete gamma integral, not regularised: Gamma(a) times the upper probability of 2x
/// under a chi-square distribution with 2a degrees of freedom.
///
/// - The degrees of freedom are rounded to a whole number, ties to even, so the result is exact
///   only if 2a is whole. Otherwise use Gamma(a) times the upper tail of GammaDistribution(a) at x.
/// - EMathError: rsValueGEZero if x < 0; rsValueGZero if a <= 0, or if a > 1000 and x is below the
///   centre; EOverflow for a above about 1755.5; EInvalidOp for an infinite a; rsDF if 2a rounds to
///   0. Then NaN gives NaN.
[[nodiscard]] QORVEX_EXPORT Extended IncompleteGamma2(Extended a, Extended x);

}  // namespace qorvex::inline QorvexStatistics
