#include <memory>

#include "apps/common/input_error.h"
#include "apps/common/text_input.h"
#include "apps/qorvex/command_list.h"
#include "apps/qorvex/command_tree.h"
#include "apps/qorvex/commands.h"
#include "apps/qorvex/common_arguments.h"
#include "apps/qorvex/parameters.h"
#include "apps/qorvex/test_arguments.h"
#include "apps/qorvex/test_report.h"
#include "apps/qorvex/test_samples.h"
#include "apps/qorvex/text_output.h"

namespace qorvex::apps {

namespace {

constexpr const char* kExamples = R"(Examples:
  qorvex test one-sample-t speeds.csv --column speed --mean 299792.458
  qorvex test welch heights.csv --column 1 --column 2 --alternative less
  qorvex test anova speeds.csv --column speed --by series --decimals 4
  qorvex test kolmogorov-smirnov normal speeds.csv --column speed --mean 299850 --std-dev 79
  qorvex test binomial --successes 60 --trials 100 --json)";

constexpr const char* kReportHelp = R"(Report:
  The null hypothesis is rejected if p is at most the significance level, which is
  1 less the confidence level. Intervals are two-sided. Statistics are exact figures
  of the numbers, rounded once. "Form of the Test" says where p comes from.)";

// The error of a test of these samples, about the one at fault if only one is.
InputError Refused(const EMathError& error, std::span<const NumberSample> samples,
                   const HypothesisTest& test, const TestArguments& arguments) {
  if (test.input == TestInput::kTrials) return Refusal(test.name, error, "");
  std::string place = InputName(arguments.table.file);
  if (const auto at_fault = SampleAtFault(samples, error.message_id()))
    place += ": " + samples[*at_fault].Title();
  const char* const why = WhyNoResult(error.message_id());
  return why == nullptr ? Refusal(place, error, "") : InputError(InputFault::kNoResult, place, why);
}

std::vector<TestReport> Run(const HypothesisTest& test, const TestArguments& arguments) {
  const Family* const family = arguments.family;
  if (family != nullptr && family->inconsistency != nullptr) {
    if (const char* const what = family->inconsistency(arguments.parameters))
      throw CLI::ValidationError(what);
  }
  std::vector<TestReport> reports;
  for (const std::vector<NumberSample>& samples : ReadSamples(test, arguments)) {
    try {
      reports.push_back(test.run(samples, arguments));
    } catch (const EMathError& error) {
      throw Refused(error, samples, test, arguments);
    }
  }
  return reports;
}

// The names are those of the command, and of what JSON calls the test.
void AddTest(CLI::App& parent, const HypothesisTest& test, const Family* family = nullptr) {
  const char* const name = family == nullptr ? test.name : family->name;
  CLI::App& command =
      *parent.add_subcommand(name, family == nullptr ? test.summary : family->summary);
  AddAliases(command, family == nullptr ? test.aliases : family->aliases);
  const auto arguments = std::make_shared<TestArguments>();
  arguments->family = family;
  arguments->AddTo(command, test);
  const std::string table_help = test.input == TestInput::kTrials ? "" : "\n\n" + TableHelp();
  command.footer(std::string(kReportHelp) + table_help + kExitStatusHelp + kNothingPrintedHelp);
  command.callback([&test, arguments, name] {
    const std::vector<TestReport> reports = Run(test, *arguments);
    RemarkOnSmallFigures(reports, *arguments);
    WriteResult(arguments->output.IsJson() ? JsonOf(reports, name, *arguments)
                                           : TextOf(reports, *arguments));
  });
}

void AddFamilies(CLI::App& parent, const HypothesisTest& test) {
  CLI::App& families = *parent.add_subcommand(test.name, test.summary);
  AddAliases(families, test.aliases);
  for (const Family& family : Families())
    if (!family.is_discrete) AddTest(families, test, &family);
  RequireOneCommand(families, "distribution");
}

}  // namespace

void AddTestCommands(CLI::App& program) {
  CLI::App& commands = *program.add_subcommand("test", "Tests of hypotheses, with intervals");
  for (const HypothesisTest& test : HypothesisTests()) {
    if (test.takes_family) {
      AddFamilies(commands, test);
    } else {
      AddTest(commands, test);
    }
  }
  commands.footer(kExamples);
  RequireOneCommand(commands, "test");
  AddList(commands);
}

}  // namespace qorvex::apps
