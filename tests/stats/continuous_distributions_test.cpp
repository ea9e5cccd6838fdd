// The classic continuous distributions.

#include <functional>

#include "qorvex/base/QorvexGlobals.h"
#include "qorvex/stats/QorvexStatistics.h"
#include "support/table.h"
#include "support/test.h"

namespace qorvex {

using Values = TQorFloatVector;

// A distribution with given parameters.
struct Family {
  const char* name;
  std::function<Extended(Extended)> less;
  std::function<Extended(Extended)> greater;
  std::function<Extended(Extended, Extended)> between;
  std::function<Extended(Extended)> density;
  std::function<void(Extended, Extended, std::int32_t, Values&, Values&)> table;
  std::function<Extended(Extended)> inverse_less;
  std::function<Extended(Extended)> inverse_greater;
};

#define PARAMETERS_FIRST(family, ...)                              \
  [=](Extended x) { return family##Less(__VA_ARGS__, x); },        \
      [=](Extended x) { return family##Greater(__VA_ARGS__, x); }, \
      [=](Extended x1, Extended x2) { return family##Between(__VA_ARGS__, x1, x2); }
#define POINT_FIRST(family, ...)                                   \
  [=](Extended x) { return family##Less(x, __VA_ARGS__); },        \
      [=](Extended x) { return family##Greater(x, __VA_ARGS__); }, \
      [=](Extended x1, Extended x2) { return family##Between(x1, x2, __VA_ARGS__); }
#define DENSITY(family, ...)                                                     \
  [=](Extended x) { return family##PDF(x, __VA_ARGS__); },                       \
      [=](Extended low, Extended high, std::int32_t n, Values& xs, Values& ys) { \
        family##PDFValues(__VA_ARGS__, low, high, n, xs, ys);                    \
      }
#define INVERSES(family, ...)                                    \
  [=](Extended p) { return Inv##family##Less(__VA_ARGS__, p); }, \
      [=](Extended p) { return Inv##family##Greater(__VA_ARGS__, p); }

Family Normal(Extended mean, Extended sd) {
  return {"normal", PARAMETERS_FIRST(NormalDist, mean, sd), DENSITY(Normal, mean, sd),
          INVERSES(NormalDist, mean, sd)};
}
Family LogNormal(Extended mean, Extended sd) {
  return {"log-normal", PARAMETERS_FIRST(LogNormal, mean, sd), DENSITY(LogNormal, mean, sd),
          INVERSES(LogNormal, mean, sd)};
}
Family Exponential(Extended mean) {
  return {"exponential", PARAMETERS_FIRST(Exponential, mean), DENSITY(Exponential, mean), {}, {}};
}
Family ChiSquare(std::uint32_t df) {
  return {"chi-square", POINT_FIRST(ChiSquare, df), DENSITY(ChiSquare, df),
          INVERSES(ChiSquare, df)};
}
Family StudentT(std::uint32_t df) {
  return {"Student t", POINT_FIRST(StudentT, df), DENSITY(StudentT, df), INVERSES(StudentT, df)};
}
Family FDist(std::uint32_t df1, std::uint32_t df2) {
  return {"F", POINT_FIRST(FDist, df1, df2), DENSITY(FDist, df1, df2), INVERSES(FDist, df1, df2)};
}
Family BetaDist(Extended a, Extended b) {
  return {"beta", POINT_FIRST(BetaDist, a, b), DENSITY(Beta, a, b), INVERSES(BetaDist, a, b)};
}
Family BetaDist(Extended a, Extended b, Extended lower, Extended upper) {
  return {"beta between two ends", POINT_FIRST(BetaDist, a, b, lower, upper),
          DENSITY(Beta, a, b, lower, upper), INVERSES(BetaDist, a, b, lower, upper)};
}

const Family kFamilies[] = {Normal(0.5L, 2),   LogNormal(0.5L, 2),   Exponential(2),
                            ChiSquare(3),      StudentT(3),          FDist(3, 7),
                            BetaDist(2, 0.5L), BetaDist(2, 3, -1, 4)};

TEST(ContinuousDistributions, FunctionsOfAFamilyAreConsistent) {
  for (const Family& family : kFamilies) {
    SCOPED_TRACE(family.name);
    for (const Extended x : {0.125L, 0.5L, 0.875L}) {
      EXPECT_EQ(family.greater(x), 1 - family.less(x));
      const Extended between = family.less(x + 0.0625L) - family.less(x);
      EXPECT_EQ(family.between(x, x + 0.0625L), between);
      EXPECT_EQ(family.between(x + 0.0625L, x), between);
      EXPECT_GT(between, 0);
      EXPECT_EQ(family.between(x, x + 1e-17L), 0);
      // The density is the slope of the probability.
      const Extended slope = (family.less(x + 1e-5L) - family.less(x - 1e-5L)) / 2e-5L;
      EXPECT_LE(std::fabs(slope / family.density(x) - 1), 1e-7L);
    }
    if (!family.inverse_less) continue;
    for (const Extended p : {0.03125L, 0.25L, 0.5L, 0.84375L}) {
      EXPECT_LE(std::fabs(family.less(family.inverse_less(p)) - p), 2e-15L) << p;
      EXPECT_EQ(family.inverse_greater(p), family.inverse_less(1 - p)) << p;
    }
    // 1 - p rounds to 1.
    EXPECT_MATH_ERROR(family.inverse_greater(1e-20L), rsValue01);
    for (const Extended p : {0.0L, 1.0L, -0.5L, 1.5L, kNaN, kInfinity}) {
      EXPECT_MATH_ERROR(family.inverse_less(p), rsValue01);
      EXPECT_MATH_ERROR(family.inverse_greater(p), rsValue01);
    }
  }
}

TEST(ContinuousDistributions, TablesOfDensities) {
  for (const Family& family : kFamilies) {
    SCOPED_TRACE(family.name);
    Values xs{7, 7};
    Values ys{7};
    const Extended step = (0.75L - 0.1L) / 7;
    family.table(0.1L, 0.75L, 7, xs, ys);
    ASSERT_TRUE(xs.size() == 8 && ys.size() == 8);
    for (std::size_t i = 0; i < 8; ++i) {
      EXPECT_EQ(xs[i], static_cast<Extended>(i) * step + 0.1L);
      EXPECT_EQ(ys[i], family.density(xs[i]));
    }
    family.table(0.25L, 99, 0, xs, ys);
    EXPECT_EQ(xs, Values{0.25L});
    EXPECT_EQ(ys, Values{family.density(0.25L)});
    family.table(0.25L, 99, -1, xs, ys);
    EXPECT_TRUE(xs.empty() && ys.empty());
  }
}

TEST(ContinuousDistributions, BetaProbabilitiesHaveNoNegativeZero) {
  EXPECT_FALSE(std::signbit(BetaDistLess(-0.0L, 2, 3)));
  EXPECT_FALSE(std::signbit(BetaDistLess(-0.0L, 2, 3, 0, 5)));
}

// Absolute errors over those rows for which the classic routines are accurate, which are most rows.
TEST(ContinuousDistributions, AgreeWithTheReferenceTables) {
  using Value = std::function<Extended(const char*)>;
  // Degrees of freedom; 0, which raises an error, unless they are whole.
  const auto df = [](Extended x) { return x == std::floor(x) ? static_cast<std::uint32_t>(x) : 0; };
  const struct {
    const char* file;
    const char* column;
    Extended limit;
    std::size_t least_rows;
    bool (*applies)(const Value&);
    std::function<Extended(const Value&)> figure;
  } references[] = {
      {"normal_cdf", "cdf", 8e-19L, 100, [](auto& v) { return std::fabs(v("x_dec")) <= 8.5L; },
       [](auto& v) { return NormalDistLess(0, 1, v("x_dec")); }},
      {"normal_cdf", "upper", 8e-19L, 100, [](auto& v) { return std::fabs(v("x_dec")) <= 8.5L; },
       [](auto& v) { return NormalDistGreater(0, 1, v("x_dec")); }},
      {"lognormal_cdf", "cdf", 2e-18L, 100,
       [](auto& v) {
         return std::fabs(std::log(v("x_dec")) - v("mu_dec")) <= 8.5L * v("sigma_dec");
       },
       [](auto& v) { return LogNormalLess(v("mu_dec"), v("sigma_dec"), v("x_dec")); }},
      {"exponential_cdf", "cdf", 2e-19L, 119, [](auto&) { return true; },
       [](auto& v) { return ExponentialLess(1 / v("rate_dec"), v("x_dec")); }},
      {"chisq_cdf", "cdf", 1e-15L, 300, [](auto& v) { return v("df") <= 2000; },
       [&](auto& v) { return ChiSquareLess(v("x_dec"), df(v("df"))); }},
      {"gamma_p", "P", 2e-15L, 300, [](auto& v) { return v("a_dec") <= 1000; },
       [](auto& v) { return IncompleteGamma(v("a_dec"), v("x_dec")); }},
      {"t_cdf", "cdf", 1e-17L, 200, [](auto& v) { return std::fabs(v("t_dec")) >= 0.25L; },
       [&](auto& v) { return StudentTLess(v("t_dec"), df(v("df_dec"))); }},
      {"f_cdf", "cdf", 1e-17L, 150, [](auto& v) { return v("x_dec") >= 0.0625L; },
       [&](auto& v) { return FDistLess(v("x_dec"), df(v("d1_dec")), df(v("d2_dec"))); }},
  };
  for (const auto& [file, column, limit, least_rows, applies, figure] : references) {
    const testing::Table table("tables/" + std::string(file) + ".csv");
    std::size_t judged = 0;
    for (std::size_t row = 0; row < table.size(); ++row) {
      const auto value = [&](const char* name) { return table.Value(row, name); };
      if (!applies(value)) continue;
      try {
        EXPECT_LE(std::fabs(figure(value) - value(column)), limit) << file << ", row " << row + 1;
        ++judged;
      } catch (const EMathError& error) {
        EXPECT_EQ(error.message_id(), rsDF) << file << ", row " << row + 1;
      }
    }
    EXPECT_GE(judged, least_rows) << file;
  }
  const testing::Table table("tables/normal_cdf.csv");
  testing::ExpectWorstError(table, "pdf", 30,
                            [&](std::size_t row) { return NormalZ(table.Value(row, "x_dec")); });
}

}  // namespace qorvex
