#include "apps/common/column_differences.h"
#include "apps/common/column_view.h"
#include "apps/common/sample_figures.h"
#include "apps/common/test_computations.h"
#include "qorvex/stats/Qorvex_RS_DescStats.h"
#include "qorvex/stats/inference/intervals.h"
#include "qorvex/stats/inference/t_tests.h"
#include "qorvex/stats/regression/anova.h"

namespace qorvex::apps {

TestReport OneMean(Samples samples, const TestSettings& settings) {
  const NumberSample& sample = samples[0];
  const Shifted shifted = ShiftedBy(settings.hypothesis, sample.numbers);
  TestReport report{.title = "Student's t test of a mean",
                    .alternative = settings.alternative,
                    .symbol = "t",
                    .law = StatisticLaw::kStudentT,
                    .result = OneSampleTTest(ExactSumsOf<2>(shifted.numbers), shifted.rest,
                                             settings.alternative)};
  report.SetHypotheses("the mean", settings.hypothesis.text);
  report.samples = {WithMoments(sample)};
  report.intervals = {{"mean_interval", ReportText(rsDSConfidenceIntervalM),
                       MeanInterval(ExactSumsOf<2>(sample.numbers), settings.confidence.value)}};
  return report;
}

namespace {

// The difference of the means by a test and an interval for it.
using MeansTest = TestResult (*)(const ExactSample<2>&, const ExactSample<2>&, Extended,
                                 Alternative);
using MeansInterval = Interval<Extended> (*)(const ExactSample<2>&, const ExactSample<2>&,
                                             Extended);

TestReport TwoMeans(Samples samples, const TestSettings& settings, const char* title,
                    MeansTest test, MeansInterval interval) {
  const Shifted shifted = ShiftedBy(settings.hypothesis, samples[0].numbers);
  const ExactSample<2> second = ExactSumsOf<2>(samples[1].numbers);
  TestReport report{
      .title = title,
      .alternative = settings.alternative,
      .symbol = "t",
      .law = StatisticLaw::kStudentT,
      .result = test(ExactSumsOf<2>(shifted.numbers), second, shifted.rest, settings.alternative)};
  report.SetHypotheses("the first mean less the second", settings.hypothesis.text);
  report.samples = {WithMoments(samples[0]), WithMoments(samples[1])};
  report.intervals = {
      {"difference_interval", "Confidence Interval for the Difference of the Means: ",
       interval(ExactSumsOf<2>(samples[0].numbers), second, settings.confidence.value)}};
  return report;
}

}  // namespace

TestReport TwoMeansWelch(Samples samples, const TestSettings& settings) {
  return TwoMeans(samples, settings, "Welch's t test of two means", WelchTTest,
                  WelchDifferenceInterval);
}

TestReport TwoMeansPooled(Samples samples, const TestSettings& settings) {
  return TwoMeans(samples, settings, "Student's t test of two means", TwoSampleTTest,
                  PooledDifferenceInterval);
}

TestReport MeanOfDifferences(Samples pair, const TestSettings& settings) {
  const ColumnNumbers differences = DifferencesOf(pair[0].numbers, pair[1].numbers);
  const Shifted shifted = ShiftedBy(settings.hypothesis, differences);
  TestReport report{.title = "Student's t test of paired values",
                    .alternative = settings.alternative,
                    .symbol = "t",
                    .law = StatisticLaw::kStudentT};
  report.result =
      differences.AreDecimal()
          ? OneSampleTTest(ExactSumsOf<2>(shifted.numbers), shifted.rest, report.alternative)
          : PairedTTest(pair[0].numbers.Values(), pair[1].numbers.Values(),
                        settings.hypothesis.value, report.alternative);
  report.SetHypotheses("the mean of the differences x - y", settings.hypothesis.text);
  report.samples = {WithMoments(pair[0]), WithMoments(pair[1])};
  const ExactSample<2> sums = ExactSumsOf<2>(differences);
  report.figures = {{"mean_difference", "Mean of the Differences:", sums.Mean()},
                    {"standard_deviation_of_differences",
                     "Standard Deviation of the Differences:", sums.SampleStdDev()}};
  report.intervals = {{"mean_interval", ReportText(rsDSConfidenceIntervalM),
                       MeanInterval(sums, settings.confidence.value)}};
  return report;
}

TestReport SeveralMeans(Samples samples, const TestSettings&) {
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
  return report;
}

}  // namespace qorvex::apps
