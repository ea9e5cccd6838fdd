#include "apps/qorvex/describe_figures.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cctype>
#include <sstream>

#include "apps/common/input_error.h"

namespace qorvex::apps {

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
  std::istringstream list(names);
  std::string name;
  do {
    std::getline(list, name, ',');
    std::string plain = name;
    for (char& c : plain)
      c = c == '-' ? '_' : static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    const auto figure = std::ranges::find_if(FigureNames(), [&](const FigureName& candidate) {
      return candidate.key == plain || std::ranges::count(candidate.aliases, plain) > 0;
    });
    if (figure == FigureNames().end()) {
      std::string known;
      for (const FigureName& candidate : FigureNames())
        known += (known.empty() ? "" : ", ") + candidate.key;
      throw CLI::ValidationError("--figures",
                                 "unknown figure " + Excerpt(name) + "; the figures are " + known);
    }
    if (std::ranges::find(figures, &*figure) == figures.end()) figures.push_back(&*figure);
  } while (!list.eof());
  return figures;
}

}  // namespace qorvex::apps
