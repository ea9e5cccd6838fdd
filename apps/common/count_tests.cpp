#include "apps/common/test_computations.h"
#include "qorvex/stats/inference/binomial_test.h"
#include "qorvex/stats/inference/chi_square_tests.h"
#include "qorvex/stats/inference/intervals.h"

namespace qorvex::apps {

namespace {

// Of numbers that are counts.
TQorInt64Vector CountsIn(const NumberSample& sample) {
  TQorInt64Vector counts;
  for (const Extended value : sample.numbers.Values())
    counts.Append(static_cast<std::int64_t>(value));
  return counts;
}

Extended Total(const TQorInt64Vector& counts) {
  Extended total = 0;
  for (const std::int64_t count : counts) total += static_cast<Extended>(count);
  return total;
}

TestSample CountSample(const NumberSample& sample, const TQorInt64Vector& counts) {
  TestSample origin = sample.origin;
  origin.figures = {{"cells", "Number of Cells:", static_cast<Extended>(counts.size()), true},
                    {"total", "Total:", Total(counts), true}};
  return origin;
}

}  // namespace

TestReport GoodnessOfFit(Samples samples, const TestSettings& settings) {
  const TQorInt64Vector counts = CountsIn(samples[0]);
  const bool has_proportions = samples.size() == 2;
  const TQorFloatVector expected = has_proportions
                                       ? samples[1].numbers.Values()
                                       : TQorFloatVector(std::vector<Extended>(counts.size(), 1));
  TestReport report{.title = "Chi-square test of fit",
                    .samples = {CountSample(samples[0], counts)},
                    .null_hypothesis = has_proportions ? "the counts follow the proportions"
                                                       : "all cells are equally likely",
                    .alternate_hypothesis = has_proportions ? "they do not" : "they are not",
                    .symbol = "chi-square",
                    .law = StatisticLaw::kChiSquare};
  report.result = GoodnessOfFitTest(counts, expected, settings.fitted_parameters);
  return report;
}

TestReport Independence(Samples columns, const TestSettings& settings) {
  TestReport report{.title = settings.yates
                                 ? "Chi-square test of independence with Yates' correction"
                                 : "Chi-square test of independence",
                    .null_hypothesis = "rows and columns are independent",
                    .alternate_hypothesis = "they are not",
                    .symbol = "chi-square",
                    .law = StatisticLaw::kChiSquare};
  TQorInt64Matrix counts(columns[0].numbers.size());
  for (TQorInt64Vector& row : counts) row.SetLength(columns.size());
  for (std::size_t j = 0; j < columns.size(); ++j) {
    const TQorInt64Vector column = CountsIn(columns[j]);
    for (std::size_t i = 0; i < counts.size(); ++i) counts[i][j] = column[i];
    report.samples.push_back(CountSample(columns[j], column));
  }
  report.result = IndependenceTest(
      counts, settings.yates ? ContinuityCorrection::kYates : ContinuityCorrection::kNone);
  return report;
}

TestReport Binomial(Samples, const TestSettings& settings) {
  const std::uint32_t k = settings.successes;
  const std::uint32_t n = settings.trials;
  const auto successes = static_cast<Extended>(k);
  const auto trials = static_cast<Extended>(n);
  TestReport report{.title = "Exact binomial test",
                    .samples = {{.figures = {{"successes", "Successes:", successes, true},
                                             {"trials", "Trials:", trials, true},
                                             {"proportion", "Proportion:", successes / trials}}}},
                    .alternative = settings.alternative,
                    .symbol = "k",
                    .statistic_is_count = true,
                    .result = BinomialTest(k, n, settings.hypothesis.value, settings.alternative)};
  report.SetHypotheses("the probability of success", settings.hypothesis.text);
  const Extended confidence = settings.confidence.value;
  report.intervals = {
      {"clopper_pearson_interval",
       "Confidence Interval by Clopper and Pearson: ", ClopperPearsonInterval(k, n, confidence)},
      {"wilson_interval", "Confidence Interval by Wilson: ", WilsonInterval(k, n, confidence)}};
  return report;
}

}  // namespace qorvex::apps
