#pragma once

/// @file
/// Reports made of lists of figures and tables.

#include <string>
#include <vector>

#include "apps/qorvex/figures.h"
#include "apps/qorvex/output_format.h"
#include "apps/qorvex/result_table.h"

namespace qorvex::apps {

/// A part of a report: figures one below the other, or a table.
struct ReportPart {
  /// In CSV: "coefficient".
  std::string key;
  /// What the figures are of, in CSV: the name of a sample.
  std::string item = {};
  /// The line above the part in text; none if empty.
  std::string title = {};
  std::vector<Figure> figures = {};
  /// Instead of figures; in text between blank lines. The first column says what each row is of.
  ResultTable table = {};
};

/// Lists of figures as one table, with a column for each, which has the name of its item. A figure
/// that only some lists have comes where the first of these has it.
[[nodiscard]] ReportPart SideBySide(const std::vector<ReportPart>& lists);

/// The parts in text, aligned by blanks if the output is a table.
[[nodiscard]] std::string TextOf(const std::vector<ReportPart>& parts, const OutputFormat& output,
                                 int significant_digits);

/// The parts in CSV, with a line "part,item,figure,value" for each figure.
[[nodiscard]] std::string CsvOf(const std::vector<ReportPart>& parts, const FigureFormat& format);

/// Writes a remark if decimals show figures as 0 that are not 0. The place is what the remark
/// begins with.
void RemarkOnHidden(const std::string& place, const std::vector<ReportPart>& parts,
                    const OutputFormat& output);

}  // namespace qorvex::apps
