// Variates of scripted uniform values: which values are taken, in which order, and what becomes of
// them.

#include <cstdint>
#include <map>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "qorvex/base/elementary.h"
#include "qorvex/base/random.h"
#include "qorvex/random/QorvexRandom.h"
#include "random/scripted_source.h"
#include "support/table.h"
#include "support/test.h"

namespace qorvex {
namespace {

using testing::ScriptedSource;

using Variate = Extended (*)(Extended a, Extended b, UniformSource source);

const std::map<std::string, Variate>& Variates() {
  using S = UniformSource;
  static const std::map<std::string, Variate> variates = {
      {"normal", [](Extended, Extended, S s) { return Random_Normal(s); }},
      {"exponential", [](Extended, Extended, S s) { return Random_Exponential(s); }},
      {"cauchy", [](Extended, Extended, S s) { return Random_Cauchy(s); }},
      {"gamma", [](Extended a, Extended, S s) { return Random_Gamma(a, s); }},
      {"chi-square",
       [](Extended a, Extended, S s) { return Random_ChiSq(static_cast<std::int32_t>(a), s); }},
      {"weibull", [](Extended a, Extended, S s) { return Random_Weibull(a, s); }},
      {"student-t",
       [](Extended a, Extended, S s) { return Random_T(static_cast<std::int32_t>(a), s); }},
      {"log-normal", [](Extended a, Extended b, S s) { return Random_LogNormal(a, b, s); }},
      {"beta", [](Extended a, Extended b, S s) { return Random_Beta(a, b, s); }},
      {"inverse-gaussian", [](Extended a, Extended b, S s) { return Random_Inv_Gauss(a, b, s); }},
      {"von-mises", [](Extended a, Extended, S s) { return Random_von_Mises(a, s); }},
      {"binomial-1", [](Extended a, Extended b,
                        S s) { return Random_Binomial1(static_cast<std::int32_t>(a), b, s); }},
      {"binomial-2", [](Extended a, Extended b,
                        S s) { return Random_Binomial2(static_cast<std::int64_t>(a), b, s); }},
      {"negative-binomial",
       [](Extended a, Extended b, S s) { return Random_Neg_Binomial(a, b, s); }},
      {"poisson", [](Extended a, Extended, S s) { return Random_Poisson(a, s); }},
  };
  return variates;
}

Extended DrawRow(const testing::Table& table, std::size_t row, UniformSource source) {
  const auto parameter = [&](const char* name) {
    return table.Text(row, name).empty() ? 0 : table.Value(row, name);
  };
  return Variates().at(table.Text(row, "variate"))(parameter("a"), parameter("b"), source);
}

// The scripts of the table take the branches of every method.
TEST(Streams, AreThoseOfTheMethods) {
  const testing::Table table("tables/variate_streams.csv");
  for (std::size_t row = 0; row < table.size(); ++row) {
    SCOPED_TRACE("row " + std::to_string(row + 1));
    std::istringstream draws(table.Text(row, "draws"));
    std::vector<Extended> script;
    for (Extended draw = 0; draws >> draw;) script.push_back(draw * 0x1p-24L);
    ScriptedSource source(script);
    const Extended value = DrawRow(table, row, source);
    EXPECT_EQ(source.left(), 0U);
    const Extended expected = table.Value(row, "value");
    EXPECT_LE(std::fabs(value - expected),
              table.Value(row, "units") * 1e-19L * std::fabs(expected));
  }
}

// A constant that decides what is accepted shows in the count of draws.
TEST(Streams, KeepTheirPaceOverManyVariates) {
  const testing::Table table("tables/variate_sums.csv");
  for (std::size_t row = 0; row < table.size(); ++row) {
    SCOPED_TRACE("row " + std::to_string(row + 1));
    std::mt19937_64 engine;
    std::uint32_t drawn = 0;
    const auto source = [&] {
      ++drawn;
      return static_cast<Extended>(engine()) * 0x1p-64L;
    };
    Extended sum = 0;
    for (int i = 0; i < 20'000; ++i) sum += DrawRow(table, row, source);
    EXPECT_EQ(drawn, table.Value(row, "draws"));
    EXPECT_LE(std::fabs(sum / table.Value(row, "sum") - 1), 1e-8L);
  }
}

TEST(Streams, ScaledNormalUsesMeanAndDeviationUnchecked) {
  const auto scaled = [](Extended mean, Extended std_dev) {
    ScriptedSource source({0.5L, 0.75L});
    return Random_Normal(mean, std_dev, source);
  };
  const Extended standard = scaled(0, 1);
  EXPECT_EQ(scaled(3, 2), standard * 2 + 3);
  EXPECT_EQ(scaled(3, -2), standard * -2 + 3);
  EXPECT_EQ(scaled(3, 0), 3);
}

TEST(Streams, UnitDeviationGivesTheMeanOfTheLogNormalExactly) {
  for (const Extended mean : {1.0L, 7.0L, 0.1L, 1e4000L}) {
    ScriptedSource source({0.5L, 0.75L});
    EXPECT_EQ(Random_LogNormal(mean, 1, source), mean);
    EXPECT_EQ(source.left(), 0U);
  }
}

TEST(Streams, CertainOutcomesOfTheBinomials) {
  ScriptedSource source({0.3L, 0.3L, 0.3L, 0.3L, 0.3L});
  EXPECT_EQ(Random_Binomial1(7, 0, source), 0);
  EXPECT_EQ(Random_Binomial1(7, 1, source), 7);
  EXPECT_EQ(Random_Binomial1(0, 0.5L, source), 0);
  EXPECT_EQ(Random_Binomial2(7, 1, source), 7);
  EXPECT_EQ(Random_Binomial2(0, 0.5L, source), 0);
  EXPECT_EQ(source.left(), 0U);
}

TEST(Streams, BoundsThatDrawsMayHit) {
  const auto draw = [](auto variate, std::vector<Extended> script) {
    ScriptedSource source(std::move(script));
    const Extended value = variate(UniformSource(source));
    EXPECT_EQ(source.left(), 0U);
    return value;
  };
  using S = UniformSource;
  EXPECT_EQ(draw([](S s) { return Random_Exponential(s); }, {5e-324L, 0.5L}), std::log(2.0L));
  EXPECT_EQ(draw([](S s) { return Random_Beta(1, 1, s); }, {1e-330L, 0.5L, 0.5L, 0.5L}), 0.5L);
  EXPECT_EQ(draw([](S s) { return Random_Gamma(5e-324L, s); }, {0.5L}), 0);
  EXPECT_EQ(draw([](S s) { return Random_Neg_Binomial(1, 0.5L, s); }, {0.5L}), 1);
  EXPECT_EQ(draw([](S s) { return Random_Neg_Binomial(2, 0.7L, s); }, {0.05L}), 0);
  EXPECT_EQ(draw([](S s) { return Random_Binomial1(1, 0.5L, s); }, {0.5L}), 0);
  EXPECT_EQ(draw([](S s) { return Random_Binomial1(5, 1 - 0x1p-64L, s); }, {0.5L}), 5);
  EXPECT_EQ(draw([](S s) { return Random_Binomial2(1, 0.5L, s); }, {0.5L}), 1);
  EXPECT_EQ(draw([](S s) { return Random_Binomial2(60, 0.5L, s); }, {0, 0.5L}), 27)
      << "the regions serve from n p = 30 on";
  EXPECT_EQ(draw([](S s) { return Random_Poisson(0.5L, s); }, {std::exp(-0.5L)}), 0);
  EXPECT_GT(draw([](S s) { return Random_von_Mises(0.25L, s); }, {0.5L, 0.75L, 0.5L}), 0);
}

// Where 2k is whole, the last interval has no width; a draw beyond all weights must not divide by
// its weight.
TEST(Streams, VonMisesTakesTheLastIntervalForARemainder) {
  for (const Extended k : {1.0L, 9.5L}) {
    ScriptedSource source({1.5L, 0.5L, 0.75L});
    EXPECT_EQ(Random_von_Mises(k, source), QorPi);
  }
  ScriptedSource source({1.5L, 0.5L, 0.75L});
  EXPECT_EQ(Random_von_Mises(0.75L, source), std::acos(1 - 1 / 0.75L)) << "the end of the first";
}

// One sum of probabilities stays below the draw: the mode, not an endless search.
TEST(Streams, BinomialInversionGivesTheModeForARemainder) {
  ScriptedSource source({2, 2});
  EXPECT_EQ(Random_Binomial1(10, 0.5L, source), 5);
  EXPECT_EQ(Random_Binomial1(2'000'000'000, 0.5L, source), 1'000'000'000);
}

TEST(Streams, SumsOfProbabilitiesThatRoundingLeftShortDrawAgain) {
  ScriptedSource source({2, 0.5L, 2, 0.5L});
  EXPECT_EQ(Random_Binomial2(1, 0.25L, source), 0);
  EXPECT_EQ(Random_Poisson(0.5L, source), 0);
  ScriptedSource short_sum({1});
  EXPECT_GT(Random_Neg_Binomial(2, 0.5L, short_sum), 50);
}

// 1 - p rounds to 1, and p n is 1.
TEST(Streams, TinyProbabilitiesCountWhereTheTrialsAreMany) {
  constexpr Extended p = 0x1p-62L;
  constexpr auto n = std::int64_t{1} << 62;
  for (const auto& [u, successes] : {std::pair{0.36L, 0}, {0.37L, 1}, {0.73L, 1}, {0.74L, 2}}) {
    ScriptedSource source({u, u});
    EXPECT_EQ(Random_Binomial2(n, p, source), successes);
    EXPECT_EQ(Random_Neg_Binomial(static_cast<Extended>(n), p, source), successes);
  }
}

TEST(Streams, MultivariateNormalAddsTheFactoredVariates) {
  const TQorFloatVector mean = {10, 20, 30};
  // Columns of the upper triangle: the factor is ((2, 1, 3), (0, 3, -1), (0, 0, 0.5)).
  const TQorFloatVector covariance = {4, 2, 10, 6, 0, 10.25L, 99};
  const std::vector<Extended> script = {0.5L, 0.75L, 0.5L, 0.25L, 0.625L, 0.5625L};
  ScriptedSource normals(script);
  const Extended z[] = {Random_Normal(normals), Random_Normal(normals), Random_Normal(normals)};
  TQorFloatVector factor;
  TQorFloatVector variate;
  std::int32_t error = 7;
  ScriptedSource source(script);
  Random_MVNorm(mean, covariance, factor, variate, error, source);
  EXPECT_EQ(error, 0);
  EXPECT_EQ(factor, (TQorFloatVector{2, 1, 3, 3, -1, 0.5L}));
  EXPECT_EQ(variate[0], 10 + 2 * z[0]);
  EXPECT_EQ(variate[1], 20 + z[0] + 3 * z[1]);
  EXPECT_EQ(variate[2], 30 + 3 * z[0] - z[1] + 0.5L * z[2]);
  EXPECT_EQ(source.left(), 0U);
}

TEST(Streams, ShortFormsDrawFromTheRuntime) {
  TQorFloatVector factor;
  TQorFloatVector variate;
  std::int32_t error = 0;
  const TQorFloatVector one = {1};
  Random_MVNorm(one, one, factor, variate, error);
  const auto expect_same = [](auto short_form, auto full_form) {
    SetRandSeed(77);
    const Extended expected = full_form(UniformSource(ClassicRandom));
    SetRandSeed(77);
    EXPECT_EQ(short_form(), expected);
  };
#define EXPECT_SAME_STREAM(Routine, ...)           \
  expect_same([] { return Routine(__VA_ARGS__); }, \
              [](UniformSource source) { return Routine(__VA_ARGS__ __VA_OPT__(, ) source); })
  EXPECT_SAME_STREAM(Random_Normal);
  EXPECT_SAME_STREAM(Random_Normal, 2, 3);
  EXPECT_SAME_STREAM(Random_Gamma, 2.5L);
  EXPECT_SAME_STREAM(Random_ChiSq, 3);
  EXPECT_SAME_STREAM(Random_Exponential);
  EXPECT_SAME_STREAM(Random_Weibull, 2);
  EXPECT_SAME_STREAM(Random_Beta, 2, 3);
  EXPECT_SAME_STREAM(Random_T, 4);
  EXPECT_SAME_STREAM(Random_Cauchy);
  EXPECT_SAME_STREAM(Random_LogNormal, 2, 3);
  EXPECT_SAME_STREAM(Random_Inv_Gauss, 2, 3);
  EXPECT_SAME_STREAM(Random_von_Mises, 2);
  EXPECT_SAME_STREAM(Random_Binomial1, 9, 0.3L);
  EXPECT_SAME_STREAM(Random_Binomial2, 900, 0.3L);
  EXPECT_SAME_STREAM(Random_Neg_Binomial, 2, 0.3L);
  EXPECT_SAME_STREAM(Random_Poisson, 20);
#undef EXPECT_SAME_STREAM
}

Extended ExtendedHalf() {
  return 0.5L;
}
double DoubleQuarter() {
  return 0.25;
}

TEST(UniformSource, TakesWhateverReturnsAFloatingValue) {
  struct Counter {
    float operator()() { return static_cast<float>(++calls) / 4; }
    int calls = 0;
  };
  struct Constant {
    Extended operator()() const noexcept { return 0.125L; }
  };
  Counter counter;
  const Constant constant;
  const TQorRandomFunc plain = ExtendedHalf;
  const auto draw = [](UniformSource source) { return source(); };
  EXPECT_EQ(draw(ExtendedHalf), 0.5L);
  EXPECT_EQ(draw(plain), 0.5L);
  EXPECT_EQ(draw(DoubleQuarter), 0.25L);
  EXPECT_EQ(draw(&DoubleQuarter), 0.25L);
  EXPECT_EQ(draw(constant), 0.125L);
  EXPECT_EQ(draw([] { return 0.75; }), 0.75L);
  EXPECT_EQ(draw(counter), 0.25L);
  EXPECT_EQ(draw(counter), 0.5L) << "the callable is referred to, not copied";

  static_assert(std::is_nothrow_convertible_v<TQorRandomFunc, UniformSource>);
  static_assert(!std::is_convertible_v<std::nullptr_t, UniformSource>);
  static_assert(!std::is_convertible_v<int (*)(), UniformSource>, "no integers of an engine");
  static_assert(!std::is_convertible_v<Extended, UniformSource>);
}

}  // namespace
}  // namespace qorvex
