#include "apps/common/column_differences.h"
#include "apps/common/column_view.h"
#include "apps/qorvex/test_arguments.h"
#include "apps/qorvex/test_samples.h"
#include "qorvex/base/text.h"
#include "qorvex/stats/Qorvex_RS_DescStats.h"
#include "qorvex/stats/inference/intervals.h"
#include "qorvex/stats/inference/t_tests.h"
#include "qorvex/stats/regression/anova.h"

namespace qorvex::apps {

namespace {

TestReport OneMean(const NumberSample& sample, const TestArguments& arguments) {
  const Shifted shifted = ShiftedBy(arguments.hypothesis, sample.numbers);
  TestReport report{.title = "Student's t test of a mean",
                    .alternative = arguments.alternative,
                    .symbol = "t",
                    .law = StatisticLaw::kStudentT,
                    .result = OneSampleTTest(ExactSumsOf<2>(shifted.numbers), shifted.rest,
                                             arguments.alternative)};
  report.SetHypotheses("the mean", arguments.hypothesis.text);
  report.samples = {WithMoments(sample)};
  report.intervals = {{"mean_interval", ReportText(rsDSConfidenceIntervalM),
                       MeanInterval(ExactSumsOf<2>(sample.numbers), arguments.confidence.value)}};
  return report;
}

// The difference of the means by a test and an interval for it.
using MeansTest = TestResult (*)(const ExactSample<2>&, const ExactSample<2>&, Extended,
                                 Alternative);
using MeansInterval = Interval<Extended> (*)(const ExactSample<2>&, const ExactSample<2>&,
                                             Extended);

TestReport TwoMeans(const std::vector<NumberSample>& samples, const TestArguments& arguments,
                    const char* title, MeansTest test, MeansInterval interval) {
  const Shifted shifted = ShiftedBy(arguments.hypothesis, samples[0].numbers);
  const ExactSample<2> second = ExactSumsOf<2>(samples[1].numbers);
  TestReport report{
      .title = title,
      .alternative = arguments.alternative,
      .symbol = "t",
      .law = StatisticLaw::kStudentT,
      .result = test(ExactSumsOf<2>(shifted.numbers), second, shifted.rest, arguments.alternative)};
  report.SetHypotheses("the first mean less the second", arguments.hypothesis.text);
  report.samples = {WithMoments(samples[0]), WithMoments(samples[1])};
  report.intervals = {
      {"difference_interval", "Confidence Interval for the Difference of the Means: ",
       interval(ExactSumsOf<2>(samples[0].numbers), second, arguments.confidence.value)}};
  return report;
}

std::vector<TestReport> MeanOfDifferences(const TestArguments& arguments) {
  const std::vector<NumberSample> pair = ReadPairs(arguments);
  const ColumnNumbers differences = DifferencesOf(pair[0].numbers, pair[1].numbers);
  const Shifted shifted = ShiftedBy(arguments.hypothesis, differences);
  TestReport report{.title = "Student's t test of paired values",
                    .alternative = arguments.alternative,
                    .symbol = "t",
                    .law = StatisticLaw::kStudentT};
  report.result =
      differences.AreDecimal()
          ? OneSampleTTest(ExactSumsOf<2>(shifted.numbers), shifted.rest, report.alternative)
          : PairedTTest(pair[0].numbers.Values(), pair[1].numbers.Values(),
                        arguments.hypothesis.value, report.alternative);
  report.SetHypotheses("the mean of the differences x - y", arguments.hypothesis.text);
  report.samples = {WithMoments(pair[0]), WithMoments(pair[1])};
  const ExactSample<2> sums = ExactSumsOf<2>(differences);
  report.figures = {{"mean_difference", "Mean of the Differences:", sums.Mean()},
                    {"standard_deviation_of_differences",
                     "Standard Deviation of the Differences:", sums.SampleStdDev()}};
  report.intervals = {{"mean_interval", ReportText(rsDSConfidenceIntervalM),
                       MeanInterval(sums, arguments.confidence.value)}};
  return {report};
}

std::vector<TestReport> SeveralMeans(const TestArguments& arguments) {
  const std::vector<NumberSample> samples = ReadSamples(arguments);
  if (samples.size() < 2) {
    throw InputError(InputFault::kNoSuchColumn, samples[0].Place(arguments.table.file),
                     "the test compares at least two samples");
  }
  TestReport report{.title = "One-way analysis of variance",
                    .null_hypothesis = "all means are equal",
                    .alternate_hypothesis = "some means differ",
                    .symbol = "F",
                    .law = StatisticLaw::kF};
  std::vector<ColumnView> groups;
  for (const NumberSample& sample : samples) {
    groups.push_back(ViewOf(sample.numbers));
    report.samples.push_back(WithMoments(sample));
  }
  const OneWayAnovaTable anova = OneWayAnova(groups);
  report.result.statistic = anova.between.f;
  report.result.degrees_of_freedom = static_cast<Extended>(anova.between.degrees_of_freedom);
  report.result.second_degrees_of_freedom = static_cast<Extended>(anova.within.degrees_of_freedom);
  report.result.p = anova.between.p;
  report.result.log_p = anova.between.log_p;
  report.figures = {
      {"sum_of_squares_between", "Sum of Squares between Groups:", anova.between.sum_of_squares,
       false, anova.between.f},
      {"sum_of_squares_within", "Sum of Squares within Groups:", anova.within.sum_of_squares, false,
       anova.residual_std_dev},
      {"mean_square_between", "Mean Square between Groups:", anova.between.mean_square, false,
       anova.between.f},
      {"mean_square_within", "Mean Square within Groups:", anova.within.mean_square, false,
       anova.residual_std_dev},
      {"determination", ReportText(rsDSCoeffDet), anova.determination},
      {"residual_standard_deviation", "Residual Standard Deviation:", anova.residual_std_dev}};
  return {report};
}

void AddDifference(CLI::App& command, TestArguments& arguments) {
  arguments.AddHypothesis(command, "--difference", "The difference of the null hypothesis",
                          NumberKind::kReal, "0");
  arguments.AddAlternative(command);
}

void AddTwoSamples(CLI::App& command, TestArguments& arguments) {
  arguments.AddSamples(command);
  AddDifference(command, arguments);
}

}  // namespace

void AddMeanTests(CLI::App& test) {
  AddTest(test, {.name = "one-sample-t",
                 .summary = "Whether a mean has a value: Student's t test of each column",
                 .add_options =
                     [](CLI::App& command, TestArguments& arguments) {
                       arguments.AddSamples(command);
                       arguments.AddHypothesis(command, "--mean", "The mean of the null hypothesis",
                                               NumberKind::kReal, "0");
                       arguments.AddAlternative(command);
                     },
                 .run =
                     [](const TestArguments& arguments) {
                       return TestEach(arguments, [&](const NumberSample& sample) {
                         return OneMean(sample, arguments);
                       });
                     }});
  AddTest(test, {.name = "welch",
                 .summary = "Whether two means differ, whatever the variances: Welch's t test",
                 .add_options = AddTwoSamples,
                 .run = [](const TestArguments& arguments) {
                   return TestTwo(arguments, [&](const std::vector<NumberSample>& samples) {
                     return TwoMeans(samples, arguments, "Welch's t test of two means", WelchTTest,
                                     WelchDifferenceInterval);
                   });
                 }});
  AddTest(test, {.name = "two-sample-t",
                 .summary = "Whether two means differ, for equal variances: Student's t test",
                 .add_options = AddTwoSamples,
                 .run = [](const TestArguments& arguments) {
                   return TestTwo(arguments, [&](const std::vector<NumberSample>& samples) {
                     return TwoMeans(samples, arguments, "Student's t test of two means",
                                     TwoSampleTTest, PooledDifferenceInterval);
                   });
                 }});
  AddTest(test, {.name = "paired-t",
                 .summary = "Whether the values of pairs differ: Student's t test of x - y",
                 .add_options =
                     [](CLI::App& command, TestArguments& arguments) {
                       arguments.table.AddPairTo(command);
                       AddDifference(command, arguments);
                     },
                 .run = MeanOfDifferences});
  AddTest(test, {.name = "anova",
                 .summary = "Whether several means differ: one-way analysis of variance",
                 .add_options = [](CLI::App& command,
                                   TestArguments& arguments) { arguments.AddSamples(command); },
                 .run = SeveralMeans});
}

}  // namespace qorvex::apps
