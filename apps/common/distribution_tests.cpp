#include "apps/common/distributions.h"
#include "apps/common/test_computations.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"
#include "qorvex/stats/inference/kolmogorov_smirnov.h"
#include "qorvex/stats/inference/shapiro_wilk.h"

namespace qorvex::apps {

namespace {

// "normal with mean 0, standard deviation 1"
std::string Described(const Family& family, Numbers parameters) {
  std::string text = family.name;
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    text += (i == 0 ? " with " : ", ") + std::string(family.parameters[i].name) + ' ' +
            Float2Str(parameters[i]);
  }
  return text;
}

void SetHypotheses(TestReport& report, const std::string& null_hypothesis,
                   const std::string& distribution_function, const std::string& other) {
  report.null_hypothesis = null_hypothesis;
  report.alternate_hypothesis =
      report.alternative == Alternative::kTwoSided
          ? "they do not"
          : distribution_function + " lies " +
                (report.alternative == Alternative::kLess ? "below " : "above ") + other;
}

}  // namespace

TestReport AgainstFamily(Samples samples, const TestSettings& settings) {
  TestReport report{.title = "Kolmogorov-Smirnov test",
                    .samples = {WithMoments(samples[0])},
                    .alternative = settings.alternative,
                    .symbol = "D",
                    .result = KolmogorovSmirnovTest(samples[0].numbers.Values(),
                                                    *settings.family->make(settings.parameters),
                                                    settings.alternative)};
  SetHypotheses(
      report,
      "the values follow the distribution " + Described(*settings.family, settings.parameters),
      "their distribution function", "its own");
  return report;
}

TestReport TwoDistributions(Samples samples, const TestSettings& settings) {
  TestReport report{
      .title = "Kolmogorov-Smirnov test of two samples",
      .samples = {WithMoments(samples[0]), WithMoments(samples[1])},
      .alternative = settings.alternative,
      .symbol = "D",
      .result = KolmogorovSmirnovTest(samples[0].numbers.Values(), samples[1].numbers.Values(),
                                      settings.alternative)};
  SetHypotheses(report, "both samples follow the same distribution",
                "the distribution function of the first", "that of the second");
  return report;
}

TestReport Normality(Samples samples, const TestSettings&) {
  constexpr std::size_t most_values = 5000;
  if (samples[0].numbers.size() > most_values)
    throw EMathError("the test takes at most 5000 values");
  return {.title = "Shapiro-Wilk test",
          .samples = {WithMoments(samples[0])},
          .null_hypothesis = "the values follow a normal distribution",
          .alternate_hypothesis = "they do not",
          .symbol = "W",
          .result = ShapiroWilkTest(samples[0].numbers.Values())};
}

}  // namespace qorvex::apps
