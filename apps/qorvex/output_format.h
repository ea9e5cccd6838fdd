#pragma once

/// @file
/// The options on how a command prints its result.

#include <CLI/CLI.hpp>
#include <cstdint>
#include <optional>

#include "apps/common/figure_format.h"

namespace qorvex::apps {

/// The form of a result.
enum class OutputForm : std::uint8_t { kText, kTable, kCsv, kJson };

/// The largest argument of --digits and --decimals.
inline constexpr int kMostDigits = 255;

/// @{
/// Descriptions of the default of --digits.
inline constexpr const char* kReportDigits =
    "as many as the\nnumbers have and one more, at least 7";
inline constexpr const char* kAllDigits = "the shortest\ntext that keeps all 80 bits";
/// @}

/// What the options of a command say about its output.
struct OutputFormat {
  OutputForm form = OutputForm::kText;
  /// @{
  /// At most one of them.
  std::optional<int> digits = {};
  std::optional<int> decimals = {};
  /// @}
  bool grouped = false;

  /// Adds --digits, --decimals, --group, --table, --csv and --json to a command. The description is
  /// that of the default of the first two. This object must outlive the parsing.
  void AddTo(CLI::App& command, const char* default_digits = kReportDigits);

  /// Adds --digits, --decimals and --group only, for figures that have one form.
  void AddDigitsTo(CLI::App& command, const char* default_digits = kAllDigits);

  /// Whether a figure that is not 0 can be shown as 0.
  [[nodiscard]] bool CanHideFigures() const { return decimals && !IsJson(); }
  [[nodiscard]] bool IsJson() const { return form == OutputForm::kJson; }

  /// The format of figures in a report on numbers with that many significant digits. CSV has all
  /// bits unless there is an option.
  [[nodiscard]] FigureFormat ForReport(int significant_digits = 0) const;

  /// The format of numbers that other programs read: all bits unless there is an option.
  [[nodiscard]] FigureFormat ForNumbers() const;
};

}  // namespace qorvex::apps
