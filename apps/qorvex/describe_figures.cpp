#include "apps/qorvex/describe_figures.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cctype>

#include "apps/common/input_error.h"
#include "apps/common/similar_words.h"
#include "apps/qorvex/format_arguments.h"

namespace qorvex::apps {

namespace {

[[noreturn]] void RefuseFigure(const std::string& name) {
  std::vector<std::string> keys, names;
  for (const FigureName& figure : FigureNames()) {
    keys.push_back(figure.key);
    names.push_back(figure.key);
    names.insert(names.end(), figure.aliases.begin(), figure.aliases.end());
  }
  const std::vector<std::string> similar = SimilarWords(name, names);
  throw CLI::ValidationError(
      "--figures", "unknown figure " + Excerpt(name) +
                       (similar.empty() ? "; the figures are " + Alternatives(keys)
                                        : "; did you mean " + Alternatives(similar) + '?'));
}

// Capitals do not matter, and "-" stands for "_".
const FigureName& FigureNamed(const std::string& name) {
  std::string plain = name;
  for (char& c : plain)
    c = c == '-' ? '_' : static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  const auto figure = std::ranges::find_if(FigureNames(), [&](const FigureName& candidate) {
    return candidate.key == plain || std::ranges::count(candidate.aliases, plain) > 0;
  });
  if (figure == FigureNames().end()) RefuseFigure(name);
  return *figure;
}

}  // namespace

const std::vector<FigureName>& FigureNames() {
  using enum FigureSource;
  using enum FigureScope;
  static const std::vector<FigureName> names{
      {"count", {"n"}},
      {"missing"},
      {"maximum", {"max"}},
      {"minimum", {"min"}},
      {"range"},
      {"sum", {}, kNothingElse, kNoReliabilities},
      {"sum_of_squares", {"sumsq"}, kNothingElse, kNoReliabilities},
      {"mean", {"average", "avg"}},
      {"mode", {}, kOrder, kNoReliabilities},
      {"median", {}, kOrder},
      {"variance", {"var"}},
      {"standard_deviation", {"sd", "std", "stddev"}},
      {"excess_kurtosis", {"kurtosis", "kurt"}, kHigherPowers, kNoReliabilities},
      {"skewness", {"skew"}, kHigherPowers, kNoReliabilities},
      {"first_quartile", {"q1"}, kOrder},
      {"third_quartile", {"q3"}, kOrder},
      {"interquartile_range", {"iqr"}, kOrder},
      {"standard_error", {"se", "sem"}, kNothingElse, kUnweighted, "Standard Error of the Mean:"},
      {"median_absolute_deviation", {"mad"}, kOrder, kUnweighted, "Median Absolute Deviation:"},
      {"trimmed_mean", {"trimmed"}, kOrder, kUnweighted, "Trimmed Mean:"},
      {"geometric_mean", {"gmean"}, kNothingElse, kUnweighted, "Geometric Mean:"},
      {"harmonic_mean", {"hmean"}, kNothingElse, kUnweighted, "Harmonic Mean:"},
      {"deciles", {}, kOrder, kUnweighted, "Decile "},
  };
  return names;
}

std::vector<const FigureName*> ParseFigures(const std::string& names) {
  std::vector<const FigureName*> figures;
  for (const std::string& name : SplitList("--figures", names)) {
    const FigureName& figure = FigureNamed(name);
    if (std::ranges::find(figures, &figure) == figures.end()) figures.push_back(&figure);
  }
  return figures;
}

}  // namespace qorvex::apps
