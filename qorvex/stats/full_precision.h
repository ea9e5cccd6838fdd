#pragma once

/// @file
/// The former names of the distributions' functions, until all callers use the classes.

#include "qorvex/stats/distributions/distributions.h"

/// @cond
namespace qorvex::full_precision {

#define QORVEX_FAMILY(Name, Class, density, Point, PARAMETERS, ARGUMENTS)                        \
  inline Extended Name##density(QORVEX_LIST PARAMETERS, Point x) {                               \
    return Density(Class ARGUMENTS, x);                                                          \
  }                                                                                              \
  inline Extended Name##Lower(QORVEX_LIST PARAMETERS, Point x) {                                 \
    return Lower(Class ARGUMENTS, x);                                                            \
  }                                                                                              \
  inline Extended Name##Upper(QORVEX_LIST PARAMETERS, Point x) {                                 \
    return Upper(Class ARGUMENTS, x);                                                            \
  }                                                                                              \
  inline Extended Name##LogLower(QORVEX_LIST PARAMETERS, Point x) {                              \
    return LogLower(Class ARGUMENTS, x);                                                         \
  }                                                                                              \
  inline Extended Name##LogUpper(QORVEX_LIST PARAMETERS, Point x) {                              \
    return LogUpper(Class ARGUMENTS, x);                                                         \
  }                                                                                              \
  inline Point Name##Quantile(QORVEX_LIST PARAMETERS, Extended prob) {                           \
    return Quantile(Class ARGUMENTS, prob);                                                      \
  }                                                                                              \
  inline Point Name##UpperQuantile(QORVEX_LIST PARAMETERS, Extended prob) {                      \
    return UpperQuantile(Class ARGUMENTS, prob);                                                 \
  }
#define QORVEX_LIST(...) __VA_ARGS__
QORVEX_FAMILY(Normal, NormalDistribution, Pdf, Extended, (Extended a, Extended b), (a, b))
QORVEX_FAMILY(LogNormal, LogNormalDistribution, Pdf, Extended, (Extended a, Extended b), (a, b))
QORVEX_FAMILY(Exponential, ExponentialDistribution, Pdf, Extended, (Extended a), (a))
QORVEX_FAMILY(Gamma, GammaDistribution, Pdf, Extended, (Extended a, Extended b), (a, b))
QORVEX_FAMILY(ChiSquare, ChiSquareDistribution, Pdf, Extended, (Extended a), (a))
QORVEX_FAMILY(StudentT, StudentTDistribution, Pdf, Extended, (Extended a), (a))
QORVEX_FAMILY(FDist, FDistribution, Pdf, Extended, (Extended a, Extended b), (a, b))
QORVEX_FAMILY(Beta, BetaDistribution, Pdf, Extended, (Extended a, Extended b), (a, b))
QORVEX_FAMILY(Binomial, BinomialDistribution, Pmf, std::uint32_t, (Extended a, std::uint32_t b),
              (a, b))
QORVEX_FAMILY(HyperGeometric, HypergeometricDistribution, Pmf, std::uint32_t,
              (std::uint32_t a, std::uint32_t b, std::uint32_t c), (a, b, c))
QORVEX_FAMILY(Poisson, PoissonDistribution, Pmf, std::uint32_t, (Extended a), (a))
#undef QORVEX_LIST
#undef QORVEX_FAMILY

}  // namespace qorvex::full_precision
/// @endcond
