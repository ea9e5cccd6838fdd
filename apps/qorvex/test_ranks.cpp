#include "apps/common/column_differences.h"
#include "apps/qorvex/test_arguments.h"
#include "apps/qorvex/test_samples.h"
#include "qorvex/stats/inference/rank_tests.h"

namespace qorvex::apps {

namespace {

// The stored integers tie as the decimal numbers do.
TestResult SignedRanks(const Shifted& shifted, Alternative alternative) {
  const ColumnNumbers& numbers = shifted.numbers;
  return numbers.AreDecimal() && shifted.rest == 0
             ? WilcoxonSignedRankTest(numbers.Integers(), 0, alternative)
             : WilcoxonSignedRankTest(numbers.Values(), shifted.rest, alternative);
}

TestReport OneCentre(const NumberSample& sample, const TestArguments& arguments) {
  TestReport report{.title = "Wilcoxon's signed rank test",
                    .alternative = arguments.alternative,
                    .symbol = "V",
                    .result = SignedRanks(ShiftedBy(arguments.hypothesis, sample.numbers),
                                          arguments.alternative)};
  report.SetHypotheses("the centre of symmetry", arguments.hypothesis.text);
  report.samples = {WithMedian(sample)};
  return report;
}

std::vector<TestReport> CentreOfDifferences(const TestArguments& arguments) {
  const std::vector<NumberSample> pair = ReadPairs(arguments);
  const auto exact = ExactDifferences(pair[0].numbers, pair[1].numbers);
  TestReport report{.title = "Wilcoxon's signed rank test of paired values",
                    .alternative = arguments.alternative,
                    .symbol = "V"};
  report.result = exact
                      ? SignedRanks(ShiftedBy(arguments.hypothesis, *exact), arguments.alternative)
                      : WilcoxonSignedRankTest(pair[0].numbers.Values(), pair[1].numbers.Values(),
                                               arguments.hypothesis.value, arguments.alternative);
  report.SetHypotheses("the centre of the differences x - y", arguments.hypothesis.text);
  report.samples = {WithMedian(pair[0]), WithMedian(pair[1])};
  return {report};
}

TestReport TwoCentres(const std::vector<NumberSample>& samples, const TestArguments& arguments) {
  const Shifted shifted = ShiftedBy(arguments.hypothesis, samples[0].numbers);
  TestReport report{.title = "Mann-Whitney test",
                    .alternative = arguments.alternative,
                    .symbol = "U",
                    .result = MannWhitneyTest(shifted.numbers.Values(), samples[1].numbers.Values(),
                                              shifted.rest, arguments.alternative)};
  report.SetHypotheses("the shift of the first sample against the second",
                       arguments.hypothesis.text);
  report.samples = {WithMedian(samples[0]), WithMedian(samples[1])};
  return report;
}

void AddCentre(CLI::App& command, TestArguments& arguments) {
  arguments.AddHypothesis(command, "--centre", "The centre of the null hypothesis",
                          NumberKind::kReal, "0");
  arguments.AddAlternative(command);
}

}  // namespace

void AddRankTests(CLI::App& test) {
  AddTest(test,
          {.name = "mann-whitney",
           .summary = "Whether one sample tends to larger values: Mann and Whitney's rank test",
           .add_options =
               [](CLI::App& command, TestArguments& arguments) {
                 arguments.AddSamples(command);
                 arguments.AddHypothesis(command, "--shift", "The shift of the null hypothesis",
                                         NumberKind::kReal, "0");
                 arguments.AddAlternative(command);
               },
           .run =
               [](const TestArguments& arguments) {
                 return TestTwo(arguments, [&](const std::vector<NumberSample>& samples) {
                   return TwoCentres(samples, arguments);
                 });
               }});
  AddTest(test, {.name = "wilcoxon",
                 .summary = "Whether values are symmetric about a centre: Wilcoxon's test",
                 .add_options =
                     [](CLI::App& command, TestArguments& arguments) {
                       arguments.AddSamples(command);
                       AddCentre(command, arguments);
                     },
                 .run =
                     [](const TestArguments& arguments) {
                       return TestEach(arguments, [&](const NumberSample& sample) {
                         return OneCentre(sample, arguments);
                       });
                     }});
  AddTest(test, {.name = "paired-wilcoxon",
                 .summary = "Whether the values of pairs differ: Wilcoxon's test of x - y",
                 .add_options =
                     [](CLI::App& command, TestArguments& arguments) {
                       arguments.table.AddPairTo(command);
                       AddCentre(command, arguments);
                     },
                 .run = CentreOfDifferences});
}

}  // namespace qorvex::apps
