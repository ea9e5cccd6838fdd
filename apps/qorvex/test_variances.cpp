#include "apps/qorvex/test_arguments.h"
#include "apps/qorvex/test_samples.h"
#include "qorvex/stats/Qorvex_RS_DescStats.h"
#include "qorvex/stats/inference/intervals.h"
#include "qorvex/stats/inference/variance_tests.h"

namespace qorvex::apps {

namespace {

TestReport OneVariance(const NumberSample& sample, const TestArguments& arguments) {
  const ExactSample<2> sums = ExactSumsOf<2>(sample.numbers);
  TestReport report{
      .title = "Chi-square test of a variance",
      .alternative = arguments.alternative,
      .symbol = "chi-square",
      .law = StatisticLaw::kChiSquare,
      .result = VarianceTest(sums, arguments.hypothesis.value, arguments.alternative)};
  report.SetHypotheses("the variance", arguments.hypothesis.text);
  report.samples = {WithMoments(sample)};
  report.figures = {
      {"variance", ReportText(rsDSVariance), sums.SampleVariance(), false, sums.SampleStdDev()}};
  report.intervals = {{"variance_interval", ReportText(rsDSConfidenceIntervalV),
                       VarianceInterval(sums, arguments.confidence.value), sums.SampleStdDev()}};
  return report;
}

TestReport TwoVariances(const std::vector<NumberSample>& samples, const TestArguments& arguments) {
  TestReport report{.title = "F test of two variances",
                    .alternative = arguments.alternative,
                    .symbol = "F",
                    .law = StatisticLaw::kF,
                    .result = VarianceRatioTest(ExactSumsOf<2>(samples[0].numbers),
                                                ExactSumsOf<2>(samples[1].numbers),
                                                arguments.hypothesis.value, arguments.alternative)};
  report.SetHypotheses("the first variance over the second", arguments.hypothesis.text);
  report.samples = {WithMoments(samples[0]), WithMoments(samples[1])};
  return report;
}

}  // namespace

void AddVarianceTests(CLI::App& test) {
  AddTest(test, {.name = "variance",
                 .summary = "Whether a variance has a value: chi-square test of each column",
                 .add_options =
                     [](CLI::App& command, TestArguments& arguments) {
                       arguments.AddSamples(command);
                       arguments.AddHypothesis(command, "--variance",
                                               "The variance of the null hypothesis",
                                               NumberKind::kPositive, nullptr);
                       arguments.AddAlternative(command);
                     },
                 .run =
                     [](const TestArguments& arguments) {
                       return TestEach(arguments, [&](const NumberSample& sample) {
                         return OneVariance(sample, arguments);
                       });
                     }});
  AddTest(test, {.name = "variance-ratio",
                 .summary = "Whether two variances differ: F test",
                 .add_options =
                     [](CLI::App& command, TestArguments& arguments) {
                       arguments.AddSamples(command);
                       arguments.AddHypothesis(command, "--ratio",
                                               "The ratio of the null hypothesis",
                                               NumberKind::kPositive, "1");
                       arguments.AddAlternative(command);
                     },
                 .run =
                     [](const TestArguments& arguments) {
                       return TestTwo(arguments, [&](const std::vector<NumberSample>& samples) {
                         return TwoVariances(samples, arguments);
                       });
                     }});
}

}  // namespace qorvex::apps
