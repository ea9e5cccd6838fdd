#include <memory>
#include <string>
#include <vector>

#include "apps/qorvex/command_list.h"
#include "apps/qorvex/command_tree.h"
#include "apps/qorvex/commands.h"
#include "apps/qorvex/common_arguments.h"
#include "apps/qorvex/dist_questions.h"
#include "apps/qorvex/parameters.h"
#include "apps/qorvex/text_output.h"
#include "qorvex/base/text.h"

namespace qorvex::apps {

namespace {

constexpr const char* kNumbersHelp = R"(Numbers:
  Finite, with a decimal point and an optional exponent, read to 80 bits.
  Figures keep full relative accuracy in both tails. --classic computes with
  the classic routines of the unit QorvexStatistics, which lose small tails.

Output:
  The figure at one point that an option gives, with all its bits; otherwise a
  line for each point.)";

NumberKind PointKind(const Family& family) {
  return family.is_discrete ? NumberKind::kCount : NumberKind::kReal;
}

void AddPoints(CLI::App& command, const Family& family, DistArguments& arguments) {
  arguments.points.AddListTo(command, family.is_discrete ? "--k,--x" : "--x",
                             "The point; several have commas between them");
  arguments.points.AddFileTo(command);
}

void AddPointsAndLog(CLI::App& command, const Family& family, DistArguments& arguments) {
  AddPoints(command, family, arguments);
  CLI::Option* const log =
      command.add_flag("--log", arguments.options.log,
                       "The natural logarithm, also where the probability underflows");
  if (CLI::Option* const classic = command.get_option_no_throw("--classic")) log->excludes(classic);
}

void AddProbabilities(CLI::App& command, const Family&, DistArguments& arguments) {
  arguments.points.AddListTo(command, "--p",
                             "The lower probability; several have commas between them");
  CLI::Option& upper =
      arguments.points.AddListTo(command, "--upper-p", "The upper probability, however small");
  upper.excludes("--p");
  upper.each([&arguments](const std::string&) { arguments.options.upper = true; });
  arguments.points.AddFileTo(command);
  command.add_flag("--upper", arguments.options.upper, "The probabilities of FILE are upper ones")
      ->excludes("--p");
}

void AddTwo(CLI::App& command, NumberKind kind, const char* first_name, const char* last_name,
            DistArguments& arguments) {
  const auto add = [&](const char* name, const char* description, Extended& point) {
    AddNumber(command, name, description, kind, [&point](Extended x) { point = x; }).required();
  };
  add(first_name, "The first point", arguments.first);
  add(last_name, "The last point", arguments.last);
}

void AddInterval(CLI::App& command, const Family& family, DistArguments& arguments) {
  const bool discrete = family.is_discrete;
  AddTwo(command, PointKind(family), discrete ? "--k1,--x1" : "--x1",
         discrete ? "--k2,--x2" : "--x2", arguments);
}

void AddRange(CLI::App& command, const Family& family, DistArguments& arguments) {
  AddTwo(command, PointKind(family), "--from", "--to", arguments);
  if (family.is_discrete) return;
  AddNumber(command, "-n,--steps", "The number of steps; there is one point more",
            NumberKind::kSteps, [&arguments](Extended n) { arguments.steps = n; })
      .required();
}

const DistQuestion kQuestions[] = {
    {.name = "less",
     .summary = "The probability of less than a point",
     .add_options = AddPointsAndLog,
     .answer = AnswerAtPoints,
     .figure = &DistFigures::Less,
     .title = "Less",
     .key = "less"},
    {.name = "greater",
     .summary = "The probability of more than a point",
     .add_options = AddPointsAndLog,
     .answer = AnswerAtPoints,
     .figure = &DistFigures::Greater,
     .title = "Greater",
     .key = "greater"},
    {.name = "at-most",
     .aliases = {"cdf"},
     .summary = "The probability of a point or less: the distribution function",
     .add_options = AddPointsAndLog,
     .answer = AnswerAtPoints,
     .figure = &DistFigures::AtMost,
     .title = "At Most",
     .key = "at_most",
     .has_classic = false},
    {.name = "at-least",
     .summary = "The probability of a point or more",
     .add_options = AddPointsAndLog,
     .answer = AnswerAtPoints,
     .figure = &DistFigures::AtLeast,
     .title = "At Least",
     .key = "at_least",
     .has_classic = false},
    {.name = "between",
     .summary = "The probability between two points, in either order, both excluded",
     .add_options = AddInterval,
     .answer = AnswerBetween},
    {.name = "inv",
     .aliases = {"quantile"},
     .summary = "The point with a given lower or upper probability",
     .add_options = AddProbabilities,
     .answer = AnswerAtPoints,
     .figure = &DistFigures::Quantile,
     .title = "Quantile",
     .key = "quantile"},
    {.name = "pdf",
     .aliases = {"density", "pmf"},
     .summary = "The density at a point, or the probability of a count",
     .add_options = AddPoints,
     .answer = AnswerAtPoints,
     .figure = &DistFigures::Density,
     .title = "Density",
     .key = "density"},
    {.name = "table",
     .summary = "The density and both tails, a line for each point of a range",
     .add_options = AddRange,
     .answer = AnswerTable},
};

void RequireWholeNumbers(const Family& family, const DistArguments& arguments) {
  for (std::size_t i = 0; i < family.parameters.size(); ++i) {
    const NumberParameter& parameter = family.parameters[i];
    const Extended value = arguments.parameters[i];
    if (parameter.kind != NumberKind::kDegreesOfFreedom) continue;
    if (const char* const wrong = WhatIsWrong(value, NumberKind::kCount)) {
      throw CLI::ValidationError(parameter.option,
                                 Float2Str(value) + ' ' + wrong + ", as --classic needs");
    }
  }
}

void Run(const AskedQuestion& asked) {
  const auto& [family, question, arguments] = asked;
  if (arguments.options.classic) RequireWholeNumbers(family, arguments);
  if (family.inconsistency != nullptr) {
    if (const char* const what = family.inconsistency(arguments.parameters))
      throw CLI::ValidationError(what);
  }
  WriteResult(question.answer(asked));
}

void AddParameters(CLI::App& command, const Family& family, DistArguments& arguments) {
  for (const NumberParameter& parameter : family.parameters) {
    const std::size_t index = arguments.parameters.size();
    arguments.parameters.push_back(parameter.start);
    AddParameter(command, parameter,
                 [&arguments, index](Extended value) { arguments.parameters[index] = value; });
  }
}

void AddQuestion(CLI::App& parent, const Family& family, const DistQuestion& question) {
  CLI::App& command = *parent.add_subcommand(question.name, question.summary);
  AddAliases(command, question.aliases);
  const bool is_quantile = question.add_options == AddProbabilities;
  const auto arguments =
      std::make_shared<DistArguments>(is_quantile ? NumberKind::kProbability : PointKind(family));
  AddParameters(command, family, *arguments);
  if (question.has_classic) {
    command.add_flag("--classic", arguments->options.classic,
                     "Compute with the classic routines of QorvexStatistics");
  }
  question.add_options(command, family, *arguments);
  arguments->output.AddTo(command, "7 in tables, otherwise all");
  command.footer(std::string(kNumbersHelp) + kExitStatusHelp + kNothingPrintedHelp);
  command.callback([&family, &question, arguments] { Run({family, question, *arguments}); });
}

}  // namespace

void AddDist(CLI::App& program) {
  CLI::App& dist =
      *program.add_subcommand("dist", "Probabilities, densities and quantiles of distributions");
  for (const Family& family : Families()) {
    CLI::App& command = *dist.add_subcommand(family.name, family.summary);
    AddAliases(command, family.aliases);
    for (const DistQuestion& question : kQuestions) AddQuestion(command, family, question);
    RequireOneCommand(command, "command");
  }
  RequireOneCommand(dist, "distribution");
  AddList(dist);
}

}  // namespace qorvex::apps
