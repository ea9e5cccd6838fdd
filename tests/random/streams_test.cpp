// Variates of scripted uniform values: which values they draw, in which order, and what they make
// of them.

#include <array>
#include <cstdint>
#include <map>
#include <random>
#include <span>
#include <string>
#include <vector>

#include "qorvex/base/elementary.h"
#include "qorvex/random/detail/binomial_ratios.h"
#include "qorvex/random/detail/poisson_densities.h"
#include "qorvex/random/detail/power_of_complement.h"
#include "random/scripted_source.h"
#include "random/variates.h"
#include "support/table.h"
#include "support/test.h"

namespace qorvex {
namespace {

using testing::Draw;
using testing::ScriptedSource;

// 0 for parameters that a variate does not have.
Extended Parameter(const testing::Table& table, std::size_t row, const char* name) {
  return table.Text(row, name).empty() ? 0 : table.Value(row, name);
}

std::vector<Draw> WaysToDrawRow(const testing::Table& table, std::size_t row) {
  return testing::WaysToDraw(table.Text(row, "variate"), Parameter(table, row, "a"),
                             Parameter(table, row, "b"));
}

// The scripts of the table reach every branch of every method.
TEST(Streams, AgreeWithTheTable) {
  const testing::Table table("tables/variate_streams.csv");
  for (std::size_t row = 0; row < table.size(); ++row) {
    SCOPED_TRACE("row " + std::to_string(row + 1));
    std::vector<Extended> script = table.Values(row, "draws");
    for (Extended& draw : script) draw *= 0x1p-24L;
    const Extended expected = table.Value(row, "value");
    const Extended limit = table.Value(row, "units") * 1e-19L * std::fabs(expected);
    for (const Draw& draw : WaysToDrawRow(table, row)) {
      ScriptedSource source(script);
      EXPECT_LE(std::fabs(draw(source) - expected), limit);
      EXPECT_EQ(source.left(), 0U);
    }
  }
}

detail::BinomialRatios Ratios(Extended n, Extended p) {
  return {n, p, 1 - p, std::floor(n * p + p)};
}

detail::PoissonAndNormal Densities(Extended mu, Extended k) {
  return detail::PoissonDensities(mu, std::sqrt(mu)).At(k);
}

// The angle for a uniform value that chooses an interval and a place in it; the next value accepts
// the place.
Extended Angle(Extended k, Extended u) {
  return Random_von_Mises(k, ScriptedSource({u, 1 - 0x1p-64L, 0.75L}));
}

// Formulas that decide so few variates, or come so close to others, that even a million draws would
// not show a wrong digit.
using Formula = Extended (*)(Extended a, Extended b, Extended c);

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
    const Formula formula = kFormulas.at(table.Text(row, "formula"));
    const Extended value =
        formula(Parameter(table, row, "a"), Parameter(table, row, "b"), Parameter(table, row, "c"));
    EXPECT_LE(std::fabs(value - table.Value(row, "value")), table.Value(row, "limit"))
        << "row " << row + 1;
  }
}

// A wrong constant in an acceptance test changes the number of draws, and a function that is not
// rounded correctly the last bit of the sum.
TEST(Streams, HaveTheSameBitsOnEveryMachine) {
  const testing::Table table("tables/variate_sums.csv");
  for (std::size_t row = 0; row < table.size(); ++row) {
    SCOPED_TRACE("row " + std::to_string(row + 1));
    for (const Draw& draw : WaysToDrawRow(table, row)) {
      std::mt19937_64 engine;
      std::uint32_t drawn = 0;
      const auto source = [&] {
        ++drawn;
        return UniformValue(engine());
      };
      Extended sum = 0;
      for (int i = 0; i < 20'000; ++i) sum += draw(source);
      EXPECT_EQ(drawn, table.Value(row, "draws"));
      EXPECT_EQ(sum, table.Value(row, "sum"));
    }
  }
}

TEST(Streams, ExactVariatesAtTheLimitsOfTheMethods) {
  constexpr Extended many = 0x1p62L;
  const struct {
    const char* variate;
    Extended a, b;
    std::vector<Extended> script;
    Extended value;
  } cases[] = {
      {"scaled-normal", 3, 0, {0.5L, 0.75L}, 3},
      // A standard deviation of 1 gives the mean itself.
      {"log-normal", 1, 1, {0.5L, 0.75L}, 1},
      {"log-normal", 0.1L, 1, {0.5L, 0.75L}, 0.1L},
      {"log-normal", 1e4000L, 1, {0.5L, 0.75L}, 1e4000L},
      // Outcomes that are certain still take their draw.
      {"binomial-1", 7, 0, {0.3L}, 0},
      {"binomial-1", 7, 1, {0.3L}, 7},
      {"binomial-1", 0, 0.5L, {0.3L}, 0},
      {"binomial-2", 7, 1, {0.3L}, 7},
      {"binomial-2", 0, 0.5L, {0.3L}, 0},
      // Draws and parameters exactly at a bound.
      {"exponential", 0, 0, {5e-324L, 0.5L}, std::log(2.0L)},
      {"beta", 1, 1, {1e-330L, 0.5L, 0.5L, 0.5L}, 0.5L},
      {"gamma", 5e-324L, 0, {0.5L}, 0},
      {"weibull", 1e-300L, 0, {0.5L}, 0},
      {"negative-binomial", 1, 0.5L, {0.5L}, 1},
      {"negative-binomial", 2, 0.7L, {0.05L}, 0},
      {"binomial-1", 1, 0.5L, {0.5L}, 0},
      {"binomial-1", 5, 1 - 0x1p-64L, {0.5L}, 5},
      {"binomial-2", 1, 0.5L, {0.5L}, 1},
      {"binomial-2", 60, 0.5L, {0, 0.5L}, 27},
      {"poisson", 0.5L, 0, {std::exp(-0.5L)}, 0},
      // Where 2k is whole, the last interval has neither width nor weight to divide by.
      {"von-mises", 1, 0, {1.5L, 0.5L, 0.75L}, QorPi},
      {"von-mises", 9.5L, 0, {1.5L, 0.5L, 0.75L}, QorPi},
      {"von-mises", 0.75L, 0, {1.5L, 0.5L, 0.75L}, std::acos(1 - 1 / 0.75L)},
      // Draws above the sum of all probabilities: the mode, or another draw.
      {"binomial-1", 10, 0.5L, {2}, 5},
      {"binomial-1", 2e9L, 0.5L, {2}, 1e9L},
      {"binomial-2", 1, 0.25L, {2, 0.5L}, 0},
      {"poisson", 0.5L, 0, {2, 0.5L}, 0},
      // 1 - p rounds to 1, but n p is 1.
      {"binomial-2", many, 1 / many, {0.36L}, 0},
      {"binomial-2", many, 1 / many, {0.37L}, 1},
      {"binomial-2", many, 1 / many, {0.73L}, 1},
      {"binomial-2", many, 1 / many, {0.74L}, 2},
      {"negative-binomial", many, 1 / many, {0.36L}, 0},
      {"negative-binomial", many, 1 / many, {0.37L}, 1},
      {"negative-binomial", many, 1 / many, {0.73L}, 1},
      {"negative-binomial", many, 1 / many, {0.74L}, 2},
  };
  for (const auto& [variate, a, b, script, value] : cases) {
    SCOPED_TRACE(::testing::Message() << variate << ' ' << a << ' ' << b);
    for (const Draw& draw : testing::WaysToDraw(variate, a, b)) {
      ScriptedSource source(script);
      EXPECT_EQ(draw(source), value);
      EXPECT_EQ(source.left(), 0U);
    }
  }
  EXPECT_GT(Random_von_Mises(0.25L, ScriptedSource({0.5L, 0.75L, 0.5L})), 0);
  EXPECT_GT(Random_Neg_Binomial(2, 0.5L, ScriptedSource({1})), 50);
}

TEST(Streams, MultivariateNormalAddsTheFactoredVariates) {
  const Extended mean[] = {10, 20, 30};
  // Columns of the upper triangle: the factor is ((2, 1, 3), (0, 3, -1), (0, 0, 0.5)).
  const std::vector<Extended> covariance = {4, 2, 10, 6, 0, 10.25L, 99};
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

// SetRandSeed comes with the header of the unit.
TEST(Streams, ShortFormsDrawFromTheRuntime) {
  TQorFloatVector factor;
  TQorFloatVector variate;
  std::int32_t error = 0;
  Random_MVNorm({1}, {1}, factor, variate, error);
  // The generator of the runtime is the standard one.
#define EXPECT_SAME_STREAM(Routine, ...) \
  SetRandSeed(77);                       \
  EXPECT_EQ(Routine(__VA_ARGS__), Routine(__VA_ARGS__ __VA_OPT__(, ) std::mt19937_64(77)))
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

TEST(Fillers, DrawWhatSingleCallsDraw) {
  const auto expect_same = [](auto fill, auto draw) {
    RandomStream stream(7);
    RandomStream other = stream;
    std::array<Extended, 600> filled;
    fill(std::span(filled), stream);
    for (const Extended x : filled) EXPECT_EQ(x, draw(other));
    EXPECT_EQ(stream, other);
  };
  expect_same([](auto range, auto& s) { FillUniform(range, s); },
              [](auto& s) { return UniformValue(s()); });
  expect_same([](auto range, auto& s) { FillNormal(range, s); },
              [](auto& s) { return Random_Normal(s); });
  expect_same([](auto range, auto& s) { FillNormal(range, 3, -2, s); },
              [](auto& s) { return Random_Normal(s) * -2 + 3; });
  expect_same([](auto range, auto& s) { FillExponential(range, s); },
              [](auto& s) { return Random_Exponential(s); });
  for (const Extended shape : {0.001L, 0.3L, 1.0L, 1.5L, 70.0L})
    expect_same([=](auto range, auto& s) { FillGamma(range, shape, s); },
                [=](auto& s) { return Random_Gamma(shape, s); });
  expect_same([](auto range, auto& s) { Fill(range, PoissonSampler(5), s); },
              [](auto& s) { return Random_Poisson(5, s); });
}

TEST(Fillers, KeepWhatIsDrawnBeforeAnError) {
  std::array<Extended, 3> filled{7, 7, 7};
  EXPECT_THROW(FillExponential(filled, ScriptedSource({0.25L, 0, 0.5L})), std::out_of_range);
  EXPECT_EQ(filled[0], 2 * filled[1]);
  EXPECT_EQ(filled[1], Random_Exponential(ScriptedSource({0.5L})));
  EXPECT_EQ(filled[2], 7);
}

double Quarter() {
  return 0.25;
}

TEST(UniformSource, TakesAnyCallableThatReturnsAFloatingValue) {
  struct Counter {
    float operator()() { return static_cast<float>(++calls) / 4; }
    int calls = 0;
  } counter;
  const auto constant = [] { return 0.75; };
  const TQorRandomFunc plain = [] { return 0.5L; };
  const auto draw = [](UniformSource source) { return source(); };
  EXPECT_EQ(draw(plain), 0.5L);
  EXPECT_EQ(draw(*plain), 0.5L);
  EXPECT_EQ(draw(Quarter), 0.25L);
  EXPECT_EQ(draw(&Quarter), 0.25L);
  EXPECT_EQ(draw(constant), 0.75L);
  EXPECT_EQ(draw(counter), 0.25L);
  EXPECT_EQ(draw(counter), 0.5L) << "the callable is not copied";

  static_assert(std::is_nothrow_convertible_v<TQorRandomFunc, UniformSource>);
  static_assert(!std::is_convertible_v<std::nullptr_t, UniformSource>);
  static_assert(!std::is_convertible_v<std::uint64_t (*)(), UniformSource>,
                "integers of an unknown range are not uniform values");
  static_assert(!std::is_convertible_v<Extended, UniformSource>);
}

// The first value of the standard engine is in the tests of Random, which the short forms use.
TEST(UniformSource, TakesGeneratorsOf64Bits) {
  std::mt19937_64 standard;
  SetRandSeed(5489);
  for (int i = 0; i < 1000; ++i) EXPECT_EQ(UniformSource(standard)(), Random());
  EXPECT_EQ(UniformSource(RandomStream(0))(), 0x53175d61490b23dfp-64L);

  using detail::kGenerates64Bits;
  static_assert(kGenerates64Bits<RandomStream> && kGenerates64Bits<std::mt19937_64&>);
  static_assert(!kGenerates64Bits<std::mt19937> && !kGenerates64Bits<std::minstd_rand> &&
                !kGenerates64Bits<std::ranlux48>);
}

}  // namespace
}  // namespace qorvex
