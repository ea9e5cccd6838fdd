#pragma once

/// @file
/// Figures with their names in each form of output.

#include <map>
#include <string>
#include <vector>

#include "apps/qorvex/result_table.h"
#include "qorvex/stats/descriptive_stats.h"

namespace qorvex::apps {

/// A figure of a report.
struct Figure {
  /// In CSV and JSON: "standard_deviation".
  std::string key;
  /// In text: "Standard Deviation:". Empty if there is only a line.
  std::string label;
  Cell value = {};
  /// The whole line in text, instead of label and value: "No Modal Value".
  std::string line = {};
};

/// The lines of a report on a sample. Amounts take the place of the figures with the same labels.
[[nodiscard]] std::vector<Figure> FiguresOf(const std::vector<ReportFigure>& lines,
                                            const std::map<ReportTextId, Currency>& amounts = {});

/// A label without its colon, as a heading.
[[nodiscard]] std::string Heading(std::string label);

/// A line for each figure, with a tab between label and value.
[[nodiscard]] std::string LinesOf(const std::vector<Figure>& figures, const FigureFormat& format);

/// The keys and values of the figures.
void WriteFigures(JsonWriter& json, const std::vector<Figure>& figures);

/// Writes a remark if decimals show figures as 0 that are not 0. The place is what the remark
/// begins with.
void RemarkOnHidden(const std::string& place, const std::vector<Figure>& figures,
                    const OutputFormat& output);

}  // namespace qorvex::apps
