#include "qorvex/stats/full_precision.h"

#include <functional>
#include <limits>

#include "support/distribution_figures.h"
#include "support/test.h"

namespace qorvex {

namespace fp = full_precision;

TEST(FullPrecision, AgreesWithTheTablesIntoTheFarthestTails) {
  constexpr Extended units = 15;
  for (const testing::Figure& figure : testing::FullPrecisionFigures()) {
    SCOPED_TRACE(figure.routine);
    const testing::Table table(std::string("tables/") + figure.table + ".csv");
    testing::ExpectWorstError(
        table, figure.column, units,
        [&](std::size_t row) {
          return figure.compute({table, row});
        },
        std::numeric_limits<Extended>::min());
  }
}

TEST(FullPrecision, ReachesTheEndsOfTheFormat) {
  const struct {
    Extended figure;
    Extended exact;
    Extended units;
  } cases[] = {
      // Ratios and squares beyond the format, with figures within it.
      {fp::GammaLower(1e-3L, 1e4000L, 1e-1000L), 1.000576559744993874455e-5L, 10},
      {fp::GammaLogLower(1e-3L, 1e4000L, 1e-1000L), -11.51234907137194505007L, 10},
      {fp::GammaUpper(1e-18L, 1e4000L, 1e-1000L), 1.15123482493052606199e-14L, 10},
      {fp::ExponentialLogLower(1e4000L, 1e-1000L), -11512.92546497022842009L, 10},
      {fp::ExponentialPdf(1e-4930L, 0), 1e4930L, 10},
      {fp::NormalLogUpper(0, 3, 7e2400L), -2.722222222222222222338e4800L, 10},
      {fp::NormalLower(0, 3, 7e2600L), 1, 0},
      {fp::NormalPdf(0, 3, 7e2600L), 0, 0},
      {fp::LogNormalPdf(1e3000L, 3, 1), 0, 0},
      {fp::FDistLower(1, 1, 1e-4940L), 6.366197723675813430748e-2471L, 1e13L},  // of a subnormal
      // A factor that brings an exponential back into the format; a subnormal result.
      {fp::FDistUpper(54.5L, 80.5L, 3.4e123L), 1.118424085810381191953e-4947L, 1e16L},
      {fp::LogNormalQuantile(0, 50, 1e-300L), 3.408202043065387678091e-805L, 10},
      // A tail that is nearly all, and the mean of large shapes.
      {fp::BetaUpper(1e-6L, 1, 1e-3L), 6.907731420495576126675e-6L, 50},
      {fp::BetaLower(1e9L, 1e9L, 0.5L), 0.5L, 20},
      {fp::ExponentialUpper(1, 2.9L), 0.05502322005640722902517L, 3},
  };
  for (const auto& [figure, exact, units] : cases) {
    EXPECT_LE(std::fabs(figure - exact), units * 1e-19L * std::fabs(exact)) << exact;
  }
  EXPECT_EQ(fp::NormalLogLower(0, 1, -1e4000L), -std::numeric_limits<Extended>::infinity());
}

struct Inverse {
  std::function<Extended(Extended)> quantile;
  std::function<Extended(Extended)> upper_quantile;
  std::function<Extended(Extended)> log_lower;
  std::function<Extended(Extended)> log_upper;
};

TEST(FullPrecision, QuantilesInvertBothTailsHoweverSmall) {
#define QORVEX_INVERSE(family, ...)                                            \
  Inverse {                                                                    \
    [=](Extended p) { return fp::family##Quantile(__VA_ARGS__, p); },          \
        [=](Extended q) { return fp::family##UpperQuantile(__VA_ARGS__, q); }, \
        [=](Extended x) { return fp::family##LogLower(__VA_ARGS__, x); },      \
        [=](Extended x) { return fp::family##LogUpper(__VA_ARGS__, x); }       \
  }
  const Inverse inverses[] = {
      QORVEX_INVERSE(Normal, 3, 0.25L),    QORVEX_INVERSE(LogNormal, -1, 0.5L),
      QORVEX_INVERSE(Exponential, 0.125L), QORVEX_INVERSE(Gamma, 0.9L, 3),
      QORVEX_INVERSE(Gamma, 5e6L, 0.5L),   QORVEX_INVERSE(ChiSquare, 7),
      QORVEX_INVERSE(StudentT, 4.5L),      QORVEX_INVERSE(StudentT, 1e5L),
      QORVEX_INVERSE(FDist, 10, 10),       QORVEX_INVERSE(FDist, 3, 800),
      QORVEX_INVERSE(Beta, 3, 1e4L)};
#undef QORVEX_INVERSE
  for (const Inverse& inverse : inverses) {
    for (const Extended p : {1e-4000L, 1e-300L, 1e-20L, 0.01L, 0.5L, 0.875L}) {
      SCOPED_TRACE(::testing::Message() << &inverse - inverses << ' ' << p);
      // A last bit of the quantile moves the logarithm by more, the farther out it is.
      const Extended slack = 1e-16L * (1 - std::log(p));
      EXPECT_LE(std::fabs(inverse.log_lower(inverse.quantile(p)) - std::log(p)), slack);
      EXPECT_LE(std::fabs(inverse.log_upper(inverse.upper_quantile(p)) - std::log(p)), slack);
    }
  }
}

TEST(FullPrecision, FindsTheSmallestCountThatReachesAProbability) {
  const auto expect_smallest = [](std::uint32_t most, Extended p, std::uint32_t found,
                                  std::uint32_t found_above, auto lower, auto upper) {
    std::uint32_t k = 0;
    while (k < most && lower(k) < p) ++k;
    EXPECT_EQ(found, k) << p;
    k = 0;
    while (k < most && upper(k) > p) ++k;
    EXPECT_EQ(found_above, k) << p;
  };
  for (const Extended p : {1e-30L, 0.2L, 0.5L, 0.9375L, 1 - 0x1p-64L}) {
    expect_smallest(
        40, p, fp::BinomialQuantile(0.3L, 40, p), fp::BinomialUpperQuantile(0.3L, 40, p),
        [](std::uint32_t k) { return fp::BinomialLower(0.3L, 40, k); },
        [](std::uint32_t k) { return fp::BinomialUpper(0.3L, 40, k); });
    expect_smallest(
        500, p, fp::PoissonQuantile(12, p), fp::PoissonUpperQuantile(12, p),
        [](std::uint32_t k) { return fp::PoissonLower(12, k); },
        [](std::uint32_t k) { return fp::PoissonUpper(12, k); });
    expect_smallest(
        30, p, fp::HyperGeometricQuantile(50, 30, 35, p),
        fp::HyperGeometricUpperQuantile(50, 30, 35, p),
        [](std::uint32_t k) { return fp::HyperGeometricLower(50, 30, 35, k); },
        [](std::uint32_t k) { return fp::HyperGeometricUpper(50, 30, 35, k); });
  }
  EXPECT_ERROR(fp::PoissonQuantile(1e10L, 0.5L), EOverflow, rsOverflow);
  // Exact at a step: P(X <= 1) = 3/4 of two fair coins.
  EXPECT_EQ(fp::BinomialQuantile(0.5L, 2, 0.75L), 1U);
}

TEST(FullPrecision, HasLimitsAtTheEndsAndBeyondTheSupport) {
  constexpr Extended infinity = std::numeric_limits<Extended>::infinity();
  const auto expect_ends = [](auto lower, auto upper, Extended below, Extended above) {
    EXPECT_EQ(lower(below), 0);
    EXPECT_EQ(upper(below), 1);
    EXPECT_EQ(lower(above), 1);
    EXPECT_EQ(upper(above), 0);
  };
#define QORVEX_EXPECT_ENDS(family, below, above, ...)                                      \
  expect_ends([](Extended x) { return fp::family##Lower(__VA_ARGS__, x); },                \
              [](Extended x) { return fp::family##Upper(__VA_ARGS__, x); }, below, above); \
  EXPECT_EQ(fp::family##LogLower(__VA_ARGS__, below), -infinity);                          \
  EXPECT_TRUE(std::isnan(fp::family##Lower(__VA_ARGS__, std::nanl(""))))
  QORVEX_EXPECT_ENDS(Normal, -infinity, infinity, 0, 1);
  QORVEX_EXPECT_ENDS(LogNormal, 0, infinity, 0, 1);
  QORVEX_EXPECT_ENDS(Exponential, -1, infinity, 2);
  QORVEX_EXPECT_ENDS(Gamma, -infinity, infinity, 0.5L, 2);
  QORVEX_EXPECT_ENDS(ChiSquare, -1e4900L, infinity, 3);
  QORVEX_EXPECT_ENDS(StudentT, -infinity, infinity, 3);
  QORVEX_EXPECT_ENDS(FDist, 0, infinity, 3, 4);
  QORVEX_EXPECT_ENDS(Beta, -0.5L, 1, 3, 4);
#undef QORVEX_EXPECT_ENDS
  EXPECT_EQ(fp::GammaPdf(0.5L, 2, 0), infinity);
  EXPECT_EQ(fp::GammaPdf(1, 2, 0), 0.5L);
  EXPECT_EQ(fp::ChiSquarePdf(2, 0), 0.5L);
  EXPECT_EQ(fp::FDistPdf(1, 5, 0), infinity);
  EXPECT_EQ(fp::FDistPdf(2, 5, 0), 1);
  EXPECT_EQ(fp::BetaPdf(1, 3, 0), 3);
  EXPECT_EQ(fp::BetaPdf(3, 0.5L, 1), infinity);
  EXPECT_EQ(fp::BetaPdf(3, 1, 1), 3);
  EXPECT_EQ(fp::BetaPdf(3, 2, 1.5L), 0);
  EXPECT_EQ(fp::FDistPdf(2, 3, infinity), 0);
  EXPECT_EQ(fp::HyperGeometricQuantile(0, 0, 0, 0.5L), 0U);
  EXPECT_EQ(fp::BinomialLower(0.5L, 3, 9), 1);
  EXPECT_EQ(fp::BinomialPmf(0, 3, 0), 1);
  EXPECT_EQ(fp::BinomialLower(1, 3, 2), 0);
  EXPECT_EQ(fp::HyperGeometricLower(10, 8, 5, 2), 0);
  EXPECT_EQ(fp::HyperGeometricPmf(10, 8, 5, 6), 0);
}

TEST(FullPrecision, HasDensitiesThatIntegrateToTheirProbabilities) {
  // Simpson's rule over a short interval away from the mode.
  const auto expect_slope = [](auto pdf, auto lower, Extended x) {
    const Extended h = x * 0x1p-10L;
    const Extended area = h / 3 * (pdf(x - h) + 4 * pdf(x) + pdf(x + h));
    const Extended probability = lower(x + h) - lower(x - h);
    EXPECT_LT(std::fabs(area / probability - 1), 1e-9L) << x;
  };
#define QORVEX_EXPECT_SLOPE(family, x, ...)                                  \
  expect_slope([](Extended at) { return fp::family##Pdf(__VA_ARGS__, at); }, \
               [](Extended at) { return fp::family##Lower(__VA_ARGS__, at); }, x)
  QORVEX_EXPECT_SLOPE(Normal, 2.5L, 1, 3);
  QORVEX_EXPECT_SLOPE(LogNormal, 2.5L, 1, 3);
  QORVEX_EXPECT_SLOPE(Exponential, 2.5L, 4);
  QORVEX_EXPECT_SLOPE(Gamma, 2.5L, 1.7L, 3);
  QORVEX_EXPECT_SLOPE(ChiSquare, 2.5L, 5);
  QORVEX_EXPECT_SLOPE(StudentT, 2.5L, 5);
  QORVEX_EXPECT_SLOPE(FDist, 2.5L, 5, 7);
  QORVEX_EXPECT_SLOPE(Beta, 0.3L, 2.5L, 7);
#undef QORVEX_EXPECT_SLOPE
}

TEST(FullPrecision, ChecksTheProbabilityFirstAndThenTheParameters) {
  for (const Extended p : {0.0L, 1.0L, -0.5L}) {
    EXPECT_MATH_ERROR(fp::NormalQuantile(0, -1, p), rsValue01);
    EXPECT_MATH_ERROR(fp::LogNormalUpperQuantile(0, -1, p), rsValue01);
    EXPECT_MATH_ERROR(fp::ExponentialQuantile(0, p), rsValue01);
    EXPECT_MATH_ERROR(fp::GammaQuantile(0, 1, p), rsValue01);
    EXPECT_MATH_ERROR(fp::ChiSquareUpperQuantile(0, p), rsValue01);
    EXPECT_MATH_ERROR(fp::StudentTQuantile(0, p), rsValue01);
    EXPECT_MATH_ERROR(fp::FDistQuantile(0, 1, p), rsValue01);
    EXPECT_MATH_ERROR(fp::BetaQuantile(0, 1, p), rsValue01);
    EXPECT_MATH_ERROR(fp::BinomialQuantile(2, 5, p), rsValue01);
    EXPECT_MATH_ERROR(fp::HyperGeometricQuantile(5, 6, 2, p), rsValue01);
    EXPECT_MATH_ERROR(fp::PoissonUpperQuantile(0, p), rsValue01);
  }
  EXPECT_MATH_ERROR(fp::NormalLower(0, 0, 1), rsStdDev);
  EXPECT_MATH_ERROR(fp::LogNormalQuantile(0, 0, 0.5L), rsStdDev);
  EXPECT_MATH_ERROR(fp::ExponentialPdf(0, 1), rsExpDistInvalid);
  EXPECT_MATH_ERROR(fp::GammaLower(1, 0, 1), rsValueGZero);
  EXPECT_MATH_ERROR(fp::ChiSquareLower(0, 1), rsDF);
  EXPECT_MATH_ERROR(fp::StudentTPdf(-1, 1), rsDF);
  EXPECT_MATH_ERROR(fp::FDistUpper(1, 0, 1), rsDF);
  EXPECT_MATH_ERROR(fp::BetaLogLower(1, 0, 0.5L), rsValueGZero);
  EXPECT_MATH_ERROR(fp::BinomialPmf(1.5L, 2, 1), rsBinomDistInvalid);
  EXPECT_MATH_ERROR(fp::HyperGeometricPmf(5, 2, 6, 1), rsHyperGeometricInvalid);
  EXPECT_MATH_ERROR(fp::PoissonLower(0, 1), rsPoissonInvalid);
  EXPECT_MATH_ERROR(fp::PoissonQuantile(3, std::nanl("")), rsValue01);
  EXPECT_MATH_ERROR(fp::PoissonQuantile(std::nanl(""), 0.5L), rsPoissonInvalid);
  EXPECT_MATH_ERROR(fp::NormalLower(0, 1e-4940L, 0), rsStdDev);
  EXPECT_ERROR(fp::GammaLower(1e16L, 1, 1), EInvalidOp, rsInvalidOp);
  EXPECT_ERROR(fp::NormalLower(std::numeric_limits<Extended>::infinity(), 1, 0), EInvalidOp,
               rsInvalidOp);
}

}  // namespace qorvex
