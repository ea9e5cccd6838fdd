#include "apps/common/column_selection.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <numeric>
#include <string>
#include <utility>

#include "apps/common/cells.h"
#include "apps/common/input_error.h"
#include "qorvex/base/text.h"

namespace qorvex::apps {

namespace {

// "the columns are 1 (x), 2" or "the table has 3 columns and no header".
std::string DescribeColumns(std::span<const std::string> names, std::size_t width) {
  if (names.empty()) return "the table has " + Cardinal(width, "column") + " and no header";
  constexpr std::size_t most_shown = 20;
  std::string text = "the columns are ";
  for (std::size_t i = 0; i < std::min(width, most_shown); ++i) {
    if (i != 0) text += ", ";
    text += Int2EStr(i + 1);
    if (!names[i].empty()) text += " (" + Shortened(names[i]) + ')';
  }
  if (width > most_shown) text += " and " + Int2EStr(width - most_shown) + " more";
  return text;
}

// The position, from 0, of a column that is chosen by name or number.
std::size_t FindColumn(const std::string& chosen, std::span<const std::string> names,
                       std::size_t width, const std::string& input_name) {
  if (const auto found = std::ranges::find(names, chosen); found != names.end()) {
    if (const auto again = std::find(found + 1, names.end(), chosen); again != names.end()) {
      throw InputError(InputFault::kNoSuchColumn, input_name,
                       "columns " + Int2EStr(found - names.begin() + 1) + " and " +
                           Int2EStr(again - names.begin() + 1) + " are both named " +
                           Excerpt(chosen));
    }
    return static_cast<std::size_t>(found - names.begin());
  }
  std::size_t number = 0;
  const char* const end = chosen.data() + chosen.size();
  const auto [stop, error] = std::from_chars(chosen.data(), end, number);
  if (error != std::errc() || stop != end || number < 1 || number > width) {
    throw InputError(
        InputFault::kNoSuchColumn, input_name,
        "there is no column " + Excerpt(chosen) + "; " + DescribeColumns(names, width));
  }
  return number - 1;
}

}  // namespace

std::vector<TableColumn> ChosenColumns(const TableSelection& selection,
                                       std::span<const std::string> names, std::size_t width,
                                       bool has_row_names, const std::string& input_name) {
  std::vector<std::size_t> indices;
  if (selection.columns.empty()) {
    const std::size_t first = has_row_names ? 1 : 0;
    indices.resize(width - first);
    std::iota(indices.begin(), indices.end(), first);
  }
  for (const std::string& column : selection.columns) {
    const std::size_t index = FindColumn(column, names, width, input_name);
    if (std::ranges::find(indices, index) == indices.end()) indices.push_back(index);
  }
  const auto column_of = [&](std::size_t index, ColumnRole role) {
    return TableColumn{
        .number = index + 1, .name = names.empty() ? "" : names[index], .role = role};
  };
  std::vector<TableColumn> others;
  const auto add_other = [&](const std::string& column, ColumnRole role) {
    const std::size_t index = FindColumn(column, names, width, input_name);
    const auto refuse = [&](ColumnRole known) {
      const char* const what = known == ColumnRole::kWeights ? "weights" : "labels";
      throw InputError(InputFault::kNoSuchColumn, input_name,
                       selection.columns.empty() && indices.empty()
                           ? std::string("there is no column beside the ") + what
                           : Excerpt(column) + " is the column of the " + what);
    };
    std::erase(indices, index);
    if (indices.empty()) refuse(role);
    const auto known = std::ranges::find(others, index + 1, &TableColumn::number);
    if (known == others.end()) {
      others.push_back(column_of(index, role));
    } else if (known->role != role) {
      refuse(known->role);
    }
  };
  if (selection.weights) add_other(*selection.weights, ColumnRole::kWeights);
  for (const std::string& column : selection.labels) add_other(column, ColumnRole::kLabels);
  std::vector<TableColumn> columns;
  for (const std::size_t index : indices) columns.push_back(column_of(index, ColumnRole::kValues));
  std::ranges::move(others, std::back_inserter(columns));
  return columns;
}

}  // namespace qorvex::apps
