#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "apps/common/distributions.h"
#include "apps/qorvex/command_tree.h"
#include "apps/qorvex/commands.h"
#include "apps/qorvex/common_arguments.h"
#include "apps/qorvex/output_format.h"
#include "apps/qorvex/parameters.h"
#include "apps/qorvex/text_output.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"

namespace qorvex::apps {

namespace {

constexpr const char* kNumbersHelp = R"(Numbers:
  Finite, with a decimal point and an optional exponent, read to 80 bits.
  Figures keep full relative accuracy in both tails. --classic computes with
  the classic routines of the unit QorvexStatistics, which lose small tails.)";

struct DistArguments {
  /// The parameters, then the points or the range.
  std::vector<Extended> numbers;
  std::optional<Extended> lower_probability;
  std::optional<Extended> upper_probability;
  /// The steps of a continuous table.
  Extended steps = 0;
  OutputFormat output;
  bool log = false;
  bool classic = false;
};

using SharedArguments = std::shared_ptr<DistArguments>;

void AddNumberInOrder(CLI::App& command, const SharedArguments& arguments,
                      const NumberParameter& parameter) {
  const std::size_t index = arguments->numbers.size();
  arguments->numbers.push_back(parameter.start);
  AddParameter(command, parameter,
               [arguments, index](Extended value) { arguments->numbers[index] = value; });
}

NumberKind PointKind(const Family& family) {
  return family.is_discrete ? NumberKind::kCount : NumberKind::kReal;
}

void AddPoint(CLI::App& command, const Family& family, const SharedArguments& arguments) {
  AddNumberInOrder(command, arguments,
                   {family.is_discrete ? "--k" : "--x", "point", PointKind(family)});
}

void AddPointAndLog(CLI::App& command, const Family& family, const SharedArguments& arguments) {
  AddPoint(command, family, arguments);
  command
      .add_flag("--log", arguments->log,
                "The natural logarithm, also where the probability underflows")
      ->excludes(command.get_option("--classic"));
}

void AddTwoPoints(CLI::App& command, const Family& family, const SharedArguments& arguments) {
  const NumberKind kind = PointKind(family);
  const bool discrete = family.is_discrete;
  AddNumberInOrder(command, arguments, {discrete ? "--k1" : "--x1", "first point", kind});
  AddNumberInOrder(command, arguments, {discrete ? "--k2" : "--x2", "second point", kind});
}

void AddProbability(CLI::App& command, const Family&, const SharedArguments& arguments) {
  CLI::Option_group& group = *command.add_option_group("Probability", "One of");
  const auto add = [&](const char* option, const char* description,
                       std::optional<Extended> DistArguments::*probability) {
    AddNumber(group, option, description, NumberKind::kProbability,
              [arguments, probability](Extended p) { (*arguments).*probability = p; });
  };
  add("--p", "The lower probability", &DistArguments::lower_probability);
  add("--upper-p", "The upper probability, however small", &DistArguments::upper_probability);
  group.require_option(1);
}

void AddRange(CLI::App& command, const Family& family, const SharedArguments& arguments) {
  const NumberKind kind = PointKind(family);
  AddNumberInOrder(command, arguments, {"--from", "first point", kind});
  AddNumberInOrder(command, arguments, {"--to", "last point", kind});
  if (family.is_discrete) return;
  AddNumber(command, "--n", "The number of steps; there is one point more", NumberKind::kSteps,
            [arguments](Extended n) { arguments->steps = n; })
      .required();
}

// A routine that QorvexStatistics may lack.
template <class Routine>
Routine Existing(Routine routine) {
  if (routine != nullptr) return routine;
  throw CLI::ValidationError("--classic", "there is no such routine in QorvexStatistics");
}

// Rounding can raise a classic sum above 1, and so 1 minus it below 0.
Extended ClassicProbability(ClassicRoutines::Routine routine, const DistArguments& arguments) {
  const Extended probability = Existing(routine)(arguments.numbers);
  if (probability < 0) return 0;
  return probability > 1 ? 1 : probability;
}

std::unique_ptr<const AnyDistribution> DistributionOf(const Family& family,
                                                      const DistArguments& arguments) {
  return family.make(Numbers(arguments.numbers).first(family.parameters.size()));
}

// A figure at a point. At an end of the support and beyond it, a logarithm or a density can be
// infinite; anywhere else that is a finite figure beyond the range.
Extended InRange(Extended figure, const Family& family, const AnyDistribution& distribution,
                 Extended point) {
  if (!std::isinf(figure) || family.is_discrete) return figure;
  const auto [least, greatest] = distribution.Support();
  if (point > least && point < greatest) throw EOverflow();
  return figure;
}

Extended Less(const Family& family, const DistArguments& arguments) {
  if (arguments.classic) return ClassicProbability(family.classic.less, arguments);
  const auto distribution = DistributionOf(family, arguments);
  // Less than k means at most k - 1; no count is below 0.
  const Extended point = arguments.numbers.back() - (family.is_discrete ? 1 : 0);
  const Extended figure =
      arguments.log ? LogLower(*distribution, point) : Lower(*distribution, point);
  return InRange(figure, family, *distribution, point);
}

Extended Greater(const Family& family, const DistArguments& arguments) {
  if (arguments.classic) return ClassicProbability(family.classic.greater, arguments);
  const auto distribution = DistributionOf(family, arguments);
  const Extended point = arguments.numbers.back();
  const Extended figure =
      arguments.log ? LogUpper(*distribution, point) : Upper(*distribution, point);
  return InRange(figure, family, *distribution, point);
}

Extended Between(const Family& family, const DistArguments& arguments) {
  if (arguments.classic) return ClassicProbability(family.classic.between, arguments);
  const Numbers points = Numbers(arguments.numbers).last(2);
  return DistributionOf(family, arguments)->ProbabilityBetween(points[0], points[1]);
}

Extended Quantile(const Family& family, const DistArguments& arguments) {
  const bool from_below = arguments.lower_probability.has_value();
  const Extended probability =
      from_below ? *arguments.lower_probability : *arguments.upper_probability;
  if (!arguments.classic) {
    return DistributionOf(family, arguments)
        ->Quantile(from_below ? Tail::kLower : Tail::kUpper, probability);
  }
  std::vector<Extended> numbers = arguments.numbers;
  numbers.push_back(probability);
  return Existing(from_below ? family.classic.quantile : family.classic.upper_quantile)(numbers);
}

Extended Density(const Family& family, const DistArguments& arguments) {
  const auto distribution = DistributionOf(family, arguments);
  const Extended point = arguments.numbers.back();
  const Extended density = arguments.classic ? Existing(family.classic.density)(arguments.numbers)
                                             : distribution->Pdf(point);
  return InRange(density, family, *distribution, point);
}

std::string Text(Extended value, const DistArguments& arguments) {
  // The arguments are finite: something on the way was not.
  if (std::isnan(value)) throw EOverflow();
  return arguments.output.ForNumbers().Text(value);
}

template <Extended (*compute)(const Family&, const DistArguments&)>
std::string OneLine(const Family& family, const DistArguments& arguments) {
  return Text(compute(family, arguments), arguments) + '\n';
}

std::string TableOfCounts(const Family& family, DistArguments arguments) {
  const Extended last = arguments.numbers.back();
  arguments.numbers.pop_back();
  Extended& k = arguments.numbers.back();
  if (last < k) throw CLI::ValidationError("--to", "counts ascend, so it must not be below --from");
  if (last - k >= kMostPoints)
    throw CLI::ValidationError("--to", "a table has at most 10000000 points");
  const auto distribution = DistributionOf(family, arguments);
  std::string lines;
  for (; k <= last; ++k) {
    const Extended density = arguments.classic ? Existing(family.classic.density)(arguments.numbers)
                                               : distribution->Pdf(k);
    lines += Float2Str(k) + ',' + Text(density, arguments) + '\n';
  }
  return lines;
}

std::string TableOf(const Family& family, const DistArguments& arguments) {
  if (family.is_discrete) return TableOfCounts(family, arguments);
  const auto distribution = DistributionOf(family, arguments);
  DensityTable<Extended> table;
  if (arguments.classic) {
    Existing(family.classic.table)(arguments.numbers, static_cast<std::int32_t>(arguments.steps),
                                   table.points, table.densities);
  } else {
    const Numbers range = Numbers(arguments.numbers).last(2);
    table = Table(*distribution, range[0], range[1], static_cast<std::uint32_t>(arguments.steps));
  }
  std::string lines;
  for (std::size_t i = 0; i < table.points.size(); ++i) {
    const Extended x = table.points[i];
    const Extended density = InRange(table.densities[i], family, *distribution, x);
    lines += Text(x, arguments) + ',' + Text(density, arguments) + '\n';
  }
  return lines;
}

// A command of every family.
struct Question {
  const char* name;
  const char* summary;
  void (*add_options)(CLI::App& command, const Family& family, const SharedArguments& arguments);
  std::string (*answer)(const Family& family, const DistArguments& arguments);
};

constexpr Question kQuestions[] = {
    {"less", "The probability of less than a point", AddPointAndLog, OneLine<Less>},
    {"greater", "The probability of more than a point", AddPointAndLog, OneLine<Greater>},
    {"between", "The probability between two points, in either order, both excluded", AddTwoPoints,
     OneLine<Between>},
    {"inv", "The point with a given lower or upper probability", AddProbability, OneLine<Quantile>},
    {"pdf", "The density at a point, or the probability of a count", AddPoint, OneLine<Density>},
    {"table", "The densities over a range, one line \"point,density\" each", AddRange, TableOf},
};

void RequireWholeNumbers(const Family& family, const DistArguments& arguments) {
  for (std::size_t i = 0; i < family.parameters.size(); ++i) {
    const NumberParameter& parameter = family.parameters[i];
    const Extended value = arguments.numbers[i];
    if (parameter.kind != NumberKind::kDegreesOfFreedom) continue;
    if (const char* const wrong = WhatIsWrong(value, NumberKind::kCount)) {
      throw CLI::ValidationError(parameter.option,
                                 Float2Str(value) + ' ' + wrong + ", as --classic needs");
    }
  }
}

// Whether there is an answer without --classic.
bool AnswersWithoutClassic(const Family& family, const Question& question,
                           DistArguments arguments) {
  arguments.classic = false;
  try {
    question.answer(family, arguments);
    return true;
  } catch (const EMathError&) {
    return false;
  }
}

[[noreturn]] void RefuseAnswer(const EMathError& error, const Family& family,
                               const Question& question, const DistArguments& arguments) {
  const bool helps = arguments.classic && AnswersWithoutClassic(family, question, arguments);
  throw Refusal(std::string(family.name) + ' ' + question.name, error,
                helps ? "; without --classic there is no such limit" : "");
}

void Run(const Family& family, const Question& question, const DistArguments& arguments) {
  if (arguments.classic) RequireWholeNumbers(family, arguments);
  if (family.inconsistency != nullptr) {
    if (const char* const what = family.inconsistency(arguments.numbers))
      throw CLI::ValidationError(what);
  }
  try {
    WriteResult(question.answer(family, arguments));
  } catch (const EMathError& error) {
    RefuseAnswer(error, family, question, arguments);
  }
}

void AddQuestion(CLI::App& parent, const Family& family, const Question& question) {
  CLI::App& command = *parent.add_subcommand(question.name, question.summary);
  const auto arguments = std::make_shared<DistArguments>();
  for (const NumberParameter& parameter : family.parameters)
    AddNumberInOrder(command, arguments, parameter);
  command.add_flag("--classic", arguments->classic,
                   "Compute with the classic routines of QorvexStatistics");
  question.add_options(command, family, arguments);
  arguments->output.AddDigitsTo(command);
  command.footer(std::string(kNumbersHelp) + kExitStatusHelp + kNothingPrintedHelp);
  command.callback([&family, &question, arguments] { Run(family, question, *arguments); });
}

}  // namespace

void AddDist(CLI::App& program) {
  CLI::App& dist =
      *program.add_subcommand("dist", "Probabilities, densities and quantiles of distributions");
  for (const Family& family : Families()) {
    CLI::App& command = *dist.add_subcommand(family.name, family.summary);
    AddAliases(command, family.aliases);
    for (const Question& question : kQuestions) AddQuestion(command, family, question);
    RequireOneCommand(command, "command");
  }
  RequireOneCommand(dist, "distribution");
}

}  // namespace qorvex::apps
