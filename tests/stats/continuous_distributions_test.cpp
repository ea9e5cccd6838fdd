// What the continuous distributions share, their errors, and their figures.

#include <functional>
#include <optional>

#include "qorvex/base/QorvexGlobals.h"
#include "qorvex/stats/QorvexStatistics.h"
#include "support/table.h"
#include "support/test.h"

namespace qorvex {

using Values = TQorFloatVector;

// A distribution with all but its point given.
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

#define LESS_GREATER_BETWEEN(family, parameters)                 \
  [](Extended x) { return family##Less(parameters, x); },        \
      [](Extended x) { return family##Greater(parameters, x); }, \
      [](Extended x1, Extended x2) { return family##Between(parameters, x1, x2); }
#define POINT_FIRST(family, parameters)                          \
  [](Extended x) { return family##Less(x, parameters); },        \
      [](Extended x) { return family##Greater(x, parameters); }, \
      [](Extended x1, Extended x2) { return family##Between(x1, x2, parameters); }
#define DENSITY(family, parameters)                                             \
  [](Extended x) { return family##PDF(x, parameters); },                        \
      [](Extended low, Extended high, std::int32_t n, Values& xs, Values& ys) { \
        family##PDFValues(parameters, low, high, n, xs, ys);                    \
      }
#define INVERSES(family, parameters)                           \
  [](Extended p) { return Inv##family##Less(parameters, p); }, \
      [](Extended p) { return Inv##family##Greater(parameters, p); }
#define PARAMETERS(...) __VA_ARGS__

const Family kFamilies[] = {
    {"normal", LESS_GREATER_BETWEEN(NormalDist, PARAMETERS(0.5L, 2)),
     DENSITY(Normal, PARAMETERS(0.5L, 2)), INVERSES(NormalDist, PARAMETERS(0.5L, 2))},
    {"log-normal", LESS_GREATER_BETWEEN(LogNormal, PARAMETERS(0.5L, 2)),
     DENSITY(LogNormal, PARAMETERS(0.5L, 2)), INVERSES(LogNormal, PARAMETERS(0.5L, 2))},
    {"exponential", LESS_GREATER_BETWEEN(Exponential, 2), DENSITY(Exponential, 2), {}, {}},
    {"chi-square", POINT_FIRST(ChiSquare, 3), DENSITY(ChiSquare, 3), INVERSES(ChiSquare, 3)},
    {"Student t", POINT_FIRST(StudentT, 3), DENSITY(StudentT, 3), INVERSES(StudentT, 3)},
    {"F", POINT_FIRST(FDist, PARAMETERS(3, 7)), DENSITY(FDist, PARAMETERS(3, 7)),
     INVERSES(FDist, PARAMETERS(3, 7))},
    {"beta", POINT_FIRST(BetaDist, PARAMETERS(2, 0.5L)), DENSITY(Beta, PARAMETERS(2, 0.5L)),
     INVERSES(BetaDist, PARAMETERS(2, 0.5L))},
    {"beta from -1 to 4", POINT_FIRST(BetaDist, PARAMETERS(2, 3, -1, 4)),
     DENSITY(Beta, PARAMETERS(2, 3, -1, 4)), INVERSES(BetaDist, PARAMETERS(2, 3, -1, 4))},
};

TEST(ContinuousDistributions, ProbabilitiesFitTogether) {
  for (const Family& family : kFamilies) {
    SCOPED_TRACE(family.name);
    for (const Extended x : {0.125L, 0.5L, 0.875L}) {
      EXPECT_EQ(family.greater(x), 1 - family.less(x));
      const Extended between = family.less(x + 0.0625L) - family.less(x);
      EXPECT_EQ(family.between(x, x + 0.0625L), between);
      EXPECT_EQ(family.between(x + 0.0625L, x), between);
      EXPECT_GT(between, 0);
      EXPECT_EQ(family.between(x, x + 1e-17L), 0);
      // The density is the slope of the probability, to the square of the distance.
      const Extended slope = (family.less(x + 1e-5L) - family.less(x - 1e-5L)) / 2e-5L;
      EXPECT_LE(std::fabs(slope / family.density(x) - 1), 1e-7L);
    }
    if (!family.inverse_less) continue;
    for (const Extended p : {0.03125L, 0.25L, 0.5L, 0.84375L}) {
      EXPECT_LE(std::fabs(family.less(family.inverse_less(p)) - p), 2e-15L) << p;
      EXPECT_EQ(family.inverse_greater(p), family.inverse_less(1 - p)) << p;
    }
    // So small an upper probability is lost in 1 - p.
    EXPECT_MATH_ERROR(family.inverse_greater(1e-20L), rsValue01);
    for (const Extended p : {0.0L, 1.0L, -0.5L, 1.5L, kNaN, kInfinity}) {
      EXPECT_MATH_ERROR(family.inverse_less(p), rsValue01);
      EXPECT_MATH_ERROR(family.inverse_greater(p), rsValue01);
    }
  }
}

TEST(ContinuousDistributions, TabulateTheirDensities) {
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
  Values xs;
  Values ys;
  ExponentialPDFValues(2, -1, 1, 2, xs, ys);
  EXPECT_EQ(ys, (Values{0, 0.5L, ExponentialPDF(1, 2)}));
  ChiSquarePDFValues(2, -2, 0, 2, xs, ys);
  EXPECT_EQ(ys, (Values{0, 0, 0.5L}));
  FDistPDFValues(2, 3, -2, 0, 2, xs, ys);
  EXPECT_EQ(ys, (Values{0, 0, 1}));
  BetaPDFValues(1, 1, 2, 4, 0, 6, 3, xs, ys);
  EXPECT_EQ(ys, (Values{0, 0.5L, 0.5L, 0}));
}

TEST(ContinuousDistributions, TablesStayReleasedAfterAnError) {
  Values xs;
  Values ys;
  const auto expect_error = [&](MessageId id, auto table) {
    xs = {1, 2};
    ys = {3};
    EXPECT_MATH_ERROR(table(), id);
    EXPECT_TRUE(xs.empty() && ys.empty());
  };
  expect_error(rsStdDev, [&] { NormalPDFValues(0, 0, 0, 1, 4, xs, ys); });
  expect_error(rsStdDev, [&] { LogNormalPDFValues(0, -1, 0, 1, 4, xs, ys); });
  expect_error(rsValueGZero, [&] { LogNormalPDFValues(0, 1, 0, 1, -1, xs, ys); });
  expect_error(rsValueGZero, [&] { LogNormalPDFValues(0, 1, 1, -1, 4, xs, ys); });
  expect_error(rsExpDistInvalid, [&] { ExponentialPDFValues(0, 0, 1, 4, xs, ys); });
  EXPECT_ERROR(ExponentialPDFValues(1e-4940L, 0, 1, 4, xs, ys), EOverflow, rsOverflow);
  expect_error(rsDF, [&] { ChiSquarePDFValues(0, 0, 1, 4, xs, ys); });
  expect_error(rsDF, [&] { StudentTPDFValues(0, 0, 1, 4, xs, ys); });
  expect_error(rsDF, [&] { FDistPDFValues(0, 1, 0, 1, 4, xs, ys); });
  expect_error(rsDF, [&] { FDistPDFValues(1, 0, 0, 1, 4, xs, ys); });
  expect_error(rsValueGZero, [&] { BetaPDFValues(0, 1, 0, 1, 4, xs, ys); });
  expect_error(rsValueGZero, [&] { BetaPDFValues(1, 0, 2, 1, 0, 1, 4, xs, ys); });
  expect_error(rsInvalidValue, [&] { BetaPDFValues(1, 1, 2, 1, 0, 1, 4, xs, ys); });
}

TEST(ContinuousDistributions, RaiseTheFirstErrorOfSeveral) {
  const Extended tolerated = 1e-15L;
  for (const Extended bad : {0.0L, -1.0L, tolerated}) {
    EXPECT_MATH_ERROR(NormalPDF(0, 0, bad), rsStdDev);
    EXPECT_MATH_ERROR(NormalDistLess(0, bad, 0), rsStdDev);
    EXPECT_MATH_ERROR(InvNormalDistLess(0, bad, 0.5L), rsStdDev);
    EXPECT_MATH_ERROR(InvNormalDistGreater(0, bad, 1), rsValue01);
    EXPECT_MATH_ERROR(LogNormalPDF(bad, 0, bad), rsStdDev);
    EXPECT_MATH_ERROR(LogNormalPDF(bad, 0, 1), rsValueGZero);
    EXPECT_MATH_ERROR(LogNormalLess(0, bad, 0), rsStdDev);
    EXPECT_MATH_ERROR(InvLogNormalLess(0, bad, 0.5L), rsStdDev);
    EXPECT_MATH_ERROR(InvLogNormalGreater(0, bad, 0), rsValue01);
  }
  EXPECT_MATH_ERROR(NormalLess(-1), rsValueGZero);
  EXPECT_MATH_ERROR(ZAlpha(1), rsValue01);
  EXPECT_ERROR(LogNormalLess(0, 1, 0), EZeroDivide, rsZeroDivide);
  EXPECT_ERROR(LogNormalBetween(0, 1, 1, -1), EInvalidOp, rsInvalidOp);
  EXPECT_ERROR(InvLogNormalLess(0, 1e5L, 0.9L), EOverflow, rsOverflow);
  EXPECT_MATH_ERROR(ExponentialLess(0, 1), rsExpDistInvalid);
  EXPECT_MATH_ERROR(ExponentialLess(1, -1), rsExpDistInvalid);
  EXPECT_MATH_ERROR(ExponentialPDF(-1, 1), rsExpDistInvalid);
  EXPECT_MATH_ERROR(ExponentialPDF(1, kNaN), rsExpDistInvalid);
  EXPECT_ERROR(ExponentialPDF(1, 1e-4940L), EOverflow, rsOverflow);
  EXPECT_ERROR(ExponentialLess(1e-4940L, 0), EOverflow, rsOverflow);

  EXPECT_MATH_ERROR(ChiSquareLess(-1, 0), rsValueGEZero);
  EXPECT_MATH_ERROR(ChiSquareGreater(1, 0), rsDF);
  EXPECT_MATH_ERROR(ChiSquareBetween(-1, 1, 0), rsDF);
  EXPECT_MATH_ERROR(ChiSquarePDF(-1, 0), rsValueGEZero);
  EXPECT_MATH_ERROR(ChiSquarePDF(1, 0), rsDF);
  EXPECT_MATH_ERROR(InvChiSquareLess(0, 0.5L), rsDF);
  EXPECT_MATH_ERROR(InvChiSquareGreater(0, 1), rsValue01);
  EXPECT_MATH_ERROR(StudentTLess(1, 0), rsDF);
  EXPECT_MATH_ERROR(StudentTPDF(1, 0), rsDF);
  EXPECT_MATH_ERROR(InvStudentTLess(0, 0.5L), rsDF);
  EXPECT_MATH_ERROR(InvStudentTGreater(0, 0), rsValue01);
  EXPECT_MATH_ERROR(FDistLess(0, 0, 4), rsValueGZero);
  EXPECT_MATH_ERROR(FDistLess(1, 0, 4), rsDF);
  EXPECT_MATH_ERROR(FDistGreater(1, 3, 0), rsDF);
  EXPECT_MATH_ERROR(FDistPDF(-1, 0, 4), rsValueGZero);
  EXPECT_MATH_ERROR(FDistPDF(0, 3, 0), rsDF);
  EXPECT_MATH_ERROR(InvFDistLess(0, 1, 0.5L), rsDF);
  EXPECT_MATH_ERROR(InvFDistGreater(1, 0, 2), rsValue01);
  EXPECT_MATH_ERROR(BetaDistLess(0.5L, 0, 1), rsValueGZero);
  EXPECT_MATH_ERROR(BetaDistGreater(0.5L, 1, -1), rsValueGZero);
  EXPECT_MATH_ERROR(BetaPDF(0.5L, 0, 1), rsValueGZero);
  EXPECT_MATH_ERROR(InvBetaDistLess(1, 0, 0.5L), rsValueGZero);
  for (const Extended lower : {2.0L, 3.0L, -kInfinity, kNaN}) {
    EXPECT_MATH_ERROR(BetaDistLess(0.5L, 0, 1, lower, 2), rsValueGZero);
    EXPECT_MATH_ERROR(BetaDistLess(0.5L, 1, 1, lower, 2), rsInvalidValue);
    EXPECT_MATH_ERROR(BetaDistBetween(0.25L, 0.5L, 1, 1, lower, 2), rsInvalidValue);
    EXPECT_EQ(BetaDistBetween(0.5L, 0.5L, 0, 1, lower, 2), 0);
    EXPECT_MATH_ERROR(BetaPDF(0.5L, 1, 1, lower, 2), rsInvalidValue);
    EXPECT_MATH_ERROR(InvBetaDistLess(1, 1, lower, 2, 0.5L), rsInvalidValue);
    EXPECT_MATH_ERROR(InvBetaDistLess(1, 0, lower, 2, 0.5L), rsValueGZero);
    EXPECT_MATH_ERROR(InvBetaDistGreater(1, 0, lower, 2, 1), rsValue01);
  }

  // Nothing lies between a point and itself, whatever the parameters.
  EXPECT_EQ(NormalDistBetween(0, -1, 3, 3), 0);
  EXPECT_EQ(LogNormalBetween(0, 1, -3, -3), 0);
  EXPECT_EQ(ExponentialBetween(-1, 3, 3), 0);
  EXPECT_EQ(ChiSquareBetween(-1, -1, 0), 0);
  EXPECT_EQ(FDistBetween(-1, -1, 0, 0), 0);
}

TEST(ContinuousDistributions, TakeInfinitiesAndNaN) {
  EXPECT_EQ(NormalDistLess(0, 1, -kInfinity), 0.5L);
  EXPECT_EQ(LogNormalLess(0, 1, kInfinity), 0.5L);
  EXPECT_EQ(NormalPDF(kInfinity, 0, 1), 0);
  EXPECT_EQ(ExponentialLess(2, kInfinity), 1);
  EXPECT_EQ(ChiSquareLess(kInfinity, 3), 1);
  EXPECT_EQ(StudentTLess(kInfinity, 3), 1);
  EXPECT_EQ(StudentTLess(-kInfinity, 3), 0);
  EXPECT_EQ(FDistLess(kInfinity, 3, 4), 1);
  EXPECT_EQ(BetaDistLess(kInfinity, 3, 4), 1);
  EXPECT_EQ(BetaDistLess(-1, 3, 4), 0);
  EXPECT_FALSE(std::signbit(BetaDistLess(-0.0L, 2, 3)));
  EXPECT_FALSE(std::signbit(BetaDistLess(-0.0L, 2, 3, 0, 5)));
  EXPECT_EQ(BetaPDF(-1, 3, 4), 0);
  EXPECT_EQ(ChiSquarePDF(0, 1), kInfinity);
  EXPECT_EQ(BetaPDF(1, 3, 0.5L, 0, 1), kInfinity);
  for (const Extended figure :
       {NormalDistLess(kNaN, 1, 0), NormalPDF(kNaN, 0, 1), InvNormalDistLess(0, kNaN, 0.5L),
        LogNormalLess(0, 1, kNaN), ChiSquareLess(kNaN, 3), StudentTLess(kNaN, 3),
        FDistLess(kNaN, 3, 4), BetaDistLess(kNaN, 3, 4), BetaDistLess(0.5L, 3, kNaN),
        StudentTPDF(kNaN, 3), BetaPDF(kNaN, 3, 4, 0, 2)}) {
    EXPECT_TRUE(std::isnan(figure));
  }
}

TEST(ContinuousDistributions, TakeTheirParametersInOrder) {
  // By hand, from the closed forms of special cases.
  for (const auto& [figure, expected] : {
           std::pair(ChiSquarePDF(4, 2), std::exp(-2.0L) / 2),
           {StudentTPDF(1, 1), 0.5L / QorPi},
           {FDistPDF(1, 2, 4), 8 / 27.0L},
           {BetaPDF(0.25L, 2, 3), 1.6875L},
           {BetaPDF(2, 2, 3, 1, 5), 1.6875L / 4},
           {InvChiSquareLess(2, 0.75L), 2 * std::log(4.0L)},
           {InvStudentTLess(1, 0.75L), 1},
           {InvFDistLess(2, 4, 5 / 9.0L), 1},
           {InvBetaDistLess(2, 1, 0.25L), 0.5L},
           {InvBetaDistLess(2, 1, 1, 5, 0.25L), 3},
           {BetaDistLess(3, 2, 1, 1, 5), 0.25L},
           {FDistLess(1, 2, 4), 5 / 9.0L},
       }) {
    EXPECT_LE(std::fabs(figure / expected - 1), 5e-19L) << expected;
  }
  EXPECT_LE(std::fabs(ZAlpha(0.05L) - 1.64485362695147271486L), 2e-16L);
}

// The largest absolute error over the rows that the routine serves, which are most.
using Figure = std::optional<Extended>;

template <class Compute>
void ExpectAbsoluteError(const testing::Table& table, const std::string& column, Extended limit,
                         std::size_t least_rows, Compute compute) {
  std::size_t judged = 0;
  for (std::size_t row = 0; row < table.size(); ++row) {
    const Figure figure = compute(row);
    if (!figure) continue;
    ++judged;
    EXPECT_LE(std::fabs(*figure - table.Value(row, column)), limit)
        << column << ", row " << row + 1;
  }
  EXPECT_GE(judged, least_rows);
}

TEST(ContinuousDistributions, AgreeWithTheReferenceTables) {
  {
    const testing::Table table("tables/normal_cdf.csv");
    const auto compute = [&](auto routine) {
      return [&table, routine](std::size_t row) -> Figure {
        const Extended x = table.Value(row, "x_dec");
        return std::fabs(x) <= 8.5L ? Figure(routine(0, 1, x)) : Figure();
      };
    };
    ExpectAbsoluteError(table, "cdf", 8e-19L, 100, compute(NormalDistLess));
    ExpectAbsoluteError(table, "upper", 8e-19L, 100, compute(NormalDistGreater));
    testing::ExpectWorstError(table, "pdf", 30,
                              [&](std::size_t row) { return NormalZ(table.Value(row, "x_dec")); });
  }
  {
    const testing::Table table("tables/lognormal_cdf.csv");
    ExpectAbsoluteError(table, "cdf", 2e-18L, 100, [&](std::size_t row) -> Figure {
      const Extended mean = table.Value(row, "mu_dec");
      const Extended std_dev = table.Value(row, "sigma_dec");
      const Extended x = table.Value(row, "x_dec");
      if (std::fabs(std::log(x) - mean) > 8.5L * std_dev) return {};
      return LogNormalLess(mean, std_dev, x);
    });
  }
  {
    const testing::Table table("tables/exponential_cdf.csv");
    ExpectAbsoluteError(table, "cdf", 2e-19L, table.size(), [&](std::size_t row) {
      return Figure(ExponentialLess(1 / table.Value(row, "rate_dec"), table.Value(row, "x_dec")));
    });
  }
  {
    const testing::Table table("tables/chisq_cdf.csv");
    ExpectAbsoluteError(table, "cdf", 1e-15L, 300, [&](std::size_t row) -> Figure {
      const Extended df = table.Value(row, "df");
      if (df > 2000) return {};
      return ChiSquareLess(table.Value(row, "x_dec"), static_cast<std::uint32_t>(df));
    });
  }
  {
    const testing::Table table("tables/gamma_p.csv");
    ExpectAbsoluteError(table, "P", 2e-15L, 300, [&](std::size_t row) -> Figure {
      const Extended a = table.Value(row, "a_dec");
      if (a > 1000) return {};
      return IncompleteGamma(a, table.Value(row, "x_dec"));
    });
  }
  {
    const testing::Table table("tables/t_cdf.csv");
    ExpectAbsoluteError(table, "cdf", 1e-17L, 200, [&](std::size_t row) -> Figure {
      const Extended t = table.Value(row, "t_dec");
      const Extended df = table.Value(row, "df_dec");
      if (df != std::floor(df) || std::fabs(t) < 0.25L) return {};
      return StudentTLess(t, static_cast<std::uint32_t>(df));
    });
  }
  {
    const testing::Table table("tables/f_cdf.csv");
    ExpectAbsoluteError(table, "cdf", 1e-17L, 150, [&](std::size_t row) -> Figure {
      const Extended f = table.Value(row, "x_dec");
      const Extended df1 = table.Value(row, "d1_dec");
      const Extended df2 = table.Value(row, "d2_dec");
      if (df1 != std::floor(df1) || df2 != std::floor(df2) || f < 0.0625L) return {};
      return FDistLess(f, static_cast<std::uint32_t>(df1), static_cast<std::uint32_t>(df2));
    });
  }
}

}  // namespace qorvex
