#pragma once

/// @file
/// The names of the figures of `describe`.

#include <cstdint>
#include <string>
#include <vector>

namespace qorvex::apps {

/// What a figure needs beside the count, the first two powers of the numbers and their extremes.
enum class FigureSource : std::uint8_t { kNothingElse, kOrder, kHigherPowers };

/// The numbers for which a figure exists.
enum class FigureScope : std::uint8_t {
  kAllNumbers,
  kNoReliabilities,  ///< not with weights that are reliabilities
  kUnweighted,       ///< neither with weights nor from the classic routines
};

/// A figure that --figures can choose.
struct FigureName {
  /// As in JSON and CSV.
  std::string key;
  /// Shorter names.
  std::vector<std::string> aliases = {};
  FigureSource source = FigureSource::kNothingElse;
  FigureScope scope = FigureScope::kAllNumbers;
  /// The label in text of a figure that is not in the usual report.
  std::string label = {};
};

/// All figures: those of the usual report in its order, then the others.
[[nodiscard]] const std::vector<FigureName>& FigureNames();

/// The figures with these names, which have commas between them, in their order without duplicates.
/// Capitals do not matter, and "-" stands for "_". Throws CLI::ValidationError for other names.
[[nodiscard]] std::vector<const FigureName*> ParseFigures(const std::string& names);

}  // namespace qorvex::apps
