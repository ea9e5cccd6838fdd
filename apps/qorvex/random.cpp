#include "qorvex/base/random.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "apps/common/distributions.h"
#include "apps/common/variates.h"
#include "apps/qorvex/command_list.h"
#include "apps/qorvex/command_tree.h"
#include "apps/qorvex/commands.h"
#include "apps/qorvex/common_arguments.h"
#include "apps/qorvex/output_format.h"
#include "apps/qorvex/parameters.h"
#include "apps/qorvex/text_output.h"
#include "qorvex/base/checked_math.h"
#include "qorvex/base/errors.h"

namespace qorvex::apps {

namespace {

constexpr const char* kVariatesHelp = R"(Variates:
  One per line, printed as they are drawn. The same seed gives the same variates
  on every x86-64 machine. Without a seed, every run is different.)";

// The section of --help on the limits of the parameters; empty if nothing limits them.
std::string LimitsHelp(const Variate& variate) {
  const bool classic_is_narrower = variate.classic && *variate.classic->limits != '\0';
  std::istringstream words(classic_is_narrower ? variate.classic->limits
                                               : variate.methods.front().limits);
  constexpr std::size_t width = 78;
  std::string text;
  std::size_t length = width;
  for (std::string word; words >> word; length += 1 + word.size()) {
    const bool fits = length + 1 + word.size() <= width;
    text += (fits ? " " : "\n  ") + word;
    if (!fits) length = 1;
  }
  return text.empty() ? "" : "\n\nLimits:" + text + '.';
}

struct RandomArguments {
  VariateArguments parameters;
  const VariateMethod* method;
  std::uint64_t count = 1;
  std::optional<std::uint64_t> seed;
  OutputFormat output;
};

using SharedArguments = std::shared_ptr<RandomArguments>;

void AddParameter(CLI::App& command, const NumberParameter& parameter,
                  const SharedArguments& arguments) {
  const std::size_t index = arguments->parameters.size();
  arguments->parameters.Append({parameter.start});
  if (parameter.kind != NumberKind::kReals) {
    AddParameter(command, parameter,
                 [arguments, index](Extended value) { arguments->parameters.Set(index, {value}); });
    return;
  }
  const std::string name = parameter.option;
  command
      .add_option_function<std::string>(
          name,
          [arguments, index, name](const std::string& text) {
            arguments->parameters.Set(index, ParseNumbers(name, text, NumberKind::kReals));
          },
          parameter.Description())
      ->type_name("X,X,...")
      ->required();
}

void AddMethods(CLI::App& command, const Variate& variate, const SharedArguments& arguments) {
  std::string names;
  for (const VariateMethod& method : variate.methods)
    names += (names.empty() ? "" : "|") + std::string(method.name);
  command
      .add_option_function<std::string>(
          "--method",
          [&variate, arguments, names](const std::string& name) {
            for (const VariateMethod& method : variate.methods) {
              if (name != method.name) continue;
              arguments->method = &method;
              return;
            }
            throw CLI::ValidationError("--method", Excerpt(name) + " is not one of " + names);
          },
          std::string("The algorithm. Default: ") + variate.methods.front().name)
      ->type_name(names);
}

void PrintVariates(const RandomArguments& arguments) {
  TQorFloatVector figures = TQorFloatVector::WithLength(1);
  std::string line;
  const Draw draw = arguments.method->prepare(arguments.parameters);
  const FigureFormat format = arguments.output.ForNumbers();
  for (std::uint64_t i = 0; i < arguments.count; ++i) {
    draw(figures, ClassicRandom);
    for (const Extended figure : figures) CheckedFinite(figure);
    line.clear();
    AppendLine(line, figures, format);
    WritePart(line);
  }
  WriteResult("");
}

void Run(const Variate& variate, const RandomArguments& arguments) {
  if (const auto inconsistency = arguments.method->inconsistency) {
    const std::string what = inconsistency(arguments.parameters);
    if (!what.empty()) throw CLI::ValidationError(what);
  }
  if (arguments.seed) {
    SetRandSeed(*arguments.seed);
  } else {
    Randomize();
  }
  try {
    PrintVariates(arguments);
  } catch (const EMathError& error) {
    // The lines before the failing one are printed before the message.
    WriteResult("");
    const std::string limits = arguments.method->limits;
    const bool limited = !limits.empty() && dynamic_cast<const EOverflow*>(&error) == nullptr;
    throw Refusal(variate.name, error, limited ? ": " + limits : "");
  }
}

void AddVariate(CLI::App& random, const Variate& variate) {
  CLI::App& command = *random.add_subcommand(variate.name, variate.summary);
  AddAliases(command, OtherNames(variate.name));
  const auto arguments = std::make_shared<RandomArguments>();
  for (const NumberParameter& parameter : variate.parameters)
    AddParameter(command, parameter, arguments);
  arguments->method = &variate.methods.front();
  if (variate.methods.size() > 1) AddMethods(command, variate, arguments);
  if (variate.classic) {
    command.add_flag_callback(
        "--classic", [&variate, arguments] { arguments->method = &*variate.classic; },
        "Draw with the classic routine of QorvexRandom, which has the limits below");
  }
  AddNumber(command, "-n,--count", "The number of variates. Default: 1", NumberKind::kUint64,
            [arguments](Extended n) { arguments->count = static_cast<std::uint64_t>(n); });
  AddNumber(command, "--seed",
            "The seed, up to 18446744073709551615. Default: taken from the operating system",
            NumberKind::kUint64,
            [arguments](Extended n) { arguments->seed = static_cast<std::uint64_t>(n); });
  arguments->output.AddDigitsTo(command);
  command.footer(kVariatesHelp + LimitsHelp(variate) + kExitStatusHelp);
  command.callback([&variate, arguments] { Run(variate, *arguments); });
}

}  // namespace

void AddRandom(CLI::App& program) {
  CLI::App& random = *program.add_subcommand("random", "Random variates");
  for (const Variate& variate : Variates()) AddVariate(random, variate);
  RequireOneCommand(random, "variate");
  AddList(random);
}

}  // namespace qorvex::apps
