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
#include "apps/qorvex/commands.h"
#include "apps/qorvex/common_arguments.h"
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

using Numbers = std::vector<Extended>;

struct DistArguments {
  /// The parameters, then the points or the range.
  Numbers numbers;
  std::optional<Extended> lower_probability;
  std::optional<Extended> upper_probability;
  /// The steps of a continuous table.
  Extended steps = 0;
  std::optional<int> decimals;
  bool log = false;
  bool classic = false;
};

using SharedArguments = std::shared_ptr<DistArguments>;

void AddNumberInOrder(CLI::App& command, const SharedArguments& arguments,
                      const NumberParameter& parameter) {
  const std::size_t index = arguments->numbers.size();
  arguments->numbers.push_back(parameter.standard.value_or(0));
  CLI::Option& option =
      AddNumber(command, parameter.option, parameter.description, parameter.kind,
                [arguments, index](Extended value) { arguments->numbers[index] = value; });
  if (!parameter.standard) option.required();
}

NumberKind PointKind(const Distribution& distribution) {
  return distribution.is_discrete ? NumberKind::kCount : NumberKind::kReal;
}

void AddPoint(CLI::App& command, const Distribution& distribution,
              const SharedArguments& arguments) {
  AddNumberInOrder(
      command, arguments,
      {distribution.is_discrete ? "--k" : "--x", "The point", PointKind(distribution)});
}

void AddPointAndLog(CLI::App& command, const Distribution& distribution,
                    const SharedArguments& arguments) {
  AddPoint(command, distribution, arguments);
  command
      .add_flag("--log", arguments->log,
                "The natural logarithm, also where the probability underflows")
      ->excludes(command.get_option("--classic"));
}

void AddTwoPoints(CLI::App& command, const Distribution& distribution,
                  const SharedArguments& arguments) {
  const NumberKind kind = PointKind(distribution);
  const bool discrete = distribution.is_discrete;
  AddNumberInOrder(command, arguments, {discrete ? "--k1" : "--x1", "One point", kind});
  AddNumberInOrder(command, arguments, {discrete ? "--k2" : "--x2", "The other point", kind});
}

void AddProbability(CLI::App& command, const Distribution&, const SharedArguments& arguments) {
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

void AddRange(CLI::App& command, const Distribution& distribution,
              const SharedArguments& arguments) {
  const NumberKind kind = PointKind(distribution);
  AddNumberInOrder(command, arguments, {"--from", "The first point", kind});
  AddNumberInOrder(command, arguments, {"--to", "The last point", kind});
  if (distribution.is_discrete) return;
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

// Rounding can leave a classic sum above 1, and what it leaves of 1 below 0.
Extended ClassicProbability(DistributionRoutine routine, const DistArguments& arguments) {
  const Extended probability = Existing(routine)(arguments.numbers);
  if (probability < 0) return 0;
  return probability > 1 ? 1 : probability;
}

Numbers WithLast(Numbers numbers, Extended last) {
  numbers.back() = last;
  return numbers;
}

// A figure for the last of the numbers, a point. At an end of the support and beyond it, a
// logarithm or a density can be infinite; anywhere else it is a finite one beyond the range.
Extended InRange(Extended figure, const Distribution& distribution, const Numbers& numbers) {
  if (!std::isinf(figure) || distribution.is_discrete) return figure;
  const Support support =
      distribution.support == nullptr ? Support() : distribution.support(numbers);
  const Extended point = numbers.back();
  if (point > support.least && point < support.greatest) throw EOverflow();
  return figure;
}

Extended Less(const Distribution& distribution, const DistArguments& arguments) {
  if (arguments.classic) return ClassicProbability(distribution.classic.less, arguments);
  const FullPrecisionRoutines& routines = distribution.full_precision;
  const DistributionRoutine lower = arguments.log ? routines.log_lower : routines.lower;
  if (!distribution.is_discrete)
    return InRange(lower(arguments.numbers), distribution, arguments.numbers);
  // Fewer than k are at most k - 1; fewer than none is impossible, though the parameters are
  // checked all the same.
  const Extended k = arguments.numbers.back();
  const Extended at_most = lower(WithLast(arguments.numbers, k > 0 ? k - 1 : 0));
  if (k > 0) return at_most;
  return arguments.log ? -std::numeric_limits<Extended>::infinity() : 0;
}

Extended Greater(const Distribution& distribution, const DistArguments& arguments) {
  if (arguments.classic) return ClassicProbability(distribution.classic.greater, arguments);
  const FullPrecisionRoutines& routines = distribution.full_precision;
  const Extended upper = (arguments.log ? routines.log_upper : routines.upper)(arguments.numbers);
  return InRange(upper, distribution, arguments.numbers);
}

Extended Between(const Distribution& distribution, const DistArguments& arguments) {
  if (arguments.classic) return ClassicProbability(distribution.classic.between, arguments);
  return ProbabilityBetween(distribution, arguments.numbers);
}

Extended Quantile(const Distribution& distribution, const DistArguments& arguments) {
  Numbers numbers = arguments.numbers;
  const bool from_below = arguments.lower_probability.has_value();
  numbers.push_back(from_below ? *arguments.lower_probability : *arguments.upper_probability);
  const FullPrecisionRoutines& full_precision = distribution.full_precision;
  const ClassicRoutines& classic = distribution.classic;
  if (!arguments.classic)
    return (from_below ? full_precision.quantile : full_precision.upper_quantile)(numbers);
  return Existing(from_below ? classic.quantile : classic.upper_quantile)(numbers);
}

Extended Density(const Distribution& distribution, const DistArguments& arguments) {
  const DistributionRoutine density = arguments.classic ? Existing(distribution.classic.density)
                                                        : distribution.full_precision.density;
  return InRange(density(arguments.numbers), distribution, arguments.numbers);
}

std::string Text(Extended value, const DistArguments& arguments) {
  // The arguments are finite: something on the way was not.
  if (std::isnan(value)) throw EOverflow();
  return FigureText(value, arguments.decimals);
}

template <Extended (*compute)(const Distribution&, const DistArguments&)>
std::string OneLine(const Distribution& distribution, const DistArguments& arguments) {
  return Text(compute(distribution, arguments), arguments) + '\n';
}

std::string TableOfCounts(const Distribution& distribution, DistArguments arguments) {
  const Extended last = arguments.numbers.back();
  arguments.numbers.pop_back();
  Extended& k = arguments.numbers.back();
  if (last < k) throw CLI::ValidationError("--to", "counts ascend, so it must not be below --from");
  if (last - k >= kMostPoints)
    throw CLI::ValidationError("--to", "a table has at most 10000000 points");
  std::string lines;
  for (; k <= last; ++k) lines += Float2Str(k) + ',' + OneLine<Density>(distribution, arguments);
  return lines;
}

std::string Table(const Distribution& distribution, const DistArguments& arguments) {
  if (distribution.is_discrete) return TableOfCounts(distribution, arguments);
  const auto n = static_cast<std::int32_t>(arguments.steps);
  TQorFloatVector x_values;
  TQorFloatVector densities;
  Numbers numbers = arguments.numbers;
  const Extended to = numbers.back();
  numbers.pop_back();
  const Extended from = numbers.back();
  if (arguments.classic) {
    Existing(distribution.classic.table)(arguments.numbers, n, x_values, densities);
  } else {
    const Extended step = n >= 1 ? (to - from) / arguments.steps : 0;
    const std::size_t length = static_cast<std::size_t>(n) + 1;
    x_values = TQorFloatVector::ForOverwrite(length);
    densities = TQorFloatVector::ForOverwrite(length);
    for (std::size_t i = 0; i < length; ++i) {
      x_values[i] = numbers.back() = static_cast<Extended>(i) * step + from;
      densities[i] = distribution.full_precision.density(numbers);
    }
  }
  std::string lines;
  for (std::size_t i = 0; i < x_values.size(); ++i) {
    const Extended x = numbers.back() = x_values[i];
    const Extended density = InRange(densities[i], distribution, numbers);
    lines += Text(x, arguments) + ',' + Text(density, arguments) + '\n';
  }
  return lines;
}

// A command of every distribution.
struct Question {
  const char* name;
  const char* summary;
  void (*add_options)(CLI::App& command, const Distribution& distribution,
                      const SharedArguments& arguments);
  std::string (*answer)(const Distribution& distribution, const DistArguments& arguments);
};

constexpr Question kQuestions[] = {
    {"less", "The probability of less than a point", AddPointAndLog, OneLine<Less>},
    {"greater", "The probability of more than a point", AddPointAndLog, OneLine<Greater>},
    {"between", "The probability between two points, in either order, both excluded", AddTwoPoints,
     OneLine<Between>},
    {"inv", "The point with a given lower or upper probability", AddProbability, OneLine<Quantile>},
    {"pdf", "The density at a point, or the probability of a count", AddPoint, OneLine<Density>},
    {"table", "The densities over a range, one line \"point,density\" each", AddRange, Table},
};

void RequireWholeNumbers(const Distribution& distribution, const DistArguments& arguments) {
  for (std::size_t i = 0; i < distribution.parameters.size(); ++i) {
    const NumberParameter& parameter = distribution.parameters[i];
    const Extended value = arguments.numbers[i];
    if (parameter.kind != NumberKind::kDegreesOfFreedom) continue;
    if (const char* const wrong = WhatIsWrong(value, NumberKind::kCount)) {
      throw CLI::ValidationError(parameter.option,
                                 Float2Str(value) + ' ' + wrong + ", as --classic needs");
    }
  }
}

// Whether the full-precision routines answer what the classic ones did not.
bool AnswersInFullPrecision(const Distribution& distribution, const Question& question,
                            DistArguments arguments) {
  arguments.classic = false;
  try {
    question.answer(distribution, arguments);
    return true;
  } catch (const EMathError&) {
    return false;
  }
}

[[noreturn]] void RefuseAnswer(const EMathError& error, const Distribution& distribution,
                               const Question& question, const DistArguments& arguments) {
  const bool helps = arguments.classic && AnswersInFullPrecision(distribution, question, arguments);
  throw Refusal(std::string(distribution.name) + ' ' + question.name, error,
                helps ? "; without --classic there is no such limit" : "");
}

void Run(const Distribution& distribution, const Question& question,
         const DistArguments& arguments) {
  if (arguments.classic) RequireWholeNumbers(distribution, arguments);
  if (distribution.inconsistency != nullptr) {
    if (const char* const what = distribution.inconsistency(arguments.numbers))
      throw CLI::ValidationError(what);
  }
  try {
    WriteResult(question.answer(distribution, arguments));
  } catch (const EMathError& error) {
    RefuseAnswer(error, distribution, question, arguments);
  }
}

void AddQuestion(CLI::App& family, const Distribution& distribution, const Question& question) {
  CLI::App& command = *family.add_subcommand(question.name, question.summary);
  const auto arguments = std::make_shared<DistArguments>();
  for (const NumberParameter& parameter : distribution.parameters)
    AddNumberInOrder(command, arguments, parameter);
  command.add_flag("--classic", arguments->classic,
                   "Compute with the classic routines of QorvexStatistics");
  question.add_options(command, distribution, arguments);
  AddDecimals(command, arguments->decimals,
              "Decimals of every figure. Default: the shortest text that keeps all 80 bits");
  command.footer(std::string(kNumbersHelp) + kExitStatusHelp + kNothingPrintedHelp);
  command.callback(
      [&distribution, &question, arguments] { Run(distribution, question, *arguments); });
}

}  // namespace

void AddDist(CLI::App& program) {
  CLI::App& dist =
      *program.add_subcommand("dist", "Probabilities, densities and quantiles of distributions");
  for (const Distribution& distribution : Distributions()) {
    CLI::App& family = *dist.add_subcommand(distribution.name, distribution.summary);
    for (const Question& question : kQuestions) AddQuestion(family, distribution, question);
    RequireOneCommand(family, std::string("A command of dist ") + distribution.name);
  }
  RequireOneCommand(dist, "A distribution");
}

}  // namespace qorvex::apps
