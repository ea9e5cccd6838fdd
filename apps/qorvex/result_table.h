#pragma once

/// @file
/// Results as rows and columns, which each form of output prints.

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "apps/common/figure_format.h"
#include "apps/common/number_parameter.h"
#include "apps/qorvex/json_writer.h"
#include "apps/qorvex/output_format.h"
#include "qorvex/base/currency.h"
#include "qorvex/stats/distributions/distribution.h"

namespace qorvex::apps {

/// A part of a result: nothing, a text, a number of things, a number that the user wrote, an exact
/// amount, a figure (NaN if it does not exist), a probability or an interval.
using Cell = std::variant<std::monostate, std::string, std::uint64_t, WrittenNumber, Currency,
                          Extended, Probability, Interval<Extended>>;

/// A cell in text: "" for nothing, "Not available" for NaN, "1 to 2" for an interval.
[[nodiscard]] std::string CellText(const Cell& cell, const FigureFormat& format);

/// A cell as a value of a JSON document with all its bits: null for nothing and NaN, an array of
/// two ends for an interval. A probability is a number.
void WriteCell(JsonWriter& json, const Cell& cell);

/// A result as rows and columns.
struct ResultTable {
  struct Column {
    /// In CSV and JSON: "standard_deviation".
    std::string key;
    /// In text: "Standard Deviation".
    std::string title;
  };
  std::vector<Column> columns = {};
  /// As many cells each as there are columns.
  std::vector<std::vector<Cell>> rows = {};
};

/// The table with a heading of keys, in CSV as in RFC 4180 (with line feeds). An interval takes two
/// columns, "key_lower" and "key_upper". Cells that do not exist are empty.
[[nodiscard]] std::string CsvOf(const ResultTable& table, const FigureFormat& format);

/// The table with a heading of titles, in columns aligned by blanks.
[[nodiscard]] std::string AlignedTextOf(const ResultTable& table, const FigureFormat& format);

/// The table with a heading of titles and a tab between cells.
[[nodiscard]] std::string TabbedTextOf(const ResultTable& table, const FigureFormat& format);

/// The rows as an array of objects.
void WriteRows(JsonWriter& json, const ResultTable& table);

/// The rows as columns: the first column becomes the heading, and the titles become the first
/// column.
[[nodiscard]] ResultTable Transposed(const ResultTable& table);

/// The table in the form of the options. The numbers that it is about have that many significant
/// digits. JSON is an array of objects.
[[nodiscard]] std::string Printed(const ResultTable& table, const OutputFormat& output,
                                  int significant_digits = 0);

/// A text in CSV, quoted if it contains a comma, a quote or a line break.
[[nodiscard]] std::string CsvText(const std::string& text);

}  // namespace qorvex::apps
