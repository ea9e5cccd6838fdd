#include "apps/common/distributions.h"
#include "apps/qorvex/common_arguments.h"
#include "apps/qorvex/parameters.h"
#include "apps/qorvex/test_arguments.h"
#include "apps/qorvex/test_samples.h"
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

TestReport AgainstFamily(const NumberSample& sample, const Family& family,
                         const TestArguments& arguments) {
  TestReport report{
      .title = "Kolmogorov-Smirnov test",
      .samples = {WithMoments(sample)},
      .alternative = arguments.alternative,
      .symbol = "D",
      .result = KolmogorovSmirnovTest(sample.numbers.Values(), *family.make(arguments.parameters),
                                      arguments.alternative)};
  SetHypotheses(report,
                "the values follow the distribution " + Described(family, arguments.parameters),
                "their distribution function", "its own");
  return report;
}

void AddFamily(CLI::App& parent, const Family& family) {
  AddTest(parent, {.name = family.name,
                   .summary = family.summary,
                   .add_options =
                       [&family](CLI::App& command, TestArguments& arguments) {
                         arguments.AddSamples(command);
                         for (const NumberParameter& parameter : family.parameters) {
                           const std::size_t index = arguments.parameters.size();
                           arguments.parameters.push_back(parameter.start);
                           CLI::Option& option =
                               AddNumber(command, parameter.option, parameter.Description(),
                                         parameter.kind, [&arguments, index](Extended value) {
                                           arguments.parameters[index] = value;
                                         });
                           if (!parameter.has_default) option.required();
                         }
                         arguments.AddAlternative(command);
                       },
                   .run =
                       [&family](const TestArguments& arguments) {
                         if (family.inconsistency != nullptr) {
                           if (const char* const what = family.inconsistency(arguments.parameters))
                             throw CLI::ValidationError(what);
                         }
                         return TestEach(arguments, [&](const NumberSample& sample) {
                           return AgainstFamily(sample, family, arguments);
                         });
                       }});
}

TestReport TwoDistributions(const std::vector<NumberSample>& samples,
                            const TestArguments& arguments) {
  TestReport report{
      .title = "Kolmogorov-Smirnov test of two samples",
      .samples = {WithMoments(samples[0]), WithMoments(samples[1])},
      .alternative = arguments.alternative,
      .symbol = "D",
      .result = KolmogorovSmirnovTest(samples[0].numbers.Values(), samples[1].numbers.Values(),
                                      arguments.alternative)};
  SetHypotheses(report, "both samples follow the same distribution",
                "the distribution function of the first", "that of the second");
  return report;
}

TestReport Normality(const NumberSample& sample, const TestArguments& arguments) {
  constexpr std::size_t most_values = 5000;
  if (sample.numbers.size() > most_values) {
    throw InputError(InputFault::kNoResult, sample.Place(arguments.table.file),
                     "the test takes at most 5000 values");
  }
  return {.title = "Shapiro-Wilk test",
          .samples = {WithMoments(sample)},
          .null_hypothesis = "the values follow a normal distribution",
          .alternate_hypothesis = "they do not",
          .symbol = "W",
          .result = ShapiroWilkTest(sample.numbers.Values())};
}

}  // namespace

void AddDistributionTests(CLI::App& test) {
  CLI::App& families = *test.add_subcommand("kolmogorov-smirnov",
                                            "Whether values follow a distribution, each column");
  for (const Family& family : Families())
    if (!family.is_discrete) AddFamily(families, family);
  RequireOneCommand(families, "A distribution");
  AddTest(test, {.name = "two-sample-kolmogorov-smirnov",
                 .summary = "Whether two samples follow the same distribution",
                 .add_options =
                     [](CLI::App& command, TestArguments& arguments) {
                       arguments.AddSamples(command);
                       arguments.AddAlternative(command);
                     },
                 .run =
                     [](const TestArguments& arguments) {
                       return TestTwo(arguments, [&](const std::vector<NumberSample>& samples) {
                         return TwoDistributions(samples, arguments);
                       });
                     }});
  AddTest(test, {.name = "shapiro-wilk",
                 .summary = "Whether values are normal: the test of each column",
                 .add_options = [](CLI::App& command,
                                   TestArguments& arguments) { arguments.AddSamples(command); },
                 .run =
                     [](const TestArguments& arguments) {
                       return TestEach(arguments, [&](const NumberSample& sample) {
                         return Normality(sample, arguments);
                       });
                     }});
}

}  // namespace qorvex::apps
