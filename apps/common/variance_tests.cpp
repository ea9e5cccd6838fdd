#include "qorvex/stats/inference/variance_tests.h"

#include "apps/common/sample_figures.h"
#include "apps/common/test_computations.h"
#include "qorvex/stats/Qorvex_RS_DescStats.h"
#include "qorvex/stats/inference/intervals.h"

namespace qorvex::apps {

TestReport OneVariance(Samples samples, const TestSettings& settings) {
  const NumberSample& sample = samples[0];
  const ExactSample<2> sums = ExactSumsOf<2>(sample.numbers);
  TestReport report{.title = "Chi-square test of a variance",
                    .alternative = settings.alternative,
                    .symbol = "chi-square",
                    .law = StatisticLaw::kChiSquare,
                    .result = VarianceTest(sums, settings.hypothesis.value, settings.alternative)};
  report.SetHypotheses("the variance", settings.hypothesis.text);
  report.samples = {WithMoments(sample)};
  report.figures = {
      {"variance", ReportText(rsDSVariance), sums.SampleVariance(), false, sums.SampleStdDev()}};
  report.intervals = {{"variance_interval", ReportText(rsDSConfidenceIntervalV),
                       VarianceInterval(sums, settings.confidence.value), sums.SampleStdDev()}};
  return report;
}

TestReport TwoVariances(Samples samples, const TestSettings& settings) {
  TestReport report{.title = "F test of two variances",
                    .alternative = settings.alternative,
                    .symbol = "F",
                    .law = StatisticLaw::kF,
                    .result = VarianceRatioTest(ExactSumsOf<2>(samples[0].numbers),
                                                ExactSumsOf<2>(samples[1].numbers),
                                                settings.hypothesis.value, settings.alternative)};
  report.SetHypotheses("the first variance over the second", settings.hypothesis.text);
  report.samples = {WithMoments(samples[0]), WithMoments(samples[1])};
  return report;
}

}  // namespace qorvex::apps
