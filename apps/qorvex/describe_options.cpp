#include "apps/qorvex/describe_options.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "apps/qorvex/common_arguments.h"

namespace qorvex::apps {

namespace {

std::vector<WrittenNumber> ParseProbabilities(std::string_view list) {
  std::vector<WrittenNumber> probabilities;
  for (;;) {
    const std::size_t comma = list.find(',');
    const std::string text(list.substr(0, comma));
    probabilities.push_back({text, ParseNumber("--quantiles", text, NumberKind::kShare)});
    if (comma == std::string_view::npos) return probabilities;
    list.remove_prefix(comma + 1);
  }
}

std::string FiguresHelp() {
  std::string text = "The figures to report, in their order, with commas between them:";
  std::size_t width = 80;
  for (const FigureName& figure : FigureNames()) {
    std::string names = figure.key;
    for (const std::string& alias : figure.aliases) names += " = " + alias;
    if (&figure != &FigureNames().back()) names += ',';
    constexpr std::size_t longest = 72;
    const bool fits = width + 1 + names.size() <= longest;
    text += (fits ? " " : "\n") + names;
    width = fits ? width + 1 + names.size() : names.size();
  }
  return text;
}

WeightKind ParseWeightKind(const std::string& text) {
  if (text == "frequency") return WeightKind::kFrequency;
  if (text == "reliability") return WeightKind::kReliability;
  throw CLI::ValidationError("--weights-kind",
                             '"' + text + "\" is neither frequency nor reliability");
}

}  // namespace

void DescribeOptions::AddTo(CLI::App& command) {
  table.AddTo(command);
  CLI::Option* const all_values = command.add_flag(
      "--population", population, "The values are the whole population: divide by n, not by n - 1");
  command.add_flag("--currency", table.selection.currency,
                   "The values are amounts of money with at most four decimals: sum, minimum,\n"
                   "maximum and range are exact, always with four decimals");
  table.AddLabelsTo(command,
                    "A column of labels: a report on each group of rows with the same label.\n"
                    "Several columns make groups within groups");
  CLI::Option* const figure_list =
      command
          .add_option_function<std::string>(
              "--figures", [this](const std::string& names) { figures = ParseFigures(names); },
              FiguresHelp())
          ->type_name("NAME,...");
  AddWrittenNumber(command, "--trim",
                   "The share of the values that trimmed_mean leaves out at each end, from 0 to\n"
                   "0.5. Default: 0.1",
                   NumberKind::kShare, trim)
      .needs(figure_list);
  CLI::Option* const quantile_list =
      command
          .add_option_function<std::string>(
              "--quantiles",
              [this](const std::string& list) { quantiles = ParseProbabilities(list); },
              "Quantiles of these probabilities, from 0 to 1, with commas between them")
          ->type_name("P,...");
  command
      .add_option_function<int>(
          "--quantile-type", [this](int type) { quantile_type = static_cast<QuantileType>(type); },
          "Their definition by the numbers of Hyndman and Fan. Default: 7, or 2 for\n"
          "weights that are reliabilities. The quartiles have type 5, or the same 2")
      ->check(CLI::Range(1, 9))
      ->option_text("N (1 to 9)")
      ->needs(quantile_list);
  CLI::Option* const weights = table.AddWeightsTo(command);
  command
      .add_option_function<std::string>(
          "--weights-kind",
          [this](const std::string& text) { weight_kind = ParseWeightKind(text); },
          "frequency: each row counts as often as its weight says, a whole number;\n"
          "reliability: any weights, of which only the ratios matter. Default: frequency")
      ->type_name("KIND")
      ->needs(weights);
  CLI::Option* const level =
      AddConfidence(command,
                    "Confidence intervals of this level for the mean, the variance and the\n"
                    "standard deviation of normal data",
                    confidence)
          .excludes(all_values);
  CLI::Option* const thread_count =
      AddThreads(command, threads,
                 "Threads that read the table and compute the figures; the result is the\n"
                 "same. Default: 1");
  command
      .add_flag("--classic", classic,
                "Compute with the classic routines, whose sums are rounded at each step and\n"
                "depend on the order of the values. Default: sums are exact")
      ->excludes(weights)
      ->excludes(level)
      ->excludes(thread_count);
  output.AddTo(command);
}

QuantileType DescribeOptions::TypeOfQuantiles() const {
  return quantile_type.value_or(HasReliabilities() ? QuantileType::k2 : QuantileType::k7);
}

bool DescribeOptions::Needs(FigureSource source) const {
  return figures.empty() || std::ranges::count(figures, source, &FigureName::source) > 0;
}

bool DescribeOptions::ReportsSquares() const {
  return figures.empty() || std::ranges::any_of(figures, [](const FigureName* figure) {
           return figure->key == "sum_of_squares" || figure->key == "variance" ||
                  figure->key == "standard_deviation";
         });
}

void DescribeOptions::RequireConsistent() const {
  if (trim.value > 0.5L)
    throw CLI::ValidationError("--trim", trim.text + " is not a number from 0 to 0.5");
  for (const FigureName* const figure : figures) {
    const char* const option =
        figure->scope == FigureScope::kUnweighted && classic        ? "--classic"
        : figure->scope == FigureScope::kUnweighted && HasWeights() ? "--weights"
        : figure->scope == FigureScope::kNoReliabilities && HasReliabilities()
            ? "--weights-kind reliability"
            : nullptr;
    if (option != nullptr)
      throw CLI::ValidationError("--figures", figure->key + " does not exist with " + option);
  }
  if (!HasReliabilities()) return;
  if (TypeOfQuantiles() > QuantileType::k2) {
    throw CLI::ValidationError("--quantile-type",
                               "with reliabilities as weights, only the types 1 and 2 exist");
  }
  if (HasConfidence()) {
    throw CLI::ValidationError("--confidence",
                               "reliabilities as weights do not say how many values there are");
  }
}

}  // namespace qorvex::apps
