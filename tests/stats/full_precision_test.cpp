#include "qorvex/stats/full_precision.h"

#include <functional>
#include <limits>

#include "support/table.h"
#include "support/test.h"

namespace qorvex {

namespace fp = full_precision;
using testing::Table;

// Reads a row's arguments by the names of their columns.
struct Row {
  const Table& table;
  std::size_t index;
  Extended operator()(const char* column) const { return table.Value(index, column); }
  [[nodiscard]] std::uint32_t Count(const char* column) const {
    return static_cast<std::uint32_t>((*this)(column));
  }
};

struct Figure {
  const char* table;
  const char* column;
  Extended limit;
  std::function<Extended(const Row&)> compute;
};

// Exact: the rates are those of powers of two, or their products with x have few bits.
Extended MeanOf(const Row& r) {
  const Extended mean = 1 / r("rate_dec");
  return mean * r("rate_dec") == 1 && std::exp2(std::round(std::log2(mean))) == mean ? mean : 1;
}
Extended PointOf(const Row& r) {
  return MeanOf(r) == 1 ? r("x_dec") * r("rate_dec") : r("x_dec");
}

const Figure kFigures[] = {
    {"normal_cdf", "cdf", 120, [](const Row& r) { return fp::NormalLower(0, 1, r("x_dec")); }},
    {"normal_cdf", "upper", 120, [](const Row& r) { return fp::NormalUpper(0, 1, r("x_dec")); }},
    {"normal_cdf", "pdf", 120, [](const Row& r) { return fp::NormalPdf(0, 1, r("x_dec")); }},
    {"normal_quantile", "z", 20, [](const Row& r) { return fp::NormalQuantile(0, 1, r("p_dec")); }},
    {"lognormal_cdf", "cdf", 120,
     [](const Row& r) { return fp::LogNormalLower(r("mu_dec"), r("sigma_dec"), r("x_dec")); }},
    {"lognormal_cdf", "upper", 120,
     [](const Row& r) { return fp::LogNormalUpper(r("mu_dec"), r("sigma_dec"), r("x_dec")); }},
    {"exponential_cdf", "cdf", 120,
     [](const Row& r) { return fp::ExponentialLower(MeanOf(r), PointOf(r)); }},
    {"exponential_cdf", "upper", 120,
     [](const Row& r) { return fp::ExponentialUpper(MeanOf(r), PointOf(r)); }},
    {"gamma_p", "P", 120, [](const Row& r) { return fp::GammaLower(r("a_dec"), 1, r("x_dec")); }},
    {"gamma_p", "Q", 120, [](const Row& r) { return fp::GammaUpper(r("a_dec"), 1, r("x_dec")); }},
    {"gamma_inv", "x", 20,
     [](const Row& r) { return fp::GammaQuantile(r("a_dec"), 1, r("p_dec")); }},
    {"chisq_cdf", "cdf", 120, [](const Row& r) { return fp::ChiSquareLower(r("df"), r("x_dec")); }},
    {"chisq_cdf", "upper", 120,
     [](const Row& r) { return fp::ChiSquareUpper(r("df"), r("x_dec")); }},
    {"chisq_inv", "x", 20, [](const Row& r) { return fp::ChiSquareQuantile(r("df"), r("p_dec")); }},
    {"t_cdf", "cdf", 120, [](const Row& r) { return fp::StudentTLower(r("df_dec"), r("t_dec")); }},
    {"t_cdf", "upper", 120,
     [](const Row& r) { return fp::StudentTUpper(r("df_dec"), r("t_dec")); }},
    {"t_inv", "t", 20, [](const Row& r) { return fp::StudentTQuantile(r("df"), r("p_dec")); }},
    {"f_cdf", "cdf", 120,
     [](const Row& r) { return fp::FDistLower(r("d1_dec"), r("d2_dec"), r("x_dec")); }},
    {"f_cdf", "upper", 120,
     [](const Row& r) { return fp::FDistUpper(r("d1_dec"), r("d2_dec"), r("x_dec")); }},
    {"f_inv", "x", 20,
     [](const Row& r) { return fp::FDistQuantile(r("d1"), r("d2"), r("p_dec")); }},
    {"beta_inc", "I", 120,
     [](const Row& r) { return fp::BetaLower(r("a_dec"), r("b_dec"), r("x_dec")); }},
    {"beta_inc", "Ic", 120,
     [](const Row& r) { return fp::BetaUpper(r("a_dec"), r("b_dec"), r("x_dec")); }},
    {"beta_inv", "x", 20,
     [](const Row& r) { return fp::BetaQuantile(r("a_dec"), r("b_dec"), r("p_dec")); }},
    {"binomial", "pmf", 120,
     [](const Row& r) { return fp::BinomialPmf(r("p_dec"), r.Count("n"), r.Count("k")); }},
    {"binomial", "cdf_le", 120,
     [](const Row& r) { return fp::BinomialLower(r("p_dec"), r.Count("n"), r.Count("k")); }},
    {"binomial", "upper_gt", 120,
     [](const Row& r) { return fp::BinomialUpper(r("p_dec"), r.Count("n"), r.Count("k")); }},
    {"hypergeometric", "pmf", 120,
     [](const Row& r) {
       return fp::HyperGeometricPmf(r.Count("N"), r.Count("n"), r.Count("K"), r.Count("k"));
     }},
    {"hypergeometric", "cdf_le", 120,
     [](const Row& r) {
       return fp::HyperGeometricLower(r.Count("N"), r.Count("n"), r.Count("K"), r.Count("k"));
     }},
    {"hypergeometric", "upper_gt", 120,
     [](const Row& r) {
       return fp::HyperGeometricUpper(r.Count("N"), r.Count("n"), r.Count("K"), r.Count("k"));
     }},
    {"poisson", "pmf", 120,
     [](const Row& r) { return fp::PoissonPmf(r("lambda_dec"), r.Count("k")); }},
    {"poisson", "cdf_le", 120,
     [](const Row& r) { return fp::PoissonLower(r("lambda_dec"), r.Count("k")); }},
    {"poisson", "upper_gt", 120,
     [](const Row& r) { return fp::PoissonUpper(r("lambda_dec"), r.Count("k")); }},
};

TEST(FullPrecision, AgreesWithTheTablesIntoTheFarthestTails) {
  for (const Figure& figure : kFigures) {
    SCOPED_TRACE(figure.table);
    const Table table(std::string("tables/") + figure.table + ".csv");
    testing::ExpectWorstError(
        table, figure.column, figure.limit,
        [&](std::size_t row) {
          return figure.compute({table, row});
        },
        std::numeric_limits<Extended>::min());
  }
}

}  // namespace qorvex
