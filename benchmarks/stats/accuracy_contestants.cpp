#include "stats/accuracy_contestants.h"

#include <Rmath.h>
#include <boost/math/distributions.hpp>
#include <boost/math/distributions/hypergeometric.hpp>
#include <cmath>
#include <cstdint>
#include <gsl/gsl_cdf.h>
#include <gsl/gsl_randist.h>

#include "qorvex/stats/QorvexStatistics.h"

namespace qorvex::benchmarks {

namespace {

using testing::Row;

namespace bm = boost::math;
using Policy = bm::policies::policy<bm::policies::promote_double<false>>;
using Normal = bm::normal_distribution<Extended, Policy>;
using LogNormal = bm::lognormal_distribution<Extended, Policy>;
using Exponential = bm::exponential_distribution<Extended, Policy>;
using Gamma = bm::gamma_distribution<Extended, Policy>;
using ChiSquared = bm::chi_squared_distribution<Extended, Policy>;
using StudentsT = bm::students_t_distribution<Extended, Policy>;
using FisherF = bm::fisher_f_distribution<Extended, Policy>;
using Beta = bm::beta_distribution<Extended, Policy>;
using Binomial = bm::binomial_distribution<Extended, Policy>;
using Hypergeometric = bm::hypergeometric_distribution<Extended, Policy>;
using Poisson = bm::poisson_distribution<Extended, Policy>;

double D(const Row& row, const char* column) {
  return static_cast<double>(row(column));
}

// Degrees of freedom for the classic routines, which take whole ones; a row with others fails.
std::uint32_t Whole(const Row& row, const char* column) {
  const Extended value = row(column);
  return value == std::trunc(value) ? static_cast<std::uint32_t>(value) : 0;
}

Hypergeometric Draws(const Row& row) {
  return {row.Count("K"), row.Count("n"), row.Count("N")};
}

}  // namespace

// Counts below are inclusive in these libraries, exclusive in our classic routines.
const std::map<std::string, Contestants>& AllContestants() {
  static const std::map<std::string, Contestants> all{
      {"normal lower",
       {[](const Row& r) -> Extended { return NormalDistLess(0, 1, r("x_dec")); },
        [](const Row& r) -> Extended { return cdf(Normal(), r("x_dec")); },
        [](const Row& r) -> Extended { return gsl_cdf_ugaussian_P(D(r, "x_dec")); },
        [](const Row& r) -> Extended { return pnorm(D(r, "x_dec"), 0, 1, 1, 0); }}},
      {"normal upper",
       {[](const Row& r) -> Extended { return NormalDistGreater(0, 1, r("x_dec")); },
        [](const Row& r) -> Extended { return cdf(complement(Normal(), r("x_dec"))); },
        [](const Row& r) -> Extended { return gsl_cdf_ugaussian_Q(D(r, "x_dec")); },
        [](const Row& r) -> Extended { return pnorm(D(r, "x_dec"), 0, 1, 0, 0); }}},
      {"normal density",
       {[](const Row& r) -> Extended { return NormalPDF(r("x_dec"), 0, 1); },
        [](const Row& r) -> Extended { return pdf(Normal(), r("x_dec")); },
        [](const Row& r) -> Extended { return gsl_ran_ugaussian_pdf(D(r, "x_dec")); },
        [](const Row& r) -> Extended { return dnorm(D(r, "x_dec"), 0, 1, 0); }}},
      {"normal quantile",
       {[](const Row& r) -> Extended { return InvNormalLess(r("p_dec")); },
        [](const Row& r) -> Extended { return quantile(Normal(), r("p_dec")); },
        [](const Row& r) -> Extended { return gsl_cdf_ugaussian_Pinv(D(r, "p_dec")); },
        [](const Row& r) -> Extended { return qnorm(D(r, "p_dec"), 0, 1, 1, 0); }}},
      {"log-normal lower",
       {[](const Row& r) -> Extended {
          return LogNormalLess(r("mu_dec"), r("sigma_dec"), r("x_dec"));
        },
        [](const Row& r) -> Extended {
          return cdf(LogNormal(r("mu_dec"), r("sigma_dec")), r("x_dec"));
        },
        [](const Row& r) -> Extended {
          return gsl_cdf_lognormal_P(D(r, "x_dec"), D(r, "mu_dec"), D(r, "sigma_dec"));
        },
        [](const Row& r) -> Extended {
          return plnorm(D(r, "x_dec"), D(r, "mu_dec"), D(r, "sigma_dec"), 1, 0);
        }}},
      {"log-normal upper",
       {[](const Row& r) -> Extended {
          return LogNormalGreater(r("mu_dec"), r("sigma_dec"), r("x_dec"));
        },
        [](const Row& r) -> Extended {
          return cdf(complement(LogNormal(r("mu_dec"), r("sigma_dec")), r("x_dec")));
        },
        [](const Row& r) -> Extended {
          return gsl_cdf_lognormal_Q(D(r, "x_dec"), D(r, "mu_dec"), D(r, "sigma_dec"));
        },
        [](const Row& r) -> Extended {
          return plnorm(D(r, "x_dec"), D(r, "mu_dec"), D(r, "sigma_dec"), 0, 0);
        }}},
      {"exponential lower",
       {[](const Row& r) -> Extended {
          return ExponentialLess(testing::MeanOf(r), testing::PointOf(r));
        },
        [](const Row& r) -> Extended {
          return cdf(Exponential(1 / testing::MeanOf(r)), testing::PointOf(r));
        },
        [](const Row& r) -> Extended {
          return gsl_cdf_exponential_P(static_cast<double>(testing::PointOf(r)),
                                       static_cast<double>(testing::MeanOf(r)));
        },
        [](const Row& r) -> Extended {
          return pexp(static_cast<double>(testing::PointOf(r)),
                      static_cast<double>(testing::MeanOf(r)), 1, 0);
        }}},
      {"exponential upper",
       {[](const Row& r) -> Extended {
          return ExponentialGreater(testing::MeanOf(r), testing::PointOf(r));
        },
        [](const Row& r) -> Extended {
          return cdf(complement(Exponential(1 / testing::MeanOf(r)), testing::PointOf(r)));
        },
        [](const Row& r) -> Extended {
          return gsl_cdf_exponential_Q(static_cast<double>(testing::PointOf(r)),
                                       static_cast<double>(testing::MeanOf(r)));
        },
        [](const Row& r) -> Extended {
          return pexp(static_cast<double>(testing::PointOf(r)),
                      static_cast<double>(testing::MeanOf(r)), 0, 0);
        }}},
      {"gamma lower",
       {[](const Row& r) -> Extended { return IncompleteGamma(r("a_dec"), r("x_dec")); },
        [](const Row& r) -> Extended { return cdf(Gamma(r("a_dec")), r("x_dec")); },
        [](const Row& r) -> Extended { return gsl_cdf_gamma_P(D(r, "x_dec"), D(r, "a_dec"), 1); },
        [](const Row& r) -> Extended { return pgamma(D(r, "x_dec"), D(r, "a_dec"), 1, 1, 0); }}},
      {"gamma upper",
       {{},
        [](const Row& r) -> Extended { return cdf(complement(Gamma(r("a_dec")), r("x_dec"))); },
        [](const Row& r) -> Extended { return gsl_cdf_gamma_Q(D(r, "x_dec"), D(r, "a_dec"), 1); },
        [](const Row& r) -> Extended { return pgamma(D(r, "x_dec"), D(r, "a_dec"), 1, 0, 0); }}},
      {"gamma quantile",
       {{},
        [](const Row& r) -> Extended { return quantile(Gamma(r("a_dec")), r("p_dec")); },
        [](const Row& r) -> Extended {
          return gsl_cdf_gamma_Pinv(D(r, "p_dec"), D(r, "a_dec"), 1);
        },
        [](const Row& r) -> Extended { return qgamma(D(r, "p_dec"), D(r, "a_dec"), 1, 1, 0); }}},
      {"chi-square lower",
       {[](const Row& r) -> Extended { return ChiSquareLess(r("x_dec"), r.Count("df")); },
        [](const Row& r) -> Extended { return cdf(ChiSquared(r("df")), r("x_dec")); },
        [](const Row& r) -> Extended { return gsl_cdf_chisq_P(D(r, "x_dec"), D(r, "df")); },
        [](const Row& r) -> Extended { return pchisq(D(r, "x_dec"), D(r, "df"), 1, 0); }}},
      {"chi-square upper",
       {[](const Row& r) -> Extended { return ChiSquareGreater(r("x_dec"), r.Count("df")); },
        [](const Row& r) -> Extended { return cdf(complement(ChiSquared(r("df")), r("x_dec"))); },
        [](const Row& r) -> Extended { return gsl_cdf_chisq_Q(D(r, "x_dec"), D(r, "df")); },
        [](const Row& r) -> Extended { return pchisq(D(r, "x_dec"), D(r, "df"), 0, 0); }}},
      {"chi-square quantile",
       {[](const Row& r) -> Extended { return InvChiSquareLess(r.Count("df"), r("p_dec")); },
        [](const Row& r) -> Extended { return quantile(ChiSquared(r("df")), r("p_dec")); },
        [](const Row& r) -> Extended { return gsl_cdf_chisq_Pinv(D(r, "p_dec"), D(r, "df")); },
        [](const Row& r) -> Extended { return qchisq(D(r, "p_dec"), D(r, "df"), 1, 0); }}},
      {"student-t lower",
       {[](const Row& r) -> Extended { return StudentTLess(r("t_dec"), Whole(r, "df_dec")); },
        [](const Row& r) -> Extended { return cdf(StudentsT(r("df_dec")), r("t_dec")); },
        [](const Row& r) -> Extended { return gsl_cdf_tdist_P(D(r, "t_dec"), D(r, "df_dec")); },
        [](const Row& r) -> Extended { return pt(D(r, "t_dec"), D(r, "df_dec"), 1, 0); }}},
      {"student-t upper",
       {[](const Row& r) -> Extended { return StudentTGreater(r("t_dec"), Whole(r, "df_dec")); },
        [](const Row& r) -> Extended {
          return cdf(complement(StudentsT(r("df_dec")), r("t_dec")));
        },
        [](const Row& r) -> Extended { return gsl_cdf_tdist_Q(D(r, "t_dec"), D(r, "df_dec")); },
        [](const Row& r) -> Extended { return pt(D(r, "t_dec"), D(r, "df_dec"), 0, 0); }}},
      {"student-t quantile",
       {[](const Row& r) -> Extended { return InvStudentTLess(r.Count("df"), r("p_dec")); },
        [](const Row& r) -> Extended { return quantile(StudentsT(r("df")), r("p_dec")); },
        [](const Row& r) -> Extended { return gsl_cdf_tdist_Pinv(D(r, "p_dec"), D(r, "df")); },
        [](const Row& r) -> Extended { return qt(D(r, "p_dec"), D(r, "df"), 1, 0); }}},
      {"f lower",
       {[](const Row& r) -> Extended {
          return FDistLess(r("x_dec"), Whole(r, "d1_dec"), Whole(r, "d2_dec"));
        },
        [](const Row& r) -> Extended { return cdf(FisherF(r("d1_dec"), r("d2_dec")), r("x_dec")); },
        [](const Row& r) -> Extended {
          return gsl_cdf_fdist_P(D(r, "x_dec"), D(r, "d1_dec"), D(r, "d2_dec"));
        },
        [](const Row& r) -> Extended {
          return pf(D(r, "x_dec"), D(r, "d1_dec"), D(r, "d2_dec"), 1, 0);
        }}},
      {"f upper",
       {[](const Row& r) -> Extended {
          return FDistGreater(r("x_dec"), Whole(r, "d1_dec"), Whole(r, "d2_dec"));
        },
        [](const Row& r) -> Extended {
          return cdf(complement(FisherF(r("d1_dec"), r("d2_dec")), r("x_dec")));
        },
        [](const Row& r) -> Extended {
          return gsl_cdf_fdist_Q(D(r, "x_dec"), D(r, "d1_dec"), D(r, "d2_dec"));
        },
        [](const Row& r) -> Extended {
          return pf(D(r, "x_dec"), D(r, "d1_dec"), D(r, "d2_dec"), 0, 0);
        }}},
      {"f quantile",
       {[](const Row& r) -> Extended {
          return InvFDistLess(r.Count("d1"), r.Count("d2"), r("p_dec"));
        },
        [](const Row& r) -> Extended { return quantile(FisherF(r("d1"), r("d2")), r("p_dec")); },
        [](const Row& r) -> Extended {
          return gsl_cdf_fdist_Pinv(D(r, "p_dec"), D(r, "d1"), D(r, "d2"));
        },
        [](const Row& r) -> Extended { return qf(D(r, "p_dec"), D(r, "d1"), D(r, "d2"), 1, 0); }}},
      {"beta lower",
       {[](const Row& r) -> Extended { return BetaDistLess(r("x_dec"), r("a_dec"), r("b_dec")); },
        [](const Row& r) -> Extended { return cdf(Beta(r("a_dec"), r("b_dec")), r("x_dec")); },
        [](const Row& r) -> Extended {
          return gsl_cdf_beta_P(D(r, "x_dec"), D(r, "a_dec"), D(r, "b_dec"));
        },
        [](const Row& r) -> Extended {
          return pbeta(D(r, "x_dec"), D(r, "a_dec"), D(r, "b_dec"), 1, 0);
        }}},
      {"beta upper",
       {[](const Row& r) -> Extended {
          return BetaDistGreater(r("x_dec"), r("a_dec"), r("b_dec"));
        },
        [](const Row& r) -> Extended {
          return cdf(complement(Beta(r("a_dec"), r("b_dec")), r("x_dec")));
        },
        [](const Row& r) -> Extended {
          return gsl_cdf_beta_Q(D(r, "x_dec"), D(r, "a_dec"), D(r, "b_dec"));
        },
        [](const Row& r) -> Extended {
          return pbeta(D(r, "x_dec"), D(r, "a_dec"), D(r, "b_dec"), 0, 0);
        }}},
      {"beta quantile",
       {[](const Row& r) -> Extended {
          return InvBetaDistLess(r("a_dec"), r("b_dec"), r("p_dec"));
        },
        [](const Row& r) -> Extended { return quantile(Beta(r("a_dec"), r("b_dec")), r("p_dec")); },
        [](const Row& r) -> Extended {
          return gsl_cdf_beta_Pinv(D(r, "p_dec"), D(r, "a_dec"), D(r, "b_dec"));
        },
        [](const Row& r) -> Extended {
          return qbeta(D(r, "p_dec"), D(r, "a_dec"), D(r, "b_dec"), 1, 0);
        }}},
      {"binomial density",
       {[](const Row& r) -> Extended { return BinomialEq(r("p_dec"), r.Count("n"), r.Count("k")); },
        [](const Row& r) -> Extended { return pdf(Binomial(r("n"), r("p_dec")), r("k")); },
        [](const Row& r) -> Extended {
          return gsl_ran_binomial_pdf(r.Count("k"), D(r, "p_dec"), r.Count("n"));
        },
        [](const Row& r) -> Extended { return dbinom(D(r, "k"), D(r, "n"), D(r, "p_dec"), 0); }}},
      {"binomial lower",
       {[](const Row& r) -> Extended {
          return BinomialLess(r("p_dec"), r.Count("n"), r.Count("k") + 1);
        },
        [](const Row& r) -> Extended { return cdf(Binomial(r("n"), r("p_dec")), r("k")); },
        [](const Row& r) -> Extended {
          return gsl_cdf_binomial_P(r.Count("k"), D(r, "p_dec"), r.Count("n"));
        },
        [](const Row& r) -> Extended {
          return pbinom(D(r, "k"), D(r, "n"), D(r, "p_dec"), 1, 0);
        }}},
      {"binomial upper",
       {[](const Row& r) -> Extended {
          return BinomialGreater(r("p_dec"), r.Count("n"), r.Count("k"));
        },
        [](const Row& r) -> Extended {
          return cdf(complement(Binomial(r("n"), r("p_dec")), r("k")));
        },
        [](const Row& r) -> Extended {
          return gsl_cdf_binomial_Q(r.Count("k"), D(r, "p_dec"), r.Count("n"));
        },
        [](const Row& r) -> Extended {
          return pbinom(D(r, "k"), D(r, "n"), D(r, "p_dec"), 0, 0);
        }}},
      {"hypergeometric density",
       {[](const Row& r) -> Extended {
          return HyperGeometricEq(r.Count("N"), r.Count("n"), r.Count("K"), r.Count("k"));
        },
        [](const Row& r) -> Extended { return pdf(Draws(r), r.Count("k")); },
        [](const Row& r) -> Extended {
          return gsl_ran_hypergeometric_pdf(r.Count("k"), r.Count("K"), r.Count("N") - r.Count("K"),
                                            r.Count("n"));
        },
        [](const Row& r) -> Extended {
          return dhyper(D(r, "k"), D(r, "K"), D(r, "N") - D(r, "K"), D(r, "n"), 0);
        }}},
      {"hypergeometric lower",
       {[](const Row& r) -> Extended {
          return HyperGeometricLess(r.Count("N"), r.Count("n"), r.Count("K"), r.Count("k") + 1);
        },
        [](const Row& r) -> Extended { return cdf(Draws(r), r.Count("k")); },
        [](const Row& r) -> Extended {
          return gsl_cdf_hypergeometric_P(r.Count("k"), r.Count("K"), r.Count("N") - r.Count("K"),
                                          r.Count("n"));
        },
        [](const Row& r) -> Extended {
          return phyper(D(r, "k"), D(r, "K"), D(r, "N") - D(r, "K"), D(r, "n"), 1, 0);
        }}},
      {"hypergeometric upper",
       {[](const Row& r) -> Extended {
          return HyperGeometricGreater(r.Count("N"), r.Count("n"), r.Count("K"), r.Count("k"));
        },
        [](const Row& r) -> Extended { return cdf(complement(Draws(r), r.Count("k"))); },
        [](const Row& r) -> Extended {
          return gsl_cdf_hypergeometric_Q(r.Count("k"), r.Count("K"), r.Count("N") - r.Count("K"),
                                          r.Count("n"));
        },
        [](const Row& r) -> Extended {
          return phyper(D(r, "k"), D(r, "K"), D(r, "N") - D(r, "K"), D(r, "n"), 0, 0);
        }}},
      {"poisson density",
       {[](const Row& r) -> Extended { return PoissonEq(r("lambda_dec"), r.Count("k")); },
        [](const Row& r) -> Extended { return pdf(Poisson(r("lambda_dec")), r("k")); },
        [](const Row& r) -> Extended {
          return gsl_ran_poisson_pdf(r.Count("k"), D(r, "lambda_dec"));
        },
        [](const Row& r) -> Extended { return dpois(D(r, "k"), D(r, "lambda_dec"), 0); }}},
      {"poisson lower",
       {[](const Row& r) -> Extended { return PoissonLess(r("lambda_dec"), r.Count("k") + 1); },
        [](const Row& r) -> Extended { return cdf(Poisson(r("lambda_dec")), r("k")); },
        [](const Row& r) -> Extended {
          return gsl_cdf_poisson_P(r.Count("k"), D(r, "lambda_dec"));
        },
        [](const Row& r) -> Extended { return ppois(D(r, "k"), D(r, "lambda_dec"), 1, 0); }}},
      {"poisson upper",
       {[](const Row& r) -> Extended { return PoissonGreater(r("lambda_dec"), r.Count("k")); },
        [](const Row& r) -> Extended { return cdf(complement(Poisson(r("lambda_dec")), r("k"))); },
        [](const Row& r) -> Extended {
          return gsl_cdf_poisson_Q(r.Count("k"), D(r, "lambda_dec"));
        },
        [](const Row& r) -> Extended { return ppois(D(r, "k"), D(r, "lambda_dec"), 0, 0); }}}};
  return all;
}

}  // namespace qorvex::benchmarks
