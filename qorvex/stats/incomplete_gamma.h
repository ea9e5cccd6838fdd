#pragma once

/// @file
/// The incomplete gamma function by series, continued fraction and normal approximation.
///
/// Series and fraction end when a term, or the change of the fraction, is at most QorTolerance, so
/// the absolute error is up to 2e-15. A tolerance that is not positive, or NaN, counts as 4 eps:
/// the loops would not end. Any positive one is reached: the series within some 8000 steps, since
/// its terms underflow, and the fraction within 200, measured over its whole domain down to
/// tolerances that only equal values meet. Values below exp(-88) = 6e-39 are returned as 0, those
/// that near to 1 as 1, and the value for x <= QorTolerance as 0.
///
/// Above the shape 1000 stands the normal approximation of Wilson and Hilferty, with the domain of
/// NormalLess: points below the centre raise rsValueGZero. Just above 1000 P is off by up to 5e-6
/// of itself and the upper tail, 1 - P, by 5e-4 of itself three standard deviations out and by 4e-3
/// at five; larger shapes have proportionally smaller errors. From nine standard deviations on the
/// tail means nothing, from ten on P is 0.5. GammaDistribution (with scale 1) has none of
/// these limits.

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"

namespace qorvex::inline QorvexStatistics {

/// P(a, x), the lower incomplete gamma function of shape a, regularised; 1 above x = 1e8 for shapes
/// up to 1000. EMathError: rsValueGEZero for x < 0; rsValueGZero for a <= 0, and for a > 1000 where
/// x is below the centre. Then NaN gives NaN. Up to 300 steps at the default tolerance. Shea
/// (1988), "Algorithm AS 239: chi-squared and incomplete gamma integral", Applied Statistics 37,
/// 466-473; Wilson and Hilferty (1931), "The distribution of chi-square", PNAS 17, 684-688.
[[nodiscard]] QORVEX_EXPORT Extended IncompleteGamma(Extended a, Extended x);

/// The upper incomplete gamma integral, not regularised, as Gamma(a) times the upper probability
/// of 2x under a chi-square distribution with 2a degrees of freedom. They are rounded to a whole
/// number, ties to even: exact only where 2a is one. EMathError: rsValueGEZero for x < 0;
/// rsValueGZero for a <= 0, and for a > 1000 where x is below the centre; EOverflow above about
/// a = 1755.5; EInvalidOp for an infinite a; rsDF where 2a rounds to 0. Then NaN gives NaN.
/// The upper tail of GammaDistribution(a) times Gamma(a) rounds nothing.
[[nodiscard]] QORVEX_EXPORT Extended IncompleteGamma2(Extended a, Extended x);

}  // namespace qorvex::inline QorvexStatistics
