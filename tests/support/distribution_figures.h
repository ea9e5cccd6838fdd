#pragma once

#include <cmath>
#include <cstdint>
#include <functional>
#include <vector>

#include "qorvex/stats/full_precision.h"
#include "support/table.h"

namespace qorvex::testing {

/// Reads a row's arguments by the names of their columns.
struct Row {
  const Table& table;
  std::size_t index;
  Extended operator()(const char* column) const { return table.Value(index, column); }
  [[nodiscard]] std::uint32_t Count(const char* column) const {
    return static_cast<std::uint32_t>((*this)(column));
  }
};

/// A figure of a table and the routine that computes it.
struct Figure {
  const char* routine;
  const char* table;
  const char* column;
  std::function<Extended(const Row&)> compute;
};

// The mean of an exponential row, and its point. Exact: the rates are those of powers of two, or
// their products with x have few bits.
inline Extended MeanOf(const Row& r) {
  const Extended mean = 1 / r("rate_dec");
  return mean * r("rate_dec") == 1 && std::exp2(std::round(std::log2(mean))) == mean ? mean : 1;
}
inline Extended PointOf(const Row& r) {
  return MeanOf(r) == 1 ? r("x_dec") * r("rate_dec") : r("x_dec");
}

/// Every probability, density and quantile that has a table.
inline const std::vector<Figure>& FullPrecisionFigures() {
  namespace fp = full_precision;
  static const std::vector<Figure> figures{
      {"NormalLower", "normal_cdf", "cdf",
       [](const Row& r) { return fp::NormalLower(0, 1, r("x_dec")); }},
      {"NormalUpper", "normal_cdf", "upper",
       [](const Row& r) { return fp::NormalUpper(0, 1, r("x_dec")); }},
      {"NormalPdf", "normal_cdf", "pdf",
       [](const Row& r) { return fp::NormalPdf(0, 1, r("x_dec")); }},
      {"NormalQuantile", "normal_quantile", "z",
       [](const Row& r) { return fp::NormalQuantile(0, 1, r("p_dec")); }},
      {"LogNormalLower", "lognormal_cdf", "cdf",
       [](const Row& r) { return fp::LogNormalLower(r("mu_dec"), r("sigma_dec"), r("x_dec")); }},
      {"LogNormalUpper", "lognormal_cdf", "upper",
       [](const Row& r) { return fp::LogNormalUpper(r("mu_dec"), r("sigma_dec"), r("x_dec")); }},
      {"ExponentialLower", "exponential_cdf", "cdf",
       [](const Row& r) { return fp::ExponentialLower(MeanOf(r), PointOf(r)); }},
      {"ExponentialUpper", "exponential_cdf", "upper",
       [](const Row& r) { return fp::ExponentialUpper(MeanOf(r), PointOf(r)); }},
      {"GammaLower", "gamma_p", "P",
       [](const Row& r) { return fp::GammaLower(r("a_dec"), 1, r("x_dec")); }},
      {"GammaUpper", "gamma_p", "Q",
       [](const Row& r) { return fp::GammaUpper(r("a_dec"), 1, r("x_dec")); }},
      {"GammaQuantile", "gamma_inv", "x",
       [](const Row& r) { return fp::GammaQuantile(r("a_dec"), 1, r("p_dec")); }},
      {"ChiSquareLower", "chisq_cdf", "cdf",
       [](const Row& r) { return fp::ChiSquareLower(r("df"), r("x_dec")); }},
      {"ChiSquareUpper", "chisq_cdf", "upper",
       [](const Row& r) { return fp::ChiSquareUpper(r("df"), r("x_dec")); }},
      {"ChiSquareQuantile", "chisq_inv", "x",
       [](const Row& r) { return fp::ChiSquareQuantile(r("df"), r("p_dec")); }},
      {"StudentTLower", "t_cdf", "cdf",
       [](const Row& r) { return fp::StudentTLower(r("df_dec"), r("t_dec")); }},
      {"StudentTUpper", "t_cdf", "upper",
       [](const Row& r) { return fp::StudentTUpper(r("df_dec"), r("t_dec")); }},
      {"StudentTQuantile", "t_inv", "t",
       [](const Row& r) { return fp::StudentTQuantile(r("df"), r("p_dec")); }},
      {"FDistLower", "f_cdf", "cdf",
       [](const Row& r) { return fp::FDistLower(r("d1_dec"), r("d2_dec"), r("x_dec")); }},
      {"FDistUpper", "f_cdf", "upper",
       [](const Row& r) { return fp::FDistUpper(r("d1_dec"), r("d2_dec"), r("x_dec")); }},
      {"FDistQuantile", "f_inv", "x",
       [](const Row& r) { return fp::FDistQuantile(r("d1"), r("d2"), r("p_dec")); }},
      {"BetaLower", "beta_inc", "I",
       [](const Row& r) { return fp::BetaLower(r("a_dec"), r("b_dec"), r("x_dec")); }},
      {"BetaUpper", "beta_inc", "Ic",
       [](const Row& r) { return fp::BetaUpper(r("a_dec"), r("b_dec"), r("x_dec")); }},
      {"BetaQuantile", "beta_inv", "x",
       [](const Row& r) { return fp::BetaQuantile(r("a_dec"), r("b_dec"), r("p_dec")); }},
      {"BinomialPmf", "binomial", "pmf",
       [](const Row& r) { return fp::BinomialPmf(r("p_dec"), r.Count("n"), r.Count("k")); }},
      {"BinomialLower", "binomial", "cdf_le",
       [](const Row& r) { return fp::BinomialLower(r("p_dec"), r.Count("n"), r.Count("k")); }},
      {"BinomialUpper", "binomial", "upper_gt",
       [](const Row& r) { return fp::BinomialUpper(r("p_dec"), r.Count("n"), r.Count("k")); }},
      {"HyperGeometricPmf", "hypergeometric", "pmf",
       [](const Row& r) {
         return fp::HyperGeometricPmf(r.Count("N"), r.Count("n"), r.Count("K"), r.Count("k"));
       }},
      {"HyperGeometricLower", "hypergeometric", "cdf_le",
       [](const Row& r) {
         return fp::HyperGeometricLower(r.Count("N"), r.Count("n"), r.Count("K"), r.Count("k"));
       }},
      {"HyperGeometricUpper", "hypergeometric", "upper_gt",
       [](const Row& r) {
         return fp::HyperGeometricUpper(r.Count("N"), r.Count("n"), r.Count("K"), r.Count("k"));
       }},
      {"PoissonPmf", "poisson", "pmf",
       [](const Row& r) { return fp::PoissonPmf(r("lambda_dec"), r.Count("k")); }},
      {"PoissonLower", "poisson", "cdf_le",
       [](const Row& r) { return fp::PoissonLower(r("lambda_dec"), r.Count("k")); }},
      {"PoissonUpper", "poisson", "upper_gt",
       [](const Row& r) { return fp::PoissonUpper(r("lambda_dec"), r.Count("k")); }},
  };
  return figures;
}

}  // namespace qorvex::testing
