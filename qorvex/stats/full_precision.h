#pragma once

/// @file
/// Probabilities, densities and quantiles of eleven distributions with full relative accuracy in
/// both tails.
///
/// For each family the same seven functions, parameters first and the point last:
///
/// - `...Pdf`, `...Pmf`: the density, or the probability of a count;
/// - `...Lower`, `...Upper`: the probability of at most x, and of more than x. Neither is formed as
///   1 less the other where that would lose digits;
/// - `...LogLower`, `...LogUpper`: their natural logarithms, also far beyond where the probabilities
///   themselves underflow to 0;
/// - `...Quantile`, `...UpperQuantile`: the point with a given lower or upper probability; of a
///   count the smallest with P(X <= k) >= p, or with P(X > k) <= q.
///
/// Points outside the support are no error: their density is 0 and their probabilities are 0 and 1.
/// Infinite points are the limits. At the ends of the support a density is its limit, infinity
/// included. NaN gives NaN in every argument that is a real number; where a count is asked for, it
/// raises as if out of range. Parameters that must be positive must also be finite and no subnormal
/// numbers. EMathError: for the quantiles first rsValue01 unless 0 < p < 1, then the family's own
/// messages, then EInvalidOp for an infinite mean and for shapes, or half of degrees of freedom,
/// outside 1e-18 to 1e15. A quantile that is too small for the format is 0, one beyond it raises
/// EOverflow.
///
/// Probabilities are off by a dozen units of the 64-bit mantissa at most, in the farthest tail too;
/// beta tails by up to fifty where a shape is below 0.1, and by a hundred for shapes of 1e14.
/// Quantiles are off by a few, and for shapes below 0.1 by as many as 1 / shape, because that is
/// how much the last bit of p moves them. docs/accuracy.md has the measured figures. A probability
/// costs some hundred to thousand arithmetic operations and a quantile three to six times as much,
/// whatever the parameters; only beta shapes and populations above a million take longer, up to
/// some ten milliseconds.
///
/// Methods: gamma tails by series, Legendre's continued fraction and Temme's expansion (1979, "The
/// asymptotic expansion of the incomplete gamma functions"); beta tails by the continued fraction
/// of DiDonato and Morris (1992, "Algorithm 708"), in closed form for a shape of 1 and for equal
/// shapes in the middle; powers and factorials in them with exponents of 95 bits; quantiles by
/// Halley's iteration on the logarithm of the smaller tail. Binomial probabilities of up to 255
/// trials, of no success and of successes only are products of 125 bits, and so are sums of up to
/// 16 of them that are beta tails, with x and 1 - x above 1e-4900: those that have 64 bits, such as
/// 3/8 for two heads in four tosses, are exact.

#include <cstdint>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"

namespace qorvex::full_precision {

/// @{
/// The normal distribution. rsStdDev unless std_dev > 0.
[[nodiscard]] QORVEX_EXPORT Extended NormalPdf(Extended mean, Extended std_dev, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended NormalLower(Extended mean, Extended std_dev, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended NormalUpper(Extended mean, Extended std_dev, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended NormalLogLower(Extended mean, Extended std_dev, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended NormalLogUpper(Extended mean, Extended std_dev, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended NormalQuantile(Extended mean, Extended std_dev, Extended p);
[[nodiscard]] QORVEX_EXPORT Extended NormalUpperQuantile(Extended mean, Extended std_dev,
                                                         Extended q);
/// @}

/// @{
/// The log-normal distribution; mean and standard deviation are those of ln X. rsStdDev unless
/// std_dev > 0.
[[nodiscard]] QORVEX_EXPORT Extended LogNormalPdf(Extended mean, Extended std_dev, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended LogNormalLower(Extended mean, Extended std_dev, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended LogNormalUpper(Extended mean, Extended std_dev, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended LogNormalLogLower(Extended mean, Extended std_dev, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended LogNormalLogUpper(Extended mean, Extended std_dev, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended LogNormalQuantile(Extended mean, Extended std_dev, Extended p);
[[nodiscard]] QORVEX_EXPORT Extended LogNormalUpperQuantile(Extended mean, Extended std_dev,
                                                            Extended q);
/// @}

/// @{
/// The exponential distribution with the given mean. rsExpDistInvalid unless mean > 0.
[[nodiscard]] QORVEX_EXPORT Extended ExponentialPdf(Extended mean, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended ExponentialLower(Extended mean, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended ExponentialUpper(Extended mean, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended ExponentialLogLower(Extended mean, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended ExponentialLogUpper(Extended mean, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended ExponentialQuantile(Extended mean, Extended p);
[[nodiscard]] QORVEX_EXPORT Extended ExponentialUpperQuantile(Extended mean, Extended q);
/// @}

/// @{
/// The gamma distribution with the given shape and scale (mean shape * scale). With scale 1 Lower
/// and Upper are the regularised incomplete gamma functions P(shape, x) and Q(shape, x).
/// rsValueGZero unless shape > 0 and scale > 0.
[[nodiscard]] QORVEX_EXPORT Extended GammaPdf(Extended shape, Extended scale, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended GammaLower(Extended shape, Extended scale, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended GammaUpper(Extended shape, Extended scale, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended GammaLogLower(Extended shape, Extended scale, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended GammaLogUpper(Extended shape, Extended scale, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended GammaQuantile(Extended shape, Extended scale, Extended p);
[[nodiscard]] QORVEX_EXPORT Extended GammaUpperQuantile(Extended shape, Extended scale, Extended q);
/// @}

/// @{
/// The chi-square distribution with df degrees of freedom, which need not be whole. rsDF unless
/// df > 0.
[[nodiscard]] QORVEX_EXPORT Extended ChiSquarePdf(Extended df, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended ChiSquareLower(Extended df, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended ChiSquareUpper(Extended df, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended ChiSquareLogLower(Extended df, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended ChiSquareLogUpper(Extended df, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended ChiSquareQuantile(Extended df, Extended p);
[[nodiscard]] QORVEX_EXPORT Extended ChiSquareUpperQuantile(Extended df, Extended q);
/// @}

/// @{
/// Student's t distribution with df degrees of freedom, which need not be whole. rsDF unless
/// df > 0.
[[nodiscard]] QORVEX_EXPORT Extended StudentTPdf(Extended df, Extended t);
[[nodiscard]] QORVEX_EXPORT Extended StudentTLower(Extended df, Extended t);
[[nodiscard]] QORVEX_EXPORT Extended StudentTUpper(Extended df, Extended t);
[[nodiscard]] QORVEX_EXPORT Extended StudentTLogLower(Extended df, Extended t);
[[nodiscard]] QORVEX_EXPORT Extended StudentTLogUpper(Extended df, Extended t);
[[nodiscard]] QORVEX_EXPORT Extended StudentTQuantile(Extended df, Extended p);
[[nodiscard]] QORVEX_EXPORT Extended StudentTUpperQuantile(Extended df, Extended q);
/// @}

/// @{
/// The F distribution with df1 degrees of freedom in the numerator and df2 in the denominator,
/// which need not be whole. rsDF unless both are positive.
[[nodiscard]] QORVEX_EXPORT Extended FDistPdf(Extended df1, Extended df2, Extended f);
[[nodiscard]] QORVEX_EXPORT Extended FDistLower(Extended df1, Extended df2, Extended f);
[[nodiscard]] QORVEX_EXPORT Extended FDistUpper(Extended df1, Extended df2, Extended f);
[[nodiscard]] QORVEX_EXPORT Extended FDistLogLower(Extended df1, Extended df2, Extended f);
[[nodiscard]] QORVEX_EXPORT Extended FDistLogUpper(Extended df1, Extended df2, Extended f);
[[nodiscard]] QORVEX_EXPORT Extended FDistQuantile(Extended df1, Extended df2, Extended p);
[[nodiscard]] QORVEX_EXPORT Extended FDistUpperQuantile(Extended df1, Extended df2, Extended q);
/// @}

/// @{
/// The beta distribution on [0, 1] with shapes a and b. rsValueGZero unless both are positive.
[[nodiscard]] QORVEX_EXPORT Extended BetaPdf(Extended a, Extended b, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended BetaLower(Extended a, Extended b, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended BetaUpper(Extended a, Extended b, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended BetaLogLower(Extended a, Extended b, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended BetaLogUpper(Extended a, Extended b, Extended x);
[[nodiscard]] QORVEX_EXPORT Extended BetaQuantile(Extended a, Extended b, Extended p);
[[nodiscard]] QORVEX_EXPORT Extended BetaUpperQuantile(Extended a, Extended b, Extended q);
/// @}

/// @{
/// The binomial distribution of the successes in n trials with probability p each.
/// rsBinomDistInvalid unless 0 <= p <= 1.
[[nodiscard]] QORVEX_EXPORT Extended BinomialPmf(Extended p, std::uint32_t n, std::uint32_t k);
[[nodiscard]] QORVEX_EXPORT Extended BinomialLower(Extended p, std::uint32_t n, std::uint32_t k);
[[nodiscard]] QORVEX_EXPORT Extended BinomialUpper(Extended p, std::uint32_t n, std::uint32_t k);
[[nodiscard]] QORVEX_EXPORT Extended BinomialLogLower(Extended p, std::uint32_t n, std::uint32_t k);
[[nodiscard]] QORVEX_EXPORT Extended BinomialLogUpper(Extended p, std::uint32_t n, std::uint32_t k);
[[nodiscard]] QORVEX_EXPORT std::uint32_t BinomialQuantile(Extended p, std::uint32_t n,
                                                           Extended lower);
[[nodiscard]] QORVEX_EXPORT std::uint32_t BinomialUpperQuantile(Extended p, std::uint32_t n,
                                                                Extended upper);
/// @}

/// @{
/// The hypergeometric distribution of the successes in a sample of sample_size, drawn without
/// replacement from pop_size of which `successes` are successes. rsHyperGeometricInvalid unless
/// neither sample_size nor successes exceeds pop_size.
[[nodiscard]] QORVEX_EXPORT Extended HyperGeometricPmf(std::uint32_t pop_size,
                                                       std::uint32_t sample_size,
                                                       std::uint32_t successes, std::uint32_t x);
[[nodiscard]] QORVEX_EXPORT Extended HyperGeometricLower(std::uint32_t pop_size,
                                                         std::uint32_t sample_size,
                                                         std::uint32_t successes, std::uint32_t x);
[[nodiscard]] QORVEX_EXPORT Extended HyperGeometricUpper(std::uint32_t pop_size,
                                                         std::uint32_t sample_size,
                                                         std::uint32_t successes, std::uint32_t x);
[[nodiscard]] QORVEX_EXPORT Extended HyperGeometricLogLower(std::uint32_t pop_size,
                                                            std::uint32_t sample_size,
                                                            std::uint32_t successes,
                                                            std::uint32_t x);
[[nodiscard]] QORVEX_EXPORT Extended HyperGeometricLogUpper(std::uint32_t pop_size,
                                                            std::uint32_t sample_size,
                                                            std::uint32_t successes,
                                                            std::uint32_t x);
[[nodiscard]] QORVEX_EXPORT std::uint32_t HyperGeometricQuantile(std::uint32_t pop_size,
                                                                 std::uint32_t sample_size,
                                                                 std::uint32_t successes,
                                                                 Extended p);
[[nodiscard]] QORVEX_EXPORT std::uint32_t HyperGeometricUpperQuantile(std::uint32_t pop_size,
                                                                      std::uint32_t sample_size,
                                                                      std::uint32_t successes,
                                                                      Extended q);
/// @}

/// @{
/// The Poisson distribution with mean lambda. rsPoissonInvalid unless lambda > 0. A quantile above
/// the largest uint32 raises EOverflow.
[[nodiscard]] QORVEX_EXPORT Extended PoissonPmf(Extended lambda, std::uint32_t k);
[[nodiscard]] QORVEX_EXPORT Extended PoissonLower(Extended lambda, std::uint32_t k);
[[nodiscard]] QORVEX_EXPORT Extended PoissonUpper(Extended lambda, std::uint32_t k);
[[nodiscard]] QORVEX_EXPORT Extended PoissonLogLower(Extended lambda, std::uint32_t k);
[[nodiscard]] QORVEX_EXPORT Extended PoissonLogUpper(Extended lambda, std::uint32_t k);
[[nodiscard]] QORVEX_EXPORT std::uint32_t PoissonQuantile(Extended lambda, Extended p);
[[nodiscard]] QORVEX_EXPORT std::uint32_t PoissonUpperQuantile(Extended lambda, Extended q);
/// @}

}  // namespace qorvex::full_precision
