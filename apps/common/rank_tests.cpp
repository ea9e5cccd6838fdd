#include "qorvex/stats/inference/rank_tests.h"

#include "apps/common/column_differences.h"
#include "apps/common/test_computations.h"

namespace qorvex::apps {

namespace {

// The stored integers tie as the decimal numbers do.
TestResult SignedRanks(const Shifted& shifted, Alternative alternative) {
  const ColumnNumbers& numbers = shifted.numbers;
  return numbers.AreDecimal() && shifted.rest == 0
             ? WilcoxonSignedRankTest(numbers.Integers(), 0, alternative)
             : WilcoxonSignedRankTest(numbers.Values(), shifted.rest, alternative);
}

}  // namespace

TestReport OneCentre(Samples samples, const TestSettings& settings) {
  const NumberSample& sample = samples[0];
  TestReport report{
      .title = "Wilcoxon's signed rank test",
      .alternative = settings.alternative,
      .symbol = "V",
      .result = SignedRanks(ShiftedBy(settings.hypothesis, sample.numbers), settings.alternative)};
  report.SetHypotheses("the centre of symmetry", settings.hypothesis.text);
  report.samples = {WithMedian(sample)};
  return report;
}

TestReport CentreOfDifferences(Samples pair, const TestSettings& settings) {
  const auto exact = ExactDifferences(pair[0].numbers, pair[1].numbers);
  TestReport report{.title = "Wilcoxon's signed rank test of paired values",
                    .alternative = settings.alternative,
                    .symbol = "V"};
  report.result = exact ? SignedRanks(ShiftedBy(settings.hypothesis, *exact), settings.alternative)
                        : WilcoxonSignedRankTest(pair[0].numbers.Values(), pair[1].numbers.Values(),
                                                 settings.hypothesis.value, settings.alternative);
  report.SetHypotheses("the centre of the differences x - y", settings.hypothesis.text);
  report.samples = {WithMedian(pair[0]), WithMedian(pair[1])};
  return report;
}

TestReport TwoCentres(Samples samples, const TestSettings& settings) {
  const Shifted shifted = ShiftedBy(settings.hypothesis, samples[0].numbers);
  TestReport report{.title = "Mann-Whitney test",
                    .alternative = settings.alternative,
                    .symbol = "U",
                    .result = MannWhitneyTest(shifted.numbers.Values(), samples[1].numbers.Values(),
                                              shifted.rest, settings.alternative)};
  report.SetHypotheses("the shift of the first sample against the second",
                       settings.hypothesis.text);
  report.samples = {WithMedian(samples[0]), WithMedian(samples[1])};
  return report;
}

}  // namespace qorvex::apps
