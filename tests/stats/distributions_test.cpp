#include "qorvex/stats/distributions/distributions.h"

#include <boost/math/quadrature/tanh_sinh.hpp>
#include <set>

#include "qorvex/base/QorvexGlobals.h"
#include "qorvex/stats/QorvexStatistics.h"
#include "support/distribution_figures.h"
#include "support/test.h"

// Beside the routines whose names are similar.
namespace users {
using namespace qorvex;  // NOLINT
static_assert(ContinuousDistribution<GammaDistribution> &&
              DiscreteDistribution<PoissonDistribution>);
Extended FactorialOfTwo() {
  const GammaDistribution gamma(3);
  return Gamma(3) * Beta(1, 1) * (Lower(gamma, 2) + Upper(gamma, Quantile(gamma, Lower(gamma, 2))));
}
}  // namespace users

namespace qorvex {

namespace {

using apps::AnyDistribution;

Extended Number(const std::string& text) {
  if (text == "nan") return kNaN;
  const Extended sign = text.front() == '-' ? -1 : 1;
  return text.ends_with("inf") ? sign * kInfinity : Str2Float(text);
}

// A family with parameters.
struct Instance {
  Instance(const testing::Table& table, std::size_t row)
      : family(apps::FindFamily(table.Text(row, "family"))) {
    for (const std::string& number : testing::Words(table.Text(row, "parameters")))
      parameters.push_back(Number(number));
  }
  [[nodiscard]] auto Make() const { return testing::MakeDistribution(*family, parameters); }

  const apps::Family* family;
  std::vector<Extended> parameters;
};

std::vector<Instance> Instances() {
  const testing::Table table("tables/distribution_instances.csv");
  std::vector<Instance> instances;
  for (std::size_t row = 0; row < table.size(); ++row) instances.emplace_back(table, row);
  return instances;
}

TEST(Distributions, AllHaveAnInstanceAndATable) {
  std::set<std::string> instances;
  std::set<std::string> tables;
  for (const Instance& instance : Instances()) instances.insert(instance.family->name);
  for (const auto& figure : testing::DistributionFigures())
    tables.insert(figure.name.substr(0, figure.name.rfind(' ')));
  for (const apps::Family& family : apps::Families()) {
    EXPECT_TRUE(instances.contains(family.name)) << family.name;
    EXPECT_TRUE(tables.contains(family.name)) << family.name;
    for (const char* const alias : family.aliases) EXPECT_EQ(apps::FindFamily(alias), &family);
  }
  EXPECT_EQ(apps::FindFamily("no such family"), nullptr);
}

TEST(Distributions, AgreeWithTheTablesIntoTheFarthestTails) {
  for (const testing::Figure& figure : testing::DistributionFigures()) {
    SCOPED_TRACE(figure.name);
    const testing::Table table = figure.Open();
    testing::ExpectWorstError(
        table, figure.column, figure.units,
        [&](std::size_t row) {
          return figure.compute({table, row});
        },
        std::numeric_limits<Extended>::min());
  }
}

using Function = Extended (*)(const AnyDistribution& distribution, Extended point);
const std::map<std::string, Function> kFunctions = {
    {"density", [](const AnyDistribution& d, Extended x) { return d.Pdf(x); }},
    {"lower", Lower<AnyDistribution>},
    {"upper", Upper<AnyDistribution>},
    {"log lower", LogLower<AnyDistribution>},
    {"log upper", LogUpper<AnyDistribution>},
    {"quantile", Quantile<AnyDistribution>},
    {"upper quantile", UpperQuantile<AnyDistribution>},
};

TEST(Distributions, ReachTheEndsOfTheFormatAndOfTheSupport) {
  const testing::Table table("tables/distribution_ends.csv");
  for (std::size_t row = 0; row < table.size(); ++row) {
    const Instance instance(table, row);
    const Extended exact = Number(table.Text(row, "exact"));
    const Extended figure = kFunctions.at(table.Text(row, "figure"))(
        *instance.Make(), Number(table.Text(row, "point")));
    const Extended slack = table.Value(row, "units") * 1e-19L * std::fabs(exact);
    EXPECT_TRUE(figure == exact || std::fabs(figure - exact) <= slack)
        << "row " << row + 1 << ": " << figure << ", not " << exact;
  }
}

constexpr Extended kProbabilities[] = {1e-4000L, 1e-300L, 1e-20L,  0.01L,        0.2L,
                                       0.5L,     0.875L,  0.9375L, 1 - 0x1p-40L, 1 - 0x1p-64L};

TEST(Distributions, HaveQuantilesThatInvertBothTailsHoweverSmall) {
  for (const Instance& instance : Instances()) {
    const auto d = instance.Make();
    const auto [least, greatest] = d->Support();
    for (const Extended p : kProbabilities) {
      SCOPED_TRACE(::testing::Message() << instance.family->name << ' ' << p);
      const Extended x = Quantile(*d, p);
      const Extended y = UpperQuantile(*d, p);
      if (instance.family->is_discrete) {
        EXPECT_TRUE(Lower(*d, x) >= p && (x == least || Lower(*d, x - 1) < p)) << x;
        EXPECT_TRUE(Upper(*d, y) <= p && (y == least || Upper(*d, y - 1) > p)) << y;
      } else {
        // A last bit of the quantile moves the logarithm by more, the farther out it is, and most
        // of all close to the end of a support.
        const auto expect_inverted = [&](Extended log_tail, Extended point) {
          const Extended last_bit = d->Pdf(point) * std::fabs(point) * 0x1p-63L / p;
          if (last_bit > 0.5L) return;
          EXPECT_LE(std::fabs(log_tail - std::log(p)), 1e-16L * (1 - std::log(p)) + 2 * last_bit);
        };
        expect_inverted(LogLower(*d, x), x);
        expect_inverted(LogUpper(*d, y), y);
      }
      EXPECT_LE(std::fabs(Lower(*d, x) + Upper(*d, x) - 1), 2e-19L);
      EXPECT_TRUE(x >= least && x <= greatest);
    }
  }
}

// The moments that follow from the quantiles, or from the probabilities of the counts.
TEST(Distributions, HaveTheirMomentsAndMode) {
  boost::math::quadrature::tanh_sinh<Extended> integrator;
  for (const Instance& instance : Instances()) {
    SCOPED_TRACE(::testing::Message() << instance.family->name << ' ' << instance.parameters[0]);
    const auto d = instance.Make();
    const bool is_discrete = instance.family->is_discrete;
    const auto expectation = [&](auto function) {
      if (!is_discrete) {
        return integrator.integrate(
            [&](Extended p) {
              return p <= 0 ? 0 : function(Quantile(*d, p)) + function(UpperQuantile(*d, p));
            },
            Extended(0), Extended(0.5L));
      }
      Extended sum = 0;
      for (Extended k = 0; k <= UpperQuantile(*d, 1e-40L); ++k) sum += function(k) * d->Pdf(k);
      return sum;
    };
    const Extended mean = d->Mean();
    const Extended std_dev = std::sqrt(d->Variance());
    if (std::isnan(mean)) continue;
    const auto standardised = [&](int power) {
      return expectation([&](Extended x) {
        Extended product = 1;
        for (int i = 0; i < power; ++i) product *= (x - mean) / std_dev;
        return product;
      });
    };
    EXPECT_NEAR(static_cast<double>(standardised(1)), 0, 1e-10);
    EXPECT_NEAR(static_cast<double>(standardised(2)), 1, 1e-10);
    EXPECT_NEAR(static_cast<double>(standardised(3) - d->Skewness()), 0, 1e-9);
    const Extended mode = d->Mode();
    const Extended step = is_discrete ? 1 : std_dev / 16;
    for (int i = 0; i <= 200; ++i) {
      ASSERT_LE(d->Pdf(mode + i * step), d->Pdf(mode)) << i;
      ASSERT_LE(d->Pdf(mode - i * step), d->Pdf(mode)) << i;
    }
  }
}

TEST(Distributions, HaveDensitiesThatAreTheSlopeOfTheirProbabilities) {
  for (const Instance& instance : Instances()) {
    const auto d = instance.Make();
    for (const Extended p : {0.05L, 0.3L, 0.8L}) {
      SCOPED_TRACE(::testing::Message() << instance.family->name << ' ' << p);
      const Extended x = Quantile(*d, p);
      if (instance.family->is_discrete) {
        EXPECT_LT(std::fabs(d->Pdf(x) - (Lower(*d, x) - Lower(*d, x - 1))), 1e-18L);
      } else {
        // Simpson's rule.
        const Extended h = (Quantile(*d, 0.8L) - Quantile(*d, 0.3L)) * 0x1p-10L;
        const Extended area = h / 3 * (d->Pdf(x - h) + 4 * d->Pdf(x) + d->Pdf(x + h));
        EXPECT_LT(std::fabs(area / Between(*d, x - h, x + h) - 1), 1e-8L);
      }
    }
  }
}

TEST(Distributions, AreZeroOrOneBeyondTheSupport) {
  for (const Instance& instance : Instances()) {
    SCOPED_TRACE(instance.family->name);
    const auto d = instance.Make();
    const auto [least, greatest] = d->Support();
    const bool is_discrete = instance.family->is_discrete;
    for (const Extended below : {-kInfinity, least - 1, is_discrete ? -1.0L : least}) {
      EXPECT_EQ(Lower(*d, below), 0);
      EXPECT_EQ(Upper(*d, below), 1);
      EXPECT_EQ(LogLower(*d, below), -kInfinity);
      EXPECT_EQ(LogUpper(*d, below), 0);
      EXPECT_EQ(d->Pdf(least - 1), 0);
    }
    for (const Extended above : {kInfinity, greatest + 1, greatest}) {
      EXPECT_EQ(Lower(*d, above), 1);
      EXPECT_EQ(Upper(*d, above), 0);
      EXPECT_EQ(d->Pdf(greatest + 1), 0);
    }
  }
}

TEST(Distributions, GiveNaNForNaN) {
  const auto expect_nan = [](const apps::Family& family, const AnyDistribution& d, Extended x) {
    for (const auto& [name, function] : kFunctions) {
      if (!family.is_discrete) {
        EXPECT_TRUE(std::isnan(function(d, x))) << name;
      } else if (name.ends_with("quantile")) {
        EXPECT_THROW(function(d, x), EMathError) << name;
      } else if (name != "density") {
        EXPECT_TRUE(std::isnan(function(d, x))) << name;
      }
    }
  };
  for (Instance instance : Instances()) {
    SCOPED_TRACE(instance.family->name);
    expect_nan(*instance.family, *instance.Make(), kNaN);
    for (std::size_t i = 0; i < instance.parameters.size(); ++i) {
      if (instance.family->parameters[i].kind == apps::NumberKind::kCount) continue;
      const Extended parameter = std::exchange(instance.parameters[i], kNaN);
      const auto d = instance.Make();
      expect_nan(*instance.family, *d, 0.5L);
      EXPECT_TRUE(std::isnan(d->Pdf(0)));
      if (instance.family->is_discrete) {
        EXPECT_THROW((void)d->Mode(), EMathError);
      }
      instance.parameters[i] = parameter;
    }
  }
}

TEST(Distributions, RefuseBadParametersAndProbabilities) {
#define QORVEX_NAMED(id, text) {#id, id},
  const std::map<std::string, MessageId> messages = {QORVEX_MATH_MESSAGES(QORVEX_NAMED)};
#undef QORVEX_NAMED
  const testing::Table table("tables/distribution_errors.csv");
  for (std::size_t row = 0; row < table.size(); ++row) {
    try {
      (void)Instance(table, row).Make();
      ADD_FAILURE() << "row " << row + 1;
    } catch (const EMathError& error) {
      EXPECT_EQ(error.message_id(), messages.at(table.Text(row, "message"))) << "row " << row + 1;
    }
  }
  for (const Instance& instance : Instances()) {
    for (const Extended p : {0.0L, 1.0L, -0.5L}) {
      EXPECT_MATH_ERROR(Quantile(*instance.Make(), p), rsValue01);
      EXPECT_MATH_ERROR(UpperQuantile(*instance.Make(), p), rsValue01);
    }
  }
  EXPECT_ERROR(Quantile(PoissonDistribution(1e10L), 0.5L), EOverflow, rsOverflow);
  EXPECT_ERROR(Quantile(LogisticDistribution(0, 1e4932L), 1e-100L), EOverflow, rsOverflow);
  EXPECT_ERROR(UpperQuantile(GumbelDistribution(0, 1e4932L), 1e-100L), EOverflow, rsOverflow);
  EXPECT_ERROR((void)PoissonDistribution(1e10L).Mode(), EOverflow, rsOverflow);
}

TEST(Distributions, HaveMomentsThatAreInfiniteOrDoNotExist) {
  const testing::Table table("tables/distribution_moments.csv");
  for (std::size_t row = 0; row < table.size(); ++row) {
    const auto d = Instance(table, row).Make();
    const auto expect_same = [&](Extended figure, const char* column) {
      const Extended exact = Number(table.Text(row, column));
      const bool is_same = figure == exact || std::fabs(figure - exact) <= 3e-18L;
      EXPECT_TRUE(is_same || (std::isnan(figure) && std::isnan(exact)))
          << "row " << row + 1 << ", " << column << ": " << figure;
    };
    expect_same(d->Mean(), "mean");
    expect_same(d->Variance(), "variance");
    expect_same(d->Skewness(), "skewness");
    expect_same(d->Mode(), "mode");
  }
  // Products within the format of factors beyond it.
  const Extended mean = WeibullDistribution(0x1p-11L, 1e-4000L).Mean();
  EXPECT_LT(std::fabs(mean / 1.672691931910011705169952e1894L - 1), 1e-17L);
  for (const auto& [log_mean, exact] : {std::pair{12000, 1.168330402273039364869878e4423L},
                                        std::pair{10000, 7.756004725986861045832041e2685L}}) {
    const Extended variance = LogNormalDistribution(log_mean, 1e-3000L).Variance();
    EXPECT_LT(std::fabs(variance / exact - 1), 1e-17L);
  }
}

TEST(Distributions, IncludeTheInverseGaussian) {
  const auto distribution = GeneralisedInverseGaussianDistribution::InverseGaussian(3, 0.125L);
  const auto expect_close = [](Extended figure, Extended exact) {
    EXPECT_LT(std::fabs(figure / exact - 1), 2e-18L) << figure;
  };
  expect_close(distribution.Mean(), 3);
  expect_close(distribution.Variance(), 216);
  expect_close(distribution.Pdf(0x1p-9L), 2.157427974731081309862907e-11L);
  expect_close(Lower(distribution, 0x1p-9L), 1.297111556661623280487767e-15L);
  EXPECT_MATH_ERROR(GeneralisedInverseGaussianDistribution::InverseGaussian(0, 1), rsValueGZero);
  EXPECT_MATH_ERROR(GeneralisedInverseGaussianDistribution::InverseGaussian(1, 0), rsValueGZero);
  for (const Extended mean : {1e-4000L, 1e4000L}) {
    EXPECT_ERROR(GeneralisedInverseGaussianDistribution::InverseGaussian(mean, 1 / mean),
                 EInvalidOp, rsInvalidOp);
  }
}

TEST(DistributionFunctions, KeepTheAccuracyOfTailsBetweenTwoPoints) {
  const NormalDistribution normal;
  const auto expect_close = [](Extended figure, Extended exact) {
    EXPECT_LT(std::fabs(figure / exact - 1), 2e-18L) << figure;
  };
  expect_close(Between(normal, 30, 31), 4.906713927147917534526e-198L);
  expect_close(Between(normal, -30, -31), 4.906713927147917534526e-198L);
  expect_close(Between(normal, 2, -1), 0.8185946141203637413849L);
  expect_close(LogBetween(normal, 2, -1), -0.2001662943244625799492L);
  expect_close(LogBetween(normal, -200, -201), -20006.21728089819040209L);
  expect_close(LogBetween(normal, 200, 200 + 0x1p-20L), -20014.78197751031954663L);
  expect_close(LogBetween(ExponentialDistribution(1), 12000, 12001), -12000.45867514538708189L);
  EXPECT_EQ(Between(normal, 1, 1), 0);
  EXPECT_EQ(LogBetween(normal, 200, 200), -kInfinity);
  EXPECT_EQ(LogBetween(ExponentialDistribution(1), -2, -1), -kInfinity);
  EXPECT_EQ(LogBetween(normal, 1e3000L, 2e3000L), -kInfinity);
  EXPECT_EQ(LogBetween(normal, 30, 1e3000L), LogUpper(normal, 30));
  EXPECT_TRUE(std::isnan(Between(normal, kNaN, 1)) && std::isnan(LogBetween(normal, 1, kNaN)));
  const PoissonDistribution poisson(4);
  expect_close(Between(poisson, 25, 20), 1.921489145633260056441e-9L);
  expect_close(LogBetween(poisson, 20, 25), -20.07016535484240976333L);
  expect_close(LogBetween(PoissonDistribution(1), 2005, 2000), -13215.12525322322380724L);
  EXPECT_EQ(Between(poisson, 3, 3), 0);
  EXPECT_EQ(Between(poisson, 3, 4), 0);
}

TEST(DistributionFunctions, FillTablesAndSpans) {
  const ExponentialDistribution exponential(2);
  const auto table = Table(exponential, -1, 3, 4);
  for (std::size_t i = 0; i < 5; ++i) {
    EXPECT_EQ(table.points[i], static_cast<Extended>(i) - 1);
    EXPECT_EQ(table.densities[i], exponential.Pdf(table.points[i]));
  }
  EXPECT_EQ(Table(exponential, 7, 3, 0).points, (TQorFloatVector{7}));
  const BinomialDistribution binomial(0.5L, 2);
  EXPECT_EQ(Table(binomial, 0, 3).densities, (TQorFloatVector{0.25L, 0.5L, 0.25L, 0}));
  EXPECT_EQ(Table(binomial, 4294967294U, 4294967295U).points.size(), 2U);
  EXPECT_EQ(Table(binomial, 1, 0).points.size(), 0U);
  TQorFloatVector values{1, 2, 3};
  Evaluate(exponential, Upper<ExponentialDistribution>, values, values);
  EXPECT_EQ(values[2], Upper(exponential, 3));
  Evaluate(binomial, &BinomialDistribution::Pmf, Table(binomial, 0, 2).points, values);
  EXPECT_EQ(values, (TQorFloatVector{0.25L, 0.5L, 0.25L}));
  std::vector<Extended> too_short(1);
  EXPECT_ERROR(Evaluate(exponential, &ExponentialDistribution::Pdf, values, too_short), EInvalidOp,
               rsInvalidOp);
  EXPECT_EQ(users::FactorialOfTwo(), 2);
}

}  // namespace

}  // namespace qorvex
