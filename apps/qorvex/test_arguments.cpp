#include "apps/qorvex/test_arguments.h"

#include <memory>

#include "apps/common/column_numbers.h"
#include "apps/common/input_error.h"
#include "apps/common/text_input.h"
#include "apps/qorvex/common_arguments.h"
#include "apps/qorvex/test_samples.h"
#include "apps/qorvex/text_output.h"
#include "qorvex/base/exact/rational.h"

namespace qorvex::apps {

namespace {

constexpr const char* kReportHelp = R"(Report:
  The null hypothesis is rejected if p is at most the significance level, which is
  1 less the confidence level. Intervals are two-sided. Statistics are exact figures
  of the numbers, rounded once. "Form of the Test" says where p comes from.)";

Alternative ParseAlternative(const std::string& text) {
  if (text == "two-sided") return Alternative::kTwoSided;
  if (text == "less") return Alternative::kLess;
  if (text == "greater") return Alternative::kGreater;
  throw CLI::ValidationError("--alternative", Excerpt(text) + " is not two-sided, less or greater");
}

}  // namespace

Extended TestArguments::Significance() const {
  const std::optional<DecimalNumber> decimal = ParseDecimal(confidence.text);
  // Beyond this, 1 less the number rounds to 1.
  if (!decimal || decimal->exponent < -5000) return 1 - confidence.value;
  return (1 - exact::Rational(decimal->integer) *
                  exact::Rational::PowerOfTen(static_cast<int>(decimal->exponent)))
      .Round();
}

void TestArguments::AddAlternative(CLI::App& command) {
  command
      .add_option_function<std::string>(
          "--alternative",
          [this](const std::string& text) { alternative = ParseAlternative(text); },
          "What the null hypothesis is tested against: two-sided, less or greater.\n"
          "Default: two-sided")
      ->type_name("A");
}

void TestArguments::AddHypothesis(CLI::App& command, const char* option, const char* description,
                                  NumberKind kind, const char* default_text) {
  std::string text = description;
  if (default_text != nullptr) {
    hypothesis = {default_text, ParseNumber(option, default_text, kind)};
    text += std::string(". Default: ") + default_text;
  }
  AddWrittenNumber(command, option, text, kind, hypothesis).required(default_text == nullptr);
}

void TestArguments::AddSamples(CLI::App& command) {
  table.AddTo(command);
  command
      .add_option("--by", by,
                  "A column of labels: the rows with the same label are a sample of --column")
      ->type_name("NAME|N");
}

void AddTest(CLI::App& parent, const TestCommand& test) {
  CLI::App& command = *parent.add_subcommand(test.name, test.summary);
  const auto arguments = std::make_shared<TestArguments>();
  test.add_options(command, *arguments);
  AddConfidence(
      command,
      "The confidence level of intervals, and 1 less the significance level.\nDefault: 0.95",
      arguments->confidence);
  arguments->output.AddTo(command);
  command.footer(std::string(kReportHelp) + (test.reads_table ? "\n\n" + TableHelp() : "") +
                 kExitStatusHelp + kNothingPrintedHelp);
  command.callback([arguments, name = std::string(test.name), run = test.run] {
    const std::string& file = arguments->table.file;
    try {
      const std::vector<TestReport> reports = run(*arguments);
      RemarkOnSmallFigures(reports, *arguments);
      WriteResult(arguments->output.IsJson() ? JsonOf(reports, name, *arguments)
                                             : TextOf(reports, *arguments));
    } catch (const EMathError& error) {
      throw TestRefusal(file.empty() ? name : InputName(file), error);
    }
  });
}

}  // namespace qorvex::apps
