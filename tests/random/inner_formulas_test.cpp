// Formulas that decide so few variates, or come so close to others, that even a million draws would
// not show a wrong digit.

#include <functional>
#include <map>
#include <string>

#include "qorvex/random/detail/binomial_ratios.h"
#include "qorvex/random/detail/poisson_densities.h"
#include "qorvex/random/detail/power_of_complement.h"
#include "qorvex/random/von_mises.h"
#include "random/scripted_source.h"
#include "support/table.h"
#include "support/test.h"

namespace qorvex {
namespace {

detail::BinomialRatios Ratios(Extended n, Extended p) {
  return {n, p, 1 - p, std::floor(n * p + p)};
}

detail::PoissonAndNormal Densities(Extended mu, Extended k) {
  return detail::PoissonDensities(mu, std::sqrt(mu)).At(k);
}

// The angle for a uniform value that chooses an interval and a place in it; the next value accepts
// the place.
Extended Angle(Extended k, Extended u) {
  return Random_von_Mises(k, testing::ScriptedSource({u, 1 - 0x1p-64L, 0.75L}));
}

using Formula = std::function<Extended(Extended a, Extended b, Extended c)>;

const std::map<std::string, Formula> kFormulas = {
    {"stirling", [](auto z, auto, auto) { return detail::StirlingCorrection(z); }},
    {"binomial-quotient", [](auto n, auto p, auto y) { return Ratios(n, p).Quotient(y); }},
    {"binomial-log-quotient", [](auto n, auto p, auto y) { return Ratios(n, p).LogQuotient(y); }},
    {"poisson",
     [](auto mu, auto k, auto) {
       const auto at = Densities(mu, k);
       return at.p_factor * std::exp(at.p_exponent);
     }},
    {"normal-exponent", [](auto mu, auto k, auto) { return Densities(mu, k).n_exponent; }},
    {"normal-factor", [](auto mu, auto k, auto) { return Densities(mu, k).n_factor; }},
    {"power-of-complement", [](auto p, auto n, auto) { return detail::PowerOfComplement(p, n); }},
    {"von-mises", [](auto k, auto u, auto) { return Angle(k, u); }},
};

TEST(InnerFormulas, AgreeWithTheTable) {
  const testing::Table table("tables/variate_formulas.csv");
  for (std::size_t row = 0; row < table.size(); ++row) {
    const auto parameter = [&](const char* name) {
      return table.Text(row, name).empty() ? 0 : table.Value(row, name);
    };
    const Formula& formula = kFormulas.at(table.Text(row, "formula"));
    const Extended value = formula(parameter("a"), parameter("b"), parameter("c"));
    EXPECT_LE(std::fabs(value - table.Value(row, "value")), table.Value(row, "limit"))
        << "row " << row + 1;
  }
}

}  // namespace
}  // namespace qorvex
