#include "qorvex/stats/inference/inference.h"

#include <set>
#include <span>

#include "stats/inference/tables.h"
#include "support/element_probe.h"
#include "support/test.h"

namespace qorvex {

namespace {

using testing::Arguments;
using testing::Table;

const std::map<std::string, Alternative> kAlternatives = {{"two-sided", Alternative::kTwoSided},
                                                          {"less", Alternative::kLess},
                                                          {"greater", Alternative::kGreater}};
const std::map<std::string, TestForm> kForms = {{"exact", TestForm::kExact},
                                                {"welch", TestForm::kWelch},
                                                {"normal", TestForm::kNormalApproximation},
                                                {"chi-square", TestForm::kChiSquareApproximation},
                                                {"limit", TestForm::kLimit}};

// What a test is accurate to, relative to the figure unless it says otherwise.
struct Accuracy {
  Extended statistic = 0;
  Extended p = 1e-18L;
  Extended absolute_statistic = 0;
  Extended absolute_log_p = 0;
};
const std::map<std::string, Accuracy> kAccuracies = {
    {"variance", {0, 1e-18L, 0, 2e-19L}}, {"variance-ratio", {0, 1e-18L, 0, 2e-19L}},
    {"binomial", {0, 1e-18L, 0, 2e-19L}}, {"ks-uniform", {0, 5e-18L, 2e-19L, 1e-18L}},
    {"ks-two", {0, 5e-18L, 0, 2e-19L}},   {"shapiro-wilk", {2e-19L, 1e-17L, 0, 2e-17L}}};

// Expects two figures that are both missing, or agree to an accuracy.
void ExpectFigure(Extended figure, const std::string& expected, Extended relative, const char* name,
                  Extended absolute = 0) {
  if (expected.empty()) {
    EXPECT_TRUE(std::isnan(figure)) << name;
  } else if (expected == "-inf") {
    EXPECT_EQ(figure, -kInfinity) << name;
  } else {
    const Extended exact = Str2Float(expected);
    EXPECT_LE(std::fabs(figure - exact), relative * std::fabs(exact) + absolute)
        << name << ' ' << figure << ", relative error " << (figure - exact) / exact;
  }
}

// The results of all rows of a table.
template <class Expect>
std::set<std::string> ForAllTests(const Table& table, Expect expect) {
  std::set<std::string> tested;
  for (std::size_t row = 0; row < table.size(); ++row) {
    const std::string test = table.Text(row, "test");
    const std::string arguments = table.Text(row, "arguments");
    const std::string alternative = table.Text(row, "alternative");
    SCOPED_TRACE(test + ' ' + arguments + ' ' + alternative);
    expect(row, test,
           testing::TestRoutines().at(test)(Arguments(arguments), kAlternatives.at(alternative)));
    tested.insert(test);
  }
  return tested;
}

TEST(Tests, AgreeWithSixtyDigitsHoweverSmallTheirP) {
  const Table table("tables/inference.csv");
  const auto tested =
      ForAllTests(table, [&](std::size_t row, const std::string& test, const TestResult& result) {
        const auto found = kAccuracies.find(test);
        const Accuracy accuracy = found == kAccuracies.end() ? Accuracy() : found->second;
        ExpectFigure(result.statistic, table.Text(row, "statistic"), accuracy.statistic,
                     "statistic", accuracy.absolute_statistic);
        ExpectFigure(result.degrees_of_freedom, table.Text(row, "df"), 0, "df");
        ExpectFigure(result.second_degrees_of_freedom, table.Text(row, "df2"), 0, "df2");
        const Extended p = table.Value(row, "p");
        if (p == 0 || p >= std::numeric_limits<Extended>::min())
          ExpectFigure(result.p, table.Text(row, "p"), accuracy.p, "p");
        ExpectFigure(result.log_p, table.Text(row, "log_p"), accuracy.p, "log_p",
                     accuracy.absolute_log_p);
        EXPECT_EQ(result.form, kForms.at(table.Text(row, "form")));
      });
  EXPECT_EQ(tested.size(), testing::TestRoutines().size());
}

TEST(Tests, AgreeWithR) {
  const Table table("tables/inference_r.csv");
  ForAllTests(table, [&](std::size_t row, const std::string& test, const TestResult& result) {
    ExpectFigure(result.statistic, table.Text(row, "statistic"), 5e-15L, "statistic", 1e-16L);
    ExpectFigure(result.degrees_of_freedom, table.Text(row, "df"), 1e-13L, "df");
    ExpectFigure(result.second_degrees_of_freedom, table.Text(row, "df2"), 0, "df2");
    // R subtracts probabilities of Kolmogorov and Smirnov from 1.
    const Extended absolute = test.starts_with("ks") ? 2e-13L : 0;
    ExpectFigure(result.p, table.Text(row, "p"), 5e-13L, "p", absolute);
  });
}

TEST(Intervals, AgreeWithSixtyDigitsAndWithR) {
  for (const auto& [file, accuracy] :
       {std::pair{"tables/intervals.csv", 2e-18L}, std::pair{"tables/intervals_r.csv", 1e-13L}}) {
    const Table table(file);
    for (std::size_t row = 0; row < table.size(); ++row) {
      const std::string arguments = table.Text(row, "arguments");
      SCOPED_TRACE(table.Text(row, "interval") + ' ' + arguments);
      const auto [least, greatest] =
          testing::IntervalRoutines().at(table.Text(row, "interval"))(Arguments(arguments));
      ExpectFigure(least, table.Text(row, "least"), accuracy, "least");
      ExpectFigure(greatest, table.Text(row, "greatest"), accuracy, "greatest");
    }
  }
}

using Values = std::vector<Extended>;
const Values kOne{1};
const Values kSame{2, 2, 2};
const Values kData{1, 2, 4};

TEST(Tests, RefuseWhatTheyCannotJudge) {
  // The first of several reasons counts.
  EXPECT_MATH_ERROR(OneSampleTTest(Values()), rsVectorG1);
  EXPECT_MATH_ERROR(OneSampleTTest(kSame), rsSameValue);
  EXPECT_MATH_ERROR(TwoSampleTTest(kSame, kOne), rsVectorG1);
  EXPECT_MATH_ERROR(TwoSampleTTest(kSame, kSame), rsSameValue);
  EXPECT_MATH_ERROR(WelchTTest(kOne, kData), rsVectorG1);
  EXPECT_MATH_ERROR(WelchTTest(kSame, Values({3, 3})), rsSameValue);
  EXPECT_MATH_ERROR(PairedTTest(kOne, Values()), rsSameDimensions);
  EXPECT_MATH_ERROR(PairedTTest(kOne, kOne), rsVectorG1);
  EXPECT_MATH_ERROR(PairedTTest(kData, kData), rsSameValue);
  EXPECT_MATH_ERROR(VarianceTest(kOne, -1), rsVectorG1);
  for (const Extended variance : {0.0L, -1.0L, kInfinity})
    EXPECT_MATH_ERROR(VarianceTest(kSame, variance), rsValueGZero);
  EXPECT_MATH_ERROR(VarianceRatioTest(kData, kOne, 0), rsVectorG1);
  EXPECT_MATH_ERROR(VarianceRatioTest(kSame, kData, 0), rsValueGZero);
  EXPECT_MATH_ERROR(VarianceRatioTest(kSame, kData), rsSameValue);
  EXPECT_MATH_ERROR(VarianceRatioTest(kData, kSame), rsSameValue);
  EXPECT_MATH_ERROR(GoodnessOfFitTest({1}, {1, 2}), rsSameDimensions);
  EXPECT_MATH_ERROR(GoodnessOfFitTest({-1}), rsVectorG1);
  EXPECT_MATH_ERROR(GoodnessOfFitTest({1, -1}, {0, 1}), rsVectorNeg);
  EXPECT_MATH_ERROR(GoodnessOfFitTest({0, 0}, {0, 1}), rsVectorNotPos);
  EXPECT_MATH_ERROR(GoodnessOfFitTest({0, 0}, {1, kInfinity}), rsVectorNotPos);
  EXPECT_MATH_ERROR(GoodnessOfFitTest({0, 0}, {1, 1}, 1), rsVectorZero);
  EXPECT_MATH_ERROR(GoodnessOfFitTest({1, 0}, {1, 1}, 1), rsDF);
  const std::pair<TQorInt64Matrix, MessageId> tables[] = {{{}, rsMatrixIsEmpty},
                                                          {{{}}, rsMatrixIsEmpty},
                                                          {{{1, 2}, {3}}, rsMatrixRect},
                                                          {{{1, -2}}, rsInvalidRow},
                                                          {{{1}, {-2}}, rsInvalidCol},
                                                          {{{1, -2}, {0, 0}}, rsMatrixNeg},
                                                          {{{1, 2}, {0, 0}}, rsMatrixZero},
                                                          {{{1, 0}, {2, 0}}, rsMatrixZero},
                                                          {{{1, 2, 3}, {4, 5, 6}}, rsInvalidValue}};
  for (const auto& [counts, message] : tables)
    EXPECT_MATH_ERROR(IndependenceTest(counts, ContinuityCorrection::kYates), message);
  EXPECT_MATH_ERROR(BinomialTest(3, 2), rsBinomDistInvalid);
  EXPECT_MATH_ERROR(BinomialTest(1, 2, 1.5L), rsBinomDistInvalid);
  EXPECT_MATH_ERROR(BinomialTest(1, 1ULL << 32), rsBinomDistInvalid);
  EXPECT_MATH_ERROR(KolmogorovSmirnovTest(Values(), UniformDistribution()), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(KolmogorovSmirnovTest(kData, Values()), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(ShapiroWilkTest({1, 1}), rsVectorG2);
  EXPECT_MATH_ERROR(ShapiroWilkTest(Values(5001, 1)), rsInvalidValue);
  EXPECT_MATH_ERROR(ShapiroWilkTest(kSame), rsSameValue);
  EXPECT_MATH_ERROR(MannWhitneyTest(Values(), kSame), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(MannWhitneyTest(kSame, kOne, 1), rsSameValue);
  EXPECT_MATH_ERROR(WilcoxonSignedRankTest(Values()), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(WilcoxonSignedRankTest(kSame, 2), rsSameValue);
  EXPECT_MATH_ERROR(WilcoxonSignedRankTest(kSame, kOne), rsSameDimensions);
}

TEST(Tests, PassOnWhatIsNotANumber) {
  for (const Extended special : {kNaN, kInfinity}) {
    const Values values{1, special, 3, 5};
    const TestResult results[] = {OneSampleTTest(values),
                                  OneSampleTTest(kData, special),
                                  TwoSampleTTest(kData, values),
                                  WelchTTest(values, kData),
                                  PairedTTest(values, Values({4, 2, 1, 0})),
                                  VarianceTest(values, 1),
                                  VarianceRatioTest(kData, values),
                                  ShapiroWilkTest(values),
                                  MannWhitneyTest(values, kData, 1),
                                  WilcoxonSignedRankTest(values)};
    for (const TestResult& result : results)
      EXPECT_TRUE(std::isnan(result.statistic) && std::isnan(result.p) && std::isnan(result.log_p));
  }
  // Not even where one is subtracted from another.
  for (const Extended special : {kNaN, kInfinity}) {
    EXPECT_TRUE(std::isnan(PairedTTest({special, 1, 2}, {1, special, 3}).p));
    EXPECT_TRUE(std::isnan(PairedTTest({0, 1, 2}, {1, special, 3}).p));
  }
  const Values values{1, kNaN, 3};
  for (const TestResult& result :
       {VarianceTest(kData, kNaN), GoodnessOfFitTest({1, 2}, {kNaN, 1}), BinomialTest(1, 2, kNaN),
        KolmogorovSmirnovTest(values, UniformDistribution()), KolmogorovSmirnovTest(kData, values),
        MannWhitneyTest(values, kData)}) {
    EXPECT_TRUE(std::isnan(result.p) && std::isnan(result.log_p));
  }
  // Only compared.
  const Values ends{-kInfinity, 2.5L, kInfinity};
  EXPECT_EQ(MannWhitneyTest(ends, kData).statistic, 5);
  EXPECT_EQ(KolmogorovSmirnovTest(ends, kData).statistic, 1 / 3.0L);
  EXPECT_EQ(KolmogorovSmirnovTest(ends, UniformDistribution(2, 3)).statistic, 1 / 3.0L);
}

TEST(Tests, TakeEveryElementAndEveryKindOfSample) {
  const std::vector<std::int16_t> small{7, 1, 4, 9};
  const std::vector<double> doubles{7, 1, 4, 9};
  const Values values{7, 1, 4, 9};
  EXPECT_EQ(OneSampleTTest(small, 3).p, OneSampleTTest(values, 3).p);
  EXPECT_EQ(WelchTTest(small, kData).p, WelchTTest(values, kData).p);
  EXPECT_EQ(PairedTTest(small, Values({1, 2, 3, 4})).p, PairedTTest(values, {1, 2, 3, 4}).p);
  EXPECT_EQ(ShapiroWilkTest(doubles).p, ShapiroWilkTest({7, 1, 4, 9}).p);
  EXPECT_EQ(MannWhitneyTest(small, doubles).statistic, 8);
  EXPECT_EQ(WilcoxonSignedRankTest(small, doubles, 1).statistic, 0);
  EXPECT_EQ(KolmogorovSmirnovTest(small, doubles).p, 1);
  EXPECT_EQ(GoodnessOfFitTest(small).statistic, 7);
  EXPECT_EQ(GoodnessOfFitTest(small, doubles).statistic, 0);
  // Amounts are the decimal numbers that they stand for: for 0.1, 0.2 and 0.6 t^2 is 27/7.
  const TQorCurrencyVector amounts{Currency(1000), Currency(2000), Currency(6000)};
  ExactSample<2> scaled;
  scaled.AddScaled({1, 2}, 1);
  scaled.AddScaled({60}, 2);
  EXPECT_EQ(OneSampleTTest(amounts).statistic, std::sqrt(27 / 7.0L));
  EXPECT_EQ(OneSampleTTest(scaled).p, OneSampleTTest(amounts).p);
  EXPECT_EQ(ShapiroWilkTest(amounts).p, ShapiroWilkTest({1, 2, 6}).p);
  // 0.3 - 0.1 is 0.2, and 0.2 - 0.1 is 0.1, which no binary numbers are.
  const TQorCurrencyVector others{Currency(2000), Currency(1000), Currency(3000)};
  const Currency tenth(1000);
  EXPECT_EQ(PairedTTest(amounts, others, tenth).p, PairedTTest({1, 2, 6}, {2, 1, 3}, 1).p);
  EXPECT_EQ(MannWhitneyTest(amounts, others, tenth).statistic, 3.5L);
  EXPECT_EQ(WilcoxonSignedRankTest(others, tenth).statistic, 3);
  EXPECT_EQ(WilcoxonSignedRankTest(amounts, others, tenth).statistic, 1.5L);
  EXPECT_EQ(KolmogorovSmirnovTest(amounts, others).statistic, 1 / 3.0L);
}

TEST(Tests, AcceptTheseElements) {
  ExpectTypes("gdfjuiwsbtCSL",
              {TYPES_READ_BY(OneSampleTTest(v)), TYPES_READ_BY(TwoSampleTTest(v, kData)),
               TYPES_READ_BY(WelchTTest(kData, v)), TYPES_READ_BY(VarianceTest(v, 1)),
               TYPES_READ_BY(VarianceRatioTest(v, kData)), TYPES_READ_BY(MeanInterval(v)),
               TYPES_READ_BY(PredictionInterval(v)), TYPES_READ_BY(VarianceInterval(v)),
               TYPES_READ_BY(PooledDifferenceInterval(v, kData)),
               TYPES_READ_BY(WelchDifferenceInterval(v, kData))});
  ExpectTypes("gdfjuiwsbt",
              {TYPES_READ_BY(PairedTTest(v, kData)), TYPES_READ_BY(MannWhitneyTest(v, kData)),
               TYPES_READ_BY(WilcoxonSignedRankTest(kData, v)),
               TYPES_READ_BY(KolmogorovSmirnovTest(v, kData)),
               TYPES_READ_BY(KolmogorovSmirnovTest(v, UniformDistribution()))});
  ExpectTypes(
      "gdfjuiwsbtCSL",
      {TYPES_READ_BY(PairedTTest(v, v)), TYPES_READ_BY(MannWhitneyTest(v, v)),
       TYPES_READ_BY(WilcoxonSignedRankTest(v)), TYPES_READ_BY(WilcoxonSignedRankTest(v, v)),
       TYPES_READ_BY(KolmogorovSmirnovTest(v, v)), TYPES_READ_BY(ShapiroWilkTest(v))});
  ExpectTypes("juiwsbt",
              {TYPES_READ_BY(GoodnessOfFitTest(v)), TYPES_READ_BY(GoodnessOfFitTest(v, kData))});
}

TEST(Intervals, RefuseAndPassOn) {
  EXPECT_MATH_ERROR(MeanInterval(kOne, 2), rsVectorG1);
  EXPECT_MATH_ERROR(PredictionInterval(kOne), rsVectorG1);
  EXPECT_MATH_ERROR(VarianceInterval(kOne), rsVectorG1);
  EXPECT_MATH_ERROR(PooledDifferenceInterval(kData, kOne), rsVectorG1);
  EXPECT_MATH_ERROR(WelchDifferenceInterval(kOne, kData), rsVectorG1);
  EXPECT_MATH_ERROR(ClopperPearsonInterval(0, 0), rsBinomDistInvalid);
  EXPECT_MATH_ERROR(ClopperPearsonInterval(1, 1ULL << 32), rsBinomDistInvalid);
  EXPECT_MATH_ERROR(WilsonInterval(3, 2), rsBinomDistInvalid);
  EXPECT_MATH_ERROR(CorrelationInterval(2, 3), rsVectorG3);
  EXPECT_MATH_ERROR(CorrelationInterval(-1.5L, 4), rsInvalidValue);
  using Routine = Interval<Extended> (*)(const Values& values, Extended confidence);
  const Routine samples[] = {
      MeanInterval<Values>, PredictionInterval<Values>, VarianceInterval<Values>,
      [](const Values& v, Extended c) { return PooledDifferenceInterval(v, kSame, c); },
      [](const Values& v, Extended c) { return WelchDifferenceInterval(kSame, v, c); }};
  const Routine others[] = {
      [](const Values&, Extended c) { return ClopperPearsonInterval(1, 2, c); },
      [](const Values&, Extended c) { return WilsonInterval(1, 2, c); },
      [](const Values&, Extended c) { return CorrelationInterval(0, 4, c); }};
  const auto expect_unknown = [](const Interval<Extended>& interval) {
    EXPECT_TRUE(std::isnan(interval.least) && std::isnan(interval.greatest));
  };
  for (const auto& routines :
       {std::span<const Routine>(samples), std::span<const Routine>(others)}) {
    for (const Routine routine : routines) {
      for (const Extended confidence : {0.0L, 1.0L, -1.0L})
        EXPECT_MATH_ERROR(routine(kData, confidence), rsValue01);
      expect_unknown(routine(kData, kNaN));
    }
  }
  for (const Routine routine : samples) {
    expect_unknown(routine({1, kNaN, 3}, 0.5L));
    const auto [least, greatest] = routine(kSame, 0.5L);
    EXPECT_EQ(least, greatest);
  }
  constexpr Extended kMost = std::numeric_limits<Extended>::max();
  EXPECT_EQ(PredictionInterval(Values{-kMost, kMost}).least, -kInfinity);
  EXPECT_EQ(CorrelationInterval(1, 4).least, 1);
  EXPECT_TRUE(std::isnan(CorrelationInterval(kNaN, 4).least));
}

}  // namespace

}  // namespace qorvex
