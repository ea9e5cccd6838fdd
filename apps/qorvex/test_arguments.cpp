#include "apps/qorvex/test_arguments.h"

#include "apps/common/input_error.h"
#include "apps/qorvex/common_arguments.h"
#include "apps/qorvex/parameters.h"

namespace qorvex::apps {

namespace {

Alternative ParseAlternative(const std::string& text) {
  if (text == "two-sided") return Alternative::kTwoSided;
  if (text == "less") return Alternative::kLess;
  if (text == "greater") return Alternative::kGreater;
  throw CLI::ValidationError("--alternative", Excerpt(text) + " is not two-sided, less or greater");
}

CLI::Option& AddCount(CLI::App& command, std::uint32_t& count, const char* option,
                      const char* description) {
  return AddNumber(command, option, description, NumberKind::kCount,
                   [&count](Extended value) { count = static_cast<std::uint32_t>(value); });
}

}  // namespace

void TestArguments::AddAlternative(CLI::App& command) {
  command
      .add_option_function<std::string>(
          "--alternative",
          [this](const std::string& text) { alternative = ParseAlternative(text); },
          "What the null hypothesis is tested against. Default: two-sided")
      ->type_name("two-sided|less|greater");
}

void TestArguments::AddNullValue(CLI::App& command, const NullValue& null_value) {
  const auto [option, description, kind, default_text] = null_value;
  std::string text = description;
  if (default_text != nullptr) {
    hypothesis = {default_text, ParseNumber(LongName(option), default_text, kind)};
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

void TestArguments::AddParameters(CLI::App& command) {
  for (const NumberParameter& parameter : family->parameters) {
    const std::size_t index = parameters.size();
    parameters.push_back(parameter.start);
    AddParameter(command, parameter, [this, index](Extended value) { parameters[index] = value; });
  }
}

void TestArguments::AddInput(CLI::App& command, const HypothesisTest& test) {
  switch (test.input) {
    case TestInput::kSample:
    case TestInput::kTwoSamples:
    case TestInput::kSeveralSamples:
      AddSamples(command);
      break;
    case TestInput::kPairs:
      table.AddPairTo(command);
      break;
    case TestInput::kCounts:
      table.AddTo(command);
      command
          .add_option("--proportions", proportions,
                      "The column of the expected proportions, which need not add up\n"
                      "to 1. Default: all equal")
          ->type_name("NAME|N");
      AddCount(command, fitted_parameters, "--fitted-parameters",
               "How many parameters were estimated from the counts. Default: 0");
      break;
    case TestInput::kCountTable:
      table.AddTo(command);
      command.add_flag("--yates", yates, "Yates' correction, for tables of 2 by 2");
      break;
    case TestInput::kTrials:
      AddCount(command, successes, "--successes", "The number of successes").required();
      AddCount(command, trials, "--trials", "The number of trials").required();
      break;
  }
}

void TestArguments::AddTo(CLI::App& command, const HypothesisTest& test) {
  AddInput(command, test);
  if (family != nullptr) AddParameters(command);
  if (test.null_value.option != nullptr) AddNullValue(command, test.null_value);
  if (test.has_alternative) AddAlternative(command);
  AddConfidence(
      command,
      "The confidence level of intervals, and 1 less the significance level.\nDefault: 0.95",
      confidence);
  output.AddTo(command);
}

}  // namespace qorvex::apps
